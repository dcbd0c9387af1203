// Matrix by vector: element i of the product is the sum of left(i, p) x src2(p) over p.
//
// The product has src1Height elements, each a sum of src1Width terms; products/vector_kernels.h has the order
// of the sums. These are the sizes of the matrix in the formula: that of a transposed operand is stored with
// src1Width rows of src1Height elements. The size test, in contrast, compares src2Length with the width of
// the stored object as its arguments would name it, src1Height for a transposed one; src2Length is in no
// loop.
//
// With adjacent elements and a fixed size a vector is read as a whole before its product is written. All
// other members keep the running sum in the destination.
#pragma once

#include "frame/packed.h"
#include "products/vector_kernels.h"

namespace tenk {

// The entry that is tested before term p of element i is the one at (i, p) of the table, as if the matrix
// were not transposed, and not the one that is read. Only single matrices behind a table are tested term by
// term.
consteval bool testsUntransposedEntry(Member m)
{
    return hasCodesOf(m, "tenkMul_mTv_32f") && isTable(m.layout);
}

// Members with a loop of their own for operands without gaps: where it is the faster one.
consteval bool knowsGapless(Member m)
{
    return knowsPacked(m) && m.operand[0].array && m.operand[1].array && (isList(m.layout) || fewRegisters);
}

// Any size and layout, one object.
template <Member m, typename Matrix, typename Vec, typename Out>
TENK_INLINE tenkStatus generalVectorProduct(const Matrix& matrix, const Vec& vector, const Out& out,
                                            Size<m> height, Size<m> terms)
{
    constexpr bool transposed = m.operand[0].transposed;
    if constexpr (isDense(m.layout)) {
        const ByteRange range = rangeOf(out, 1, height);
        if (areApart(range, rangeOf(vector, 1, terms)) &&
            areApart(range, transposed ? rangeOf(matrix, terms, height) : rangeOf(matrix, height, terms))) {
            vectorProductInTiles<m>(matrix, vector, height, terms,
                                    [&](std::size_t i, const auto& sums)
                                        TENK_LAMBDA { sums.store(out.at(0, i)); });
            return tenkOk;
        }
    }
    constexpr bool tests = isTable(m.layout) && !m.batch();
    const auto before = [&](std::size_t i) TENK_LAMBDA {
        if constexpr (tests)
            return out.isNull(0, i);
        else
            return false;
    };
    const auto within = [&](std::size_t i, std::size_t p) TENK_LAMBDA {
        if constexpr (tests)
            return isNullElement<(transposed && !testsUntransposedEntry(m))>(matrix, i, p) ||
                   vector.isNull(0, p);
        else
            return false;
    };
    return vectorProductInPlace<m>(matrix, vector, out, height, terms, before, within,
                                   [](std::size_t, Element<m>) TENK_LAMBDA {});
}

// product(k) for the objects of a batch, object by object.
template <typename F, typename... O>
TENK_INLINE tenkStatus eachProduct(std::size_t count, F product, const O&... operands)
{
    // Counts down, too: where registers are few, `count` is in memory and would be read for each object.
    for (std::size_t k = 0, left = count; left != 0; ++k, --left) {
        if (anyNullObject(k, operands...))
            return tenkNullPointerError;
        if (const tenkStatus status = product(k); status != tenkOk)
            return status;
    }
    return tenkOk;
}

// A vector to each matrix, without gaps. Objects a step apart are found from behind the last one, by a
// distance that runs up to zero: it stands for all their steps and for the count.
template <Member m>
TENK_INLINE tenkStatus gaplessVectorProducts(const Source<m, 0>& matrices, const Source<m, 1>& vectors,
                                             const Destination<m>& products, std::size_t count)
{
    using T = Element<m>;
    constexpr unsigned n = m.size;
    const auto multiply = [](Address matrix, Address vector, Address product) TENK_LAMBDA {
        const auto v = inRegisters(Row<T, n>::load(vector));
        productOfStored<m>(PackedView<T, n>{matrix}, v).store(product);
    };
    if constexpr (isList(m.layout)) {
        return eachProduct(
            count,
            [&](std::size_t k) TENK_LAMBDA -> tenkStatus {
                multiply(matrices.entry(k), vectors.entry(k), products.entry(k));
                return tenkOk;
            },
            matrices, vectors, products);
    } else {
        constexpr Address row = n * sizeof(T);
        const auto behindLast = [&](Address start, Address object) TENK_LAMBDA {
            start += count * object;
            asm("" : "+r"(start)); // in a register, although it is the same for all objects
            return start;
        };
        const Address matrix = behindLast(matrices.p, n * row);
        const Address vector = behindLast(vectors.p, row), product = behindLast(products.p, row);
        for (Address at = 0 - count * row; at != 0; at += row)
            multiply(matrix + n * at, vector + at, product + at);
        return tenkOk;
    }
}

template <Member m>
TENK_INLINE tenkStatus matrixVector(Source<m, 0> src1, Size<m> src1Width, Size<m> src1Height,
                                    Source<m, 1> src2, Size<m> src2Length, Destination<m> dst, Count<m> count)
{
    constexpr bool transposed = m.operand[0].transposed;
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(src1Width, src1Height) || (transposed ? src1Height : src1Width) != src2Length)
        return tenkSizeError;
    // Of the destination's table of a transposed product src1Width entries are tested, whatever its length.
    if constexpr (m.batch())
        if (anyNullEntry(src1, std::size_t{src1Width} * src1Height) || anyNullEntry(src2, src2Length) ||
            anyNullEntry(dst, transposed ? src1Width : src1Height))
            return tenkNullPointerError;
    if (count == 0)
        return tenkOk;

