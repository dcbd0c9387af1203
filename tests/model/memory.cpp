#include "memory.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace model {

namespace {

template <typename T>
T valueOf(const std::byte* bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof(T));
    return value;
}

// Told from the bits, so that no flag is raised by looking.
bool isNaN(const Stored& stored)
{
    if (stored.size == 4)
        return (valueOf<std::uint32_t>(stored.bytes.data()) & 0x7FFFFFFFu) > 0x7F800000u;
    return (valueOf<std::uint64_t>(stored.bytes.data()) & 0x7FFFFFFFFFFFFFFFu) > 0x7FF0000000000000u;
}

bool isZero(const Stored& stored)
{
    if (stored.size == 4)
        return (valueOf<std::uint32_t>(stored.bytes.data()) & 0x7FFFFFFFu) == 0;
    return (valueOf<std::uint64_t>(stored.bytes.data()) & 0x7FFFFFFFFFFFFFFFu) == 0;
}

// Whether a part of the place, or its bits, can be relied on.
bool bitsKnown(const Stored& stored)
{
    switch (stored.rule) {
    case Rule::exact:
        return true;
    case Rule::number:
        return !isNaN(stored);
    case Rule::signOpen:
        return !isNaN(stored) && !isZero(stored);
    case Rule::eitherSign:
    case Rule::within:
    case Rule::anything:
        return false;
    }
    return false;
}

constexpr std::uint32_t severalReaders = 0xFFFFFFFF;

double widened(const std::byte* bytes, std::size_t size)
{
    return size == 4 ? static_cast<double>(valueOf<float>(bytes)) : valueOf<double>(bytes);
}

std::string inWords(const std::byte* bytes, std::size_t size)
{
    char text[80];
    if (size == 4)
        std::snprintf(text, sizeof(text), "%08x (%.9g)", valueOf<std::uint32_t>(bytes), widened(bytes, size));
    else
        std::snprintf(text, sizeof(text), "%016llx (%.17g)",
                      static_cast<unsigned long long>(valueOf<std::uint64_t>(bytes)), widened(bytes, size));
    return text;
}

std::string addressInWords(Address address)
{
    char text[32];
    std::snprintf(text, sizeof(text), "0x%llx", static_cast<unsigned long long>(address));
    return text;
}

bool matches(const Stored& stored, const std::byte* actual)
{
    if (stored.rule == Rule::anything || std::memcmp(stored.bytes.data(), actual, stored.size) == 0)
        return true;
    Stored other = stored;
    std::memcpy(other.bytes.data(), actual, stored.size);
    if (stored.rule == Rule::exact)
        return false;
    if (isNaN(stored) || isNaN(other))
        return isNaN(stored) && isNaN(other);
    if (stored.rule == Rule::signOpen)
        return isZero(stored) && isZero(other);
    if (stored.rule == Rule::eitherSign) {
        other.bytes[other.size - 1] ^= std::byte{0x80};
        return std::memcmp(stored.bytes.data(), other.bytes.data(), stored.size) == 0;
    }
    if (stored.rule == Rule::within)
        return std::abs(widened(actual, stored.size) - widened(stored.bytes.data(), stored.size)) <=
               stored.bound;
    return false;
}

} // namespace

Memory::Memory(std::span<std::byte> region)
    : region_(region),
      pages_(region.size() / pageSize, untouched),
      owner_(region.size(), 0),
      reader_(region.size(), 0)
{
    if (start() % pageSize != 0 || region.size() % pageSize != 0)
        throw std::invalid_argument("the region is not made of pages");
}

std::size_t Memory::offsetOf(Address address, std::size_t size) const
{
    const Address offset = address - start();
    if (offset >= region_.size() || region_.size() - offset < size)
        throw OutOfMemory{address};
    return offset;
}

void Memory::touch(std::size_t offset, std::size_t size, PageUse use)
{
    for (std::size_t page = offset / pageSize; page <= (offset + size - 1) / pageSize; ++page)
        pages_[page] = static_cast<std::uint8_t>(pages_[page] | use);
}

bool Memory::intact(std::size_t index) const
{
    const Stored& stored = stores_[index];
    const auto first = owner_.begin() + static_cast<std::ptrdiff_t>(stored.address - start());
    return std::all_of(first, first + static_cast<std::ptrdiff_t>(stored.size),
                       [index](std::uint32_t owner) { return owner == index + 1; });
}

