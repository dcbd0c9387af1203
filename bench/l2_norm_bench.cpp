// L2Norm: the fixed sizes of an array, and long vectors.
#include "vector_cases.h"

#include <cmath>

using namespace bench;

namespace {

struct Va
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{vectorFunction<T, n, layout>("L2Norm", "va"), count};
        auto a = std::make_shared<Batch<T, layout, 1, n>>(count, 1);
        auto d = randomRun<T>(count);
        contestant(c, "tenk", bind(c.function, a->array(), std::make_tuple(d->data(), std::uint32_t{count})));
        contestant(c, "Eigen", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->data()[k] = a->eigen(k).norm();
        });
        contestant(c, "loop", [=] {
            for (unsigned k = 0; k < a->count(); ++k) {
                T s = 0;
                for (unsigned j = 0; j < n; ++j)
                    s += *a->at(k, 0, j) * *a->at(k, 0, j);
                d->data()[k] = std::sqrt(s);
            }
        });
    }
};

struct V
{
    template <typename T>
    void operator()(unsigned length) const
    {
        const Case c{"tenkL2Norm_v_" + typeName<T>(), length};
        auto a = randomRun<T>(length), d = randomRun<T>(1);
        contestant(c, "tenk", bind(c.function, std::make_tuple(a->data(), d->data(), std::uint32_t{length})));
        contestant(c, "Eigen", [=] { d->data()[0] = a->norm(); });
        contestant(c, "loop", [=] {
            T s = 0;
            for (unsigned j = 0; j < length; ++j)
                s += a->data()[j] * a->data()[j];
            d->data()[0] = std::sqrt(s);
        });
    }
};

} // namespace

void registerAll()
{
    grid(Va{});
    lengths(V{});
}
