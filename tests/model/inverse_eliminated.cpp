// The packed inverse of orders 5 and 6 in binary32: one or two elements are eliminated, the remaining block
// of order 4 is inverted, and the eliminated rows and columns are computed from it.
#include "inverse.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

// One eliminated element: the reciprocal of the pivot, the rest of its row, and the multipliers of the rows
// below.
struct Level
{
    float r = 0;
    std::vector<float> row;
    std::vector<float> u;
    std::uint32_t column = 0; // exchanged with the first
};

// Step of the elimination; leaves the remaining block in `a`.
Level eliminate(Matrix<float>& a, std::uint32_t column)
{
    const std::uint32_t n = a.width();
    Level level;
    level.column = column;
    for (std::uint32_t i = 0; i < n; ++i)
        std::swap(a.at(i, 0), a.at(i, column));
    level.r = refined(a.at(0, 0)).low();
    Matrix<float> rest(n - 1, n - 1);
    for (std::uint32_t j = 1; j < n; ++j)
        level.row.push_back(a.at(0, j).low());
    for (std::uint32_t i = 1; i < n; ++i) {
        const float u = level.r * a.at(i, 0).low();
        level.u.push_back(u);
        for (std::uint32_t j = 1; j < n; ++j)
            rest.at(i - 1, j - 1) = a.at(i, j) - Span<float>(u) * a.at(0, j);
    }
    a = rest;
    return level;
}

// The columns that the search in row 0 may find. At order 5 a tie goes to the highest of columns 0 to 3, and
// to column 4 only if it is larger than those; at order 6 it is open.
std::vector<std::uint32_t> largestInRow(const Matrix<float>& a, bool tieOpen)
{
    const std::uint32_t n = a.width();
    float most = 0;
    for (std::uint32_t j = 0; j < n; ++j) {
        if (a.at(0, j).nan())
            throw Undecided{"a NaN among the candidates"};
        const float size = magnitude(a.at(0, j).low());
        if (strictlyGreater(size, most))
            most = size;
    }
    std::vector<std::uint32_t> found;
    for (std::uint32_t j = 0; j < n; ++j) {
        if (magnitude(a.at(0, j).low()) == most)
            found.push_back(j);
    }
    if (tieOpen || found.size() == 1)
        return found;
    return {found.back() == 4 ? found[found.size() - 2] : found.back()};
}

// A number that is linear in the elements of the inverted block: its value, the same with the magnitudes of
// all products instead, and how far it may be off as those elements may.
struct Linear
{
    Wide value = 0;
    Wide magnitudes = 0;
    Wide radius = 0;
    bool computed = false; // or an element of the block as it is

    friend Linear operator+(const Linear& x, const Linear& y)
    {
        return {x.value + y.value, x.magnitudes + y.magnitudes, x.radius + y.radius, true};
    }
    friend Linear operator*(const Linear& x, Wide factor)
    {
        return {x.value * factor, x.magnitudes * std::fabs(factor), x.radius * std::fabs(factor), true};
    }
};

using Linears = std::vector<std::vector<Linear>>;

// The inverse with the row and column of the pivot put back: with M the inverse of the rest,
//     r + (r b) M u   -(r b) M
//     -M u             M
// and the exchange of columns undone as one of rows.
Linears putBack(const Linears& m, const Level& level)
{
    const std::size_t n = m.size();
    Linears result(n + 1, std::vector<Linear>(n + 1));
    const Wide r = level.r;
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            result[i + 1][j + 1] = m[i][j];
            result[i + 1][0] = result[i + 1][0] + m[i][j] * -Wide(level.u[j]);
            result[0][j + 1] = result[0][j + 1] + m[i][j] * (-r * Wide(level.row[i]));
        }
    }
    result[0][0] = {r, std::fabs(r), 0, true};
    for (std::size_t j = 0; j < n; ++j)
        result[0][0] = result[0][0] + result[0][j + 1] * -Wide(level.u[j]);
    std::swap(result[0], result[level.column]);
    return result;
}

struct Recombination
{
    const Matrix<float>* block;       // the inverse of what remains
    const std::vector<Level>* levels; // in the order in which they were eliminated
    float roundoff;
    Matrix<float>* inverse;
};

