// Gaussian elimination with partial pivoting, on a copy of the matrix in the caller's scratch memory: the
// part that the determinant and the inverse of general order share.
//
// The scratch memory holds the rows of the copy, without gaps between them, and behind them a permutation of
// the rows, 32-bit numbers. Rows are exchanged in the permutation and never moved. "Position" p is row
// permutation[p].
//
// How the steps are rounded, element arithmetic being one rounding to the element type for each operation,
// and the wide unit being long double, at whatever precision the thread has set:
//
//                          32f                                      64f
//   search for the pivot   exact                                    candidates in full against a maximum that
//   is kept
//                                                                   in binary32
//   reciprocal of a pivot  wide, rounded to binary32                wide
//   factor of a row        element arithmetic                       wide
//   update of a row        element arithmetic                       product and sum wide, rounded once
//   product of pivots      the caller's business
#pragma once

#include <type_traits>

#include "detinv/limits.h"
#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

// ---------------------------------------------------------------------------------------------------------------
// What differs by type
// ---------------------------------------------------------------------------------------------------------------

template <typename T>
struct Elimination;

template <>
struct Elimination<float>
{
    using Factor = float;

    TENK_INLINE static Factor reciprocal(float pivot) { return static_cast<float>(1.0L / pivot); }

    // Elements first to n - 1 of a row, less f times those of the pivot's row. The factor is negated as 0 -
    // f.
    TENK_INLINE static void update(Address row, Address pivotRow, Factor f, std::size_t first, std::size_t n)
    {
        const float negated = 0 - f;
        std::size_t c = first;
        for (; c + 4 <= n; c += 4) {
            const Address a = row + c * 4;
            storeVector<float>(a, loadVector<float>(a) +
                                      broadcast(negated) * loadVector<float>(pivotRow + c * 4));
        }
        for (; c < n; ++c) {
            const Address a = row + c * 4;
            store(a, load<float>(a) + negated * load<float>(pivotRow + c * 4));
        }
    }
};

template <>
struct Elimination<double>
{
    using Factor = long double;

    TENK_INLINE static Factor reciprocal(double pivot) { return 1.0L / pivot; }

    TENK_INLINE static void update(Address row, Address pivotRow, Factor f, std::size_t first, std::size_t n)
    {
        const long double negated = -f;
        for (std::size_t c = first; c < n; ++c) {
            const Address a = row + c * 8;
            store(a, static_cast<double>(load<double>(a) + negated * load<double>(pivotRow + c * 8)));
        }
    }
};

// ---------------------------------------------------------------------------------------------------------------
// The working matrix
// ---------------------------------------------------------------------------------------------------------------

// Copies n adjacent elements as raw bits.
template <typename T>
TENK_INLINE void copyRun(Address to, Address from, std::size_t n)
{
    using Bits = typename BitsOf<T>::type;
    typedef Bits Quad __attribute__((vector_size(16)));
    for (; n >= lanes<T>; n -= lanes<T>, to += 16, from += 16)
        store(to, load<Quad>(from));
    for (; n > 0; --n, to += sizeof(T), from += sizeof(T))
        move<T>(to, from);
}

template <typename T>
struct Working
{
    Address matrix;
    Address permutation;
    std::size_t pitch; // bytes from one row to the next, whatever part of the matrix is in use

    TENK_INLINE Working(void* buffer, std::size_t order)
        : matrix(reinterpret_cast<Address>(buffer)),
          permutation(matrix + order * order * sizeof(T)),
          pitch(order * sizeof(T))
    {
    }

    TENK_INLINE Address row(std::size_t position) const
    {
        return matrix + load<std::uint32_t>(permutation + position * 4) * pitch;
    }
    TENK_INLINE T element(std::size_t position, std::size_t column) const
    {
        return load<T>(row(position) + column * sizeof(T));
    }
    TENK_INLINE void exchange(std::size_t p, std::size_t q) const
    {
        const auto at = [&](std::size_t position) TENK_LAMBDA { return permutation + position * 4; };
        const auto first = load<std::uint32_t>(at(p)), second = load<std::uint32_t>(at(q));
        store(at(p), second);
        store(at(q), first);
    }

    // Elements first to last - 1 of row i of a source become those of row `to` from `column` on. That row
    // goes to the position of its own number.
    template <typename View>
    TENK_INLINE void copy(std::size_t to, std::size_t column, const View& from, std::size_t i,
                          std::size_t first, std::size_t last) const
    {
        store(permutation + to * 4, static_cast<std::uint32_t>(to));
        const Address start = matrix + to * pitch + column * sizeof(T);
        if constexpr (std::is_same_v<View, DenseView<T>>)
            copyRun<T>(start, from.at(i, first), last - first);
        else
            for (std::size_t j = first; j < last; ++j)
                move<T>(start + (j - first) * sizeof(T), from.at(i, j));
    }
};

// Eliminates below the first n - 1 pivots of the leading n rows and columns, and gives each pivot that has
// passed to take(). At a pivot that fails it stops and returns false. `sign` is negated by each exchange of
// rows. The last pivot is left to the caller, who finds it at position and column n - 1 in either case.
template <typename T, typename Take>
TENK_INLINE bool eliminate(const Working<T>& w, std::size_t n, int& sign, Take take)
{
    for (std::size_t p = 0; p + 1 < n; ++p) {
        // In 64f the maximum is rounded to binary32 and the candidates are not, so it is not always the
        // largest that wins: of two that are closer than a binary32 step the later may, and nothing beats a
        // maximum that has become infinite. The earliest of equals stays, and a NaN neither wins nor is
        // beaten.
        std::size_t best = p;
        auto bestMagnitude = static_cast<float>(magnitude(w.element(p, p)));
        for (std::size_t q = p + 1; q < n; ++q) {
            const T candidate = magnitude(w.element(q, p));
            if (candidate > bestMagnitude) {
                best = q;
                bestMagnitude = static_cast<float>(candidate);
            }
        }
        if (best != p) {
            w.exchange(p, best);
            sign = -sign;
        }

        const Address pivotRow = w.row(p);
        const T v = load<T>(pivotRow + p * sizeof(T));
        if (!passesAsPivot(v))
            return false;
        const auto reciprocal = Elimination<T>::reciprocal(v);
        for (std::size_t q = p + 1; q < n; ++q) {
            const Address row = w.row(q);
            Elimination<T>::update(row, pivotRow, load<T>(row + p * sizeof(T)) * reciprocal, p + 1, n);
        }
        take(v);
    }
    return true;
}

} // namespace tenk
