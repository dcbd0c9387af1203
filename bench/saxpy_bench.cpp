// Saxpy: the fixed sizes of two arrays and of an array with one vector, and long vectors.
#include "vector_cases.h"

using namespace bench;

namespace {

template <bool array1, bool array2>
struct Fixed
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{vectorFunction<T, n, layout>("Saxpy", array1 && array2 ? "vava"
                                                           : array1         ? "vav"
                                                                            : "vva"),
                     count};
        using Objects = Batch<T, layout, 1, n>;
        auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2),
             d = std::make_shared<Objects>(count, 3);
        const T value = T(0.3);
        contestant(c, "tenk",
                   bind(c.function, operand<array1>(*a), std::make_tuple(value), operand<array2>(*b),
                        d->array(), std::make_tuple(std::uint32_t{count})));
        contestant(c, "Eigen", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->eigen(k) = a->eigen(array1 ? k : 0) * value + b->eigen(array2 ? k : 0);
        });
        contestant(c, "loop", [=] {
            for (unsigned k = 0; k < a->count(); ++k)
                for (unsigned j = 0; j < n; ++j)
                    *d->at(k, 0, j) = *a->at(array1 ? k : 0, 0, j) * value + *b->at(array2 ? k : 0, 0, j);
        });
    }
};

struct Vv
{
    template <typename T>
    void operator()(unsigned length) const
    {
        const Case c{"tenkSaxpy_vv_" + typeName<T>(), length};
        auto a = randomRun<T>(length), b = randomRun<T>(length), d = randomRun<T>(length);
        const T value = T(0.3);
        contestant(
            c, "tenk",
            bind(c.function, std::make_tuple(a->data(), value, b->data(), d->data(), std::uint32_t{length})));
        contestant(c, "Eigen", [=] { *d = *a * value + *b; });
        contestant(c, "loop", [=] {
            for (unsigned j = 0; j < length; ++j)
                d->data()[j] = a->data()[j] * value + b->data()[j];
        });
    }
};

} // namespace

void registerAll()
{
    grid(Fixed<true, true>{});
    grid(Fixed<true, false>{});
    grid(Fixed<false, true>{});
    lengths(Vv{});
}
