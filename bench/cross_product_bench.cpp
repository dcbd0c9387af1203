// CrossProduct: two arrays.
#include "vector_cases.h"

using namespace bench;

namespace {

template <typename T, Layout layout>
void vava(unsigned count)
{
    const Case c{vectorFunction<T, 3, layout>("CrossProduct", "vava"), count};
    using Objects = Batch<T, layout, 1, 3>;
    auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2),
         d = std::make_shared<Objects>(count, 3);
    contestant(c, "tenk",
               bind(c.function, a->array(), b->array(), d->array(), std::make_tuple(std::uint32_t{count})));
    contestant(c, "Eigen", [=] {
        for (unsigned k = 0; k < a->count(); ++k)
            d->eigen(k) = a->eigen(k).cross(b->eigen(k));
    });
    contestant(c, "loop", [=] {
        for (unsigned k = 0; k < a->count(); ++k)
            for (unsigned j = 0; j < 3; ++j)
                *d->at(k, 0, j) = *a->at(k, 0, (j + 1) % 3) * *b->at(k, 0, (j + 2) % 3) -
                                  *a->at(k, 0, (j + 2) % 3) * *b->at(k, 0, (j + 1) % 3);
    });
}

} // namespace

void registerAll()
{
    for (unsigned count : {1U, 64U, 4096U}) {
        vava<float, Layout::Standard>(count);
        vava<float, Layout::List>(count);
        vava<float, Layout::Pointer>(count);
        vava<double, Layout::Standard>(count);
        vava<double, Layout::List>(count);
        vava<double, Layout::Pointer>(count);
    }
}
