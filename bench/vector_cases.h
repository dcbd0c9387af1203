// What the benchmarks of vector families share: names, and long vectors for the general members.
#pragma once

#include "support.h"

namespace bench {

// tenkSaxpy_vava_32f_3x1_L
template <typename T, unsigned n, Layout layout>
std::string vectorFunction(const std::string& root, const std::string& codes)
{
    return "tenk" + root + "_" + codes + "_" + typeName<T>() + "_" + std::to_string(n) + "x1" +
           suffix(layout);
}
template <typename T, unsigned n, Layout layout>
std::string matrixFunction(const std::string& root, const std::string& codes)
{
    const std::string order = std::to_string(n);
    return "tenk" + root + "_" + codes + "_" + typeName<T>() + "_" + order + "x" + order + suffix(layout);
}

// An operand as an array, or as its first object alone.
template <bool array, typename Objects>
auto operand(Objects& objects)
{
    if constexpr (array)
        return objects.array();
    else
        return objects.single();
}

template <typename T>
using Run = Eigen::Matrix<T, Eigen::Dynamic, 1>;

template <typename T>
std::shared_ptr<Run<T>> randomRun(unsigned length)
{
    return std::make_shared<Run<T>>(Run<T>::Random(length));
}

// Calls f.template operator()<T>(length) for long vectors.
template <typename F>
void lengths(F f)
{
    for (unsigned length : {8U, 16U, 100U, 1000U, 10000U}) {
        f.template operator()<float>(length);
        f.template operator()<double>(length);
    }
}

} // namespace bench
