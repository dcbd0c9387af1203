// Mul: arrays of small matrices and vectors by a constant.
#include "elementwise_bench.h"

using namespace bench;

namespace {

template <typename T, Layout layout, unsigned rows, unsigned columns>
void scaleCase(const std::string& function, unsigned count)
{
    const Case c{function, count};
    using Objects = Batch<T, layout, rows, columns>;
    auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
    const T value = T(1.5);
    contestant(c, "tenk",
               bind(function, a->array(), std::make_tuple(value), d->array(),
                    std::make_tuple(std::uint32_t{count})));
    contestant(c, "Eigen", [a, d, value] {
        for (unsigned k = 0; k < a->count(); ++k)
            d->eigen(k) = a->eigen(k) * value;
    });
    contestant(c, "loop", [a, d, value] {
        for (unsigned k = 0; k < a->count(); ++k)
            for (unsigned i = 0; i < rows; ++i)
                for (unsigned j = 0; j < columns; ++j)
                    *d->at(k, i, j) = *a->at(k, i, j) * value;
    });
}

struct Members
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        scaleCase<T, layout, n, n>(member<T, n, layout>("Mul_mac", 'n'), count);
        scaleCase<T, layout, 1, n>(member<T, n, layout>("Mul_vac", '1'), count);
    }
};

} // namespace

void registerAll()
{
    grid(Members{});
}
