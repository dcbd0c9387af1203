// The sums that the dot product and the norm of general vectors share.
#pragma once

#include "call.h"

#include <array>
#include <cstdint>

namespace model {

// Whether the names have contiguous rows and a fixed size, for which there are kernels of their own.
inline bool isShortKernel(const Name& name)
{
    return !name.general() && (name.layout == Layout::standard || name.layout == Layout::list);
}

// Terms `from` to `to` - 1 added one after the other to `sum`.
template <typename T, typename Term>
T sequentialSum(T sum, std::uint32_t from, std::uint32_t to, const Term& term)
{
    for (std::uint32_t i = from; i < to; ++i) {
        const T next = term(i);
        sum = sum + next;
    }
    return sum;
}

// The sum of `length` terms as the address of one operand decides: one after the other, or in blocks of
// eight once that operand has come to a boundary of 16 bytes.
template <typename T, typename Term>
T sumByAddress(Address address, std::uint32_t length, const Term& term)
{
    const Address above = address % 16;
    if (above % sizeof(T) != 0)
        return sequentialSum(T(0), 0, length, term);
    const auto peel = static_cast<std::uint32_t>(above == 0 ? 0 : (16 - above) / sizeof(T));
    if (std::int64_t{length} - std::int64_t{peel} < 8)
        return sequentialSum(T(0), 0, length, term);

    constexpr std::uint32_t lanes = 16 / sizeof(T);
    std::array<T, lanes> first{};
    std::array<T, lanes> second{};
    first[0] = sequentialSum(T(0), 0, peel, term);
    const std::uint32_t end = peel + (length - peel) / 8 * 8;
    for (std::uint32_t i = peel; i < end; i += 2 * lanes) {
        for (std::uint32_t lane = 0; lane < lanes; ++lane) {
            first[lane] = first[lane] + term(i + lane);
            second[lane] = second[lane] + term(i + lanes + lane);
        }
    }
    std::array<T, lanes> both{};
    for (std::uint32_t lane = 0; lane < lanes; ++lane)
        both[lane] = first[lane] + second[lane];
    T sum;
    if constexpr (lanes == 4) {
        const T even = both[0] + both[2];
        const T odd = both[1] + both[3];
        sum = even + odd;
    } else {
        sum = both[0] + both[1];
    }
    return sequentialSum(sum, end, length, term);
}

} // namespace model
