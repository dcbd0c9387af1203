#include "name.h"

#include <array>
#include <stdexcept>
#include <unordered_map>

namespace model {

namespace {

// What exists of a root whose members fill the usual grid: its operand codes, each in both types, in the
// general and the fixed sizes, in three layouts or, with an array among the operands, in six.
struct Grid
{
    Root root;
    std::string_view text;
    std::string_view codes;
};

constexpr std::array grids = {
    Grid{Root::Add, "Add", "mm mTm mmT mTmT vv vc mam maTm mamT maTmT mama maTma mamaT maTmaT vav vava vac"},
    Grid{Root::Sub, "Sub",
         "mm mTm mmT mTmT vv vc cv mam maTm mamT maTmT mama maTma mamaT maTmaT mma mTma mmaT mTmaT "
         "vav vva vava vac cva"},
    Grid{Root::Mul, "Mul",
         "mc mTc vc mv mTv mm mTm mmT mTmT mac maTc vac mav maTv mva mTva mava maTva "
         "mam maTm mamT maTmT mma mTma mmaT mTmaT mama maTma mamaT maTmaT"},
    Grid{Root::Saxpy, "Saxpy", "vv vav vva vava"},
    Grid{Root::LComb, "LComb", "vv vav vava"},
    Grid{Root::Gaxpy, "Gaxpy", "v va"},
    Grid{Root::DotProduct, "DotProduct", "vv vav vava"},
    Grid{Root::CrossProduct, "CrossProduct", "vv vav vva vava"},
    Grid{Root::L2Norm, "L2Norm", "v va"},
    Grid{Root::Trace, "Trace", "m ma"},
    Grid{Root::FrobNorm, "FrobNorm", "m ma"},
    Grid{Root::Det, "Det", "m ma"},
    Grid{Root::Invert, "Invert", "m ma"},
    Grid{Root::LUDecomp, "LUDecomp", "m ma"},
    Grid{Root::LUBackSubst, "LUBackSubst", "mv mva mava"},
    Grid{Root::QRDecomp, "QRDecomp", "m ma"},
    Grid{Root::QRBackSubst, "QRBackSubst", "mv mva mava"},
    Grid{Root::Transpose, "Transpose", "m ma"},
    Grid{Root::Copy, "Copy", ""},
    Grid{Root::Extract, "Extract", ""},
    Grid{Root::LoadIdentity, "LoadIdentity", ""},
};

constexpr std::array types = {Type::f32, Type::f64};

std::string typeText(Type type)
{
    return type == Type::f32 ? "32f" : "64f";
}

std::string layoutText(Layout layout)
{
    switch (layout) {
    case Layout::standard:
        return "";
    case Layout::strided:
        return "_S2";
    case Layout::pointer:
        return "_P";
    case Layout::stridedPointer:
        return "_PS2";
    case Layout::list:
        return "_L";
    case Layout::stridedList:
        return "_LS2";
    }
    throw std::logic_error("no such layout");
}

std::vector<std::string_view> words(std::string_view list)
{
    std::vector<std::string_view> result;
    while (!list.empty()) {
        const std::size_t length = std::min(list.find(' '), list.size());
        result.push_back(list.substr(0, length));
        list.remove_prefix(std::min(length + 1, list.size()));
    }
    return result;
}

Name start(Root root, std::string_view codeText, Type type)
{
    Name name;
    name.root = root;
    name.codeText = codeText;
    name.codes = codesOf(codeText);
    name.type = type;
    name.text = "tenk" + std::string(rootText(root)) + "_" + name.codeText + "_" + typeText(type);
    return name;
}

std::vector<unsigned> sizesOf(Root root)
{
    if (root == Root::CrossProduct)
        return {3};
    return {0, 3, 4, 5, 6};
}

std::string sizeText(Root root, std::string_view codeText, unsigned size)
{
    if (size == 0)
        return "";
    const bool square = root == Root::Gaxpy || codeText.find('m') != std::string_view::npos;
    return "_" + std::to_string(size) + "x" + (square ? std::to_string(size) : "1");
}

void addGrid(std::vector<Name>& names, const Grid& grid)
{
    for (const std::string_view codeText : words(grid.codes)) {
        for (const Type type : types) {
            for (const unsigned size : sizesOf(grid.root)) {
                std::vector<Layout> layouts = {Layout::standard, Layout::strided, Layout::pointer};
                if (codeText.find('a') != std::string_view::npos)
                    layouts.insert(layouts.end(),
                                   {Layout::stridedPointer, Layout::list, Layout::stridedList});
                for (const Layout layout : layouts) {
                    Name name = start(grid.root, codeText, type);
                    name.size = size;
                    name.layout = name.destinationLayout = layout;
                    name.text += sizeText(grid.root, codeText, size) + layoutText(layout);
                    names.push_back(name);
                }
            }
        }
    }
}

// The fully general layouts by the letters that Copy and LoadIdentity use.
Layout layoutOfLetter(char letter)
{
    switch (letter) {
    case 'S':
        return Layout::strided;
    case 'L':
        return Layout::stridedList;
    case 'P':
        return Layout::stridedPointer;
    default:
        throw std::logic_error("no such letter");
    }
}

void addCopy(std::vector<Name>& names)
{
    for (const std::string_view codeText : {"ma", "va"}) {
        for (const Type type : types) {
            for (const std::string_view pair : words("SS SP SL LS LP LL PS PP PL")) {
                Name name = start(Root::Copy, codeText, type);
                name.layout = layoutOfLetter(pair[0]);
                name.destinationLayout = layoutOfLetter(pair[1]);
                name.text += "_" + std::string(pair);
                names.push_back(name);
            }
        }
    }
}

void addExtract(std::vector<Name>& names)
{
    struct Kind
    {
        std::string_view codeText;
        Layout layout;
    };
    constexpr std::array kinds = {
        Kind{"v", Layout::strided},          Kind{"v", Layout::pointer},
        Kind{"va", Layout::strided},         Kind{"va", Layout::stridedPointer},
        Kind{"va", Layout::stridedList},     Kind{"m", Layout::strided},
        Kind{"m", Layout::pointer},          Kind{"mT", Layout::strided},
        Kind{"mT", Layout::pointer},         Kind{"ma", Layout::strided},
        Kind{"ma", Layout::stridedPointer},  Kind{"ma", Layout::stridedList},
        Kind{"maT", Layout::stridedPointer}, Kind{"maT", Layout::stridedList},
    };
    for (const Kind& kind : kinds) {
        for (const Type type : types) {
            // The one gap of the list.
            if (kind.codeText == "mT" && kind.layout == Layout::strided && type == Type::f64)
                continue;
            Name name = start(Root::Extract, kind.codeText, type);
            name.layout = name.destinationLayout = kind.layout;
            name.text += layoutText(kind.layout);
            names.push_back(name);
        }
    }
}

void addLoadIdentity(std::vector<Name>& names)
{
    for (const Type type : types) {
        for (const char letter : {'S', 'L', 'P'}) {
            Name name = start(Root::LoadIdentity, "ma", type);
            name.layout = name.destinationLayout = layoutOfLetter(letter);
            name.text += std::string("_") + letter;
            names.push_back(name);
        }
    }
}

} // namespace

bool Name::anyArray() const
{
    for (const Code& code : codes) {
        if (code.array)
            return true;
    }
    return false;
}

bool Name::codeIn(std::string_view list) const
{
    for (const std::string_view word : words(list)) {
        if (word == codeText)
            return true;
    }
    return false;
}

std::string_view rootText(Root root)
{
    for (const Grid& grid : grids) {
        if (grid.root == root)
            return grid.text;
    }
    throw std::logic_error("no such root");
}

const std::vector<Root>& allRoots()
{
    static const std::vector<Root> roots = [] {
        std::vector<Root> list;
        for (const Grid& grid : grids)
            list.push_back(grid.root);
        return list;
    }();
    return roots;
}

const std::vector<Name>& allNames()
{
    static const std::vector<Name> names = [] {
        std::vector<Name> list;
        for (const Grid& grid : grids)
            addGrid(list, grid);
        addCopy(list);
        addExtract(list);
        addLoadIdentity(list);
        return list;
    }();
    return names;
}

const Name* find(std::string_view text)
{
    static const std::unordered_map<std::string_view, const Name*> index = [] {
        std::unordered_map<std::string_view, const Name*> map;
        for (const Name& name : allNames())
            map.emplace(name.text, &name);
        return map;
    }();
    const auto found = index.find(text);
    return found == index.end() ? nullptr : found->second;
}

std::vector<Code> codesOf(std::string_view text)
{
    std::vector<Code> codes;
    for (const char letter : text) {
        if (letter == 'm' || letter == 'v' || letter == 'c')
            codes.push_back({letter, false, false});
        else if (letter == 'a')
            codes.back().array = true;
        else if (letter == 'T')
            codes.back().transposed = true;
        else
            throw std::logic_error("no such operand code");
    }
    return codes;
}

} // namespace model