    const std::size_t rowLength = transposed ? src1Height : src1Width; // in tables
    const auto run = [&](auto product)
                         TENK_LAMBDA -> tenkStatus { return eachProduct(count, product, src1, src2, dst); };
    if constexpr (m.general() || !isDense(m.layout)) {
        return run([&](std::size_t k) TENK_LAMBDA -> tenkStatus {
            return generalVectorProduct<m>(src1.object(k, rowLength), src2.object(k, src2Length),
                                           dst.object(k, src1Height), src1Height, src1Width);
        });
    } else {
        constexpr unsigned n = m.size;
        using R = Row<Element<m>, n>;
        const auto vectorOf = [&](std::size_t k)
                                  TENK_LAMBDA { return inRegisters(R::load(src2.object(k, n).row(0))); };
        const auto write = [&](std::size_t k, const R& row) TENK_LAMBDA -> tenkStatus {
            row.store(dst.object(k, n).row(0));
            return tenkOk;
        };
        const auto runArrayOfMatrices = [&](auto packed) TENK_LAMBDA -> tenkStatus {
            const auto matrixOf = [&](std::size_t k) TENK_LAMBDA { return squareObject<packed, n>(src1, k); };
            if constexpr (m.operand[1].array) {
                return run([&](std::size_t k) TENK_LAMBDA -> tenkStatus {
                    return write(k, productOfStored<m>(matrixOf(k), vectorOf(k)));
                });
            } else {
                const R vector = vectorOf(0);
                return run([&](std::size_t k) TENK_LAMBDA -> tenkStatus {
                    return write(k, productOfStored<m>(matrixOf(k), vector));
                });
            }
        };
        if constexpr (m.operand[0].array) {
            if constexpr (knowsGapless(m)) {
                if (gapless<n>(src1) && gapless<n, 1>(src2) && gapless<n, 1>(dst))
                    return gaplessVectorProducts<m>(src1, src2, dst, count);
            } else if constexpr (knowsPacked(m)) {
                if (arePacked<n>(src1))
                    return runArrayOfMatrices(std::true_type());
            }
            return runArrayOfMatrices(std::false_type());
        } else if constexpr (m.operand[1].array) {
            const auto matrix = TurnedMatrix<m>::load(src1.object(0, n));
            return run([&](std::size_t k)
                           TENK_LAMBDA -> tenkStatus { return write(k, matrix.times(vectorOf(k))); });
        } else {
            return write(0, productOfStored<m>(src1.object(0, n), vectorOf(0)));
        }
    }
}

} // namespace tenk
