// Add and Sub on matrices: the members that stand apart, and where each element is taken from.
#pragma once

#include "call.h"

namespace model {

// The members on rows of adjacent elements: these have packed forms, in which most oddities lie.
inline bool hasAdjacentRows(const Name& name)
{
    return name.layout == Layout::standard || name.layout == Layout::list;
}

// Without objects, one is computed all the same. The list members test their entries ahead of the loop.
inline bool takesOneAtLeast(const Name& name)
{
    return name.type == Type::f32 && name.size == 3 && name.codeIn("mam mamT") && hasAdjacentRows(name);
}

// The rows of the second operand are found with the row step of the first, and loaded with an element more.
inline bool findsSecondRowsByFirst(const Name& name)
{
    return name.type == Type::f32 && name.size == 3 && name.codeText == "mamT" && hasAdjacentRows(name);
}

// The next object is loaded before the current one is stored. Where elements are taken one by one, by a step
// of their own or through a table, it may be so or not.
inline bool loadsNextObjectFirst(const Name& name)
{
    return name.type == Type::f32 && name.size == 3 && hasAdjacentRows(name) && name.codeIn("mam mamT");
}

inline bool mayLoadNextObjectFirst(const Name& name)
{
    return name.type == Type::f32 && name.size == 3 && !hasAdjacentRows(name);
}

// The last column of the first operand is found with the row step of the second.
inline bool findsLastColumnBySecond(const Name& name)
{
    return name.type == Type::f64 && name.size == 5 && name.codeIn("mam mama") && hasAdjacentRows(name);
}

// The elements of the second operand are found with the element step of the first.
inline bool findsSecondElementsByFirst(const Name& name)
{
    return name.text == "tenkSub_mTm_64f_6x6_S2";
}

// Row 3 of the result is row 2 once more.
inline bool repeatsRowTwo(const Name& name)
{
    return name.text == "tenkSub_mTmT_32f_6x6";
}

// Both operands are read at the places of a table of their own.
inline bool permutesPlaces(const Name& name)
{
    return name.text == "tenkSub_maTmaT_32f_6x6" || name.text == "tenkSub_maTmaT_32f_6x6_L";
}

// On aligned operands the last element is the second minus the first.
inline bool exchangesLastElement(const Name& name)
{
    return name.text == "tenkSub_mTma_64f_3x3" || name.text == "tenkSub_mTma_64f_3x3_L";
}

// The alignment of the single operand and that of each object are tested apart, and have to agree.
inline bool arrangesSingleByItsAlignment(const Name& name)
{
    return name.type == Type::f64 && name.size == 3 && name.layout == Layout::list &&
           name.codeIn("mam mma mamT mTma");
}

// The two operands, and the place from which each is taken for the element at (i, j) of object k.
struct MatrixPair
{
    explicit MatrixPair(const Call& call)
        : name(call.name()), src1(call.operand("src1")), src2(call.operand("src2"))
    {
    }

    Address first(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const;
    Address second(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const;

    // Allows to read all of object k where a member does not use all of its elements.
    void mayReadUnused(Memory& memory, std::uint32_t k) const;

    const Name& name;
    const Operand src1;
    const Operand src2;
};

// The fixed members with an array among the operands.
bool isFixedBatch(const Name& name);

} // namespace model
