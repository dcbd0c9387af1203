// LUDecomp: the fixed orders, and general order.
#include "factors.h"

using namespace bench;

namespace {

template <bool general>
struct Decompose
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const std::string function = memberOf<T, n, layout>("LUDecomp", "ma", general);
        const Case c{caseName<n>(function, general), count};
        using Objects = Matrices<T, layout, n>;
        auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
        auto rows = std::make_shared<std::vector<std::uint32_t>>(std::size_t{n} * count);
        contestant(
            c, "tenk",
            [a, d, rows,
             run = bench::bind(function, a->array(), std::make_tuple(rows->data()), d->array(),
                               sizes<general, n, 1>(), std::make_tuple(std::uint32_t{count}))] { run(); });
        using Lu = Eigen::PartialPivLU<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
        auto factors = std::make_shared<std::vector<Lu>>(count);
        contestant(c, "Eigen", [a, factors, count] {
            for (unsigned k = 0; k < count; ++k)
                (*factors)[k].compute(a->eigen(k));
        });
        contestant(c, "loop", [a, d, rows, count] {
            for (unsigned k = 0; k < count; ++k) {
                T m[n * n];
                copyOut<n>(*a, k, m);
                luLoop<n>(m, rows->data() + k * n);
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        *d->at(k, i, j) = m[i * n + j];
            }
        });
    }
};

} // namespace

void registerAll()
{
    gridAndGeneralOrders<Decompose>();
}
