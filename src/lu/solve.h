// LUBackSubst: solves A x = b with the factors and the rowIndex of LUDecomp.
//
// Forward substitution builds y in dst, backward substitution turns it into x there. The sum of an unknown
// starts at +0 and runs over ascending columns, each product rounded and then the sum; it is subtracted once,
// and the backward difference is divided by the pivot. The entries of rowIndex are used as they stand.
#pragma once

#include "frame/side_by_side.h"

namespace tenk {

// These step along a row of the factor by 4 bytes, so that 8-byte elements overlap.
consteval bool stepsByFourBytes(Member m)
{
    return m == "tenkLUBackSubst_mva_64f_L" || m == "tenkLUBackSubst_mva_64f_3x3_L" ||
           m == "tenkLUBackSubst_mva_64f_4x4_L" || m == "tenkLUBackSubst_mva_64f_5x5_L" ||
           m == "tenkLUBackSubst_mva_64f_6x6_L";
}

template <Member m>
TENK_INLINE auto luFactor(const Source<m, 0>& src1, std::size_t k, std::size_t order)
{
    const auto factor = src1.object(k, order);
    if constexpr (stepsByFourBytes(m))
        return StridedView<Element<m>>{factor.start, factor.rowStep, 4};
    else
        return factor;
}

TENK_INLINE std::uint32_t rowAt(Address rowIndex, std::size_t p)
{
    return load<std::uint32_t>(rowIndex + p * sizeof(std::uint32_t));
}

// Whether entries of rowIndex are rows of a matrix of fixed size.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInRange(Address rowIndex)
{
    bool inRange = true;
    for (std::size_t e = 0; e < entries; ++e)
        inRange &= rowAt(rowIndex, e) < order;
    return inRange;
}

// One object, in place in dst.
template <Member m, typename Factor, typename B, typename X>
TENK_INLINE void luSolve(const Factor& factor, Address rowIndex, const B& b, const X& x, Size<m> order)
{
    using T = Element<m>;
    const std::size_t n = order;
    move<T>(x.at(0, 0), b.at(0, rowAt(rowIndex, 0)));
    for (std::size_t i = 1; i < n; ++i) {
        const std::size_t row = rowAt(rowIndex, i);
        T sum = 0;
        for (std::size_t j = 0; j < i; ++j)
            sum = sum + load<T>(factor.at(row, j)) * load<T>(x.at(0, j));
        store<T>(x.at(0, i), load<T>(b.at(0, row)) - sum);
    }
    const std::size_t last = n - 1;
    store<T>(x.at(0, last), load<T>(x.at(0, last)) / load<T>(factor.at(rowAt(rowIndex, last), last)));
    for (std::size_t i = last; i-- > 0;) {
        const std::size_t row = rowAt(rowIndex, i);
        T sum = 0;
        for (std::size_t j = i + 1; j < n; ++j)
            sum = sum + load<T>(factor.at(row, j)) * load<T>(x.at(0, j));
        store<T>(x.at(0, i), (load<T>(x.at(0, i)) - sum) / load<T>(factor.at(row, i)));
    }
}

// ---------------------------------------------------------------------------------------------------------------
// A group of objects side by side, for the batches of fixed size whose rows are adjacent
// ---------------------------------------------------------------------------------------------------------------

consteval bool luSolvesSideBySide(Member m)
{
    return m.batch() && !m.general() && isDense(m.layout) && !stepsByFourBytes(m);
}

template <typename T, unsigned n>
TENK_INLINE void luSolve(const Vector<T> (&factor)[n][n], Vector<T> (&x)[n])
{
    each<n - 1>([&](auto before) TENK_LAMBDA {
        constexpr std::size_t i = before + 1;
        Vector<T> sum = broadcast<T>(0);
        each<i>([&](auto j) TENK_LAMBDA { sum = sum + factor[i][j] * x[j]; });
        x[i] = x[i] - sum;
    });
    x[n - 1] = x[n - 1] / factor[n - 1][n - 1];
    each<n - 1>([&](auto after) TENK_LAMBDA {
        constexpr std::size_t i = n - 2 - after;
        Vector<T> sum = broadcast<T>(0);
        each<n - 1 - i>([&](auto j) TENK_LAMBDA { sum = sum + factor[i][i + 1 + j] * x[i + 1 + j]; });
        x[i] = (x[i] - sum) / factor[i][i];
    });
}

template <Member m>
struct LUSolveGroup
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;
    static constexpr bool oneFactor = !m.operand[0].array;

