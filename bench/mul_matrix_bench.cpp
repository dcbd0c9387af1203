// Matrix by matrix: the fixed sizes on batches, and single products of general size.
#include "products.h"

using namespace bench;

namespace {

template <bool transposed, typename M>
auto read(M&& m)
{
    if constexpr (transposed)
        return m.transpose();
    else
        return std::forward<M>(m);
}

template <bool array1, bool transposed1, bool array2, bool transposed2>
struct Product
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const std::string codes = std::string(array1 ? "ma" : "m") + (transposed1 ? "T" : "") +
                                  (array2 ? "ma" : "m") + (transposed2 ? "T" : "");
        const Case c{memberName<T, n, layout>("Mul", codes), count};
        using F = Factor<T, layout, n, n>;
        using A = std::conditional_t<array1, typename F::Many, typename F::One>;
        using B = std::conditional_t<array2, typename F::Many, typename F::One>;
        auto a = std::make_shared<A>(array1 ? count : 1, 1);
        auto b = std::make_shared<B>(array2 ? count : 1, 2);
        auto d = std::make_shared<typename F::Many>(count, 3);
        const auto left = [&] {
            if constexpr (array1)
                return a->array();
            else
                return a->single();
        }();
        const auto right = [&] {
            if constexpr (array2)
                return b->array();
            else
                return b->single();
        }();
        contestant(c, "tenk",
                   [a, b, d,
                    run = bind(c.function, left, right, d->array(), std::make_tuple(std::uint32_t{count}))] {
                       run();
                   });
        contestant(c, "Eigen", [a, b, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                d->eigen(k).noalias() =
                    read<transposed1>(a->eigen(array1 ? k : 0)) * read<transposed2>(b->eigen(array2 ? k : 0));
        });
        if constexpr (n <= 4 && layout != Layout::Pointer)
            contestant(c, "GLM", [a, b, d] {
                using G = Glm<T, n>;
                for (unsigned k = 0; k < d->count(); ++k) {
                    const auto& x = G::matrix(a->at(array1 ? k : 0, 0, 0));
                    const auto& y = G::matrix(b->at(array2 ? k : 0, 0, 0));
                    auto& z = G::matrix(d->at(k, 0, 0));
                    if constexpr (transposed1)
                        z = y * glm::transpose(x);
                    else if constexpr (transposed2)
                        z = glm::transpose(y) * x;
                    else
                        z = y * x;
                }
            });
        contestant(c, "loop", [a, b, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j) {
                        T sum = 0;
                        for (unsigned p = 0; p < n; ++p)
                            sum +=
                                *(transposed1 ? a->at(array1 ? k : 0, p, i) : a->at(array1 ? k : 0, i, p)) *
                                *(transposed2 ? b->at(array2 ? k : 0, j, p) : b->at(array2 ? k : 0, p, j));
                        *d->at(k, i, j) = sum;
                    }
        });
    }
};

template <typename T>
void general(unsigned n)
{
    using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    const std::string name = "tenkMul_mm_" + typeName<T>();
    const Case c{name + " " + std::to_string(n) + "x" + std::to_string(n), 1};
    auto a = std::make_shared<Matrix>(Matrix::Random(n, n)),
         b = std::make_shared<Matrix>(Matrix::Random(n, n)), d = std::make_shared<Matrix>(n, n);
    const auto sizes = std::make_tuple(std::uint32_t{n}, std::uint32_t{n});
    const auto step = std::make_tuple(std::uint32_t(n * sizeof(T)));
    contestant(c, "tenk",
               [a, b, d,
                run = bind(name, std::make_tuple(a->data()), step, sizes, std::make_tuple(b->data()), step,
                           sizes, std::make_tuple(d->data()), step)] { run(); });
    contestant(c, "Eigen", [a, b, d] { d->noalias() = *a * *b; });
    contestant(c, "loop", [a, b, d, n] {
        for (unsigned i = 0; i < n; ++i)
            for (unsigned j = 0; j < n; ++j) {
                T sum = 0;
                for (unsigned p = 0; p < n; ++p)
                    sum += (*a)(i, p) * (*b)(p, j);
                (*d)(i, j) = sum;
            }
    });
}

} // namespace

void registerAll()
{
    grid(Product<true, false, true, false>{});
    grid(Product<true, false, false, false>{});
    grid(Product<true, true, false, false>{});
    grid(Product<true, false, true, true>{});
    grid(Product<false, false, true, false>{});
    for (const unsigned n : {3U, 4U, 5U, 6U, 8U, 12U, 16U, 24U, 32U}) {
        general<float>(n);
        general<double>(n);
    }
}
