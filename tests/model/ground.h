// Where operands lie, to tell calls in which they overlap in a way that promises nothing.
#pragma once

#include "call.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace model {

// Some bytes of the memory, kept as one stretch for each element.
class Ground
{
public:
    Ground() = default;
    Ground(Address start, std::size_t size) { add(start, size); }

    void add(Address start, std::size_t size);
    void add(const Ground& other);

    bool meets(const Ground& other) const;
    // Whether two of the stretches have a byte in common.
    bool meetsItself() const;
    // The same stretches in the same order.
    bool operator==(const Ground&) const = default;

private:
    std::vector<std::pair<Address, std::size_t>> stretches_;
};

// The elements of a matrix, row by row, or of a vector with height 1.
Ground groundOf(Memory& memory, const Operand& operand, std::uint32_t k, std::uint32_t height,
                std::uint32_t width);
Ground groundOf(Memory& memory, const Operand& operand, std::uint32_t k);

// Throws Undecided with this reason if the condition holds.
void undecidedIf(bool condition, const char* reason);

// What the overlap of a factorisation with itself may be: the factors may take the place of the matrix,
// element for element. Everything else is undecided: `besides` (rowIndex or buffer) on a matrix, or a matrix
// on what came of the objects before it. `earlier` gathers that.
void checkFactoring(const Ground& source, const Ground& target, const Ground& besides, Ground& earlier);

// A kernel that takes several objects of an array at a time has read the lists to their ends, and the sources
// up to the next null entry, when object k turns out to be the last.
void mayReadAhead(Memory& memory, const Operand& src, const Operand& dst, std::uint32_t k,
                  std::uint32_t count);

// As nullInTables, and in functions without an array as well: index by index, at each index in the order in
// which the operands are given. Which of several null entries is found first cannot be told, and the tables
// may be read to their ends.
bool nullInAnyTable(Memory& memory, std::initializer_list<const Operand*> operands);

} // namespace model