// How the products are grouped, and in which order they are added, is open: r may multiply before or after
// the sum, and at order 6 the two pivots may be put back together. All these are sums of the same products,
// in which at order 5 no product passes through more than 11 roundings (6 for a sum of four, with one more
// for r and one for u and four for the last sum), at order 6 not more than 23. The result is within 12u or
// 24u, and as much again for what is of second order and the wide unit, of the sum of their magnitudes from
// the exact value; which follows the elements of the block. What is lost below the smallest normal number
// counts for each of fewer than 512 operations, times the factors behind it.
bool recombine(const Recombination* what)
{
    const Matrix<float>& block = *what->block;
    Linears m(4, std::vector<Linear>(4));
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j) {
            const Wide low = block.at(i, j).low();
            const Wide high = block.at(i, j).high();
            m[i][j] = {(low + high) / 2, std::max(std::fabs(low), std::fabs(high)), (high - low) / 2, false};
        }
    }
    Wide factors = 1;
    for (auto level = what->levels->rbegin(); level != what->levels->rend(); ++level) {
        m = putBack(m, *level);
        Wide largest = std::max(Wide(1), Wide(std::fabs(level->r)));
        for (const float x : level->u)
            largest = std::max(largest, Wide(std::fabs(x)));
        for (const float x : level->row)
            largest = std::max(largest, Wide(std::fabs(x)));
        factors *= largest * largest * largest;
    }
    const Wide rounds = what->levels->size() == 1 ? 12 : 24;
    const Wide loss = rounds * what->roundoff * Wide(1.001);
    const Wide below = 512 * Wide(std::numeric_limits<float>::min()) * factors;
    const float infinity = std::numeric_limits<float>::infinity();
    const std::uint32_t n = static_cast<std::uint32_t>(m.size());
    *what->inverse = Matrix<float>(n, n);
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < n; ++j) {
            const Linear& x = m[i][j];
            if (!x.computed) {
                what->inverse->at(i, j) = Span<float>(static_cast<float>(x.value - x.radius),
                                                      static_cast<float>(x.value + x.radius));
                continue;
            }
            const Wide radius = x.radius + loss * x.magnitudes + below;
            const float low = std::nextafter(static_cast<float>(x.value - radius), -infinity);
            const float high = std::nextafter(static_cast<float>(x.value + radius), infinity);
            if (!std::isfinite(low) || !std::isfinite(high) || x.magnitudes > 0x1p120L)
                return false;
            what->inverse->at(i, j) = Span<float>(low, high);
        }
    }
    return true;
}

class Eliminating
{
public:
    explicit Eliminating(const Matrix<float>& a) : order_(a.width())
    {
        outcome_ = singular<float>(order_);
        const bool first = !inBand(a.at(0, 0));
        const bool fast =
            order_ == 5 ? first
                        : first && !inBand(crossDifference(a.at(0, 0), a.at(1, 1), a.at(0, 1), a.at(1, 0)));
        search(a, {}, fast);
    }

    const Outcome<float>& outcome() const { return outcome_; }

private:
    // Eliminates until order 4, in all ways that are open.
    void search(const Matrix<float>& a, const std::vector<Level>& levels, bool fast)
    {
        if (a.width() == 4) {
            finish(a, levels);
            return;
        }
        std::vector<std::uint32_t> columns = {0};
        if (!fast) {
            columns = largestInRow(a, order_ == 6);
            if (inBand(a.at(0, columns[0]))) {
                merge(singularity(levels));
                return;
            }
        }
        for (const std::uint32_t column : columns) {
            Matrix<float> rest = a;
            std::vector<Level> more = levels;
            more.push_back(eliminate(rest, column));
            search(rest, more, fast);
        }
    }

    // Once an element has been eliminated its row, and at order 6 also the next, may hold scratch.
    Outcome<float> singularity(const std::vector<Level>& levels) const
    {
        Outcome<float> outcome = singular<float>(order_);
        if (!levels.empty())
            outcome.scratchRows = order_ - 4;
        return outcome;
    }

    void finish(const Matrix<float>& block, const std::vector<Level>& levels)
    {
        const std::optional<Matrix<float>> inverse = packedInverse4(block);
        if (!inverse) {
            merge(singularity(levels));
            return;
        }
        Matrix<float> whole(order_, order_);
        if (anyNaN(*inverse)) {
            // A NaN in the block makes its determinant one, and so every element.
            for (std::uint32_t i = 0; i < order_; ++i) {
                for (std::uint32_t j = 0; j < order_; ++j)
                    whole.at(i, j) = Span<float>(std::numeric_limits<float>::quiet_NaN());
            }
        } else {
            const Recombination what{&*inverse, &levels, roundoff<float>(), &whole};
            if (!inUsualState(&recombine, &what))
                throw Undecided{"an inverse that may overflow"};
        }
        merge(finished(whole, numbers(0, order_)));
    }

    static bool anyNaN(const Matrix<float>& a)
    {
        for (std::uint32_t i = 0; i < 4; ++i) {
            for (std::uint32_t j = 0; j < 4; ++j) {
                if (a.at(i, j).nan())
                    return true;
            }
        }
        return false;
    }

    // Takes in what a tie decided otherwise would have led to.
    void merge(const Outcome<float>& other)
    {
        if (!any_) {
            outcome_ = other;
            any_ = true;
            return;
        }
        if (other.status != outcome_.status || other.scratchRows != outcome_.scratchRows)
            throw Undecided{"a tie decides whether the matrix is singular"};
        for (std::size_t e = 0; e < other.values.size(); ++e) {
            for (const Span<float>& value : other.values[e])
                outcome_.values[e][0].include(value);
        }
    }

    std::uint32_t order_;
    Outcome<float> outcome_;
    bool any_ = false;
};

} // namespace

Outcome<float> eliminatedInverse(const Matrix<float>& a)
{
    return Eliminating(a).outcome();
}

} // namespace model
