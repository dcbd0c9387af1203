// Operands that overlap: what is promised of them, and finding out that nothing is.
#pragma once

#include "memory.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace model {

// The order of the loads and stores of an element-wise member, as far as it can be relied on.
enum class Order
{
    ascending,        // element after element, each loaded, computed and stored: any overlap has an outcome
    ownPlace,         // an element is loaded before it is stored; nothing is said of any two elements
    ownPlaceInObject, // the same within an object, and the objects come in turn
    objectFirst       // an object is loaded before any of it is stored, and the objects come in turn
};

// The loads and stores of a stretch of a call in which they may come in any order, but for this: the loads
// of an element come before the store of the same element. Elements are told apart by their numbers, in
// whose upper half stands the object; the objects are stored in turn.
class OpenOrder
{
public:
    // `size` is that of an element in bytes.
    explicit OpenOrder(std::size_t size) : size_(size) {}

    void load(Address place, std::uint64_t element) { loads_.push_back({place, element}); }
    void store(Address place, std::uint64_t element) { stores_.push_back({place, element}); }

    // Ends the stretch: throws Undecided if a store of one element touches a load or store of another.
    void settle();

private:
    struct Access
    {
        Address place = 0;
        std::uint64_t element = 0;
    };

    // Whether a store that matters touches the place.
    template <typename Matters>
    bool touched(Address place, Matters matters) const;
    bool isOpen() const;

    std::size_t size_;
    std::vector<Access> loads_;
    std::vector<Access> stores_;
};

// The number of an element that no store bears.
constexpr std::uint64_t foreign = ~std::uint64_t{0};

} // namespace model
