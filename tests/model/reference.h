// Reference values, computed apart from the state of the caller's thread: to nearest, at full width, without
// flags.
#pragma once

#include "frame.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace model {

// The usual floating-point state while it stands; the former one, flags included, when it goes.
class UsualState
{
public:
    UsualState();
    ~UsualState();
    UsualState(const UsualState&) = delete;
    UsualState& operator=(const UsualState&) = delete;

private:
    std::uint32_t mxcsr_;
    unsigned char environment_[28];
};

// Runs the function in the usual state. It is called through a pointer that the compiler cannot see through,
// so that none of its arithmetic moves out.
template <typename Result, typename... Arguments>
Result inUsualState(Result (*function)(Arguments...), Arguments... arguments)
{
    Result (*volatile hidden)(Arguments...) = function;
    const UsualState state;
    return hidden(arguments...);
}

// The relative distance of one rounding in the caller's state: half a unit in the last place to nearest, a
// whole one otherwise.
template <typename T>
T roundoff();
extern template float roundoff<float>();
extern template double roundoff<double>();

// Whether the thread flushes results to zero, takes denormals for zero, or rounds otherwise than to nearest.
bool flushesToZero();
bool ignoresDenormals();
bool roundsToNearest();
// To nearest or towards zero: x and -x are rounded alike.
bool roundsBySize();

// A denormal by its bits, whatever the thread takes it for.
template <typename T>
bool isDenormal(T x)
{
    const auto bits = std::bit_cast<BitsOf<T>>(magnitude(x));
    return bits != 0 && bits < std::bit_cast<BitsOf<T>>(std::numeric_limits<T>::min());
}

// x > y for magnitudes. Where the thread takes denormals for zero it depends on the unit that compares them,
// which is left open.
template <typename T>
bool strictlyGreater(T x, T y)
{
    const bool tiny = x < std::numeric_limits<T>::min() && y < std::numeric_limits<T>::min();
    if (tiny && ignoresDenormals() && std::bit_cast<BitsOf<T>>(x) != std::bit_cast<BitsOf<T>>(y))
        throw Undecided{"denormals are compared"};
    return x > y;
}

// Numbers of type T between which a result lies.
template <typename T>
struct Range
{
    T low = 0;
    T high = 0;
};

// Where the sum of terms that are not negative, finite and already rounded to T, lies, in whatever order and
// grouping it is formed in the caller's state. Both ends are infinite if it overflows in every order; one of
// them is if that depends on the order.
template <typename T>
Range<T> sumInAnyOrder(const std::vector<T>& terms);
extern template Range<float> sumInAnyOrder(const std::vector<float>& terms);
extern template Range<double> sumInAnyOrder(const std::vector<double>& terms);

// Stores a result that is any number of type T from `low` to `high`, the sign of a zero being open.
template <typename T>
void storeBetween(Memory& memory, Address address, T low, T high);
extern template void storeBetween(Memory&, Address, float, float);
extern template void storeBetween(Memory&, Address, double, double);

} // namespace model
