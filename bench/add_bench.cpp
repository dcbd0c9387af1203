// Add: arrays of small matrices and vectors, and vectors of any length.
#include "elementwise_bench.h"

using namespace bench;

namespace {

const auto plus = [](const auto& a, const auto& b) { return a + b; };

struct Members
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        sumCase<T, layout, n, n, true, false>(member<T, n, layout>("Add_mama", 'n'), count, plus);
        sumCase<T, layout, n, n, false, false>(member<T, n, layout>("Add_mam", 'n'), count, plus);
        sumCase<T, layout, 1, n, true, false>(member<T, n, layout>("Add_vava", '1'), count, plus);
    }
};

template <typename T>
void longVectors()
{
    for (const unsigned length : {8U, 16U, 31U, 64U, 256U, 1000U, 10000U}) {
        const Case c{"tenkAdd_vv_" + typeName<T>(), length};
        using Vector = Eigen::Map<Eigen::Matrix<T, Eigen::Dynamic, 1>>;
        auto x = std::make_shared<std::vector<T>>(length, T(1)),
             y = std::make_shared<std::vector<T>>(length, T(2)), z = std::make_shared<std::vector<T>>(length);
        contestant(
            c, "tenk",
            [=, keep = std::make_tuple(x, y, z),
             run = bind(c.function, std::make_tuple(x->data(), y->data(), z->data(), length))] { run(); });
        contestant(c, "Eigen", [=] {
            Vector(z->data(), length) = Vector(x->data(), length) + Vector(y->data(), length);
        });
        contestant(c, "loop", [=] {
            for (unsigned j = 0; j < length; ++j)
                (*z)[j] = (*x)[j] + (*y)[j];
        });
    }
}

} // namespace

void registerAll()
{
    grid(Members{});
    longVectors<float>();
    longVectors<double>();
}
