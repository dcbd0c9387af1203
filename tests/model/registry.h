// Which behaviour stands behind a name.
#pragma once

#include "call.h"

#include <cstdint>

namespace model {

// Runs one call on the memory and returns its status.
using Behaviour = std::int32_t (*)(const Call& call, Memory& memory);

// A family of functions. Each file of a family defines one at namespace scope, which enters it here. `of`
// returns the behaviour of a name of this root, or null for one that another family of the root tells.
struct Family
{
    using Of = Behaviour (*)(const Name& name);
    Family(Root root, Of of);
};

// Null if nobody has told the name's behaviour yet.
Behaviour behaviour(const Name& name);

inline bool modelled(const Name& name)
{
    return behaviour(name) != nullptr;
}

// The usual case: one template over the element type, told for all members that come here.
template <template <typename> class Member>
Behaviour byType(const Name& name)
{
    return name.type == Type::f32 ? &Member<float>::run : &Member<double>::run;
}

} // namespace model
