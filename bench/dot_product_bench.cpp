// DotProduct: the fixed sizes of two arrays and of an array with one vector, and long vectors.
#include "vector_cases.h"

using namespace bench;

namespace {

template <bool array>
struct Dot
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{vectorFunction<T, n, layout>("DotProduct", array ? "vava" : "vav"), count};
        using Objects = Batch<T, layout, 1, n>;
        auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2);
        auto d = randomRun<T>(count);
        const auto result = std::make_tuple(d->data(), std::uint32_t{count});
        contestant(c, "tenk", bind(c.function, a->array(), operand<array>(*b), result));
        contestant(c, "Eigen", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->data()[k] = a->eigen(k).dot(b->eigen(array ? k : 0));
        });
        contestant(c, "loop", [=] {
            for (unsigned k = 0; k < a->count(); ++k) {
                T s = 0;
                for (unsigned j = 0; j < n; ++j)
                    s += *a->at(k, 0, j) * *b->at(array ? k : 0, 0, j);
                d->data()[k] = s;
            }
        });
    }
};

struct Vv
{
    template <typename T>
    void operator()(unsigned length) const
    {
        const Case c{"tenkDotProduct_vv_" + typeName<T>(), length};
        auto a = randomRun<T>(length), b = randomRun<T>(length), d = randomRun<T>(1);
        contestant(c, "tenk",
                   bind(c.function, std::make_tuple(a->data(), b->data(), d->data(), std::uint32_t{length})));
        contestant(c, "Eigen", [=] { d->data()[0] = a->dot(*b); });
        contestant(c, "loop", [=] {
            T s = 0;
            for (unsigned j = 0; j < length; ++j)
                s += a->data()[j] * b->data()[j];
            d->data()[0] = s;
        });
    }
};

} // namespace

void registerAll()
{
    grid(Dot<true>{});
    grid(Dot<false>{});
    lengths(Vv{});
}
