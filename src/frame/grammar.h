// The names of the library and the arguments behind them: the one table from which headers, entry points,
// export map, tests and benchmarks are made.
//
// A name is  tenk<Root>_<operands>_<type>[_<size>][_<layout>], for example tenkAdd_mam_32f_3x3_PS2.
// Member is such a name, taken apart. A member is spelled by its name wherever one has to be named; a name
// that does not exist does not compile.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tenk {

enum class Root : std::uint8_t
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
    LoadIdentity,
    GetLibVersion,
};

enum class Type : std::uint8_t
{
    f32,
    f64
};

// Layouts in which an operand is found in memory; src/frame/operand.h has the address formulas.
enum class Layout : std::uint8_t
{
    Standard,       // object after object, the elements of a row adjacent
    Strided,        // _S2: the same with a step between elements
    Pointer,        // _P: a table with one pointer per element, each to a run over the objects
    StridedPointer, // _PS2: the same with a step in the runs
    List,           // _L: a list with one pointer per object, the elements of a row adjacent
    StridedList,    // _LS2: the same with a step between elements
};

constexpr bool isTable(Layout l)
{
    return l == Layout::Pointer || l == Layout::StridedPointer;
}
constexpr bool isList(Layout l)
{
    return l == Layout::List || l == Layout::StridedList;
}
constexpr bool isStrided(Layout l)
{
    return l == Layout::Strided || l == Layout::StridedList;
}
// The elements of a row are adjacent in memory.
constexpr bool isDense(Layout l)
{
    return l == Layout::Standard || l == Layout::List;
}

// One operand of a name: matrix, vector or constant; one object or an array of them; used transposed or as
// stored.
struct Code
{
    char kind = 0; // 'm', 'v' or 'c'
    bool array = false;
    bool transposed = false;
    bool operator==(const Code&) const = default;
};

// What an operand of a layout brings along, in the order in which it is passed: the whole argument table.
struct Steps
{
    bool shift, stride0, stride1, stride2;
};

constexpr Steps steps(Layout l, Code c)
{
    return {.shift = isTable(l) || (c.array && isList(l)),
            .stride0 = c.array && !isList(l) && l != Layout::Pointer,
            .stride1 = c.kind == 'm' && !isTable(l),
            .stride2 = isStrided(l)};
}

// ---------------------------------------------------------------------------------------------------------------
// The table
// ---------------------------------------------------------------------------------------------------------------

struct RootRow
{
    std::string_view name;
    std::string_view header; // include/tenk/<header>.h
    unsigned functions;      // how many names the root has
};

// In the order of Root.
inline constexpr RootRow roots[] = {
    {"Add", "add", 840},
    {"Sub", "sub", 1230},
    {"Mul", "mul", 1530},
    {"Saxpy", "saxpy", 210},
    {"LComb", "lcomb", 150},
    {"Gaxpy", "gaxpy", 90},
    {"DotProduct", "dot_product", 150},
    {"CrossProduct", "cross_product", 42},
    {"L2Norm", "l2_norm", 90},
    {"Trace", "trace", 90},
    {"FrobNorm", "frob_norm", 90},
    {"Det", "det", 90},
    {"Invert", "invert", 90},
    {"LUDecomp", "lu_decomp", 90},
    {"LUBackSubst", "lu_back_subst", 150},
    {"QRDecomp", "qr_decomp", 90},
    {"QRBackSubst", "qr_back_subst", 150},
    {"Copy", "copy", 36},
    {"Transpose", "transpose", 90},
    {"Extract", "extract", 27},
    {"LoadIdentity", "load_identity", 6},
    {"GetLibVersion", "types", 1},
};
inline constexpr unsigned allFunctions = 5332;

// Sizes in which a family exists: with size arguments, or of an order in the name.
enum class Sizes : std::uint8_t
{
    all,
    general,
    fixed,
    onlyThree
};

