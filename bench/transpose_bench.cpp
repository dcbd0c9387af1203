// Transpose: the fixed sizes.
#include "support.h"

using namespace bench;

namespace {

struct Ma
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{"tenkTranspose_ma_" + typeName<T>() + "_" + std::to_string(n) + "x" + std::to_string(n) +
                         suffix(layout),
                     count};
        using Objects = Batch<T, layout, n, n>;
        auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
        contestant(c, "tenk",
                   bind(c.function, a->array(), d->array(), std::make_tuple(std::uint32_t{count})));
        contestant(c, "Eigen", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->eigen(k) = a->eigen(k).transpose();
        });
        contestant(c, "loop", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k)
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        *d->at(k, j, i) = *a->at(k, i, j);
        });
    }
};

} // namespace

void registerAll()
{
    grid(Ma{});
}
