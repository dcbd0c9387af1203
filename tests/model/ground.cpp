#include "ground.h"

#include "frame.h"

#include <algorithm>

namespace model {

namespace {

using Stretches = std::vector<std::pair<Address, std::size_t>>;

Stretches sorted(Stretches list)
{
    std::sort(list.begin(), list.end());
    return list;
}

bool meet(const std::pair<Address, std::size_t>& lower, const std::pair<Address, std::size_t>& upper)
{
    return upper.first - lower.first < lower.second;
}

} // namespace

void Ground::add(Address start, std::size_t size)
{
    if (size != 0)
        stretches_.emplace_back(start, size);
}

void Ground::add(const Ground& other)
{
    stretches_.insert(stretches_.end(), other.stretches_.begin(), other.stretches_.end());
}

bool Ground::meets(const Ground& other) const
{
    for (const auto& mine : stretches_) {
        for (const auto& theirs : other.stretches_) {
            if (meet(mine, theirs) || meet(theirs, mine))
                return true;
        }
    }
    return false;
}

bool Ground::meetsItself() const
{
    const Stretches list = sorted(stretches_);
    for (std::size_t i = 1; i < list.size(); ++i) {
        if (meet(list[i - 1], list[i]))
            return true;
    }
    return false;
}

Ground groundOf(Memory& memory, const Operand& operand, std::uint32_t k, std::uint32_t height,
                std::uint32_t width)
{
    Ground ground;
    for (std::uint32_t i = 0; i < height; ++i) {
        for (std::uint32_t j = 0; j < width; ++j)
            ground.add(operand.stored(memory, k, i, j), operand.elementSize());
    }
    return ground;
}

Ground groundOf(Memory& memory, const Operand& operand, std::uint32_t k)
{
    return groundOf(memory, operand, k, operand.shape().height, operand.shape().width);
}

void undecidedIf(bool condition, const char* reason)
{
    if (condition)
        throw Undecided{reason};
}

void checkFactoring(const Ground& source, const Ground& target, const Ground& besides, Ground& earlier)
{
    undecidedIf(target.meetsItself(), "the factors overlap themselves");
    undecidedIf(!(source == target) && source.meets(target), "source and factors overlap");
    undecidedIf(besides.meets(source) || besides.meets(target), "rowIndex or buffer overlaps a matrix");
    undecidedIf(source.meets(earlier), "a source overlaps earlier results");
    earlier.add(target);
    earlier.add(besides);
}

void mayReadAhead(Memory& memory, const Operand& src, const Operand& dst, std::uint32_t k,
                  std::uint32_t count)
{
    for (const Operand* operand : {&src, &dst}) {
        if (operand->isList())
            memory.mayRead(operand->pointer(), count * sizeof(Address));
    }
    for (std::uint32_t later = k + 1; later < count; ++later) {
        if (nullInLists(memory, later, {&src, &dst}))
            return;
        for (std::uint32_t i = 0; i < src.shape().height; ++i) {
            for (std::uint32_t j = 0; j < src.shape().width; ++j)
                memory.mayRead(src.stored(memory, later, i, j), src.elementSize());
        }
    }
}

bool nullInAnyTable(Memory& memory, std::initializer_list<const Operand*> operands)
{
    std::uint32_t longest = 0;
    for (const Operand* operand : operands) {
        if (!operand->isTable())
            continue;
        longest = std::max(longest, operand->tableLength());
        memory.mayRead(operand->pointer(), operand->tableLength() * sizeof(Address));
    }
    for (std::uint32_t index = 0; index < longest; ++index) {
        for (const Operand* operand : operands) {
            if (operand->isTable() && index < operand->tableLength() && operand->nullEntry(memory, index))
                return true;
        }
    }
    return false;
}

} // namespace model
