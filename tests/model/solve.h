// What the two families that solve from factors share: the places of the operands, and their overlap.
#pragma once

#include "frame.h"
#include "ground.h"

namespace model {

// In the binary64 list members for one factor and many right-hand sides the elements of a row of the factor
// are read 4 bytes apart, not 8.
inline bool stepsByFour(const Name& name)
{
    return name.codeText == "mva" && name.type == Type::f64 && name.layout == Layout::list;
}

// The element (i, j) of factor k.
inline Address factorElement(Memory& memory, const Name& name, const Operand& factor, std::uint32_t k,
                             std::uint32_t i, std::uint32_t j)
{
    if (stepsByFour(name))
        return moved(moved(factor.pointer(), i, factor.stride1()), j, 4);
    return factor.stored(memory, k, i, j);
}

} // namespace model