// Layouts in which a family exists.
enum class Layouts : std::uint8_t
{
    grid,      // the first three; with an array among the operands all six
    pairs,     // a letter each for the layouts of source and destination: S Strided, L StridedList, P
               // StridedPointer
    letter,    // one such letter
    extracted, // those that Extract reads: Strided, and the pointer layouts (Pointer for one object, else the
               // strided)
};

// A family: codes of a root that share their argument list and their code.
struct Family
{
    Root root;
    std::string_view codes; // operand codes, separated by spaces
    Sizes sizes;
    Layouts layouts;
    std::string_view form; // the arguments in order; see below
    std::string_view
        source; // the file under src/ with the template behind the entry points; empty: not built yet
    std::string_view entry; // the template
};

// The words of a form: `src`, `src1`, `src2`, `src3` are the sources in order, `dst` the destination, each
// with what steps() says; `result` is a destination that is a plain run of elements; a name in `sizeWords` is
// an argument of the general members only, `count` one of the members with an array; all others are single
// arguments.
inline constexpr Family families[] = {
    {Root::Add, "mm mTm mmT mTmT mam maTm mamT maTmT mama maTma mamaT maTmaT", Sizes::all, Layouts::grid,
     "src1 src2 dst width height count", "elementwise/matrix_sum.h", "matrixSum"},
    {Root::Add, "vv vav vava", Sizes::all, Layouts::grid, "src1 src2 dst length count",
     "elementwise/vector_sum.h", "vectorSum"},
    {Root::Add, "vc vac", Sizes::all, Layouts::grid, "src value dst length count", "elementwise/vector_sum.h",
     "constantSum"},
    {Root::Sub, "mm mTm mmT mTmT mam maTm mamT maTmT mama maTma mamaT maTmaT mma mTma mmaT mTmaT", Sizes::all,
     Layouts::grid, "src1 src2 dst width height count", "elementwise/matrix_sum.h", "matrixSum"},
    {Root::Sub, "vv vav vva vava", Sizes::all, Layouts::grid, "src1 src2 dst length count",
     "elementwise/vector_sum.h", "vectorSum"},
    {Root::Sub, "vc cv vac cva", Sizes::all, Layouts::grid, "src value dst length count",
     "elementwise/vector_sum.h", "constantSum"},
    {Root::Mul, "mc mTc mac maTc", Sizes::all, Layouts::grid, "src value dst width height count",
     "products/scale.h", "matrixScale"},
    {Root::Mul, "vc vac", Sizes::all, Layouts::grid, "src value dst length count", "products/scale.h",
     "vectorScale"},
    {Root::Mul, "mv mTv mav maTv mva mTva mava maTva", Sizes::all, Layouts::grid,
     "src1 src1Width src1Height src2 src2Length dst count", "products/matrix_vector.h", "matrixVector"},
    {Root::Mul, "mm mTm mmT mTmT mam maTm mamT maTmT mma mTma mmaT mTmaT mama maTma mamaT maTmaT", Sizes::all,
     Layouts::grid, "src1 src1Width src1Height src2 src2Width src2Height dst count",
     "products/matrix_matrix.h", "matrixMatrix"},
    {Root::Saxpy, "vv vav vva vava", Sizes::all, Layouts::grid, "src1 value src2 dst length count",
     "combine/saxpy.h", "saxpy"},
    {Root::LComb, "vv vav vava", Sizes::all, Layouts::grid, "src1 value1 src2 value2 dst length count",
     "combine/lcomb.h", "lcomb"},
    {Root::Gaxpy, "v va", Sizes::all, Layouts::grid, "src1 src2 src3 dst width height count",
     "combine/gaxpy.h", "gaxpy"},
    {Root::DotProduct, "vv vav vava", Sizes::all, Layouts::grid, "src1 src2 result length count",
     "reduce/dot_product.h", "dotProduct"},
    {Root::CrossProduct, "vv vav vva vava", Sizes::onlyThree, Layouts::grid, "src1 src2 dst count",
     "reduce/cross_product.h", "crossProduct"},
    {Root::L2Norm, "v va", Sizes::all, Layouts::grid, "src result length count", "reduce/l2_norm.h",
     "l2Norm"},
    {Root::Trace, "m ma", Sizes::all, Layouts::grid, "src order result count", "reduce/trace.h", "trace"},
    {Root::FrobNorm, "m ma", Sizes::all, Layouts::grid, "src width height result count", "reduce/frob_norm.h",
     "frobNorm"},
    {Root::Det, "m ma", Sizes::general, Layouts::grid, "src order scratch result count", "detinv/det.h",
     "det"},
    {Root::Det, "m ma", Sizes::fixed, Layouts::grid, "src result count", "detinv/det_small.h", "detSmall"},
    {Root::Invert, "m ma", Sizes::general, Layouts::grid, "src order scratch dst count", "detinv/invert.h",
     "invert"},
    {Root::Invert, "m ma", Sizes::fixed, Layouts::grid, "src dst count", "detinv/invert_small.h",
     "invertSmall"},
    {Root::LUDecomp, "m ma", Sizes::all, Layouts::grid, "src rowIndexOut dst order count", "lu/decompose.h",
     "luDecomp"},
    {Root::LUBackSubst, "mv mva mava", Sizes::all, Layouts::grid, "src1 rowIndexIn src2 dst order count",
     "lu/solve.h", "luBackSubst"},
    {Root::QRDecomp, "m ma", Sizes::all, Layouts::grid, "src buffer dst width height count", "qr/decompose.h",
     "qrDecomp"},
    {Root::QRBackSubst, "mv mva mava", Sizes::all, Layouts::grid, "src1 buffer src2 dst width height count",
     "qr/solve.h", "qrBackSubst"},
    {Root::Copy, "ma", Sizes::general, Layouts::pairs, "src dst width height count", "move/copy.h", "copy"},
    {Root::Copy, "va", Sizes::general, Layouts::pairs, "src dst length count", "move/copy.h", "copy"},
    {Root::Transpose, "m ma", Sizes::all, Layouts::grid, "src width height dst count", "move/transpose.h",
     "transpose"},
    {Root::Extract, "m mT ma maT", Sizes::general, Layouts::extracted, "src result width height count",
     "move/extract.h", "extract"},
    {Root::Extract, "v va", Sizes::general, Layouts::extracted, "src result length count", "move/extract.h",
     "extract"},
    {Root::LoadIdentity, "ma", Sizes::general, Layouts::letter, "dst width height count",
     "move/load_identity.h", "loadIdentity"},
};

