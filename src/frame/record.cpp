// The library record.
#include "tenk/types.h"

namespace {

constexpr tenkLibraryRecord record = {
    .versionMajor = 3,
    .versionMinor = 0,
    .buildMajor = 0,
    .buildMinor = 0,
    .cpuTag = {'q', 'z', 0, 0},
    .libraryName = "tenkqz",
    .versionText = "v3.0 beta",
    .buildDateText = "Apr 16 2002",
};

} // namespace

const tenkLibraryRecord* tenkGetLibVersion()
{
    return &record;
}
