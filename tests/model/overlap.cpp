#include "overlap.h"

#include <algorithm>

namespace model {

// The stores stand in the order of their places.
template <typename Matters>
bool OpenOrder::touched(Address place, Matters matters) const
{
    const Address lowest = place - (size_ - 1);
    auto store = std::lower_bound(stores_.begin(), stores_.end(), lowest,
                                  [](const Access& one, Address limit) { return one.place < limit; });
    for (; store != stores_.end() && store->place < place + size_; ++store) {
        if (matters(store->element))
            return true;
    }
    return false;
}

bool OpenOrder::isOpen() const
{
    for (const Access& load : loads_) {
        if (touched(load.place, [&](std::uint64_t element) { return element != load.element; }))
            return true;
    }
    // Where objects are stored on top of each other the last one stands.
    for (const Access& store : stores_) {
        const auto sameObject = [&](std::uint64_t element) {
            return element != store.element && element >> 32 == store.element >> 32;
        };
        if (touched(store.place, sameObject))
            return true;
    }
    return false;
}

void OpenOrder::settle()
{
    std::sort(stores_.begin(), stores_.end(),
              [](const Access& one, const Access& other) { return one.place < other.place; });
    const bool open = isOpen();
    loads_.clear();
    stores_.clear();
    if (open)
        throw Undecided{"the operands overlap where no order is promised"};
}

} // namespace model