// Names that share the entry point of another: the second name takes its arguments in the positions of the
// first.
struct SecondName
{
    std::string_view name, sameAs;
};
inline constexpr SecondName secondNames[] = {
    {"tenkExtract_va_32f_S2", "tenkExtract_m_32f_S2"},
    {"tenkExtract_va_64f_S2", "tenkExtract_m_64f_S2"},
    {"tenkExtract_maT_32f_PS2", "tenkExtract_ma_32f_PS2"},
    {"tenkExtract_maT_64f_PS2", "tenkExtract_ma_64f_PS2"},
};

inline constexpr std::string_view sizeWords =
    " width height length order src1Width src1Height src2Width src2Height "
    "src2Length ";

// ---------------------------------------------------------------------------------------------------------------
// Members
// ---------------------------------------------------------------------------------------------------------------

struct Member
{
    Root root{};
    std::uint8_t operands = 0; // how many of `operand` are in use
    Code operand[3]{};         // the operands in the order of the formula, constants among them
    Type type{};
    std::uint8_t size = 0; // 3 to 6 for a fixed size, 0 for a general member
    Layout layout{};       // of the sources, and of the destination but for Copy
    Layout dstLayout{};

    constexpr Member() = default;

    // From an exported name. The name must exist.
    template <std::size_t N>
    consteval Member(const char (&name)[N]);

    bool operator==(const Member&) const = default;

    constexpr bool batch() const
    {
        for (Code c : operand)
            if (c.array)
                return true;
        return false;
    }

