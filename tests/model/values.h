// The numbers that go into the operands of a drawn call.
#pragma once

#include "name.h"
#include "random.h"

#include <cstddef>
#include <cstdint>

namespace model {

// What the elements of one operand are like.
enum class Profile
{
    integers,   // small whole numbers: sums are exact, matrices often singular
    unit,       // between -1 and 1, all bits of the significand in use
    ordered,    // magnitudes some powers of two apart, so that the order of a sum shows
    wide,       // any finite exponent
    sprinkled,  // as `unit`, now and then something special
    special,    // mostly something special
    zeros,      // zeros of both signs, mostly negative, and little else
    sparse,     // zeros with single numbers of size one
    equal,      // one and the same number
    thresholds, // near the limits at which the families call a matrix singular
    junk        // any bits
};

class Values
{
public:
    Values(Type type, Profile profile, Random& random);

    // The bits of the next element, in the low half for binary32.
    std::uint64_t next();

private:
    std::uint64_t fromDouble(double value) const;
    std::uint64_t special();
    double unit();
    std::uint64_t number();

    Type type_;
    Profile profile_;
    Random& random_;
    std::uint64_t constant_ = 0;
};

// A profile for an operand; `plain` asks for numbers with which most computations go through.
Profile drawProfile(Random& random, bool plain);

} // namespace model
