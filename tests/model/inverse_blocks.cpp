#include "inverse.h"

namespace model {

namespace {

template <typename T>
Matrix<T> negated(Matrix<T> a)
{
    for (std::uint32_t i = 0; i < a.height(); ++i) {
        for (std::uint32_t j = 0; j < a.width(); ++j)
            a.at(i, j) = -a.at(i, j);
    }
    return a;
}

// The sums of products in ascending order.
template <typename T>
Matrix<T> product(const Matrix<T>& a, const Matrix<T>& b)
{
    Matrix<T> result(a.height(), b.width());
    for (std::uint32_t i = 0; i < a.height(); ++i) {
        for (std::uint32_t j = 0; j < b.width(); ++j) {
            Span<T> sum = a.at(i, 0) * b.at(0, j);
            for (std::uint32_t l = 1; l < a.width(); ++l)
                sum = sum + a.at(i, l) * b.at(l, j);
            result.at(i, j) = sum;
        }
    }
    return result;
}

// c + a b. The element of c comes before the products, or behind the first of them.
template <typename T>
Matrix<T> productAddedTo(const Matrix<T>& c, const Matrix<T>& a, const Matrix<T>& b, bool afterFirst)
{
    Matrix<T> result(c.height(), c.width());
    for (std::uint32_t i = 0; i < c.height(); ++i) {
        for (std::uint32_t j = 0; j < c.width(); ++j) {
            const Span<T> first = a.at(i, 0) * b.at(0, j);
            Span<T> sum = afterFirst ? first + c.at(i, j) : c.at(i, j) + first;
            for (std::uint32_t l = 1; l < a.width(); ++l)
                sum = sum + a.at(i, l) * b.at(l, j);
            result.at(i, j) = sum;
        }
    }
    return result;
}

template <typename T>
Matrix<T> scaledAdjugate(const Matrix<T>& p, const Span<T>& r)
{
    if (p.width() == 3)
        return adjugate3(p, r);
    Matrix<T> result(2, 2);
    result.at(0, 0) = p.at(1, 1) * r;
    result.at(0, 1) = -p.at(0, 1) * r;
    result.at(1, 0) = -p.at(1, 0) * r;
    result.at(1, 1) = p.at(0, 0) * r;
    return result;
}

} // namespace

template <typename T>
std::optional<Matrix<T>>
inverseByBlocks(const Matrix<T>& a, std::uint32_t p, const std::vector<std::uint32_t>& columns,
                const Span<T>& reciprocal,
                const std::function<std::optional<Matrix<T>>(const Matrix<T>&)>& invertRest)
{
    const std::uint32_t n = a.width();
    const std::vector<std::uint32_t> upper = numbers(0, p);
    const std::vector<std::uint32_t> lower = numbers(p, n);
    const std::vector<std::uint32_t> chosen(columns.begin(), columns.begin() + p);
    const std::vector<std::uint32_t> others(columns.begin() + p, columns.end());
    const Matrix<T> c = a.part(lower, chosen);
    const Matrix<T> inverseP = scaledAdjugate(a.part(upper, chosen), reciprocal);
    const Matrix<T> w = product(negated(inverseP), a.part(upper, others));
    const Matrix<T> s = productAddedTo(a.part(lower, others), c, w, true);
    const std::optional<Matrix<T>> inverseS = invertRest(s);
    if (!inverseS)
        return std::nullopt;
    const Matrix<T> lowerLeft = product(product(negated(*inverseS), c), inverseP);
    const Matrix<T> upperRight = product(w, *inverseS);
    const Matrix<T> upperLeft = productAddedTo(inverseP, w, lowerLeft, false);
    Matrix<T> result(n, n);
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < n; ++j) {
            if (i < p)
                result.at(i, j) = j < p ? upperLeft.at(i, j) : upperRight.at(i, j - p);
            else
                result.at(i, j) = j < p ? lowerLeft.at(i - p, j) : inverseS->at(i - p, j - p);
        }
    }
    return result;
}

template std::optional<Matrix<float>>
inverseByBlocks(const Matrix<float>&, std::uint32_t, const std::vector<std::uint32_t>&, const Span<float>&,
                const std::function<std::optional<Matrix<float>>(const Matrix<float>&)>&);
template std::optional<Matrix<double>>
inverseByBlocks(const Matrix<double>&, std::uint32_t, const std::vector<std::uint32_t>&, const Span<double>&,
                const std::function<std::optional<Matrix<double>>(const Matrix<double>&)>&);

} // namespace model
