// What the element-wise families have in common: each element of the result is formed from the elements of
// the sources at the same position, and every test is made at the usual moment.
#pragma once

#include "entries.h"
#include "frame.h"
#include "overlap.h"

#include <array>
#include <utility>
#include <vector>

namespace model {

// `formula` makes the result from the array of the sources' values. `place` gives the address from which
// source s is taken for the element at (i, j) of object k.
template <std::floating_point T, std::size_t N, typename Formula, typename Place>
class Elementwise
{
public:
    Elementwise(const Call& call, Memory& memory, const std::array<Operand, N>& sources, Order order,
                Formula formula, Place place)
        : call_(call),
          memory_(memory),
          sources_(sources),
          dst_(call.operand("dst")),
          order_(order),
          formula_(formula),
          place_(place),
          open_(sizeof(T))
    {
    }

    std::int32_t run()
    {
        if (nullArgument(call_))
            return nullPointerError;
        if (zeroSize(call_))
            return sizeError;
        if (call_.name().anyArray() && nullInAllTables())
            return nullPointerError;
        for (const Operand& source : sources_)
            mayReadAhead(call_, memory_, {&source});
        std::int32_t status = ok;
        for (std::uint32_t k = 0; k < call_.count() && status == ok; ++k)
            status = nullInLists(k) ? nullPointerError : object(k);
        if (order_ == Order::ownPlace)
            open_.settle();
        return status;
    }

private:
    bool nullInAllTables()
    {
        bool found = nullInTables(memory_, {{&dst_, dst_.tableLength()}});
        for (const Operand& source : sources_)
            found = nullInTables(memory_, {{&source, source.tableLength()}}) || found;
        return found;
    }

    bool nullInLists(std::uint32_t k)
    {
        bool found = dst_.nullInList(memory_, k);
        for (const Operand& source : sources_)
            found = source.nullInList(memory_, k) || found;
        return found;
    }

    // The test of single objects with tables, made as each element is reached. Of a transposed source it
    // looks at another entry than the one that is used.
    bool nullAtPosition(std::uint32_t i, std::uint32_t j)
    {
        if (call_.name().anyArray())
            return false;
        bool found = dst_.nullEntry(memory_, positionEntry(dst_, i, j));
        for (const Operand& source : sources_)
            found = source.nullEntry(memory_, positionEntry(source, i, j)) || found;
        return found;
    }

    std::int32_t object(std::uint32_t k)
    {
        std::vector<std::pair<Address, T>> kept;
        const Shape shape = dst_.shape();
        for (std::uint32_t i = 0; i < shape.height; ++i) {
            for (std::uint32_t j = 0; j < shape.width; ++j) {
                if (nullAtPosition(i, j))
                    return nullPointerError;
                const std::uint64_t element = (std::uint64_t{k} << 32) + i * shape.width + j;
                const T result = formula_(values(k, i, j, element));
                const Address to = dst_.stored(memory_, k, i, j);
                open_.store(to, element);
                if (order_ == Order::objectFirst)
                    kept.emplace_back(to, result);
                else
                    memory_.store(to, result);
            }
        }
        for (const auto& [to, result] : kept)
            memory_.store(to, result);
        if (order_ == Order::ownPlaceInObject || order_ == Order::objectFirst)
            open_.settle();
        return ok;
    }

    std::array<T, N> values(std::uint32_t k, std::uint32_t i, std::uint32_t j, std::uint64_t element)
    {
        std::array<T, N> list;
        for (std::size_t s = 0; s < N; ++s) {
            const Address from = place_(s, k, i, j);
            list[s] = memory_.load<T>(from);
            if (order_ != Order::objectFirst)
                open_.load(from, element);
        }
        return list;
    }

    const Call& call_;
    Memory& memory_;
    const std::array<Operand, N>& sources_;
    const Operand dst_;
    const Order order_;
    const Formula formula_;
    const Place place_;
    OpenOrder open_;
};

// The sources are taken from where they stand.
template <std::floating_point T, std::size_t N, typename Formula>
std::int32_t runElementwise(const Call& call, Memory& memory, const std::array<Operand, N>& sources,
                            Order order, Formula formula)
{
    const auto place = [&](std::size_t s, std::uint32_t k, std::uint32_t i, std::uint32_t j) {
        return sources[s].used(memory, k, i, j);
    };
    return Elementwise<T, N, Formula, decltype(place)>(call, memory, sources, order, formula, place).run();
}

} // namespace model
