// CrossProduct: two arrays, and an array with one vector.
#include "vector_cases.h"

using namespace bench;

namespace {

template <bool array1, bool array2, typename T, Layout layout>
void cross(unsigned count)
{
    const Case c{vectorFunction<T, 3, layout>("CrossProduct", array1 && array2 ? "vava"
                                                              : array1         ? "vav"
                                                                               : "vva"),
                 count};
    using Objects = Batch<T, layout, 1, 3>;
    auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2),
         d = std::make_shared<Objects>(count, 3);
    contestant(c, "tenk",
               bind(c.function, operand<array1>(*a), operand<array2>(*b), d->array(),
                    std::make_tuple(std::uint32_t{count})));
    contestant(c, "Eigen", [=] {
        for (unsigned k = 0; k < a->count(); ++k)
            d->eigen(k) = a->eigen(array1 ? k : 0).cross(b->eigen(array2 ? k : 0));
    });
    contestant(c, "loop", [=] {
        for (unsigned k = 0; k < a->count(); ++k)
            for (unsigned j = 0; j < 3; ++j)
                *d->at(k, 0, j) =
                    *a->at(array1 ? k : 0, 0, (j + 1) % 3) * *b->at(array2 ? k : 0, 0, (j + 2) % 3) -
                    *a->at(array1 ? k : 0, 0, (j + 2) % 3) * *b->at(array2 ? k : 0, 0, (j + 1) % 3);
    });
}

template <typename T, Layout layout>
void codes(unsigned count)
{
    cross<true, true, T, layout>(count);
    cross<true, false, T, layout>(count);
    cross<false, true, T, layout>(count);
}

} // namespace

void registerAll()
{
    for (unsigned count : {1U, 64U, 4096U}) {
        codes<float, Layout::Standard>(count);
        codes<float, Layout::List>(count);
        codes<float, Layout::Pointer>(count);
        codes<double, Layout::Standard>(count);
        codes<double, Layout::List>(count);
        codes<double, Layout::Pointer>(count);
    }
}
