// The benchmarks of results per matrix: Trace and FrobNorm.
#pragma once

#include "vector_cases.h"

namespace bench {

// `peer` and `loop` reduce one object of Eigen's, or one of at(i, j).
template <typename Peer, typename Loop>
struct MatrixReduction
{
    std::string root;
    Peer peer;
    Loop loop;

    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{matrixFunction<T, n, layout>(root, "ma"), count};
        auto a = std::make_shared<Batch<T, layout, n, n>>(count, 1);
        auto d = randomRun<T>(count);
        contestant(c, "tenk", bind(c.function, a->array(), std::make_tuple(d->data(), std::uint32_t{count})));
        contestant(c, "Eigen", [a, d, peer = peer] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->data()[k] = peer(a->eigen(k));
        });
        contestant(c, "loop", [a, d, loop = loop] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->data()[k] =
                    loop.template operator()<T, n>([&](unsigned i, unsigned j) { return *a->at(k, i, j); });
        });
    }
};

} // namespace bench
