// A small generator whose sequence is the same everywhere, so that a failure can be drawn again from its
// seed.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace model {

class Random
{
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits()
    {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t x = state_;
        x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
        x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
        return x ^ (x >> 31);
    }

    // 0 to n - 1.
    std::uint32_t below(std::uint32_t n) { return static_cast<std::uint32_t>((bits() >> 32) * n >> 32); }

    // From low to high, both included.
    std::int32_t between(std::int32_t low, std::int32_t high)
    {
        return low + static_cast<std::int32_t>(below(static_cast<std::uint32_t>(high - low + 1)));
    }

    bool chance(std::uint32_t percent) { return below(100) < percent; }

    template <typename T>
    T pick(std::initializer_list<T> list)
    {
        return list.begin()[below(static_cast<std::uint32_t>(list.size()))];
    }

private:
    std::uint64_t state_;
};

// The seed that belongs to a name.
constexpr std::uint64_t seedOf(std::string_view text)
{
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const char letter : text)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3u;
    return hash;
}

} // namespace model
