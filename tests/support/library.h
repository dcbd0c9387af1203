// The built library, read from its own symbol table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace support {

// The path of the library under test: the environment variable TENK_LIBRARY, or else where the build put it.
std::string libraryPath();

// Names of all exported functions, in alphabetical order.
const std::vector<std::string>& exportedNames();

// Address of an exported function in the loaded library; null if there is none.
void* exportedAddress(std::string_view name);

} // namespace support
