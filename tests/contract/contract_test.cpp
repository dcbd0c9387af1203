// The binary contract, read off the finished library, and the headers against it.
#include <array>
#include <cstdio>
#include <cstring>
#include <elf.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <link.h>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "interface.h"
#include "support/library.h"

namespace {

using Names = std::set<std::string>;

std::string readText(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in) << path;
    return {std::istreambuf_iterator<char>(in), {}};
}

class LibraryFile
{
public:
    struct Section
    {
        std::string name;
        ElfW(Shdr) header;
    };

    LibraryFile() : bytes_(readText(support::libraryPath())), header_(at<ElfW(Ehdr)>(0))
    {
        const auto names = section(header_.e_shstrndx);
        for (unsigned s = 0; s < header_.e_shnum; ++s)
            sections.push_back({bytes_.c_str() + names.sh_offset + section(s).sh_name, section(s)});
    }

    template <typename T>
    std::vector<T> entries(const ElfW(Shdr) & s) const
    {
        std::vector<T> all;
        for (std::size_t n = 0; n < s.sh_size / sizeof(T); ++n)
            all.push_back(at<T>(s.sh_offset + n * sizeof(T)));
        return all;
    }

    std::vector<ElfW(Dyn)> dynamic() const
    {
        for (const Section& s : sections)
            if (s.header.sh_type == SHT_DYNAMIC)
                return entries<ElfW(Dyn)>(s.header);
        return {};
    }

    std::vector<ElfW(Phdr)> segments() const
    {
        std::vector<ElfW(Phdr)> all;
        for (unsigned n = 0; n < header_.e_phnum; ++n)
            all.push_back(at<ElfW(Phdr)>(header_.e_phoff + n * sizeof(ElfW(Phdr))));
        return all;
    }

    std::string dynamicString(std::size_t offset) const
    {
        for (const Section& s : sections)
            if (s.name == ".dynstr")
                return bytes_.c_str() + s.header.sh_offset + offset;
        return "";
    }

    std::vector<Section> sections;

private:
    template <typename T>
    T at(std::size_t offset) const
    {
        T value{};
        EXPECT_LE(offset + sizeof(T), bytes_.size());
        std::memcpy(&value, bytes_.data() + offset, sizeof(T));
        return value;
    }
    ElfW(Shdr) section(unsigned s) const { return at<ElfW(Shdr)>(header_.e_shoff + s * sizeof(ElfW(Shdr))); }

    std::string bytes_;
    ElfW(Ehdr) header_;
};

#ifndef TENK_SANITIZED // a library with sanitizers needs their run-time

// What a command prints.
std::string output(const std::string& command)
{
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t n = std::fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), n);
    return text;
}

TEST(Library, NeedsNothingAndHasNoInitialiserAndNoTextRelocation)
{
    const LibraryFile file;
    bool now = false;
    std::string soname;
    ASSERT_FALSE(file.dynamic().empty());
    for (const auto& d : file.dynamic()) {
        EXPECT_NE(d.d_tag, DT_NEEDED);
        EXPECT_NE(d.d_tag, DT_INIT);
        EXPECT_NE(d.d_tag, DT_FINI);
        EXPECT_NE(d.d_tag, DT_INIT_ARRAY);
        EXPECT_NE(d.d_tag, DT_FINI_ARRAY);
        EXPECT_NE(d.d_tag, DT_TEXTREL);
        now = now || (d.d_tag == DT_FLAGS && (d.d_un.d_val & DF_BIND_NOW));
        if (d.d_tag == DT_SONAME)
            soname = file.dynamicString(d.d_un.d_val);
    }
    EXPECT_TRUE(now) << "relocations are not bound at load time";
    EXPECT_EQ(soname, "libtenk.so.3");
}

TEST(Library, HasNoWritableDataAndNoRelocationButThoseOfTheRecord)
{
    const LibraryFile file;
    std::size_t relocations = 0;
    for (const auto& s : file.sections) {
        const bool data = s.name.starts_with(".data") && s.name != ".data.rel.ro";
        EXPECT_FALSE((data || s.name.starts_with(".bss") || s.name.starts_with(".tdata") ||
                      s.name.starts_with(".tbss")) &&
                     s.header.sh_size != 0)
            << s.name;
        if (s.header.sh_type == SHT_RELA)
            for (const auto& r : file.entries<ElfW(Rela)>(s.header)) {
                ++relocations;
                EXPECT_EQ(r.r_info & 0xFF, unsigned{R_X86_64_RELATIVE});
            }
        if (s.header.sh_type == SHT_REL)
            for (const auto& r : file.entries<ElfW(Rel)>(s.header)) {
                ++relocations;
                EXPECT_EQ(r.r_info & 0xFF, unsigned{R_386_RELATIVE});
            }
    }
    EXPECT_EQ(relocations, 3U);
}

