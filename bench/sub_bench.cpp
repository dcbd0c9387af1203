// Sub: a transposed array and an array.
#include "elementwise_bench.h"

using namespace bench;

namespace {

struct Members
{
    template <typename T, unsigned n, Layout layout>
    void operator()(unsigned count) const
    {
        sumCase<T, layout, n, n, true, true>(member<T, n, layout>("Sub_maTma", 'n'), count,
                                             [](const auto& a, const auto& b) { return a - b; });
    }
};

} // namespace

void registerAll()
{
    grid(Members{});
}
