#include "arena.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>

namespace model {

namespace {

// One room more at each end keeps what strays from the first and the last inside.
constexpr std::size_t totalSize = (Arena::roomCount + 2) * Arena::roomSize;

std::byte* map(Address wanted)
{
    constexpr int flags = MAP_PRIVATE | MAP_ANONYMOUS;
    const std::size_t size = totalSize + 2 * Memory::pageSize;
    void* place = mmap(reinterpret_cast<void*>(wanted - Memory::pageSize), size, PROT_NONE,
                       flags | MAP_FIXED_NOREPLACE, -1, 0);
    if (place == MAP_FAILED)
        place = mmap(nullptr, size, PROT_NONE, flags, -1, 0);
    if (place == MAP_FAILED)
        throw std::runtime_error("no memory for an arena");
    std::byte* first = static_cast<std::byte*>(place) + Memory::pageSize;
    if (mprotect(first, totalSize, PROT_READ | PROT_WRITE) != 0)
        throw std::runtime_error("an arena cannot be opened");
    return first;
}

int protectionFor(Memory::PageUse use)
{
    if (use & Memory::written)
        return PROT_READ | PROT_WRITE;
    return use & Memory::read ? PROT_READ : PROT_NONE;
}

} // namespace

Arena::Arena(Address wanted) : bytes_(map(wanted), totalSize), before_(totalSize), memory_(new Memory(bytes_))
{
}

Arena::~Arena()
{
    delete memory_;
    munmap(bytes_.data() - Memory::pageSize, totalSize + 2 * Memory::pageSize);
}

void Arena::snapshot()
{
    std::memcpy(before_.data(), bytes_.data(), bytes_.size());
}

void Arena::restore()
{
    for (const Stored& stored : memory_->stores())
        std::memcpy(at(stored.address), before_.data() + (stored.address - start()), stored.size);
}

std::string Arena::compare()
{
    std::string difference = memory_->compare(before_);
    if (!difference.empty())
        snapshot();
    return difference;
}

void Arena::protect()
{
    // Runs of pages with the same protection go in one system call.
    for (std::size_t first = 0; first < memory_->pageCount();) {
        const int protection = protectionFor(memory_->useOfPage(first));
        std::size_t last = first + 1;
        while (last < memory_->pageCount() && protectionFor(memory_->useOfPage(last)) == protection)
            ++last;
        if (protection != (PROT_READ | PROT_WRITE) &&
            mprotect(bytes_.data() + first * Memory::pageSize, (last - first) * Memory::pageSize,
                     protection) != 0)
            throw std::runtime_error("pages cannot be protected");
        first = last;
    }
}

void Arena::unprotect()
{
    if (mprotect(bytes_.data(), bytes_.size(), PROT_READ | PROT_WRITE) != 0)
        throw std::runtime_error("pages cannot be opened again");
}

std::vector<Arena*>& arenas()
{
    static std::vector<Arena*> list = [] {
        constexpr std::uint64_t half = totalSize / 2 / Memory::pageSize * Memory::pageSize;
        constexpr bool wide = sizeof(Address) == 8;
        constexpr std::uint64_t edge = wide ? 0x100000000 : 0x80000000;
        constexpr std::uint64_t high = wide ? 0x5A5A00000000 : 0xA0000000;
        std::vector<Arena*> made;
        for (const std::uint64_t wanted : {std::uint64_t{0x30000000}, edge - half, high})
            made.push_back(new Arena(static_cast<Address>(wanted)));
        return made;
    }();
    return list;
}

} // namespace model
