// Trace: the fixed sizes of an array.
#include "matrix_reduction.h"

void registerAll()
{
    const auto peer = [](const auto& m) { return m.trace(); };
    const auto loop = []<typename T, unsigned n>(auto at) {
        T s = 0;
        for (unsigned i = 0; i < n; ++i)
            s += at(i, i);
        return s;
    };
    bench::grid(bench::MatrixReduction{"Trace", peer, loop});
}
