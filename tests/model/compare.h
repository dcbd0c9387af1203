// One drawn call, by the model and by the library.
#pragma once

#include "draw.h"
#include "registry.h"

#include <string>

namespace model {

struct Verdict
{
    bool made =
        false; // false for a call whose outcome is open, or that leaves the arena: nothing was compared
    std::string difference; // empty if library and model agree
    std::int32_t status = 0;
};

// Lets the model run the call, and then `function`, the library's, on the same memory.
Verdict compareCall(const Draw& draw, Behaviour behaviour, void* function);

} // namespace model
