// Operands: the arguments of one operand of a function, and where its elements are.
//
// An operand knows addresses and nothing else. object(k) gives a view of object k, and a view gives the
// address of its element (i, j); a vector is one row. In bytes, with E the size of an element:
//
//   layout           object k starts at              element (i, j) of the object is at
//   Standard         p + k Stride0                   start + i Stride1 + j E
//   Strided          p + k Stride0                   start + i Stride1 + j Stride2
//   Pointer          (no start)                      p[i width + j] + Shift + k E
//   StridedPointer   (no start)                      p[i width + j] + Shift + k Stride0
//   List             p[k] + Shift                    start + i Stride1 + j E
//   StridedList      p[k] + Shift                    start + i Stride1 + j Stride2
//
// The single operand of a function that has an array is the same object for every k: no term in k, no step
// along the runs of its table, and in the two list layouts p is its address and not a list.
#pragma once

#include "frame/grammar.h"
#include "frame/memory.h"

namespace tenk {

template <Type type>
struct ElementOf;
template <>
struct ElementOf<Type::f32>
{
    using type = float;
};
template <>
struct ElementOf<Type::f64>
{
    using type = double;
};
template <Member m>
using Element = typename ElementOf<m.type>::type;

// A size: the number in a member's name, or a word at run time.
template <unsigned n>
struct Extent
{
    constexpr operator std::uint32_t() const { return n; }
};
template <>
struct Extent<0>
{
    std::uint32_t n;
    Extent(std::uint32_t words) : n(words) {}
    operator std::uint32_t() const { return n; }
};

// The size arguments of a member, and its number of objects.
template <Member m>
using Size = Extent<m.size>;
template <Member m>
using Count = Extent<m.batch() ? 0 : 1>;

// ---------------------------------------------------------------------------------------------------------------
// Views: the elements of one object
// ---------------------------------------------------------------------------------------------------------------

// Rows of adjacent elements.
template <typename T>
struct DenseView
{
    Address start;
    Displacement rowStep;
    static constexpr Displacement elementStep = sizeof(T);

    TENK_INLINE Address row(std::size_t i) const { return start + times(i, rowStep); }
    TENK_INLINE Address at(std::size_t i, std::size_t j) const { return row(i) + j * sizeof(T); }
};

// Rows of n adjacent elements without gaps between them: the compiler knows all distances. `atVectors`: they
// begin at multiples of 16.
template <typename T, unsigned n, bool atVectors = false>
struct GaplessView
{
    static constexpr bool aligned = atVectors;
    Address start;

    TENK_INLINE Address row(std::size_t i) const { return start + i * n * sizeof(T); }
};

// Rows of elements a step apart.
template <typename T>
struct StridedView
{
    Address start;
    Displacement rowStep;
    Displacement elementStep;

    TENK_INLINE Address row(std::size_t i) const { return start + times(i, rowStep); }
    TENK_INLINE Address at(std::size_t i, std::size_t j) const { return row(i) + times(j, elementStep); }
};

// Elements behind a table of pointers whose rows have `width` entries.
template <typename T>
struct TableView
{
    Address table;
    Address offset;
    std::size_t width;

    TENK_INLINE Address entry(std::size_t e) const { return load<Address>(table + e * sizeof(Address)); }
    TENK_INLINE Address through(std::size_t e) const { return entry(e) + offset; }
    TENK_INLINE Address at(std::size_t i, std::size_t j) const { return through(i * width + j); }
    TENK_INLINE bool isNull(std::size_t i, std::size_t j) const { return entry(i * width + j) == 0; }
};

// ---------------------------------------------------------------------------------------------------------------
// Operands
// ---------------------------------------------------------------------------------------------------------------

// The arguments of an operand as they were passed; those that its layout does not have stay 0.
struct Arguments
{
    const void* p;
    std::uint32_t shift = 0;
    std::uint32_t stride0 = 0;
    std::uint32_t stride1 = 0;
    std::uint32_t stride2 = 0;
};

template <typename T, Layout layout, Code code>
struct Operand
{
    using Value = T;
    static constexpr bool table = isTable(layout);
    static constexpr bool list = isList(layout) && code.array;
    static constexpr bool single = !code.array;
    static constexpr bool transposed = code.transposed;

    Address p;
    Displacement shift, stride0, stride1, stride2;

    TENK_INLINE
    Operand(const Arguments& a)
        : p(reinterpret_cast<Address>(a.p)),
          shift(displacement(a.shift)),
          stride0(displacement(a.stride0)),
          stride1(displacement(a.stride1)),
          stride2(displacement(a.stride2))
    {
    }

    // Entry e of the table or list.
    TENK_INLINE Address entry(std::size_t e) const { return load<Address>(p + e * sizeof(Address)); }
    TENK_INLINE bool nullEntry(std::size_t e) const { return entry(e) == 0; }

    // From one object to the next, where they are a step apart.
    TENK_INLINE Address objectOffset(std::size_t k) const
    {
        if constexpr (!code.array)
            return 0;
        else if constexpr (layout == Layout::Pointer)
            return k * sizeof(T);
        else
            return times(k, stride0);
    }

    // Object k. `width` is the row length of the object as it is stored, which only tables need.
    TENK_INLINE auto object(std::size_t k, std::size_t width) const
    {
        if constexpr (table) {
            return TableView<T>{p, static_cast<Address>(shift) + objectOffset(k), width};
        } else {
            Address start;
            if constexpr (list)
                start = entry(k) + static_cast<Address>(shift);
            else
                start = p + objectOffset(k);
            if constexpr (isStrided(layout))
                return StridedView<T>{start, stride1, stride2};
            else
                return DenseView<T>{start, stride1};
        }
    }
};

// The operands of a member.
template <Member m, unsigned n = 0>
using Source = Operand<Element<m>, m.layout, m.source(n)>;
template <Member m>
using Destination = Operand<Element<m>, m.dstLayout, m.destination()>;

} // namespace tenk