TEST(Library, HasNoExecutableStackAndIsReadOnlyAfterRelocation)
{
    const LibraryFile file;
    bool stack = false, readOnly = false;
    for (const auto& s : file.segments()) {
        stack = stack || (s.p_type == PT_GNU_STACK && !(s.p_flags & PF_X));
        readOnly = readOnly || s.p_type == PT_GNU_RELRO;
        EXPECT_FALSE(s.p_type == PT_LOAD && (s.p_flags & PF_X) && (s.p_flags & PF_W));
    }
    EXPECT_TRUE(stack);
    EXPECT_TRUE(readOnly);
}

TEST(Library, HasNoUndefinedSymbol)
{
    const LibraryFile file;
    for (const auto& s : file.sections)
        if (s.header.sh_type == SHT_DYNSYM) {
            const auto symbols = file.entries<ElfW(Sym)>(s.header);
            ASSERT_GT(symbols.size(), 1U);
            for (std::size_t n = 1; n < symbols.size(); ++n)
                EXPECT_NE(symbols[n].st_shndx, SHN_UNDEF) << file.dynamicString(symbols[n].st_name);
        }
}

TEST(Library, NeverCalls)
{
    // On i386 a function finds its constants by a call of the next instruction but one, __x86.get_pc_thunk.
    const std::string calls = output("objdump -d --no-show-raw-insn " + support::libraryPath() +
                                     " | grep -w call | grep -v get_pc_thunk");
    EXPECT_EQ(calls, "");
    EXPECT_NE(output("objdump -d " + support::libraryPath() + " | grep -c -w ret"), "0\n");
}

#endif

Names builtNames()
{
    Names names = {"tenkGetLibVersion"};
    for (const auto& f : tenk::tools::allFunctionsOfTheTable())
        if (tenk::tools::isBuilt(*f.family) &&
            (std::string(TENK_ONLY).empty() ||
             std::string(" " TENK_ONLY " ")
                     .find(" " + std::string(tenk::roots[static_cast<std::size_t>(f.member.root)].header) +
                           " ") != std::string::npos))
            names.insert(f.name);
    return names;
}

// Names of functions declared in the public headers.
Names declaredNames()
{
    Names names;
    const std::regex declaration("TENK_API [^(]*?(tenk\\w+)\\(");
    for (const auto& file : std::filesystem::directory_iterator(TENK_INCLUDE "/tenk")) {
        const std::string text = readText(file.path());
        for (std::sregex_iterator d(text.begin(), text.end(), declaration), end; d != end; ++d)
            EXPECT_TRUE(names.insert((*d)[1]).second) << "declared twice: " << (*d)[1];
    }
    return names;
}

Names exportedSet()
{
    return {support::exportedNames().begin(), support::exportedNames().end()};
}

TEST(Library, ExportsExactlyTheNamesOfTheTable)
{
    EXPECT_EQ(exportedSet(), builtNames());
    EXPECT_EQ(exportedSet().size(), support::exportedNames().size());
}

TEST(Library, ExportsNothingButFunctions)
{
    const LibraryFile file;
    for (const auto& s : file.sections)
        if (s.header.sh_type == SHT_DYNSYM)
            for (const auto& symbol : file.entries<ElfW(Sym)>(s.header))
                if (symbol.st_shndx != SHN_UNDEF && symbol.st_shndx != SHN_ABS) {
                    EXPECT_EQ(symbol.st_info & 0xF, STT_FUNC) << file.dynamicString(symbol.st_name);
                }
}

TEST(Headers, DeclareAllThatIsExportedAndNothingElse)
{
    if (!std::string(TENK_ONLY).empty())
        GTEST_SKIP() << "a part of the families is built";
    EXPECT_EQ(declaredNames(), exportedSet());
}

TEST(Headers, AreWhatTheGeneratorMakes)
{
    const std::filesystem::path copy = std::filesystem::path(testing::TempDir()) / "tenk-headers";
    std::filesystem::remove_all(copy);
    std::filesystem::copy(TENK_INCLUDE, copy, std::filesystem::copy_options::recursive);
    ASSERT_EQ(std::system((TENK_GENERATE " headers " + copy.string()).c_str()), 0);
    for (const auto& file : std::filesystem::recursive_directory_iterator(TENK_INCLUDE))
        if (file.is_regular_file()) {
            EXPECT_EQ(readText(file.path()),
                      readText(copy / std::filesystem::relative(file.path(), TENK_INCLUDE)))
                << "run: generate headers include";
        }
    std::filesystem::remove_all(copy);
}

TEST(Names, WithSharedEntryPointsAreFour)
{
    std::set<void*> addresses;
    for (const std::string& name : support::exportedNames())
        addresses.insert(support::exportedAddress(name));
    const std::size_t shared = exportedSet().contains("tenkExtract_m_32f_S2") ? 4 : 0;
    EXPECT_EQ(addresses.size() + shared, support::exportedNames().size());
}

} // namespace