void Memory::beforeLoad(Address address, std::size_t size, bool asNumber)
{
    const std::size_t offset = offsetOf(address, size);
    touch(offset, size, read);
    for (std::size_t i = offset; i < offset + size; ++i) {
        if (owner_[i] == 0)
            continue;
        const Stored& stored = stores_[owner_[i] - 1];
        if (bitsKnown(stored))
            continue;
        // A NaN is known well enough when it is read whole and as a number.
        const bool wholeNaN = asNumber && stored.rule == Rule::number && stored.address == address &&
                              stored.size == size && intact(owner_[i] - 1);
        if (!wholeNaN)
            throw Undecided{"a result that is not known to the bit is read again"};
    }
    if (order_ != Order::promised)
        checkOrderOfLoad(offset, size);
}

void Memory::checkOrderOfLoad(std::size_t offset, std::size_t size)
{
    const auto element = static_cast<std::uint32_t>(stores_.size() + 1);
    for (std::size_t i = offset; i < offset + size; ++i) {
        if (owner_[i] != 0)
            throw Undecided{"a byte is read after it was stored, in no promised order"};
        if (reader_[i] == 0) {
            reader_[i] = element;
            readBytes_.push_back(i);
        } else if (reader_[i] != element) {
            reader_[i] = severalReaders;
        }
    }
}

void Memory::checkOrderOfStore(std::size_t offset, std::size_t size) const
{
    const auto element = static_cast<std::uint32_t>(stores_.size() + 1);
    for (std::size_t i = offset; i < offset + size; ++i) {
        if (reader_[i] != 0 && reader_[i] != element)
            throw Undecided{"a byte is stored after it was read for another element, in no promised order"};
        if (order_ == Order::open && owner_[i] > objectStart_)
            throw Undecided{"a byte is stored twice, in no promised order"};
    }
}

void Memory::mayRead(Address address, std::size_t size)
{
    if (size != 0)
        touch(offsetOf(address, size), size, read);
}

void Memory::store(Address address, const void* from, std::size_t size, Rule rule, double bound)
{
    const std::size_t offset = offsetOf(address, size);
    touch(offset, size, written);
    if (order_ != Order::promised)
        checkOrderOfStore(offset, size);
    Stored stored{.address = address, .size = static_cast<std::uint32_t>(size), .rule = rule, .bound = bound};
    std::memcpy(stored.bytes.data(), from, size);
    std::memcpy(region_.data() + offset, from, size);
    stores_.push_back(stored);
    std::fill_n(owner_.begin() + static_cast<std::ptrdiff_t>(offset), size,
                static_cast<std::uint32_t>(stores_.size()));
}

void Memory::leaveOpen(Address address, std::size_t size)
{
    if (size == 0)
        return;
    const std::size_t offset = offsetOf(address, size);
    touch(offset, size, read);
    touch(offset, size, written);
    stores_.push_back({.address = address, .size = static_cast<std::uint32_t>(size), .rule = Rule::anything});
    std::fill_n(owner_.begin() + static_cast<std::ptrdiff_t>(offset), size,
                static_cast<std::uint32_t>(stores_.size()));
}

void Memory::reset()
{
    for (const Stored& stored : stores_)
        std::fill_n(owner_.begin() + static_cast<std::ptrdiff_t>(stored.address - start()), stored.size, 0u);
    stores_.clear();
    for (const std::size_t offset : readBytes_)
        reader_[offset] = 0;
    readBytes_.clear();
    order_ = Order::promised;
    objectStart_ = 0;
    std::fill(pages_.begin(), pages_.end(), static_cast<std::uint8_t>(untouched));
}

std::string Memory::compareStored(std::size_t index) const
{
    const Stored& stored = stores_[index];
    const std::byte* actual = pointerTo(stored.address);
    bool same = true;
    if (intact(index)) {
        same = matches(stored, actual);
    } else if (bitsKnown(stored)) {
        const std::size_t offset = stored.address - start();
        for (std::size_t i = 0; i < stored.size; ++i)
            same = same && (owner_[offset + i] != index + 1 || actual[i] == stored.bytes[i]);
    }
    if (same)
        return {};
    std::string text = "at " + addressInWords(stored.address) + " the model has " +
                       inWords(stored.bytes.data(), stored.size) + ", the library " +
                       inWords(actual, stored.size);
    if (stored.rule == Rule::within)
        text += ", bound " + std::to_string(stored.bound);
    return text;
}

std::string Memory::compare(std::span<std::byte> before) const
{
    for (std::size_t i = 0; i < stores_.size(); ++i) {
        if (std::string difference = compareStored(i); !difference.empty())
            return difference;
        const std::size_t offset = stores_[i].address - start();
        std::memcpy(before.data() + offset, region_.data() + offset, stores_[i].size);
    }
    if (std::memcmp(before.data(), region_.data(), region_.size()) == 0)
        return {};
    const auto different = std::mismatch(before.begin(), before.end(), region_.begin());
    const Address address = start() + static_cast<Address>(different.first - before.begin());
    return "the byte at " + addressInWords(address) + " was written, which the model does not write";
}

} // namespace model
