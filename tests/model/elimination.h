// The pivoted elimination of the determinant and the inverse of general order.
#pragma once

#include "frame.h"
#include "reference.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace model {

// The limit below which a pivot counts as zero.
template <typename T>
constexpr T pivotFloor = sizeof(T) == 4 ? T(0x1p-23) : T(0x1p-52);

// A square matrix in work. Rows are never moved; positions, not rows, are what p, q and the arguments of `at`
// count.
template <typename T>
class Elimination
{
public:
    // binary32 keeps the reciprocal and the multipliers in binary32, binary64 in the wide unit.
    static constexpr bool isDouble = sizeof(T) == 8;
    using Factor = std::conditional_t<isDouble, Wide, T>;

    explicit Elimination(std::uint32_t order) : order_(order), elements_(std::size_t{order} * order)
    {
        for (std::uint32_t i = 0; i < order; ++i)
            row_.push_back(i);
    }

    T& at(std::uint32_t i, std::uint32_t j) { return elements_[std::size_t{row_[i]} * order_ + j]; }
    std::uint32_t order() const { return order_; }
    int sign() const { return sign_; }
    T pivot(std::uint32_t p) { return at(p, p); }
    T last() { return at(order_ - 1, order_ - 1); }

    // Brings the pivot to position p; false if it is below the floor.
    bool findPivot(std::uint32_t p)
    {
        std::uint32_t best = p;
        // In binary64 the largest magnitude so far is kept in binary32, and the candidates are compared with
        // that.
        float kept = static_cast<float>(magnitude(at(p, p)));
        for (std::uint32_t q = p + 1; q < order_; ++q) {
            const T candidate = magnitude(at(q, p));
            if (strictlyGreater(candidate, static_cast<T>(kept))) {
                best = q;
                kept = static_cast<float>(candidate);
            }
        }
        if (best != p) {
            std::swap(row_[p], row_[best]);
            sign_ = -sign_;
        }
        return magnitude(pivot(p)) >= pivotFloor<T>;
    }

    void eliminate(std::uint32_t p)
    {
        const Wide quotient = Wide(1) / static_cast<Wide>(pivot(p));
        const Factor reciprocal = static_cast<Factor>(quotient);
        for (std::uint32_t q = p + 1; q < order_; ++q) {
            const Factor f = static_cast<Factor>(at(q, p)) * reciprocal;
            // A multiplier of zero keeps its sign in binary64 only.
            const Factor negative = isDouble ? -f : Factor(0) - f;
            for (std::uint32_t j = p + 1; j < order_; ++j) {
                const Factor product = negative * static_cast<Factor>(at(p, j));
                const Factor sum = static_cast<Factor>(at(q, j)) + product;
                at(q, j) = static_cast<T>(sum);
            }
        }
    }

    // The test of the last pivot, which must be above the floor.
    bool lastPasses() { return magnitude(last()) > pivotFloor<T>; }

private:
    std::uint32_t order_;
    std::vector<T> elements_;
    std::vector<std::uint32_t> row_;
    int sign_ = 1;
};

// The bytes of the scratch memory: a matrix, and a number for each row.
inline std::size_t eliminationScratch(std::uint32_t order, std::size_t elementSize)
{
    return std::size_t{order} * order * elementSize + std::size_t{4} * order;
}

} // namespace model
