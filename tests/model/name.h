// The grammar of the exported names, and a name taken apart.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace model {

enum class Root
{
    Add,
    Sub,
    Mul,
    Saxpy,
    LComb,
    Gaxpy,
    DotProduct,
    CrossProduct,
    L2Norm,
    Trace,
    FrobNorm,
    Det,
    Invert,
    LUDecomp,
    LUBackSubst,
    QRDecomp,
    QRBackSubst,
    Copy,
    Transpose,
    Extract,
    LoadIdentity
};

enum class Type
{
    f32,
    f64
};

enum class Layout
{
    standard,
    strided,
    pointer,
    stridedPointer,
    list,
    stridedList
};

// An operand that is found through one table of pointers, an entry for each element.
constexpr bool isTable(Layout layout)
{
    return layout == Layout::pointer || layout == Layout::stridedPointer;
}

// A layout whose array operands are lists, a pointer for each object.
constexpr bool isList(Layout layout)
{
    return layout == Layout::list || layout == Layout::stridedList;
}

// A layout whose elements stand Stride2 apart where they are not found through a table.
constexpr bool isStrided(Layout layout)
{
    return layout == Layout::strided || layout == Layout::stridedList;
}

// One operand code: "m", "maT", "v", "va", "c".
struct Code
{
    char kind = 'm';
    bool array = false;
    bool transposed = false;

    bool operator==(const Code&) const = default;
};

struct Name
{
    std::string text;                 // tenkAdd_mam_32f_3x3_PS2
    Root root = Root::Add;            //
    std::string codeText;             // mam
    std::vector<Code> codes;          // m with array, m
    Type type = Type::f32;            //
    unsigned size = 0;                // 3 to 6 when the name fixes the shape, 0 when the arguments carry it
    Layout layout = Layout::standard; // of the sources, and of what follows them
    Layout destinationLayout = Layout::standard; // differs from `layout` in Copy only

    std::size_t elementSize() const { return type == Type::f32 ? 4 : 8; }
    bool general() const { return size == 0; }
    bool anyArray() const;
    // Whether `codeText` is one of the words of `list`, which stand one blank apart.
    bool codeIn(std::string_view list) const;
};

// The word that stands for the root in a name: "Add".
std::string_view rootText(Root root);

const std::vector<Root>& allRoots();

// Every numeric function, in the order of the roots. tenkGetLibVersion is not among them.
const std::vector<Name>& allNames();

// The name taken apart; nothing if the grammar does not know it.
const Name* find(std::string_view text);

// "maTma" as its operand codes.
std::vector<Code> codesOf(std::string_view text);

} // namespace model
