// Arithmetic on ranges of numbers, for results of which only the steps are told and not how every one of them
// is rounded or grouped.
#pragma once

#include "frame.h"
#include "reference.h"

#include <cmath>
#include <initializer_list>
#include <type_traits>
#include <utility>

namespace model {

// All numbers from `low` to `high`, or a NaN in both. Rounding is monotonic: if x and y are within their
// ranges, the rounded result of an operation on them lies between the least and the greatest rounded result
// at the ends of the ranges. So the operations below, which round as the type T does in the state of the
// thread, contain every result, and lead from exact operands to exact results. A zero of open sign is the
// range from -0 to +0. Ranges that reach infinity are Undecided.
template <typename T>
class Span
{
public:
    Span() = default;
    Span(T value) : low_(value), high_(value) {}
    Span(T low, T high) : Span(low) { include(high); }

    T low() const { return low_; }
    T high() const { return high_; }

    bool exact() const { return nan() || same(low_, high_); }
    bool nan() const { return std::isnan(low_); }
    bool isZero() const { return zero(low_) && zero(high_); }
    bool mayBeZero() const { return !nan() && rank(low_) <= rank(T(0)) && rank(high_) >= rank(-T(0)); }

    // Widens the range by another outcome.
    void include(T value)
    {
        if (same(value, low_) || same(value, high_) || (std::isnan(value) && nan()))
            return;
        requireFinite({value, low_, high_});
        if (less(value, low_))
            low_ = value;
        if (less(high_, value))
            high_ = value;
    }

    void include(const Span& other)
    {
        include(other.low_);
        include(other.high_);
    }

    Span operator-() const
    {
        Span result(-low_);
        result.include(-high_);
        return result;
    }

    friend Span operator+(const Span& x, const Span& y)
    {
        return corners(x, y, [](T a, T b) {
            const T sum = a + b;
            return sum;
        });
    }

    friend Span operator-(const Span& x, const Span& y)
    {
        return corners(x, y, [](T a, T b) {
            const T difference = a - b;
            return difference;
        });
    }

    friend Span operator*(const Span& x, const Span& y)
    {
        return corners(x, y, [](T a, T b) {
            const T product = a * b;
            return product;
        });
    }

    // The range of a function that is monotonic on this range.
    template <typename Function>
    Span mapped(const Function& function) const
    {
        Span result(function(low_));
        if (!exact())
            result.include(function(high_));
        return result;
    }

private:
    // The place of a number among all, told from its bits: the thread may take denormals for zero, and the
    // zeros are told apart here. The wide unit has no such mode.
    static auto rank(T x)
    {
        if constexpr (sizeof(T) <= 8) {
            using Signed = std::make_signed_t<BitsOf<T>>;
            const auto size = static_cast<Signed>(std::bit_cast<BitsOf<T>>(magnitude(x)));
            return std::signbit(x) ? -size - 1 : size;
        } else {
            return std::pair(x, !std::signbit(x));
        }
    }

    static bool zero(T x) { return rank(x) == rank(T(0)) || rank(x) == rank(-T(0)); }
    static bool same(T x, T y) { return !std::isnan(x) && !std::isnan(y) && rank(x) == rank(y); }
    static bool less(T x, T y) { return rank(x) < rank(y); }

    static void requireFinite(std::initializer_list<T> values)
    {
        for (const T value : values) {
            if (!std::isfinite(value))
                throw Undecided{"a range that is not finite"};
        }
    }

    template <typename Operation>
    static Span corners(const Span& x, const Span& y, const Operation& operation)
    {
        Span result(operation(x.low_, y.low_));
        if (x.exact() && y.exact())
            return result;
        if (x.nan() || y.nan())
            return result;
        requireFinite({x.low_, x.high_, y.low_, y.high_});
        result.include(operation(x.low_, y.high_));
        result.include(operation(x.high_, y.low_));
        result.include(operation(x.high_, y.high_));
        return result;
    }

    T low_ = 0;
    T high_ = 0;
};

// Stores a result in the range; the sign of a zero is open.
template <typename T>
void storeSpan(Memory& memory, Address address, const Span<T>& span)
{
    if (span.exact())
        memory.storeSignOpen(address, span.low());
    else
        storeBetween(memory, address, span.low(), span.high());
}

} // namespace model
