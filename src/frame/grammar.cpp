// The number of functions of every root, held against the table at compile time.
#include "frame/grammar.h"

namespace tenk {
namespace {

constexpr auto counts = [] {
    std::array<unsigned, std::size(roots)> n{};
    n[static_cast<std::size_t>(Root::GetLibVersion)] = 1;
    eachMember(
        [&](const Family& f, std::string_view, const Member&) { ++n[static_cast<std::size_t>(f.root)]; });
    return n;
}();

constexpr bool eachRootIsComplete()
{
    unsigned all = 0;
    for (std::size_t r = 0; r < std::size(roots); ++r) {
        if (counts[r] != roots[r].functions)
            return false;
        all += counts[r];
    }
    return all == allFunctions;
}
static_assert(eachRootIsComplete());

static_assert(Member{"tenkAdd_mam_32f_3x3_PS2"}.size == 3);
static_assert(Member{"tenkSub_maTmaT_32f_6x6_L"}.operand[1] == Code{'m', true, true});
static_assert(Member{"tenkCopy_va_64f_PL"}.dstLayout == Layout::StridedList);
static_assert(Member{"tenkGaxpy_va_32f_3x3"}.source(0) == Code{'m', false, false});
static_assert(Member{"tenkSub_cva_64f"}.source(0) == Code{'v', true, false});

} // namespace
} // namespace tenk
