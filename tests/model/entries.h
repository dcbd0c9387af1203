// The tests of table and list entries, with the right to read them in any order: which entry is found null
// first does not show in a result, so an implementation may look at them in an order of its own.
#pragma once

#include "call.h"

#include <initializer_list>

namespace model {

// The first `length` entries of an operand's table.
struct TestedTable
{
    const Operand* operand = nullptr;
    std::uint32_t length = 0;
};

// Whether one of the tested entries is null. Operands without a table are passed over.
inline bool nullInTables(Memory& memory, std::initializer_list<TestedTable> tables)
{
    bool found = false;
    for (const TestedTable& table : tables) {
        if (!table.operand->isTable())
            continue;
        memory.mayRead(table.operand->pointer(), table.length * sizeof(Address));
        found = table.operand->nullInTable(memory, table.length) || found;
    }
    return found;
}

// Whether one of the lists has a null entry for object k. Operands that are no list are passed over.
inline bool nullInAnyList(Memory& memory, std::uint32_t k, std::initializer_list<const Operand*> operands)
{
    bool found = false;
    for (const Operand* operand : operands)
        found = operand->nullInList(memory, k) || found;
    return found;
}

// A fixed member may read a single operand as soon as it is known that there are objects, ahead of the first
// test of a list.
inline void mayReadAhead(const Call& call, Memory& memory, std::initializer_list<const Operand*> operands)
{
    if (call.name().general() || call.count() == 0 || !isList(call.name().layout))
        return;
    for (const Operand* operand : operands) {
        if (operand->form().array)
            continue;
        const Shape shape = operand->shape();
        for (std::uint32_t i = 0; i < shape.height; ++i) {
            for (std::uint32_t j = 0; j < shape.width; ++j)
                memory.mayRead(operand->used(memory, 0, i, j), operand->elementSize());
        }
    }
}

// The entry of a table through which the element used at (i, j) is read.
inline Address usedEntry(const Operand& operand, std::uint32_t i, std::uint32_t j)
{
    const Shape shape = operand.shape();
    return operand.form().transposed ? j * shape.height + i : i * shape.width + j;
}

// The entry that stands at (i, j) of an operand with rows of the stored length: of a transposed operand not
// the one through which the element used at (i, j) is read.
inline Address positionEntry(const Operand& operand, std::uint32_t i, std::uint32_t j)
{
    const Shape shape = operand.shape();
    return i * (operand.form().transposed ? shape.height : shape.width) + j;
}

} // namespace model
