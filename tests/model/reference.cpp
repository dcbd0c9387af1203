#include "reference.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <xmmintrin.h>

namespace model {

namespace {

constexpr std::uint32_t usualMxcsr = 0x1F80;

// The value of the lowest bit that is set in a finite number other than zero.
template <typename T>
Wide lowestBit(T x)
{
    int exponent = 0;
    Wide significand = std::frexp(static_cast<Wide>(x), &exponent);
    int bits = 0;
    while (significand != std::floor(significand)) {
        significand *= 2;
        ++bits;
    }
    return std::ldexp(Wide(1), exponent - bits);
}

template <typename T>
struct Summing
{
    const std::vector<T>* terms;
    T roundoff;
};

// The exact sum S of the terms is known to `count` roundings of the wide unit. With n terms other than zero a
// term passes through at most n - 1 additions, adding zero being exact, so any order and grouping gives a sum
// between (1 - u)^(n - 1) S and (1 + u)^(n - 1) S; sums of denormals are exact. Where all partial sums fit
// into T nothing is rounded at all.
template <typename T>
Range<T> sumRange(const Summing<T>* summing)
{
    Wide sum = 0;
    Wide finest = std::numeric_limits<Wide>::infinity();
    int count = 0;
    for (const T term : *summing->terms) {
        if (term == 0)
            continue;
        ++count;
        sum += term;
        finest = std::min(finest, lowestBit(term));
    }
    if (count == 0)
        return {};
    if (sum <= std::ldexp(finest, std::numeric_limits<T>::digits))
        return {static_cast<T>(sum), static_cast<T>(sum)};
    const Wide slack = static_cast<Wide>(count) * std::numeric_limits<Wide>::epsilon();
    const Wide u = summing->roundoff;
    const Wide lower = sum * std::pow(1 - u, Wide(count - 1)) * (1 - slack);
    const Wide upper = sum * std::pow(1 + u, Wide(count - 1)) * (1 + slack);
    // A computed sum is a number of type T, so the ends may move inwards to the next ones.
    const T infinity = std::numeric_limits<T>::infinity();
    T low = static_cast<T>(lower);
    T high = static_cast<T>(upper);
    if (low != infinity && static_cast<Wide>(low) < lower)
        low = std::nextafter(low, infinity);
    if (high != infinity && static_cast<Wide>(high) > upper)
        high = std::nextafter(high, T(0));
    // Which side of the largest number a sum beyond it comes to rest depends on the rounding as well.
    if (low == infinity && lower < std::ldexp(Wide(1), std::numeric_limits<T>::max_exponent) * (1 + 64 * u))
        low = std::numeric_limits<T>::max();
    return {std::min(low, high), high};
}

} // namespace

UsualState::UsualState() : mxcsr_(_mm_getcsr())
{
    asm volatile("fnstenv %0\n\tfninit" : "=m"(environment_) : : "memory");
    _mm_setcsr(usualMxcsr);
}

UsualState::~UsualState()
{
    asm volatile("fldenv %0" : : "m"(environment_) : "memory");
    _mm_setcsr(mxcsr_);
}

bool roundsToNearest()
{
    return (_mm_getcsr() & 0x6000u) == 0;
}

bool roundsBySize()
{
    const std::uint32_t rounding = _mm_getcsr() & 0x6000u;
    return rounding == 0 || rounding == 0x6000u;
}

bool flushesToZero()
{
    return (_mm_getcsr() & 0x8000u) != 0;
}

bool ignoresDenormals()
{
    return (_mm_getcsr() & 0x0040u) != 0;
}

template <typename T>
T roundoff()
{
    constexpr T unit = std::numeric_limits<T>::epsilon();
    return roundsToNearest() ? unit / 2 : unit;
}

template <typename T>
Range<T> sumInAnyOrder(const std::vector<T>& terms)
{
    const Summing<T> summing{&terms, roundoff<T>()};
    return inUsualState(&sumRange<T>, &summing);
}

namespace {

template <typename T>
struct Middle
{
    T low;
    T high;
    T middle;
    double bound;
};

template <typename T>
bool findMiddle(Middle<T>* range)
{
    const double low = range->low;
    const double high = range->high;
    range->middle = static_cast<T>(low / 2 + high / 2);
    const double distance = std::max(high - range->middle, range->middle - low);
    range->bound = std::nextafter(distance, std::numeric_limits<double>::infinity());
    return true;
}

} // namespace

template <typename T>
void storeBetween(Memory& memory, Address address, T low, T high)
{
    const auto bits = [](T x) { return std::bit_cast<BitsOf<T>>(x); };
    if (bits(low) == bits(high) || (bits(magnitude(low)) == 0 && bits(magnitude(high)) == 0)) {
        memory.storeSignOpen(address, low);
        return;
    }
    Middle<T> range{low, high, 0, 0};
    inUsualState(&findMiddle<T>, &range);
    memory.storeWithin(address, range.middle, range.bound);
}

template void storeBetween(Memory&, Address, float, float);
template void storeBetween(Memory&, Address, double, double);

template float roundoff<float>();
template double roundoff<double>();
template Range<float> sumInAnyOrder(const std::vector<float>& terms);
template Range<double> sumInAnyOrder(const std::vector<double>& terms);

} // namespace model
