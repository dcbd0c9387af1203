// Makes from the table what would otherwise be a second list of it.
//
//   generate entries DIR [HEADER ...]
//                            entry points, one file for each root, type and layout, and the export map
//                            DIR/tenk.map; with names of headers, such as add, for their families alone
//   generate headers DIR     the prototypes in DIR/tenk/*.h and the list of headers in DIR/tenk.h, in place
//   generate names           every function that is built, a line each
//   generate where NAME      the files behind a function
//
// A file whose text would not change is not written.
#include "interface.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>

namespace {

using namespace tenk;
using namespace tenk::tools;

constexpr std::string_view begin = "/* Made by tools/generate; edit above this line or below the next. */\n";
constexpr std::string_view end = "/* End of what tools/generate makes. */\n";

[[noreturn]] void fail(const std::string& message)
{
    std::cerr << "generate: " << message << "\n";
    std::exit(1);
}

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream in(path);
    if (!in)
        return "";
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const std::filesystem::path& path, const std::string& text)
{
    if (std::filesystem::exists(path) && readFile(path) == text)
        return;
    std::ofstream out(path);
    out << text;
    if (!out.flush())
        fail("cannot write " + path.string());
}

// Replaces what stands between the two marks of a hand-written file.
void writeBetweenMarks(const std::filesystem::path& path, const std::string& made)
{
    const std::string text = readFile(path);
    const std::size_t from = text.find(begin);
    const std::size_t to = text.find(end);
    if (from == text.npos || to == text.npos || to < from)
        fail(path.string() + ": the two marks are missing");
    writeFile(path, text.substr(0, from + begin.size()) + made + text.substr(to));
}

std::string_view headerOf(const Function& f)
{
    return roots[static_cast<std::size_t>(f.member.root)].header;
}

// The name of the source file with the entry point, without its extension.
std::string unitOf(const Function& f)
{
    const std::string layout = layoutText(f.member);
    return std::string(headerOf(f)) + (f.member.type == Type::f32 ? "_32f" : "_64f") +
           (layout.empty() ? "" : "_" + layout.substr(0, f.member.root == Root::Copy ? 1 : layout.npos));
}

// first + items joined by ", " + last, broken into lines of at most 110 columns.
std::string wrap(const std::string& first, const std::vector<std::string>& items, const std::string& last)
{
    std::string text, line = first;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string item = items[i] + (i + 1 < items.size() ? "," : last);
        const bool space = i > 0;
        if (line.size() + item.size() + space > 110) {
            text += line + "\n";
            line = "    " + item;
        } else {
            line += (space ? " " : "") + item;
        }
    }
    return text + line + "\n";
}

std::string prototype(const Function& f, const std::string& before, const std::string& after)
{
    std::vector<std::string> items;
    for (const Parameter& p : f.parameters)
        items.push_back(p.type + " " + p.name);
    return wrap(before + "tenkStatus " + f.name + "(", items, ")" + after);
}

// The call of the template: operands grouped, sizes and counts that the name has dropped as {}.
std::string call(const Function& f)
{
    std::vector<std::string> items;
    std::size_t next = 0;
    eachWord(f.family->form, [&](std::string_view word) {
        const bool present = next < f.parameters.size() && f.parameters[next].word == word;
        if (!present) {
            items.emplace_back("{}");
        } else if (isOperandWord(word)) {
            std::string group = "Arguments{";
            for (bool first = true; next < f.parameters.size() && f.parameters[next].word == word;
                 first = false) {
                const Parameter& p = f.parameters[next++];
                group += (first ? "." : ", .") + p.field + " = " + p.name;
            }
            items.push_back(group + "}");
        } else {
            items.push_back(f.parameters[next++].name);
        }
    });
    return wrap("    return " + std::string(f.family->entry) + "<\"" + f.name + "\">(", items, ");");
}

std::string entryPoint(const Function& f)
{
    if (!f.sameAs.empty())
        return prototype(f, "", " __attribute__((alias(\"" + f.sameAs + "\")));");
    return prototype(f, "", "") + "{\n" + call(f) + "}\n";
}

