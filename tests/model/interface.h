// The argument list of every function.
#pragma once

#include "../support/call.h"
#include "name.h"

#include <string>
#include <vector>

namespace model {

using Kind = support::Argument::Kind;

struct Parameter
{
    std::string name; // src1Stride1
    Kind kind = Kind::word;

    bool operator==(const Parameter&) const = default;
};

// How one operand stands in the argument list.
struct Form
{
    std::string base; // src, src1, src2, src3, dst
    bool matrix = true;
    bool array = false;
    bool transposed = false;
    // A destination that is a plain run of adjacent elements in every layout, with a pointer and nothing
    // more.
    bool dense = false;
    // A single matrix that nevertheless brings the Stride0 of an array along, which nothing reads.
    bool idleStride0 = false;
    Layout layout = Layout::standard;
};

// The operands of a function, sources in order and the destination last. Constants, rowIndex and buffer are
// not among them.
std::vector<Form> forms(const Name& name);

// The arguments in the order in which they are passed.
std::vector<Parameter> parameters(const Name& name);

// The names of the size arguments that a general member takes, in order: width, height; src1Width, ...;
// order. `count` is not a size. Fixed sizes drop exactly these.
std::vector<std::string> sizeNames(const Name& name);

bool takesCount(const Name& name);

} // namespace model
