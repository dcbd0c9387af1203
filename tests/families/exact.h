// Determinants and inverses in more precision than any kernel has: Gauss-Jordan with full rows in binary128.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace square {

__extension__ typedef __float128 Exact;

inline Exact absolute(Exact x)
{
    return x < 0 ? -x : x;
}

struct ExactInverse
{
    Exact determinant = 1;
    std::vector<Exact> inverse;

    ExactInverse(const std::vector<double>& values, std::size_t n) : inverse(n * n, 0)
    {
        std::vector<Exact> a(values.begin(), values.end());
        for (std::size_t i = 0; i < n; ++i)
            inverse[i * n + i] = 1;
        for (std::size_t p = 0; p < n; ++p) {
            std::size_t best = p;
            for (std::size_t i = p; i < n; ++i)
                if (absolute(a[i * n + p]) > absolute(a[best * n + p]))
                    best = i;
            if (best != p)
                determinant = -determinant;
            for (std::size_t j = 0; j < n; ++j) {
                std::swap(a[p * n + j], a[best * n + j]);
                std::swap(inverse[p * n + j], inverse[best * n + j]);
            }
            const Exact pivot = a[p * n + p];
            determinant *= pivot;
            for (std::size_t j = 0; j < n; ++j) {
                a[p * n + j] /= pivot;
                inverse[p * n + j] /= pivot;
            }
            for (std::size_t i = 0; i < n; ++i) {
                if (i == p)
                    continue;
                const Exact factor = a[i * n + p];
                for (std::size_t j = 0; j < n; ++j) {
                    a[i * n + j] -= factor * a[p * n + j];
                    inverse[i * n + j] -= factor * inverse[p * n + j];
                }
            }
        }
    }
};

} // namespace square
