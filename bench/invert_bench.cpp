// Invert: the fixed orders, and general order.
#include "support.h"

#include <glm/glm.hpp>

using namespace bench;

namespace {

// The adjugate by minors, each a recursion.
template <unsigned n, typename T>
T minorLoop(const T* a)
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
            const T term = a[c] * minorLoop<n - 1>(minor);
            sum = c % 2 == 0 ? sum + term : sum - term;
        }
        return sum;
    }
}

template <unsigned n, typename T>
void cofactorLoop(const T* a, T* inverse)
{
    T determinant = 0;
    for (unsigned r = 0; r < n; ++r)
        for (unsigned c = 0; c < n; ++c) {
            T minor[(n - 1) * (n - 1)];
            unsigned to = 0;
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j)
                    if (i != r && j != c)
                        minor[to++] = a[i * n + j];
            const T value = minorLoop<n - 1>(minor);
            inverse[c * n + r] = (r + c) % 2 == 0 ? value : -value;
            if (r == 0)
                determinant += a[c] * inverse[c * n];
        }
    for (unsigned e = 0; e < n * n; ++e)
        inverse[e] /= determinant;
}

struct Fixed
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{"tenkInvert_ma_" + typeName<T>() + "_" + std::to_string(n) + "x" + std::to_string(n) +
                         suffix(layout),
                     count};
        using Objects = Batch<T, layout, n, n>;
        auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
        contestant(c, "tenk",
                   bind(c.function, a->array(), d->array(), std::make_tuple(std::uint32_t{count})));
        contestant(c, "Eigen", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k)
                d->eigen(k) = a->eigen(k).inverse();
        });
        if constexpr (n <= 4)
            contestant(c, "GLM", [a, d] {
                for (unsigned k = 0; k < a->count(); ++k) {
                    glm::mat<n, n, T> m;
                    for (unsigned i = 0; i < n; ++i)
                        for (unsigned j = 0; j < n; ++j)
                            m[int(i)][int(j)] = *a->at(k, i, j);
                    m = glm::inverse(m);
                    for (unsigned i = 0; i < n; ++i)
                        for (unsigned j = 0; j < n; ++j)
                            *d->at(k, i, j) = m[int(i)][int(j)];
                }
            });
        contestant(c, "loop", [a, d] {
            for (unsigned k = 0; k < a->count(); ++k) {
                T m[n * n], inverse[n * n];
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        m[i * n + j] = *a->at(k, i, j);
                cofactorLoop<n>(m, inverse);
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        *d->at(k, i, j) = inverse[i * n + j];
            }
        });
    }
};

template <typename T, unsigned n, Layout layout>
void general(unsigned count)
{
    // The order is in the name only for the table; it is passed.
    const std::string function = "tenkInvert_ma_" + typeName<T>() + suffix(layout);
    const Case c{function + " order " + std::to_string(n), count};
    using Objects = Batch<T, layout, n, n>;
    auto a = std::make_shared<Objects>(count, 1), d = std::make_shared<Objects>(count, 2);
    auto buffer = std::make_shared<std::vector<T>>(n * n + n);
    const auto run =
        bind(function, a->array(), std::make_tuple(std::uint32_t{n}, static_cast<void*>(buffer->data())),
             d->array(), std::make_tuple(std::uint32_t{count}));
    contestant(c, "tenk", [run, buffer, a, d] { run(); });
    contestant(c, "Eigen", [a, d] {
        for (unsigned k = 0; k < a->count(); ++k)
            d->eigen(k) = a->eigen(k).partialPivLu().inverse();
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
