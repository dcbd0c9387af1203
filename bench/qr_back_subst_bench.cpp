// QRBackSubst: the fixed orders, and general order; a factor for each right-hand side, and one for all.
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
            memberOf<T, n, layout>("QRBackSubst", oneFactor ? "mva" : "mava", general);
        const Case c{caseName<n>(function, general), count};
        auto a = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 1);
        auto f = std::make_shared<Matrices<T, factorLayout, n>>(factorCount, 2);
        auto buffer = std::make_shared<std::vector<T>>(n);
        bench::bind(memberOf<T, n, factorLayout>("QRDecomp", "ma", general), a->array(),
                    std::make_tuple(buffer->data()), f->array(), sizes<general, n, 2>(),
                    std::make_tuple(std::uint32_t{factorCount}))();

        using Vectors = Batch<T, layout, 1, n>;
        auto b = std::make_shared<Vectors>(count, 3), x = std::make_shared<Vectors>(count, 4);
        const auto run = [&](auto factor) {
            return bench::bind(function, factor, std::make_tuple(buffer->data()), b->array(), x->array(),
                               sizes<general, n, 2>(), std::make_tuple(std::uint32_t{count}));
        };
        if constexpr (oneFactor)
            contestant(c, "tenk", [f, b, x, buffer, run = run(f->factor())] { run(); });
        else
            contestant(c, "tenk", [f, b, x, buffer, run = run(f->array())] { run(); });

        using Qr = Eigen::HouseholderQR<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
        auto factors = std::make_shared<std::vector<Qr>>(factorCount);
        auto dense = std::make_shared<std::vector<T>>(std::size_t{n} * n * factorCount);
        auto coefficients = std::make_shared<std::vector<T>>(std::size_t{n} * factorCount);
        for (unsigned k = 0; k < factorCount; ++k) {
            (*factors)[k].compute(a->eigen(k));
            copyOut<n>(*a, k, dense->data() + k * n * n);
            qrLoop<n>(dense->data() + k * n * n, coefficients->data() + k * n);
        }
        contestant(c, "Eigen", [factors, b, x, count] {
            for (unsigned k = 0; k < count; ++k)
                x->eigen(k) = (*factors)[oneFactor ? 0 : k].solve(b->eigen(k));
        });
        contestant(c, "loop", [dense, coefficients, b, x, count] {
            for (unsigned k = 0; k < count; ++k) {
                const std::size_t factor = oneFactor ? 0 : k;
                T right[n], solution[n];
                for (unsigned i = 0; i < n; ++i)
                    right[i] = *b->at(k, 0, i);
                qrSolveLoop<n>(dense->data() + factor * n * n, coefficients->data() + factor * n, right,
                               solution);
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
