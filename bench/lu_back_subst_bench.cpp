// LUBackSubst: the fixed orders, and general order; a factor for each right-hand side, and one for all.
#include "factors.h"

using namespace bench;

namespace {

template <bool general, bool oneFactor>
struct Solve
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        // The single factor of a list is no list.
        constexpr Layout factorLayout = oneFactor && layout == Layout::List ? Layout::Standard : layout;
        const unsigned factorCount = oneFactor ? 1 : count;
        const std::string function =
            memberOf<T, n, layout>("LUBackSubst", oneFactor ? "mva" : "mava", general);
        const Case c{caseName<n>(function, general), count};
        auto a = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 1);
        auto f = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 2);
        auto rows = std::make_shared<std::vector<std::uint32_t>>(std::size_t{n} * factorCount);
        bench::bind(memberOf<T, n, factorLayout>("LUDecomp", "ma", general), a->array(),
                    std::make_tuple(rows->data()), f->array(), sizes<general, n, 1>(),
                    std::make_tuple(std::uint32_t{factorCount}))();

        using Vectors = Batch<T, layout, 1, n>;
        auto b = std::make_shared<Vectors>(count, 3), x = std::make_shared<Vectors>(count, 4);
        const auto run = [&](auto factor) {
            return bench::bind(function, factor,
                               std::make_tuple(static_cast<const std::uint32_t*>(rows->data())), b->array(),
                               x->array(), sizes<general, n, 1>(), std::make_tuple(std::uint32_t{count}));
        };
        if constexpr (oneFactor)
            contestant(c, "tenk", [f, b, x, rows, run = run(f->factor())] { run(); });
        else
            contestant(c, "tenk", [f, b, x, rows, run = run(f->array())] { run(); });

        using Lu = Eigen::PartialPivLU<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
        auto factors = std::make_shared<std::vector<Lu>>(factorCount);
        auto dense = std::make_shared<std::vector<T>>(std::size_t{n} * n * factorCount);
        auto order = std::make_shared<std::vector<std::uint32_t>>(std::size_t{n} * factorCount);
        for (unsigned k = 0; k < factorCount; ++k) {
            (*factors)[k].compute(a->eigen(k));
            copyOut<n>(*a, k, dense->data() + k * n * n);
            luLoop<n>(dense->data() + k * n * n, order->data() + k * n);
        }
        contestant(c, "Eigen", [factors, b, x, count] {
            for (unsigned k = 0; k < count; ++k)
                x->eigen(k) = (*factors)[oneFactor ? 0 : k].solve(b->eigen(k));
        });
        contestant(c, "loop", [dense, order, b, x, count] {
            for (unsigned k = 0; k < count; ++k) {
                const std::size_t factor = oneFactor ? 0 : k;
                T right[n], solution[n];
                for (unsigned i = 0; i < n; ++i)
                    right[i] = *b->at(k, 0, i);
                luSolveLoop<n>(dense->data() + factor * n * n, order->data() + factor * n, right, solution);
                for (unsigned i = 0; i < n; ++i)
                    *x->at(k, 0, i) = solution[i];
            }
        });
    }
};

template <bool general>
using Mava = Solve<general, false>;
template <bool general>
using Mva = Solve<general, true>;

} // namespace

void registerAll()
{
    gridAndGeneralOrders<Mava>();
    gridAndGeneralOrders<Mva>();
}
