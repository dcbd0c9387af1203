// What the benchmarks of LU and QR share: batches to factor, their factors, and the textbook as one writes it
// down.
#pragma once

#include "products.h"

#include <cmath>

namespace bench {

// Matrices of a batch with room behind them. The last test of LUDecomp's batch moves n columns to the right
// from object to object, so operands of n more rows have to be there, and in a Pointer layout as many entries
// of the table.
template <typename T, Layout layout, unsigned n>
class Matrices
{
public:
    Matrices(unsigned count, unsigned seed) : batch_(2 * count + 1, seed)
    {
        std::apply([&](auto* p, auto...) { assignTable(p, count); }, batch_.array());
    }

    auto array()
    {
        auto arguments = batch_.array();
        if constexpr (layout == Layout::Pointer)
            std::get<0>(arguments) = table_.data();
        return arguments;
    }
    // One matrix in the place of an array: a factor that has a Stride0 all the same, but for tables.
    auto factor()
    {
        if constexpr (layout == Layout::Pointer)
            return array();
        else
            return std::make_tuple(batch_.at(0, 0, 0), std::uint32_t{0}, std::uint32_t{n * sizeof(T)});
    }
    T* at(std::size_t k, std::size_t i, std::size_t j) { return batch_.at(k, i, j); }
    auto eigen(std::size_t k) { return batch_.eigen(k); }

private:
    template <typename P>
    void assignTable(P* p, unsigned count)
    {
        if constexpr (layout == Layout::Pointer) {
            table_.assign(p, p + n * n);
            table_.resize(n * n + std::size_t{n} * count, p[0]);
        }
    }

    Batch<T, layout, n, n> batch_;
    std::vector<T*> table_;
};

// The plain loops work on a dense copy.
template <unsigned n, typename T, typename M>
void copyOut(M& matrices, unsigned k, T* a)
{
    for (unsigned i = 0; i < n; ++i)
        for (unsigned j = 0; j < n; ++j)
            a[i * n + j] = *matrices.at(k, i, j);
}

// Gaussian elimination with partial pivoting, rows exchanged.
template <unsigned n, typename T>
void luLoop(T* a, std::uint32_t* rows)
{
    for (unsigned i = 0; i < n; ++i)
        rows[i] = i;
    for (unsigned p = 0; p < n; ++p) {
        unsigned best = p;
        for (unsigned q = p + 1; q < n; ++q)
            if (std::abs(a[q * n + p]) > std::abs(a[best * n + p]))
                best = q;
        if (best != p) {
            std::swap(rows[p], rows[best]);
            for (unsigned j = 0; j < n; ++j)
                std::swap(a[p * n + j], a[best * n + j]);
        }
        for (unsigned q = p + 1; q < n; ++q) {
            const T l = a[q * n + p] /= a[p * n + p];
            for (unsigned j = p + 1; j < n; ++j)
                a[q * n + j] -= l * a[p * n + j];
        }
    }
}

template <unsigned n, typename T>
void luSolveLoop(const T* a, const std::uint32_t* rows, const T* b, T* x)
{
    for (unsigned i = 0; i < n; ++i) {
        T sum = b[rows[i]];
        for (unsigned j = 0; j < i; ++j)
            sum -= a[i * n + j] * x[j];
        x[i] = sum;
    }
    for (unsigned i = n; i-- > 0;) {
        for (unsigned j = i + 1; j < n; ++j)
            x[i] -= a[i * n + j] * x[j];
        x[i] /= a[i * n + i];
    }
}

// Householder reflections; tau[k] is the coefficient of reflector k, whose component k is 1.
template <unsigned n, typename T>
void qrLoop(T* a, T* tau)
{
    for (unsigned k = 0; k + 1 < n; ++k) {
        T squares = 0;
        for (unsigned i = k; i < n; ++i)
            squares += a[i * n + k] * a[i * n + k];
        const T norm = std::copysign(std::sqrt(squares), a[k * n + k]);
        const T head = a[k * n + k] + norm;
        T length = 1;
        for (unsigned i = k + 1; i < n; ++i) {
            a[i * n + k] /= head;
            length += a[i * n + k] * a[i * n + k];
        }
        tau[k] = 2 / length;
        a[k * n + k] = -norm;
        for (unsigned j = k + 1; j < n; ++j) {
            T e = a[k * n + j];
            for (unsigned i = k + 1; i < n; ++i)
                e += a[i * n + k] * a[i * n + j];
            e *= tau[k];
            a[k * n + j] -= e;
            for (unsigned i = k + 1; i < n; ++i)
                a[i * n + j] -= a[i * n + k] * e;
        }
    }
}

template <unsigned n, typename T>
void qrSolveLoop(const T* a, const T* tau, const T* b, T* x)
{
    for (unsigned i = 0; i < n; ++i)
        x[i] = b[i];
    for (unsigned k = 0; k + 1 < n; ++k) {
        T e = x[k];
        for (unsigned i = k + 1; i < n; ++i)
            e += a[i * n + k] * x[i];
        e *= tau[k];
        x[k] -= e;
        for (unsigned i = k + 1; i < n; ++i)
            x[i] -= a[i * n + k] * e;
    }
    for (unsigned i = n; i-- > 0;) {
        for (unsigned j = i + 1; j < n; ++j)
            x[i] -= a[i * n + j] * x[j];
        x[i] /= a[i * n + i];
    }
}

// The name of a member: a fixed size of the grid, or general order, which is passed and stands in the table
// only.
template <typename T, unsigned n, Layout layout>
std::string memberOf(const std::string& root, const std::string& codes, bool general)
{
    if (general)
        return "tenk" + root + "_" + codes + "_" + typeName<T>() + suffix(layout);
    return memberName<T, n, layout>(root, codes);
}
template <unsigned n>
std::string caseName(const std::string& function, bool general)
{
    return general ? function + " order " + std::to_string(n) : function;
}

// Sizes are passed in general order only, as often as the family has them.
template <bool general, unsigned n, unsigned times>
auto sizes()
{
    if constexpr (!general || times == 0)
        return std::tuple<>();
    else
        return std::tuple_cat(std::make_tuple(std::uint32_t{n}), sizes<general, n, times - 1>());
}

// f<general>.operator()<T, n, layout>(count) over the grid, and over general orders in batches of 64.
template <template <bool> typename F>
void gridAndGeneralOrders()
{
    grid(F<false>{});
    const auto orders = []<typename T, Layout layout>() {
        F<true>{}.template operator()<T, 8, layout>(64);
        F<true>{}.template operator()<T, 16, layout>(64);
        F<true>{}.template operator()<T, 32, layout>(64);
    };
    orders.template operator()<float, Layout::Standard>();
    orders.template operator()<float, Layout::Pointer>();
    orders.template operator()<double, Layout::Standard>();
    orders.template operator()<double, Layout::Pointer>();
}

} // namespace bench
