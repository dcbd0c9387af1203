// Runs code that may fault.
#pragma once

#include "memory.h"

#include <functional>
#include <optional>

namespace model {

struct Fault
{
    int signal = 0;
    Address address = 0;
};

// Runs `action`; if it ends in a fault of the processor, says which. Objects of `action` are not destroyed
// then.
std::optional<Fault> guarded(const std::function<void()>& action);

} // namespace model