    // Source n, counting from 0 and leaving out constants.
    constexpr Code source(unsigned n) const
    {
        for (Code c : operand)
            if (c.kind != 'c' && n-- == 0)
                return c;
        return {};
    }

    // The destination: a vector as soon as a source is one, an array as soon as a source is one.
    constexpr Code destination() const
    {
        Code d{.kind = 'm', .array = batch(), .transposed = false};
        for (Code c : operand)
            if (c.kind == 'v')
                d.kind = 'v';
        return d;
    }

    constexpr bool general() const { return size == 0; }
};

// A solve with one factor and many right-hand sides passes the factor like an array: its src1Stride0 is an
// argument that nobody reads.
constexpr bool takesUnusedStride0(const Member& m)
{
    return (m.root == Root::LUBackSubst || m.root == Root::QRBackSubst) && m.operand[1].array &&
           !m.operand[0].array && !isTable(m.layout);
}

// Calls f with each word of a text, words being separated by spaces.
template <typename F>
constexpr void eachWord(std::string_view text, F f)
{
    while (!text.empty()) {
        const std::size_t end = text.find(' ');
        if (const std::string_view word = text.substr(0, end); !word.empty())
            f(word);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
    }
}

// Reads the operand codes of a name into a member. Gaxpy's code counts only its vectors.
constexpr void readCodes(Member& m, std::string_view codes)
{
    if (m.root == Root::Gaxpy)
        m.operand[m.operands++] = {.kind = 'm', .array = false, .transposed = false};
    for (char c : codes) {
        if (c == 'a')
            m.operand[m.operands - 1].array = true;
        else if (c == 'T')
            m.operand[m.operands - 1].transposed = true;
        else
            m.operand[m.operands++] = {.kind = c, .array = false, .transposed = false};
    }
    if (m.root == Root::Gaxpy) {
        m.operand[2] = m.operand[1];
        m.operands = 3;
    }
}

// The letters that stand for the three general layouts in the names of Copy and LoadIdentity.
constexpr char letterOf(Layout l)
{
    return l == Layout::Strided          ? 'S'
           : l == Layout::StridedList    ? 'L'
           : l == Layout::StridedPointer ? 'P'
                                         : 0;
}

constexpr bool exists(Layouts set, const Member& m)
{
    switch (set) {
    case Layouts::grid:
        return m.layout == m.dstLayout && (m.batch() || m.layout == Layout::Standard ||
                                           m.layout == Layout::Strided || m.layout == Layout::Pointer);
    case Layouts::pairs:
        return letterOf(m.layout) && letterOf(m.dstLayout);
    case Layouts::letter:
        return m.layout == m.dstLayout && letterOf(m.layout);
    case Layouts::extracted: {
        // One transposed matrix is read from Strided layout in 32f only, transposed arrays not at all.
        const bool strided =
            m.layout == Layout::Strided && !(m.operand[0].transposed && (m.batch() || m.type == Type::f64));
        const bool pointers = m.batch()
                                  ? m.layout == Layout::StridedPointer || m.layout == Layout::StridedList
                                  : m.layout == Layout::Pointer;
        return m.layout == m.dstLayout && (strided || pointers);
    }
    }
    return false;
}

constexpr bool exists(const Family& f, const Member& m)
{
    const bool sizeExists = f.sizes == Sizes::all || (f.sizes == Sizes::general && m.size == 0) ||
                            (f.sizes == Sizes::fixed && m.size != 0) ||
                            (f.sizes == Sizes::onlyThree && m.size == 3);
    return sizeExists && exists(f.layouts, m);
}

