// FrobNorm: the fixed sizes of an array.
#include "matrix_reduction.h"

#include <cmath>

void registerAll()
{
    const auto peer = [](const auto& m) { return m.norm(); };
    const auto loop = []<typename T, unsigned n>(auto at) {
        T s = 0;
        for (unsigned i = 0; i < n; ++i)
            for (unsigned j = 0; j < n; ++j)
                s += at(i, j) * at(i, j);
        return std::sqrt(s);
    };
    bench::grid(bench::MatrixReduction{"FrobNorm", peer, loop});
}
