// Which members of Mul of two matrices do what.
#pragma once

#include "name.h"

namespace model {

inline bool isFixed32(const Name& name, unsigned size)
{
    return name.type == Type::f32 && name.size == size;
}

// Fixed members on rows of adjacent elements.
inline bool isAdjacentKernel(const Name& name)
{
    return !name.general() && (name.layout == Layout::standard || name.layout == Layout::list);
}

// Members of the other layouts that are no plain loops either.
inline bool isGatheringKernel(const Name& name)
{
    switch (name.layout) {
    case Layout::strided:
        return (isFixed32(name, 3) && name.codeIn("mam maTm mamT maTmT mama")) ||
               ((isFixed32(name, 4) || isFixed32(name, 5)) && name.codeIn("mam mama")) ||
               (isFixed32(name, 6) && name.codeIn("mm mmT mTmT"));
    case Layout::pointer:
    case Layout::stridedPointer:
        return isFixed32(name, 3) && name.codeIn("mam maTm mamT");
    case Layout::stridedList:
        return isFixed32(name, 3) && name.codeIn("mam maTm mamT maTmT");
    default:
        return false;
    }
}

// Kernels start their sums with the first term, all other members with +0.
inline bool isKernel(const Name& name)
{
    return isAdjacentKernel(name) || isGatheringKernel(name);
}

// The terms are added in pairs, and not one by one.
inline bool sumsPairs(const Name& name)
{
    return isGatheringKernel(name) && name.size == 6;
}

// Neither tables nor lists are tested.
inline bool testsNoEntry(const Name& name)
{
    return isGatheringKernel(name) && name.layout != Layout::strided;
}

// When the second operand, its row step and all of the destination's arguments are multiples of 16, the
// first array is not advanced from object to object.
inline bool staysAtFirstWhenAligned(const Name& name)
{
    return !name.general() && name.type == Type::f64 && name.layout == Layout::standard &&
           name.codeIn("mama maTma mamaT maTmaT");
}

// A word past the end of each list is fetched.
inline bool fetchesListsAhead(const Name& name)
{
    return !name.general() && name.type == Type::f64 && name.layout == Layout::list;
}

// Kernels that have read all of the second operand, of an array the object's, before they write.
inline bool readsSecondFirst(const Name& name)
{
    if (isGatheringKernel(name))
        return sumsPairs(name) || (name.codeText == "mama" && name.size != 5);
    return !(isFixed32(name, 5) && name.codeIn("mm mTm")) && !(isFixed32(name, 6) && name.codeIn("mmT mTmT"));
}

// Kernels that may write the product over the first operand.
inline bool worksInPlaceOfFirst(const Name& name)
{
    if (!name.codeIn("mm mmT mam mamT mama mamaT"))
        return false;
    if (isAdjacentKernel(name))
        return !isFixed32(name, 6);
    return name.size == 6 || (name.size == 4 && name.codeIn("mam mama")) || name.size == 3;
}

} // namespace model
