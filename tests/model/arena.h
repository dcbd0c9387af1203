// The memory from which drawn calls take their operands: pages at a chosen address, divided into rooms, one
// for each operand, table and list of a call.
#pragma once

#include "memory.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace model {

class Arena
{
public:
    static constexpr std::size_t roomPages = 8;
    static constexpr std::size_t roomSize = roomPages * Memory::pageSize;
    static constexpr std::size_t roomCount = 10;

    // Maps the arena at `wanted`, or elsewhere if that is taken. Reaching past either end faults.
    explicit Arena(Address wanted);
    ~Arena();
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    Address start() const { return memory_->start(); }
    Address room(std::size_t index) const { return start() + (index + 1) * roomSize; }
    bool contains(Address address) const { return address - start() < bytes_.size(); }

    Memory& memory() { return *memory_; }
    std::byte* at(Address address) { return bytes_.data() + (address - start()); }

    // Takes note of the contents of the whole arena.
    void snapshot();
    // Undoes all stores of the model.
    void restore();
    // Compares with the model's account, as Memory::compare; afterwards what is there is the new snapshot.
    std::string compare();

    // Leaves open to the library only the pages that the model touched, and to writing only those that it
    // wrote.
    void protect();
    void unprotect();

private:
    std::span<std::byte> bytes_;
    std::vector<std::byte> before_;
    Memory* memory_;
};

// Arenas in places where arithmetic on addresses could go wrong: in the lowest gigabytes, where also a null
// entry with a shift can be an address; astride the middle of the 32-bit range or its end; and high up.
std::vector<Arena*>& arenas();

} // namespace model
