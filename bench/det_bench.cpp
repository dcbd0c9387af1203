// Det: the fixed orders, and general order.
#include "support.h"

#include <glm/glm.hpp>

using namespace bench;

namespace {

// The expansion along row 0, as one writes it down.
template <unsigned n, typename T>
T cofactorLoop(const T* a)
{
    if constexpr (n == 1) {
        return a[0];
    } else {
        T sum = 0;
        for (unsigned c = 0; c < n; ++c) {
            T minor[(n - 1) * (n - 1)];
            for (unsigned i = 1; i < n; ++i)
                for (unsigned j = 0, to = 0; j < n; ++j)
                    if (j != c)
                        minor[(i - 1) * (n - 1) + to++] = a[i * n + j];
            const T term = a[c] * cofactorLoop<n - 1>(minor);
            sum = c % 2 == 0 ? sum + term : sum - term;
        }
        return sum;
    }
}

template <typename T, unsigned n>
std::string fixedName()
{
    return "tenkDet_ma_" + typeName<T>() + "_" + std::to_string(n) + "x" + std::to_string(n);
}

struct Fixed
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{fixedName<T, n>() + suffix(layout), count};
        auto a = std::make_shared<Batch<T, layout, n, n>>(count, 1);
        auto d = std::make_shared<std::vector<T>>(count);
        contestant(c, "tenk", bind(c.function, a->array(), std::make_tuple(d->data(), std::uint32_t{count})));
        contestant(c, "Eigen", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k)
                (*d)[k] = a->eigen(k).determinant();
        });
        if constexpr (n <= 4)
            contestant(c, "GLM", [a, d] {
                for (unsigned k = 0; k < a->count(); ++k) {
                    glm::mat<n, n, T> m;
                    for (unsigned i = 0; i < n; ++i)
                        for (unsigned j = 0; j < n; ++j)
                            m[int(i)][int(j)] = *a->at(k, i, j);
                    (*d)[k] = glm::determinant(m);
                }
            });
        contestant(c, "loop", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k) {
                T m[n * n];
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        m[i * n + j] = *a->at(k, i, j);
                (*d)[k] = cofactorLoop<n>(m);
            }
        });
    }
};

template <typename T, unsigned n, Layout layout>
void general(unsigned count)
{
    // The order is in the name only for the table; it is passed.
    const std::string function = "tenkDet_ma_" + typeName<T>() + suffix(layout);
    const Case c{function + " order " + std::to_string(n), count};
    auto a = std::make_shared<Batch<T, layout, n, n>>(count, 1);
    auto d = std::make_shared<std::vector<T>>(count);
    auto buffer = std::make_shared<std::vector<T>>(n * n + n);
    const auto run = bind(function, a->array(),
                          std::make_tuple(std::uint32_t{n}, static_cast<void*>(buffer->data()), d->data(),
                                          std::uint32_t{count}));
    contestant(c, "tenk", [run, buffer, a, d] { run(); });
    contestant(c, "Eigen", [a, d] {
        for (unsigned k = 0; k < a->count(); ++k)
            (*d)[k] = a->eigen(k).partialPivLu().determinant();
    });
}

template <typename T, Layout layout>
void generalOrders()
{
    general<T, 3, layout>(64);
    general<T, 8, layout>(64);
    general<T, 16, layout>(64);
}

} // namespace

void registerAll()
{
    grid(Fixed{});
    generalOrders<float, Layout::Standard>();
    generalOrders<float, Layout::Pointer>();
    generalOrders<double, Layout::Standard>();
    generalOrders<double, Layout::Pointer>();
}