// Calls f(family, codes, member) for every member of the table, in the order of the table.
template <typename F>
constexpr void eachMember(F f)
{
    constexpr Layout layouts[] = {Layout::Standard,       Layout::Strided, Layout::Pointer,
                                  Layout::StridedPointer, Layout::List,    Layout::StridedList};
    for (const Family& family : families)
        eachWord(family.codes, [&](std::string_view codes) {
            for (Type type : {Type::f32, Type::f64})
                for (unsigned size : {0U, 3U, 4U, 5U, 6U})
                    for (Layout layout : layouts)
                        for (Layout dstLayout : layouts) {
                            Member m;
                            m.root = family.root;
                            m.type = type;
                            m.size = static_cast<std::uint8_t>(size);
                            m.layout = layout;
                            m.dstLayout = dstLayout;
                            readCodes(m, codes);
                            if (exists(family, m))
                                f(family, codes, m);
                        }
        });
}

// ---------------------------------------------------------------------------------------------------------------
// Reading a name
// ---------------------------------------------------------------------------------------------------------------

// Never defined: a constant expression that gets here is no constant expression, which is the compiler's
// error.
void thisNameIsNotInTheGrammar();

constexpr Layout layoutOf(char letter)
{
    return letter == 'S'   ? Layout::Strided
           : letter == 'L' ? Layout::StridedList
           : letter == 'P' ? Layout::StridedPointer
                           : Layout::Standard;
}

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Takes the text up to the next underscore off the front of a name.
constexpr std::string_view takePart(std::string_view& rest)
{
    const std::size_t end = rest.find('_');
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    return part;
}

template <std::size_t N>
consteval Member::Member(const char (&name)[N])
{
    std::string_view rest(name, N - 1);
    if (rest.substr(0, 4) != "tenk")
        thisNameIsNotInTheGrammar();
    rest.remove_prefix(4);
    const std::string_view rootName = takePart(rest);
    const std::string_view codes = takePart(rest);
    const std::string_view typeName = takePart(rest);

    while (roots[static_cast<std::size_t>(root)].name != rootName)
        root =
            static_cast<Root>(static_cast<unsigned>(root) + 1); // past the end: no constant expression either
    readCodes(*this, codes);
    if (typeName != "32f" && typeName != "64f")
        thisNameIsNotInTheGrammar();
    type = typeName == "32f" ? Type::f32 : Type::f64;
    if (!rest.empty() && isDigit(rest[0])) {
        const std::string_view shape = takePart(rest);
        size = static_cast<std::uint8_t>(shape[0] - '0');
        const char second = source(0).kind == 'v' ? '1' : shape[0];
        if (shape.size() != 3 || size < 3 || size > 6 || shape[1] != 'x' || shape[2] != second)
            thisNameIsNotInTheGrammar();
    }
    if (root == Root::Copy || root == Root::LoadIdentity) {
        if (rest.size() != (root == Root::Copy ? 2 : 1))
            thisNameIsNotInTheGrammar();
        layout = layoutOf(rest[0]);
        dstLayout = layoutOf(rest.back());
    } else {
        layout = rest == ""      ? Layout::Standard
                 : rest == "S2"  ? Layout::Strided
                 : rest == "P"   ? Layout::Pointer
                 : rest == "PS2" ? Layout::StridedPointer
                 : rest == "L"   ? Layout::List
                 : rest == "LS2" ? Layout::StridedList
                                 : (thisNameIsNotInTheGrammar(), Layout::Standard);
        dstLayout = layout;
    }

    bool found = false;
    for (const Family& family : families)
        if (family.root == root && exists(family, *this))
            eachWord(family.codes, [&](std::string_view word) { found = found || word == codes; });
    if (!found)
        thisNameIsNotInTheGrammar();
}

// Tells some members from all others: inline constexpr auto standsApart = oneOf("tenkTrace_m_32f", ...). The
// names are read once, not for every member that is asked about.
template <std::size_t n>
struct OneOf
{
    std::array<Member, n> members;

    consteval bool operator()(const Member& m) const
    {
        for (const Member& one : members)
            if (one == m)
                return true;
        return false;
    }
};

template <std::size_t... lengths>
consteval OneOf<sizeof...(lengths)> oneOf(const char (&... names)[lengths])
{
    return {{Member(names)...}};
}

} // namespace tenk
