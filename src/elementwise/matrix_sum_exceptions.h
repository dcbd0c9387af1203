// The members of the sums of matrices that stand apart, and how each computes. All others are the plain
// formula of matrix_sum.h; the two roots are no mirror images here.
#pragma once

#include "elementwise/elementwise.h"

namespace tenk {

// The next object is read before the results of this one are stored, so the first object is read, and at last
// written, without a look at `count`: none counts as one. Lists are tested as far ahead: first entry 0 of the
// source and the last one of the destination (the entry before the list, if `count` is 0), then entry k of
// the source together with k - 1 of the destination.
inline constexpr auto runsAhead =
    oneOf("tenkAdd_mam_32f_3x3", "tenkAdd_mam_32f_3x3_L", "tenkSub_mam_32f_3x3", "tenkSub_mam_32f_3x3_L",
          "tenkAdd_mamT_32f_3x3", "tenkAdd_mamT_32f_3x3_L", "tenkSub_mamT_32f_3x3", "tenkSub_mamT_32f_3x3_L");

// The rows of src2 are as far apart as those of src1; src2Stride1 is not used.
inline constexpr auto stepsRowsOfSrc2BySrc1 =
    oneOf("tenkAdd_mamT_32f_3x3", "tenkAdd_mamT_32f_3x3_L", "tenkSub_mamT_32f_3x3", "tenkSub_mamT_32f_3x3_L");

// The elements of src2 are as far apart as those of src1; src2Stride2 is not used.
inline constexpr auto stepsElementsOfSrc2BySrc1 = oneOf("tenkSub_mTm_64f_6x6_S2");

// The last column of src1 is read in steps of src2Stride1: a(i, 4) is 32 bytes behind the start of the object
// and i of these steps.
inline constexpr auto stepsLastColumnBySrc2 =
    oneOf("tenkAdd_mam_64f_5x5", "tenkAdd_mam_64f_5x5_L", "tenkSub_mam_64f_5x5", "tenkSub_mam_64f_5x5_L",
          "tenkAdd_mama_64f_5x5", "tenkAdd_mama_64f_5x5_L", "tenkSub_mama_64f_5x5", "tenkSub_mama_64f_5x5_L");

// Row 3 of the result is row 2 once more.
inline constexpr auto row3RepeatsRow2 = oneOf("tenkSub_mTmT_32f_6x6");

// Elements of the result are the differences at other places of the sources; rowColumn() has them.
inline constexpr auto scattersElements = oneOf("tenkSub_maTmaT_32f_6x6", "tenkSub_maTmaT_32f_6x6_L");

// An aligned object has the operands of its last element exchanged: dst(2, 2) = b(2, 2) - a(2, 2).
inline constexpr auto exchangesLastIfAligned = oneOf("tenkSub_mTma_64f_3x3", "tenkSub_mTma_64f_3x3_L");

// The single operand is arranged for aligned objects if it is aligned itself, else for others. An object of
// the other sort finds its elements at the wrong places; mixedPlaces() has them.
inline constexpr auto mixesAlignments =
    oneOf("tenkAdd_mam_64f_3x3_L", "tenkSub_mam_64f_3x3_L", "tenkSub_mma_64f_3x3_L", "tenkAdd_mamT_64f_3x3_L",
          "tenkSub_mamT_64f_3x3_L", "tenkSub_mTma_64f_3x3_L");

consteval bool permutes(Member m)
{
    return row3RepeatsRow2(m) || scattersElements(m);
}
consteval bool changesWithAlignment(Member m)
{
    return exchangesLastIfAligned(m) || mixesAlignments(m);
}

// ---------------------------------------------------------------------------------------------------------------
// Running ahead
// ---------------------------------------------------------------------------------------------------------------

// `columns` is 3 for objects of three rows, 9 for those without gaps.
template <Member m, unsigned rows, unsigned columns>
TENK_INLINE tenkStatus sumAheadIn(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                                  std::size_t count)
{
    using B = Block<Element<m>, rows, columns>;
    constexpr bool list = isList(m.layout);
    const auto last = [&]() TENK_LAMBDA { return list || count != 0 ? count - 1 : 0; }();
    if (list && (src1.nullEntry(0) || dst.nullEntry(last)))
        return tenkNullPointerError;
    const auto b = held<m, rows, columns, false>(src2);
    auto a = B::load(src1.object(0, columns));
    for (std::size_t k = 1; k < count; ++k) {
        if (list && (src1.nullEntry(k) || dst.nullEntry(k - 1)))
            return tenkNullPointerError;
        const auto next = B::load(src1.object(k, columns));
        B::map(sum<m>(), a, b.block).store(dst.object(k - 1, columns));
        a = next;
    }
    B::map(sum<m>(), a, b.block).store(dst.object(last, columns));
    return tenkOk;
}

template <Member m>
TENK_INLINE tenkStatus sumAhead(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                                std::size_t count)
{
    if (rowsFollow(m.size, src1, src2, dst))
        return sumAheadIn<m, 1, m.size * m.size>(src1, src2, dst, count);
    return sumAheadIn<m, m.size, m.size>(src1, src2, dst, count);
}

// ---------------------------------------------------------------------------------------------------------------
// Elements at other places
// ---------------------------------------------------------------------------------------------------------------

// The place in the sources, as the digits of row and column, whose difference is at (i, j) of the result.
template <Member m>
consteval unsigned rowColumn(unsigned i, unsigned j)
{
    constexpr unsigned scattered[6][6] = {
        {00, 04, 020, 024, 040, 044},  {01, 05, 021, 025, 041, 045},   {02, 014, 022, 034, 042, 054},
        {02, 014, 022, 034, 042, 054}, {010, 012, 030, 032, 050, 052}, {011, 013, 031, 033, 051, 053},
    };
    if (scattersElements(m))
        return scattered[i][j];
    return j * 8 + (row3RepeatsRow2(m) && i == 3 ? 2 : i);
}

template <Member m>
TENK_INLINE tenkStatus sumPermuted(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                                   std::size_t count)
{
    constexpr unsigned n = m.size;
    using B = Block<Element<m>, n>;
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const B d = B::map(sum<m>(), B::load(src1.object(k, n)), B::load(src2.object(k, n)));
        const auto to = dst.object(k, n);
        each<n>([&](auto i) TENK_LAMBDA {
            each<n>([&](auto j) TENK_LAMBDA {
                constexpr unsigned from = rowColumn<m>(i, j);
                store<Element<m>>(to.at(i, j), d.row[from / 8].get(index<from % 8>));
            });
        });
    }
    return tenkOk;
}

