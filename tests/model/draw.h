// Draws calls: sizes, strides, places, values and the state of the processor, all from one seed.
#pragma once

#include "arena.h"
#include "call.h"
#include "random.h"

#include <string>

namespace model {

struct Draw
{
    Call call;
    Arena* arena;
    support::Entry entry;
    bool protect; // pages that the model does not touch are closed during the call

    // The call and the state in words.
    std::string text() const;
};

// Draws a call of `name` and writes its operands into the arena.
Draw drawCall(const Name& name, Random& random);

} // namespace model
