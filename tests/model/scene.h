// A small memory to make single calls of the model in by hand.
#pragma once

#include "registry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace model {

class Scene
{
public:
    Scene() : memory_(bytes_) {}
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    // An address that is a multiple of 16.
    Address at(std::size_t offset) const { return memory_.start() + offset; }

    template <typename T>
    void put(Address place, const std::vector<T>& values)
    {
        std::memcpy(bytes_.data() + (place - at(0)), values.data(), values.size() * sizeof(T));
    }

    // `count` elements of rising value: first, first + 1, ...
    template <typename T>
    void putRising(Address place, std::size_t count, T first)
    {
        std::vector<T> values;
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(first + static_cast<T>(i));
        put(place, values);
    }

    template <typename T>
    std::vector<T> get(Address place, std::size_t count) const
    {
        std::vector<T> values(count);
        std::memcpy(values.data(), bytes_.data() + (place - at(0)), count * sizeof(T));
        return values;
    }

    template <typename T>
    T get(Address place) const
    {
        return get<T>(place, 1)[0];
    }

    // Runs the model; arguments that are not named are 0.
    std::int32_t run(std::string_view text, const std::map<std::string, std::uint64_t>& arguments)
    {
        const Name* name = find(text);
        if (!name)
            throw std::logic_error("no such function");
        std::vector<support::Argument> list;
        std::size_t used = 0;
        for (const Parameter& parameter : parameters(*name)) {
            const auto found = arguments.find(parameter.name);
            used += found != arguments.end() ? 1u : 0u;
            list.push_back({parameter.kind, found == arguments.end() ? 0 : found->second});
        }
        if (used != arguments.size())
            throw std::logic_error("an argument that the function does not take");
        memory_.reset();
        return behaviour(*name)(Call(*name, list), memory_);
    }

    // Whether the last call left the place to the library.
    bool leftOpen(Address place) const
    {
        for (const Stored& stored : memory_.stores()) {
            if (stored.address == place && stored.rule == Rule::anything)
                return true;
        }
        return false;
    }

private:
    alignas(Memory::pageSize) std::array<std::byte, 4 * Memory::pageSize> bytes_{};
    Memory memory_;
};

} // namespace model
