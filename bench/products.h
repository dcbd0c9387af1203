// What the benchmarks of the products share: square operands of a member, and its name.
#pragma once

#include "support.h"

#include <glm/glm.hpp>
#include <string_view>

namespace bench {

template <typename T, unsigned n, Layout layout>
std::string memberName(const std::string& root, const std::string& codes)
{
    return "tenk" + root + "_" + codes + "_" + typeName<T>() + "_" + std::to_string(n) + "x" +
           std::to_string(n) + suffix(layout);
}

// An operand of a batch: all of its objects, or object 0 for every k.
template <typename T, Layout layout, unsigned rows, unsigned columns>
struct Factor
{
    // A single operand of a list is no list.
    static constexpr Layout singleLayout = layout == Layout::List ? Layout::Standard : layout;
    using Many = Batch<T, layout, rows, columns>;
    using One = Batch<T, singleLayout, rows, columns>;
};

// GLM stores columns: its product of two matrices read that way is that of the factors exchanged.
template <typename T, unsigned n>
struct Glm
{
    using Matrix = glm::mat<n, n, T>;
    using Vector = glm::vec<n, T>;
    static const Matrix& matrix(const T* p) { return *reinterpret_cast<const Matrix*>(p); }
    static Matrix& matrix(T* p) { return *reinterpret_cast<Matrix*>(p); }
    static const Vector& vector(const T* p) { return *reinterpret_cast<const Vector*>(p); }
    static Vector& vector(T* p) { return *reinterpret_cast<Vector*>(p); }
};

} // namespace bench
