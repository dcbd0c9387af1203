// QRDecomp: the fixed orders, and general order.
#include "factors.h"

using namespace bench;

namespace {

template <bool general>
struct Decompose
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const std::string function = memberOf<T, n, layout>("QRDecomp", "ma", general);
        const Case c{caseName<n>(function, general), count};
        using Objects = Matrices<T, layout, n>;
        auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
        auto buffer = std::make_shared<std::vector<T>>(n);
        contestant(
            c, "tenk",
            [a, d, buffer,
             run = bench::bind(function, a->array(), std::make_tuple(buffer->data()), d->array(),
                               sizes<general, n, 2>(), std::make_tuple(std::uint32_t{count}))] { run(); });
        using Qr = Eigen::HouseholderQR<Eigen::Matrix<T, n, n, Eigen::RowMajor>>;
        auto factors = std::make_shared<std::vector<Qr>>(count);
        contestant(c, "Eigen", [a, factors, count] {
            for (unsigned k = 0; k < count; ++k)
                (*factors)[k].compute(a->eigen(k));
        });
        auto coefficients = std::make_shared<std::vector<T>>(std::size_t{n} * count);
        contestant(c, "loop", [a, d, coefficients, count] {
            for (unsigned k = 0; k < count; ++k) {
                T m[n * n];
                copyOut<n>(*a, k, m);
                qrLoop<n>(m, coefficients->data() + k * n);
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
