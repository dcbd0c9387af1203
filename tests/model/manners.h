// Which calls are worth drawing for a name, and what cannot be compared: the one place where families differ
// in the way they are tested.
#pragma once

#include "name.h"

#include <cstdint>

namespace model {

struct Manners
{
    std::uint32_t smallestSize = 1; // of an order, width, height or length; zero is drawn apart from that
    std::uint32_t largestSize = 10;
    bool largeSizes = true;          // now and then larger ones, up to 20
    bool tall = false;               // mostly at least as many rows as columns
    bool signedSizes = false;        // a size with the top bit set is an empty loop
    std::uint32_t plainPercent = 30; // of the calls take numbers with which most computations go through
    std::uint32_t loosePercent =
        15; // of the destinations have strides that may be shorter than what they step over
    std::uint32_t moreRounds = 1; // a factor for families of few members
    bool flagsOpen = false;       // the exception flags are not compared
};

Manners mannersOf(const Name& name);

} // namespace model