void generateEntries(const std::filesystem::path& dir, const std::vector<Function>& functions)
{
    struct Unit
    {
        std::map<std::string_view, bool> sources;
        std::string header, text;
    };
    std::map<std::string, Unit> units;
    std::string map = "tenk_3 {\n    global:\n        tenkGetLibVersion;\n";
    for (const Function& f : functions) {
        if (!isBuilt(*f.family))
            continue;
        Unit& unit = units[unitOf(f)];
        unit.sources[f.family->source] = true;
        unit.header = headerOf(f);
        unit.text += "\n" + entryPoint(f);
        map += "        " + f.name + ";\n";
    }
    std::filesystem::create_directories(dir);
    for (const auto& file : std::filesystem::directory_iterator(dir))
        if (file.path().extension() == ".cpp" && !units.contains(file.path().stem().string()))
            std::filesystem::remove(file.path());
    for (const auto& [name, unit] : units) {
        std::string text = "// Made by tools/generate.\n";
        for (const auto& source : unit.sources)
            text += "#include \"" + std::string(source.first) + "\"\n";
        text += "#include \"tenk/" + unit.header + ".h\"\n\nusing namespace tenk;\n";
        writeFile(dir / (name + ".cpp"), text + unit.text);
    }
    writeFile(dir / "tenk.map", map + "    local:\n        *;\n};\n");
}

void generateHeaders(const std::filesystem::path& dir, const std::vector<Function>& functions)
{
    std::map<std::string_view, std::string> prototypes;
    std::string_view codes;
    for (const Function& f : functions) {
        if (!isBuilt(*f.family))
            continue;
        std::string& text = prototypes[headerOf(f)];
        if (text.empty() || codes != f.codes)
            text += "\n/* " + f.codes + " */\n";
        codes = f.codes;
        text += prototype(f, "TENK_API ", ";");
    }
    std::string umbrella;
    for (const auto& [header, text] : prototypes) {
        writeBetweenMarks(dir / "tenk" / (std::string(header) + ".h"), "/* clang-format off */\n" + text);
        umbrella += "#include \"tenk/" + std::string(header) + ".h\"\n";
    }
    writeBetweenMarks(dir / "tenk.h", umbrella);
}

void tellWhere(const std::string& name, const std::vector<Function>& functions)
{
    for (const Function& f : functions) {
        if (f.name != name)
            continue;
        std::cout << "declared    include/tenk/" << headerOf(f) << ".h\n";
        if (!isBuilt(*f.family)) {
            std::cout << "not built yet\n";
            return;
        }
        std::cout << "entry point build/<target>/entries/" << unitOf(f) << ".cpp\n"
                  << "code        src/" << f.family->source << ", template " << f.family->entry << "\n";
        if (!f.sameAs.empty())
            std::cout << "a second name of " << f.sameAs << "\n";
        return;
    }
    fail("there is no function " + name);
}

std::vector<Function> onlyOf(const std::vector<std::string>& headers, const std::vector<Function>& functions)
{
    if (headers.empty())
        return functions;
    std::vector<Function> some;
    for (const std::string& header : headers) {
        const std::size_t before = some.size();
        std::copy_if(functions.begin(), functions.end(), std::back_inserter(some),
                     [&](const Function& f) { return headerOf(f) == header; });
        if (some.size() == before)
            fail("there is no header " + header);
    }
    return some;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::vector<Function> functions = allFunctionsOfTheTable();
    if (arguments.size() >= 2 && arguments[0] == "entries") {
        generateEntries(arguments[1], onlyOf({arguments.begin() + 2, arguments.end()}, functions));
    } else if (arguments.size() == 2 && arguments[0] == "headers") {
        generateHeaders(arguments[1], functions);
    } else if (arguments.size() == 2 && arguments[0] == "where") {
        tellWhere(arguments[1], functions);
    } else if (arguments.size() == 1 && arguments[0] == "names") {
        std::cout << "tenkGetLibVersion\n";
        for (const Function& f : functions)
            if (isBuilt(*f.family))
                std::cout << f.name << "\n";
    } else {
        fail("usage: generate entries DIR [HEADER ...] | headers DIR | names | where NAME");
    }
}
