// Results of a batch that ended early.
#pragma once

#include <gtest/gtest.h>
#include <vector>

// How many positive results have been written in front of all that are still -1, as they were before.
template <typename T>
unsigned resultsInFront(const std::vector<T>& dst)
{
    std::size_t n = 0;
    while (n < dst.size() && dst[n] > 0)
        ++n;
    for (std::size_t k = n; k < dst.size(); ++k)
        EXPECT_EQ(dst[k], T(-1));
    return static_cast<unsigned>(n);
}
