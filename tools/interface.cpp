#include "interface.h"

namespace tenk::tools {
namespace {

std::string suffix(Layout l)
{
    switch (l) {
    case Layout::Standard:
        return "";
    case Layout::Strided:
        return "S2";
    case Layout::Pointer:
        return "P";
    case Layout::StridedPointer:
        return "PS2";
    case Layout::List:
        return "L";
    case Layout::StridedList:
        return "LS2";
    }
    return "";
}

std::string nameOf(const Member& m, std::string_view codes)
{
    std::string name = "tenk" + std::string(roots[static_cast<std::size_t>(m.root)].name) + "_" +
                       std::string(codes) + (m.type == Type::f32 ? "_32f" : "_64f");
    if (m.size != 0) {
        const std::string n = std::to_string(m.size);
        name += "_" + n + "x" + (m.source(0).kind == 'v' ? "1" : n);
    }
    if (const std::string layout = layoutText(m); !layout.empty())
        name += "_" + layout;
    return name;
}

void addOperand(std::vector<Parameter>& to, const Member& m, std::string_view word, Layout layout, Code code,
                bool written)
{
    const std::string name(word);
    const bool pointers = isTable(layout) || (code.array && isList(layout));
    const Steps has = steps(layout, code);
    to.push_back(
        {(written ? "" : "const ") + elementText(m) + (pointers ? "* const*" : "*"), name, name, "p"});
    if (has.shift)
        to.push_back({"uint32_t", name + "Shift", name, "shift"});
    if (has.stride0 || (word == "src1" && takesUnusedStride0(m)))
        to.push_back({"uint32_t", name + "Stride0", name, "stride0"});
    if (has.stride1)
        to.push_back({"uint32_t", name + "Stride1", name, "stride1"});
    if (has.stride2)
        to.push_back({"uint32_t", name + "Stride2", name, "stride2"});
}

std::vector<Parameter> parametersOf(const Family& f, const Member& m)
{
    const std::string element = elementText(m);
    std::vector<Parameter> all;
    unsigned sources = 0;
    eachWord(f.form, [&](std::string_view word) {
        const std::string name(word);
        if (isOperandWord(word)) {
            if (word == "dst")
                addOperand(all, m, word, m.dstLayout, m.destination(), true);
            else
                addOperand(all, m, word, m.layout, m.source(sources++), false);
        } else if (word == "result") {
            all.push_back({element + "*", "dst", name, ""});
        } else if (word == "buffer") {
            all.push_back({element + "*", name, name, ""});
        } else if (word == "scratch") {
            all.push_back({"void*", "buffer", name, ""});
        } else if (word == "rowIndexOut") {
            all.push_back({"uint32_t*", "rowIndex", name, ""});
        } else if (word == "rowIndexIn") {
            all.push_back({"const uint32_t*", "rowIndex", name, ""});
        } else if (word == "count") {
            if (m.batch())
                all.push_back({"uint32_t", name, name, ""});
        } else if (sizeWords.find(" " + name + " ") != sizeWords.npos) {
            if (m.general())
                all.push_back({"uint32_t", name, name, ""});
        } else { // value, value1, value2
            all.push_back({element, name, name, ""});
        }
    });
    return all;
}

} // namespace

std::string layoutText(const Member& m)
{
    if (m.root == Root::Copy)
        return {letterOf(m.layout), letterOf(m.dstLayout)};
    if (m.root == Root::LoadIdentity)
        return {letterOf(m.layout)};
    return suffix(m.layout);
}

std::string elementText(const Member& m)
{
    return m.type == Type::f32 ? "float" : "double";
}

bool isBuilt(const Family& f)
{
    return !f.source.empty();
}

bool isOperandWord(std::string_view word)
{
    return word == "src" || word == "src1" || word == "src2" || word == "src3" || word == "dst";
}

std::vector<Function> allFunctionsOfTheTable()
{
    std::vector<Function> all;
    eachMember([&](const Family& f, std::string_view codes, const Member& m) {
        Function fn{&f, m, std::string(codes), nameOf(m, codes), parametersOf(f, m), ""};
        for (const SecondName& second : secondNames)
            if (second.name == fn.name)
                fn.sameAs = second.sameAs;
        all.push_back(std::move(fn));
    });
    return all;
}

} // namespace tenk::tools
