// Small matrices in local variables, and the few operations on them from which the inverses of fixed order
// are made. Each sum runs over the inner index in ascending order.
#pragma once

#include "frame/row.h"

namespace tenk {

template <typename T, unsigned rows, unsigned columns>
struct Grid
{
    T at[rows][columns];
};

// The grid whose element (i, j) is f(i, j).
template <typename T, unsigned rows, unsigned columns, typename F>
TENK_INLINE Grid<T, rows, columns> grid(F f)
{
    Grid<T, rows, columns> g;
    each<rows>([&](auto i) TENK_LAMBDA { each<columns>([&](auto j) TENK_LAMBDA { g.at[i][j] = f(i, j); }); });
    return g;
}

template <typename T, unsigned rows, unsigned columns>
TENK_INLINE Grid<T, rows, columns> operator-(const Grid<T, rows, columns>& a)
{
    return grid<T, rows, columns>([&](auto i, auto j) TENK_LAMBDA { return -a.at[i][j]; });
}

template <typename T, unsigned rows, unsigned columns>
TENK_INLINE Grid<T, rows, columns> operator*(const Grid<T, rows, columns>& a, T factor)
{
    return grid<T, rows, columns>([&](auto i, auto j) TENK_LAMBDA { return a.at[i][j] * factor; });
}

template <typename T, unsigned rows, unsigned inner, unsigned columns>
TENK_INLINE Grid<T, rows, columns> operator*(const Grid<T, rows, inner>& a, const Grid<T, inner, columns>& b)
{
    return grid<T, rows, columns>([&](auto i, auto j) TENK_LAMBDA {
        T sum = a.at[i][0] * b.at[0][j];
        each<inner - 1>([&](auto k) TENK_LAMBDA { sum = sum + a.at[i][k + 1] * b.at[k + 1][j]; });
        return sum;
    });
}

// The signed cofactor of element (i, j) of order 3: a difference of products of the next two rows and
// columns, counted around.
template <typename T>
TENK_INLINE T cofactor3(const Grid<T, 3, 3>& a, std::size_t i, std::size_t j)
{
    const std::size_t i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
    return a.at[i1][j1] * a.at[i2][j2] - a.at[i1][j2] * a.at[i2][j1];
}

template <typename T>
TENK_INLINE Grid<T, 2, 2> adjugate(const Grid<T, 2, 2>& a)
{
    return {{{a.at[1][1], -a.at[0][1]}, {-a.at[1][0], a.at[0][0]}}};
}
template <typename T>
TENK_INLINE Grid<T, 3, 3> adjugate(const Grid<T, 3, 3>& a)
{
    return grid<T, 3, 3>([&](auto i, auto j) TENK_LAMBDA { return cofactor3(a, j, i); });
}

template <typename T>
TENK_INLINE T determinantByRow0(const Grid<T, 1, 1>& a)
{
    return a.at[0][0];
}
template <typename T>
TENK_INLINE T determinantByRow0(const Grid<T, 2, 2>& a)
{
    return a.at[0][0] * a.at[1][1] - a.at[0][1] * a.at[1][0];
}
template <typename T>
TENK_INLINE T determinantByRow0(const Grid<T, 3, 3>& a)
{
    return (cofactor3(a, 0, 0) * a.at[0][0] + cofactor3(a, 0, 1) * a.at[0][1]) +
           cofactor3(a, 0, 2) * a.at[0][2];
}

} // namespace tenk
