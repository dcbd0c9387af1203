// Matrix by matrix: element (i, j) of the product is the sum of left(i, p) x right(p, j) over p.
//
// Terms are added one by one in order of p, in the type of the elements, whatever the size and layout. What
// differs is the start: plain loops start at +0, kernels with the first term, so that terms of -0 alone sum
// to +0 there and to -0 here.
//
// The rows of the product are those of src1Height, its columns those of src2Width, and a sum has src2Height
// terms, in every member: the sizes of a transposed operand are those that it has in the formula. The size
// test, in contrast, reads them as those of the stored object; src1Width is in no loop.
//
// Plain loops keep the running sum in the destination, where an operand that overlaps it can see it. Kernels
// read the right factor first, then go row by row: a row of the left factor is read before a row of the
// product is written.
#pragma once

#include "frame/packed.h"
#include "products/general_product.h"

namespace tenk {

// ---------------------------------------------------------------------------------------------------------------
// Members that stand apart
// ---------------------------------------------------------------------------------------------------------------

// The size test compares src1Height with src2Width, although neither operand is transposed.
consteval bool comparesOuterSizes(Member m)
{
    return hasCodesOf(m, "tenkMul_mma_32f") || hasCodesOf(m, "tenkMul_mama_32f");
}

// A product without columns is no error.
consteval bool mayHaveNoColumns(Member m)
{
    return m.general() && hasCodesOf(m, "tenkMul_mam_32f");
}

// The sum is ((t0 + t1) + (t2 + t3)) + (t4 + t5).
consteval bool sumsInPairs(Member m)
{
    return m == "tenkMul_mm_32f_6x6_S2" || m == "tenkMul_mmT_32f_6x6_S2" || m == "tenkMul_mTmT_32f_6x6_S2";
}

// With the right factor and the destination in 16-byte steps at 16-byte addresses, all products are made with
// object 0 of the left factor: src1Stride0 is not used.
consteval bool staysAtFirstLeft(Member m)
{
    return m.type == Type::f64 && m.layout == Layout::Standard && !m.general() && m.operand[0].array &&
           m.operand[1].array;
}

// Kernels that gather the elements of their rows. All other members of layouts with steps or tables are plain
// loops.
consteval bool gathersRows(Member m)
{
    if (m.type != Type::f32 || m.general() || isDense(m.layout))
        return false; // saves the compiler the comparisons
    return m == "tenkMul_mam_32f_3x3_S2" || m == "tenkMul_maTm_32f_3x3_S2" ||
           m == "tenkMul_mamT_32f_3x3_S2" || m == "tenkMul_maTmT_32f_3x3_S2" ||
           m == "tenkMul_mama_32f_3x3_S2" || m == "tenkMul_mam_32f_3x3_P" || m == "tenkMul_maTm_32f_3x3_P" ||
           m == "tenkMul_mamT_32f_3x3_P" || m == "tenkMul_mam_32f_3x3_PS2" ||
           m == "tenkMul_maTm_32f_3x3_PS2" || m == "tenkMul_mamT_32f_3x3_PS2" ||
           m == "tenkMul_mam_32f_3x3_LS2" || m == "tenkMul_maTm_32f_3x3_LS2" ||
           m == "tenkMul_mamT_32f_3x3_LS2" || m == "tenkMul_maTmT_32f_3x3_LS2" ||
           m == "tenkMul_mam_32f_4x4_S2" || m == "tenkMul_mama_32f_4x4_S2" || m == "tenkMul_mam_32f_5x5_S2" ||
           m == "tenkMul_mama_32f_5x5_S2" || m == "tenkMul_mm_32f_6x6_S2" || m == "tenkMul_mmT_32f_6x6_S2" ||
           m == "tenkMul_mTmT_32f_6x6_S2";
}

// These test no entry of a table or list for null.
consteval bool testsNoEntry(Member m)
{
    return gathersRows(m) && (isTable(m.layout) || isList(m.layout));
}

// ---------------------------------------------------------------------------------------------------------------
// Kernels
// ---------------------------------------------------------------------------------------------------------------

consteval bool isKernel(Member m)
{
    return !m.general() && (isDense(m.layout) || gathersRows(m));
}

// Kernels of these codes read the right factor before they look at the count: it is to be readable without
// objects, too.
consteval bool readsRightFirst(Member m)
{
    return isKernel(m) && (hasCodesOf(m, "tenkMul_mam_32f") || hasCodesOf(m, "tenkMul_maTm_32f"));
}

template <Member m>
TENK_INLINE void readRight(const Source<m, 1>& src2)
{
    const auto view = src2.object(0, m.size);
    for (std::size_t p = 0; p < m.size; ++p)
        for (std::size_t j = 0; j < m.size; ++j)
            static_cast<void>(*reinterpret_cast<const volatile unsigned char*>(view.at(p, j)));
}

// The rows of the right factor.
template <Member m, typename View>
TENK_INLINE Block<Element<m>, m.size> loadRight(const View& view)
{
    using T = Element<m>;
    constexpr bool transposed = m.operand[1].transposed;
    // Turned pairs of 64f are put together as they are loaded.
    if constexpr (isDense(m.layout) && !(transposed && m.type == Type::f64)) {
        return loadFactor<T, m.size, transposed>(view);
    } else {
        Block<T, m.size> b;
        each<m.size>([&](auto p) TENK_LAMBDA {
            b.row[p] = gatherRow<T, m.size>([&](std::size_t j)
                                                TENK_LAMBDA { return elementOf<transposed>(view, p, j); });
        });
        return b;
    }
}

// term(index<p>) is row p of the right factor times left(i, p); the sum of them is row i of the product.
template <Member m, typename F>
TENK_INLINE auto sumOfRows(F term)
{
    if constexpr (sumsInPairs(m)) {
        return ((term(index<0>) + term(index<1>)) + (term(index<2>) + term(index<3>))) +
               (term(index<4>) + term(index<5>));
    } else {
        auto sum = term(index<0>);
        each<m.size - 1>([&](auto p) TENK_LAMBDA { sum = inRegisters(sum + term(index<p + 1>)); });
        return sum;
    }
}

template <Member m, typename View>
TENK_INLINE void storeRow(const View& out, std::size_t i, const Row<Element<m>, m.size>& row)
{
    if constexpr (isDense(m.layout))
        row.store(out.row(i));
    else
        each<m.size>([&](auto j) TENK_LAMBDA { store(out.at(i, j), row.get(j)); });
}

template <Member m, typename Left, typename Out>
TENK_INLINE void multiply(const Left& left, const Block<Element<m>, m.size>& right, const Out& out)
{
    using T = Element<m>;
    constexpr bool transposed = m.operand[0].transposed;
    each<m.size>([&](auto i) TENK_LAMBDA {
        // Repeating an element as it is loaded costs less than taking it out of a row.
        const auto row = sumOfRows<m>([&](auto p) TENK_LAMBDA {
            return Row<T, m.size>::repeat(load<T>(elementOf<transposed>(left, i, p))) * right.row[p];
        });
        storeRow<m>(out, i, row);
    });
}

// All objects of the members with kernels. A single right factor is read once.
template <Member m, bool packed>
TENK_INLINE tenkStatus multiplyAll(const Source<m, 0>& src1, const Source<m, 1>& src2,
                                   const Destination<m>& dst, Count<m> count)
{
    constexpr unsigned n = m.size;
    const auto rightOf = [&](std::size_t k)
                             TENK_LAMBDA { return loadRight<m>(squareObject<packed, n>(src2, k)); };
    const auto run = [&](auto right) TENK_LAMBDA -> tenkStatus {
        for (std::size_t k = 0; k < count; ++k) {
            if (!testsNoEntry(m) && anyNullObject(k, src1, src2, dst))
                return tenkNullPointerError;
            multiply<m>(squareObject<packed, n>(src1, k), right(k), squareObject<packed, n>(dst, k));
        }
        return tenkOk;
    };
    if constexpr (m.operand[1].array) {
        return run(rightOf);
    } else {
        const auto right = rightOf(0);
        return run([&](std::size_t) TENK_LAMBDA { return right; });
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The family
// ---------------------------------------------------------------------------------------------------------------

template <Member m>
TENK_INLINE tenkStatus matrixMatrix(Source<m, 0> src1, Size<m> src1Width, Size<m> src1Height,
                                    Source<m, 1> src2, Size<m> src2Width, Size<m> src2Height,
                                    Destination<m> dst, Count<m> count)
{
    constexpr bool transposed1 = m.operand[0].transposed, transposed2 = m.operand[1].transposed;
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    const Size<m> terms1 = transposed1 ? src1Height : src1Width;
    const Size<m> terms2 = transposed2 ? src2Width : src2Height;
    if (anyZero(src1Width, src1Height, src2Height) || (!mayHaveNoColumns(m) && anyZero(src2Width)))
        return tenkSizeError;
    if (comparesOuterSizes(m) ? src1Height != src2Width : terms1 != terms2)
        return tenkSizeError;
    // As many entries of the destination's table are tested as the sizes compared make, whatever it has.
    if constexpr (m.batch() && !testsNoEntry(m))
        if (anyNullEntry(src1, std::size_t{src1Width} * src1Height) ||
            anyNullEntry(src2, std::size_t{src2Width} * src2Height) ||
            anyNullEntry(dst, std::size_t{terms1} * terms2))
            return tenkNullPointerError;

    if constexpr (staysAtFirstLeft(m)) {
        const auto steps = static_cast<Address>(src2.stride1 | dst.stride0 | dst.stride1);
        if (((src2.p | dst.p | steps) & 15) == 0)
            src1.stride0 = 0;
    }

    if constexpr (isKernel(m)) {
        if (count == 0) {
            if constexpr (readsRightFirst(m))
                readRight<m>(src2);
            return tenkOk;
        }
        if constexpr (knowsPacked(m)) {
            constexpr unsigned n = m.size;
            if constexpr (isList(m.layout)) {
                if (gapless<n>(src1) && gapless<n>(src2) && gapless<n>(dst))
                    return multiplyAll<m, true>(packed<n>(src1), packed<n>(src2), packed<n>(dst), count);
            } else {
                if (arePacked<n>(src1, src2, dst))
                    return multiplyAll<m, true>(src1, src2, dst, count);
            }
        }
        return multiplyAll<m, false>(src1, src2, dst, count);
    } else {
        const std::size_t width1 = transposed1 ? src1Height : src1Width; // row lengths in tables
        const std::size_t width2 = transposed2 ? src2Height : src2Width;
        for (std::size_t k = 0; k < count; ++k) {
            if (anyNullObject(k, src1, src2, dst))
                return tenkNullPointerError;
            const tenkStatus status =
                generalProduct<m>(src1.object(k, width1), src2.object(k, width2), dst.object(k, src2Width),
                                  src1Height, src2Width, src2Height);
            if (status != tenkOk)
                return status;
        }
        return tenkOk;
    }
}

} // namespace tenk
