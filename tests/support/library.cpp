#include "support/library.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <elf.h>
#include <fstream>
#include <iterator>
#include <link.h>
#include <stdexcept>

namespace support {
namespace {

std::vector<char> readAll(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(in), {}};
}

template <typename T>
T at(const std::vector<char>& file, std::size_t offset)
{
    if (offset + sizeof(T) > file.size())
        throw std::runtime_error("the library's file is cut short");
    T value;
    std::memcpy(&value, file.data() + offset, sizeof(T));
    return value;
}

// Defined global functions of the dynamic symbol table.
std::vector<std::string> readNames()
{
    const std::vector<char> file = readAll(libraryPath());
    const auto header = at<ElfW(Ehdr)>(file, 0);
    std::vector<std::string> names;
    for (unsigned s = 0; s < header.e_shnum; ++s) {
        const auto section = at<ElfW(Shdr)>(file, header.e_shoff + s * sizeof(ElfW(Shdr)));
        if (section.sh_type != SHT_DYNSYM)
            continue;
        const auto strings = at<ElfW(Shdr)>(file, header.e_shoff + section.sh_link * sizeof(ElfW(Shdr)));
        for (std::size_t n = 0; n < section.sh_size / sizeof(ElfW(Sym)); ++n) {
            const auto symbol = at<ElfW(Sym)>(file, section.sh_offset + n * sizeof(ElfW(Sym)));
            if (symbol.st_shndx != SHN_UNDEF && (symbol.st_info & 0xF) == STT_FUNC)
                names.emplace_back(file.data() + strings.sh_offset + symbol.st_name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

std::string libraryPath()
{
    const char* path = std::getenv("TENK_LIBRARY");
    return path ? path : TENK_LIBRARY_PATH;
}

const std::vector<std::string>& exportedNames()
{
    static const std::vector<std::string> names = readNames();
    return names;
}

void* exportedAddress(std::string_view name)
{
    static void* const library = dlopen(libraryPath().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    return dlsym(library, std::string(name).c_str());
}

} // namespace support
