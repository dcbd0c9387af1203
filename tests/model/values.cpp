#include "values.h"

#include <array>
#include <bit>
#include <cmath>

namespace model {

namespace {

constexpr std::array<std::uint32_t, 18> specials32 = {
    0x00000000u, 0x80000000u, // zeros
    0x3F800000u, 0xBF800000u, // ones
    0x7F800000u, 0xFF800000u, // infinities
    0x7FC00000u, 0xFFC12345u, // quiet NaNs
    0x7F800001u, 0xFFA00000u, // signalling NaNs
    0x00000001u, 0x807FFFFFu, // the smallest and the largest denormal
    0x00800000u, 0x80800000u, // the smallest normal
    0x7F7FFFFFu, 0xFF7FFFFFu, // the largest
    0x20000000u, 0x5F000000u, // magnitudes whose squares and products leave the range
};

constexpr std::array<std::uint64_t, 18> specials64 = {
    0x0000000000000000u, 0x8000000000000000u, 0x3FF0000000000000u, 0xBFF0000000000000u, 0x7FF0000000000000u,
    0xFFF0000000000000u, 0x7FF8000000000000u, 0xFFF8000012345678u, 0x7FF0000000000001u, 0xFFF4000000000000u,
    0x0000000000000001u, 0x800FFFFFFFFFFFFFu, 0x0010000000000000u, 0x8010000000000000u, 0x7FEFFFFFFFFFFFFFu,
    0xFFEFFFFFFFFFFFFFu, 0x1FF0000000000000u, 0x5FE0000000000000u,
};

// Limits of pivots, columns and determinants, and what their squares or products need to come near them.
constexpr std::array limits = {0x1p-23, 0x1p-52, 0x1p-12, 0x1p-11, 1e-7,
                               1e-15,   1.0,     0x1p-26, 3.16e-4, 3.16e-8};

} // namespace

Values::Values(Type type, Profile profile, Random& random) : type_(type), profile_(profile), random_(random)
{
    constant_ = fromDouble(unit());
}

std::uint64_t Values::fromDouble(double value) const
{
    if (type_ == Type::f32)
        return std::bit_cast<std::uint32_t>(static_cast<float>(value));
    return std::bit_cast<std::uint64_t>(value);
}

double Values::unit()
{
    const auto significand = static_cast<std::int64_t>(random_.bits()) >> 11; // 53 bits with a sign
    return static_cast<double>(significand) * 0x1p-52;
}

std::uint64_t Values::special()
{
    if (type_ == Type::f32)
        return specials32[random_.below(specials32.size())];
    return specials64[random_.below(specials64.size())];
}

std::uint64_t Values::next()
{
    switch (profile_) {
    case Profile::integers:
        return fromDouble(random_.between(-4, 4));
    case Profile::unit:
        return fromDouble(unit());
    case Profile::ordered:
        return fromDouble(std::ldexp(unit(), random_.between(-12, 12)));
    case Profile::wide:
        return fromDouble(std::ldexp(unit(), type_ == Type::f32 ? random_.between(-140, 126)
                                                                : random_.between(-1060, 1022)));
    case Profile::sprinkled:
        return random_.below(24) == 0 ? special() : fromDouble(unit());
    case Profile::special:
        return random_.below(3) == 0 ? fromDouble(unit()) : special();
    case Profile::zeros:
        return random_.below(12) == 0 ? fromDouble(unit()) : fromDouble(random_.below(4) == 0 ? 0.0 : -0.0);
    case Profile::sparse:
        return random_.below(3) == 0 ? fromDouble(unit()) : fromDouble(0.0);
    case Profile::equal:
        return constant_;
    case Profile::thresholds: {
        const double limit = limits[random_.below(limits.size())] * random_.pick({1.0, -1.0});
        const std::uint64_t bits = fromDouble(limit);
        return bits + static_cast<std::uint64_t>(random_.between(-1, 1)); // the limit itself or a neighbour
    }
    case Profile::junk:
        return random_.bits();
    }
    return 0;
}

Profile drawProfile(Random& random, bool plain)
{
    if (plain)
        return random.pick(
            {Profile::unit, Profile::unit, Profile::integers, Profile::ordered, Profile::sparse});
    return random.pick({Profile::integers, Profile::unit, Profile::ordered, Profile::wide, Profile::sprinkled,
                        Profile::special, Profile::zeros, Profile::sparse, Profile::equal,
                        Profile::thresholds, Profile::junk});
}

} // namespace model
