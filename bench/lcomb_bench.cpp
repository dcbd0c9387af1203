// LComb: the fixed sizes of two arrays and of an array with one vector, and long vectors.
#include "vector_cases.h"

using namespace bench;

namespace {

template <bool array>
struct Fixed
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{vectorFunction<T, n, layout>("LComb", array ? "vava" : "vav"), count};
        using Objects = Batch<T, layout, 1, n>;
        auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2),
             d = std::make_shared<Objects>(count, 3);
        const T value1 = T(0.3), value2 = T(0.7);
        contestant(c, "tenk",
                   bind(c.function, a->array(), std::make_tuple(value1), operand<array>(*b),
                        std::make_tuple(value2), d->array(), std::make_tuple(std::uint32_t{count})));
        contestant(c, "Eigen", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->eigen(k) = a->eigen(k) * value1 + b->eigen(array ? k : 0) * value2;
        });
        contestant(c, "loop", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                for (unsigned j = 0; j < n; ++j)
                    *d->at(k, 0, j) = *a->at(k, 0, j) * value1 + *b->at(array ? k : 0, 0, j) * value2;
        });
    }
};

struct Vv
{
    template <typename T>
    void operator()(unsigned length) const
    {
        const Case c{"tenkLComb_vv_" + typeName<T>(), length};
        auto a = randomRun<T>(length), b = randomRun<T>(length), d = randomRun<T>(length);
        const T value1 = T(0.3), value2 = T(0.7);
        contestant(c, "tenk",
                   bind(c.function, std::make_tuple(a->data(), value1, b->data(), value2, d->data(),
                                                    std::uint32_t{length})));
        contestant(c, "Eigen", [=] { *d = *a * value1 + *b * value2; });
        contestant(c, "loop", [=] {
            for (unsigned j = 0; j < length; ++j)
                d->data()[j] = a->data()[j] * value1 + b->data()[j] * value2;
        });
    }
};

} // namespace

void registerAll()
{
    grid(Fixed<true>{});
    grid(Fixed<false>{});
    lengths(Vv{});
}