    SystemsAndSolutions<m, false> operands;
    Vector<T> factor[n][n]; // in the order of the positions
    Address rowIndex[group<T>];

    // False if the objects have to be solved one after the other. One factor is read for the first group
    // alone.
    TENK_INLINE bool load(const Source<m, 0>& src1, Address index, const Source<m, 1>& src2,
                          const Destination<m>& dst, std::size_t k)
    {
        if (!operands.fit(src1, src2, dst, k))
            return false;
        if constexpr (oneFactor) {
            if (k > 0)
                return true;
            each<group<T>>([&](auto g) TENK_LAMBDA { rowIndex[g] = index; });
            if (!rowsInRange<n, n>(index))
                return false;
            each<n>([&](auto i) TENK_LAMBDA {
                const Address row = operands.factor[0].row(rowAt(index, i));
                each<n>([&](auto j)
                            TENK_LAMBDA { factor[i][j] = broadcast(tenk::load<T>(row + j * sizeof(T))); });
            });
        } else {
            constexpr std::size_t entries = n * sizeof(std::uint32_t);
            each<group<T>>([&](auto g) TENK_LAMBDA { rowIndex[g] = index + (k + g) * entries; });
            if (!rowsInRange<n, n * group<T>>(rowIndex[0]))
                return false;
            each<n>([&](auto i) TENK_LAMBDA {
                const auto row = [&](std::size_t g)
                                     TENK_LAMBDA { return operands.factor[g].row(rowAt(rowIndex[g], i)); };
                loadSideBySide<n>(Addresses<T>::make(row), factor[i]);
            });
        }
        return true;
    }

    TENK_INLINE void solve() const
    {
        Vector<T> x[n];
        each<n>([&](auto i) TENK_LAMBDA {
            const auto entry = [&](std::size_t g)
                                   TENK_LAMBDA { return operands.b[g].at(0, rowAt(rowIndex[g], i)); };
            x[i] = gather(Addresses<T>::make(entry));
        });
        luSolve<T, n>(factor, x);
        storeSideBySide<n>(Addresses<T>::make([&](std::size_t g) TENK_LAMBDA { return operands.x[g].start; }),
                           x);
    }
};

template <Member m>
TENK_INLINE tenkStatus luBackSubst(Source<m, 0> src1, const std::uint32_t* rowIndex, Source<m, 1> src2,
                                   Destination<m> dst, Size<m> order, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src1, rowIndex, src2, dst))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    if (anyNullEntry(src1, std::size_t{order} * order) || anyNullEntry(src2, order) ||
        anyNullEntry(dst, order))
        return tenkNullPointerError;

    const auto index = reinterpret_cast<Address>(rowIndex);
    std::size_t k = 0;
    if constexpr (luSolvesSideBySide(m)) {
        LUSolveGroup<m> objects;
        for (; count - k >= group<T> && objects.load(src1, index, src2, dst, k); k += group<T>)
            objects.solve();
    }
    for (; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const Address indexOfObject = m.operand[0].array ? index + k * order * sizeof(std::uint32_t) : index;
        luSolve<m>(luFactor<m>(src1, k, order), indexOfObject, src2.object(k, order), dst.object(k, order),
                   order);
    }
    return tenkOk;
}

} // namespace tenk