// ---------------------------------------------------------------------------------------------------------------
// The last column
// ---------------------------------------------------------------------------------------------------------------

// Rows of five whose last element has a step of its own.
struct LastColumnView
{
    DenseView<double> view;
    Displacement lastStep;
};

template <typename R>
TENK_INLINE auto vectorOf(const LastColumnView& from, std::size_t i, std::size_t v)
{
    return loadVector<double>(from.view.row(i) + v * 16);
}
template <typename R>
TENK_INLINE double restOf(const LastColumnView& from, std::size_t i)
{
    return load<double>(from.view.start + times(i, from.lastStep) + 4 * sizeof(double));
}

template <Member m>
TENK_INLINE tenkStatus sumWithLastColumn(const Source<m>& src1, const Source<m, 1>& src2,
                                         const Destination<m>& dst, std::size_t count)
{
    constexpr unsigned n = m.size;
    if (src1.stride1 == src2.stride1)
        return elementwise<m>(sum<m>(), dst, {}, Size<m>(), static_cast<std::uint32_t>(count), src1, src2);
    const auto loop = [&](const auto& second) TENK_LAMBDA {
        for (std::size_t k = 0; k < count; ++k) {
            if (anyNullObject(k, src1, src2, dst))
                return tenkNullPointerError;
            const LastColumnView a{src1.object(k, n), src2.stride1};
            const auto to = dst.object(k, n);
            const auto& b = packedSource<false, n>(second, k);
            each<n>([&](auto i) TENK_LAMBDA { streamRow<Row<double, n>>(sum<m>(), to.row(i), i, a, b); });
        }
        return tenkOk;
    };
    return loop(held<m, n, n, false>(src2));
}

