// Gaxpy: the fixed sizes on batches.
#include "products.h"

using namespace bench;

namespace {

struct Va
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{memberName<T, n, layout>("Gaxpy", "va"), count};
        using V = typename Factor<T, layout, 1, n>::Many;
        auto a = std::make_shared<typename Factor<T, layout, n, n>::One>(1, 1);
        auto x = std::make_shared<V>(count, 2), y = std::make_shared<V>(count, 3),
             d = std::make_shared<V>(count, 4);
        contestant(c, "tenk",
                   [a, x, y, d,
                    run = bind(c.function, a->single(), x->array(), y->array(), d->array(),
                               std::make_tuple(std::uint32_t{count}))] { run(); });
        contestant(c, "Eigen", [a, x, y, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                d->eigen(k).noalias() = a->eigen(0) * x->eigen(k) + y->eigen(k);
        });
        if constexpr (n <= 4 && layout != Layout::Pointer)
            contestant(c, "GLM", [a, x, y, d] {
                using G = Glm<T, n>;
                for (unsigned k = 0; k < d->count(); ++k)
                    G::vector(d->at(k, 0, 0)) =
                        G::vector(x->at(k, 0, 0)) * G::matrix(a->at(0, 0, 0)) + G::vector(y->at(k, 0, 0));
            });
        contestant(c, "loop", [a, x, y, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                for (unsigned i = 0; i < n; ++i) {
                    T sum = 0;
                    for (unsigned p = 0; p < n; ++p)
                        sum += *a->at(0, i, p) * *x->at(k, 0, p);
                    *d->at(k, 0, i) = sum + *y->at(k, 0, i);
                }
        });
    }
};

} // namespace

void registerAll()
{
    grid(Va{});
}
