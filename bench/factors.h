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

// The two families: their names, their sizes in general order, their peer, and how many words of working
// memory a batch has; `Word` is also what the plain loop keeps of each row.
template <typename T, unsigned n>
struct LU
{
    static constexpr const char *decomp = "LUDecomp", *backSubst = "LUBackSubst";
    static constexpr unsigned sizes = 1;
    using Peer = Eigen::PartialPivLU<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
    using Word = std::uint32_t; // a row index for each object
    static std::size_t words(unsigned count) { return std::size_t{n} * count; }
    static void factor(T* a, Word* rows) { luLoop<n>(a, rows); }
    static void solve(const T* a, const Word* rows, const T* b, T* x) { luSolveLoop<n>(a, rows, b, x); }
};
template <typename T, unsigned n>
struct QR
{
    static constexpr const char *decomp = "QRDecomp", *backSubst = "QRBackSubst";
    static constexpr unsigned sizes = 2;
    using Peer = Eigen::HouseholderQR<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
    using Word = T; // one buffer
    static std::size_t words(unsigned) { return n; }
    static void factor(T* a, Word* tau) { qrLoop<n>(a, tau); }
    static void solve(const T* a, const Word* tau, const T* b, T* x) { qrSolveLoop<n>(a, tau, b, x); }
};

template <template <typename, unsigned> typename Family, bool general>
struct Decompose
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        using F = Family<T, n>;
        using Words = std::vector<typename F::Word>;
        const std::string function = memberOf<T, n, layout>(F::decomp, "ma", general);
        const Case c{caseName<n>(function, general), count};
        using Objects = Matrices<T, layout, n>;
        auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
        auto words = std::make_shared<Words>(F::words(count));
        contestant(c, "tenk",
                   [a, d, words,
                    run = bench::bind(function, a->array(), std::make_tuple(words->data()), d->array(),
                                      sizes<general, n, F::sizes>(), std::make_tuple(std::uint32_t{count}))] {
                       run();
                   });
        auto factors = std::make_shared<std::vector<typename F::Peer>>(count);
        contestant(c, "Eigen", [a, factors, count] {
            for (unsigned k = 0; k < count; ++k)
                (*factors)[k].compute(a->eigen(k));
        });
        auto ofRows = std::make_shared<Words>(std::size_t{n} * count);
        contestant(c, "loop", [a, d, ofRows, count] {
            for (unsigned k = 0; k < count; ++k) {
                T m[n * n];
                copyOut<n>(*a, k, m);
                F::factor(m, ofRows->data() + k * n);
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        *d->at(k, i, j) = m[i * n + j];
            }
        });
    }
};

// A factor for each right-hand side, or one for all.
template <template <typename, unsigned> typename Family, bool general, bool oneFactor>
struct Solve
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        using F = Family<T, n>;
        using Words = std::vector<typename F::Word>;
        // The single factor of a list is no list.
        constexpr Layout factorLayout = oneFactor && layout == Layout::List ? Layout::Standard : layout;
        const unsigned factorCount = oneFactor ? 1 : count;
        const std::string function =
            memberOf<T, n, layout>(F::backSubst, oneFactor ? "mva" : "mava", general);
        const Case c{caseName<n>(function, general), count};
        auto a = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 1);
        auto f = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 2);
        auto words = std::make_shared<Words>(F::words(factorCount));
        bench::bind(memberOf<T, n, factorLayout>(F::decomp, "ma", general), a->array(),
                    std::make_tuple(words->data()), f->array(), sizes<general, n, F::sizes>(),
                    std::make_tuple(std::uint32_t{factorCount}))();

        using Vectors = Batch<T, layout, 1, n>;
        auto b = std::make_shared<Vectors>(count, 3), x = std::make_shared<Vectors>(count, 4);
        const auto run = [&](auto factor) {
            return bench::bind(function, factor, std::make_tuple(words->data()), b->array(), x->array(),
                               sizes<general, n, F::sizes>(), std::make_tuple(std::uint32_t{count}));
        };
        if constexpr (oneFactor)
            contestant(c, "tenk", [f, b, x, words, run = run(f->factor())] { run(); });
        else
            contestant(c, "tenk", [f, b, x, words, run = run(f->array())] { run(); });

        auto factors = std::make_shared<std::vector<typename F::Peer>>(factorCount);
        auto dense = std::make_shared<std::vector<T>>(std::size_t{n} * n * factorCount);
        auto ofRows = std::make_shared<Words>(std::size_t{n} * factorCount);
        for (unsigned k = 0; k < factorCount; ++k) {
            (*factors)[k].compute(a->eigen(k));
            copyOut<n>(*a, k, dense->data() + k * n * n);
            F::factor(dense->data() + k * n * n, ofRows->data() + k * n);
        }
        contestant(c, "Eigen", [factors, b, x, count] {
            for (unsigned k = 0; k < count; ++k)
                x->eigen(k) = (*factors)[oneFactor ? 0 : k].solve(b->eigen(k));
        });
        contestant(c, "loop", [dense, ofRows, b, x, count] {
            for (unsigned k = 0; k < count; ++k) {
                const std::size_t factor = oneFactor ? 0 : k;
                T right[n], solution[n];
                for (unsigned i = 0; i < n; ++i)
                    right[i] = *b->at(k, 0, i);
                F::solve(dense->data() + factor * n * n, ofRows->data() + factor * n, right, solution);
                for (unsigned i = 0; i < n; ++i)
                    *x->at(k, 0, i) = solution[i];
            }
        });
    }
};

} // namespace bench