// ---------------------------------------------------------------------------------------------------------------
// Alignment that shows
// ---------------------------------------------------------------------------------------------------------------

template <typename... A>
TENK_INLINE bool aligned(A... addressesAndSteps)
{
    return ((static_cast<Address>(addressesAndSteps) | ...) & 15) == 0;
}

// Where an object of the other sort than the single operand finds the elements of it: for each place of the
// result, row by row, the element as stored, row by row. 9 stands for +0; at the places with a 10 any value
// will do.
struct Places
{
    unsigned char of[9];
};
template <Member m>
consteval Places mixedPlaces(bool singleIsAligned)
{
    constexpr unsigned char none = 9, any = 10;
    if (!singleIsAligned && (m.operand[0].transposed || m.operand[1].transposed))
        return {{0, none, 1, 3, none, 4, 6, none, 7}};
    if (!singleIsAligned)
        return {{0, none, 1, 2, none, 3, 4, none, 5}};
    if (m.operand[0].transposed || m.operand[1].transposed)
        return {{0, 1, 2, 6, 7, 8, any, any, 8}};
    if (m == "tenkSub_mma_64f_3x3_L")
        return {{0, 2, 3, 5, 6, 8, any, any, 8}};
    return {{0, 2, 3, 5, 6, 8, any, any, 3}};
}

// The single operand of one call: where it belongs, and where objects of the other sort find it.
struct TwoArrangements
{
    Block<double, 3> right, mixed;
};

template <Member m, bool singleIsAligned>
TENK_INLINE Block<double, 3> mixedBlock(const DenseView<double>& single)
{
    constexpr Places places = mixedPlaces<m>(singleIsAligned);
    double run[9];
    each<9>([&](auto e) TENK_LAMBDA {
        constexpr unsigned from = places.of[e];
        run[e] = from < 9 ? load<double>(single.at(from / 3, from % 3)) : 0.0;
    });
    return Block<double, 3>::load(DenseView<double>{reinterpret_cast<Address>(run), 3 * sizeof(double)});
}

template <Member m>
TENK_INLINE tenkStatus sumByAlignment(const Source<m>& src1, const Source<m, 1>& src2,
                                      const Destination<m>& dst, std::size_t count)
{
    using B = Block<double, 3>;
    constexpr unsigned n = 3;
    constexpr bool arrayFirst = m.operand[0].array;
    const auto pick = [&]() TENK_LAMBDA -> const auto&
    {
        if constexpr (arrayFirst)
            return src1;
        else
            return src2;
    };
    const auto pickSingle = [&]() TENK_LAMBDA -> const auto&
    {
        if constexpr (arrayFirst)
            return src2;
        else
            return src1;
    };
    const auto& array = pick();
    const auto& single = pickSingle();

    // Rows without gaps are never aligned.
    if (rowsFollow(n, src1, src2, dst))
        return gaplessObjects<m>(sum<m>(), dst, count, src1, src2);

    const auto stored = single.object(0, n);
    const bool singleIsAligned = aligned(single.p, single.stride1);
    const bool allAligned = aligned(src1.p, src1.stride0, src1.stride1, src2.p, src2.stride0, src2.stride1,
                                    dst.p, dst.stride0, dst.stride1);
    B right = B::load(stored), mixed = right;
    if (std::remove_cvref_t<decltype(single)>::transposed)
        right = transpose(right);
    if constexpr (mixesAlignments(m))
        mixed = singleIsAligned ? mixedBlock<m, true>(stored) : mixedBlock<m, false>(stored);

    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const auto from = array.object(k, n);
        const auto to = dst.object(k, n);
        const bool objectIsAligned =
            isList(m.layout) ? aligned(from.start, to.start, array.stride1, dst.stride1) : allAligned;
        const B& held = mixesAlignments(m) && objectIsAligned != singleIsAligned ? mixed : right;
        const B a = arrayFirst ? B::load(from) : held;
        const B b = arrayFirst ? held : B::load(from);
        B result = B::map(sum<m>(), a, b);
        if (exchangesLastIfAligned(m) && objectIsAligned)
            result.row[2].rest = b.row[2].rest - a.row[2].rest;
        result.store(to);
    }
    return tenkOk;
}

} // namespace tenk
