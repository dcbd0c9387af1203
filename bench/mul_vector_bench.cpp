// Matrix by vector: the fixed sizes on batches, and single products of general size.
#include "products.h"

using namespace bench;

namespace {

template <bool array1, bool array2>
struct Product
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        const Case c{
            memberName<T, n, layout>("Mul", std::string(array1 ? "ma" : "m") + (array2 ? "va" : "v")), count};
        using F = Factor<T, layout, n, n>;
        using V = Factor<T, layout, 1, n>;
        using A = std::conditional_t<array1, typename F::Many, typename F::One>;
        using X = std::conditional_t<array2, typename V::Many, typename V::One>;
        auto a = std::make_shared<A>(array1 ? count : 1, 1);
        auto x = std::make_shared<X>(array2 ? count : 1, 2);
        auto d = std::make_shared<typename V::Many>(count, 3);
        const auto left = [&] {
            if constexpr (array1)
                return a->array();
            else
                return a->single();
        }();
        const auto right = [&] {
            if constexpr (array2)
                return x->array();
            else
                return x->single();
        }();
        contestant(c, "tenk",
                   [a, x, d,
                    run = bind(c.function, left, right, d->array(), std::make_tuple(std::uint32_t{count}))] {
                       run();
                   });
        contestant(c, "Eigen", [a, x, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                d->eigen(k).noalias() = a->eigen(array1 ? k : 0) * x->eigen(array2 ? k : 0);
        });
        if constexpr (n <= 4 && layout != Layout::Pointer)
            contestant(c, "GLM", [a, x, d] {
                using G = Glm<T, n>;
                for (unsigned k = 0; k < d->count(); ++k)
                    G::vector(d->at(k, 0, 0)) =
                        G::vector(x->at(array2 ? k : 0, 0, 0)) * G::matrix(a->at(array1 ? k : 0, 0, 0));
            });
        contestant(c, "loop", [a, x, d] {
            for (unsigned k = 0; k < d->count(); ++k)
                for (unsigned i = 0; i < n; ++i) {
                    T sum = 0;
                    for (unsigned p = 0; p < n; ++p)
                        sum += *a->at(array1 ? k : 0, i, p) * *x->at(array2 ? k : 0, 0, p);
                    *d->at(k, 0, i) = sum;
                }
        });
    }
};

template <typename T>
void general(unsigned n)
{
    using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    using Vector = Eigen::Matrix<T, Eigen::Dynamic, 1>;
    const std::string name = "tenkMul_mv_" + typeName<T>();
    const Case c{name + " " + std::to_string(n) + "x" + std::to_string(n), 1};
    auto a = std::make_shared<Matrix>(Matrix::Random(n, n));
    auto x = std::make_shared<Vector>(Vector::Random(n)), d = std::make_shared<Vector>(n);
    contestant(
        c, "tenk",
        [a, x, d,
         run = bind(
             name,
             std::make_tuple(a->data(), std::uint32_t(n * sizeof(T)), std::uint32_t{n}, std::uint32_t{n}),
             std::make_tuple(x->data(), std::uint32_t{n}), std::make_tuple(d->data()))] { run(); });
    contestant(c, "Eigen", [a, x, d] { d->noalias() = *a * *x; });
    contestant(c, "loop", [a, x, d, n] {
        for (unsigned i = 0; i < n; ++i) {
            T sum = 0;
            for (unsigned p = 0; p < n; ++p)
                sum += (*a)(i, p) * (*x)(p);
            (*d)(i) = sum;
        }
    });
}

} // namespace

void registerAll()
{
    grid(Product<true, true>{});
    grid(Product<true, false>{});
    grid(Product<false, true>{});
    for (const unsigned n : {3U, 4U, 5U, 6U, 8U, 12U, 16U, 24U, 32U}) {
        general<float>(n);
        general<double>(n);
    }
}
