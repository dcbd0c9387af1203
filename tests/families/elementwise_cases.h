// Calls of element-wise functions by name, operands in all layouts, and the plain formula beside them.
#pragma once

#include <bit>
#include <cmath>
#include <cstring>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "support/call.h"
#include "support/library.h"
#include "tenk.h"

namespace elementwise {

using support::Argument;

inline Argument argument(const void* p)
{
    return {Argument::Kind::pointer, reinterpret_cast<std::uintptr_t>(p)};
}
inline Argument argument(std::nullptr_t)
{
    return {Argument::Kind::pointer, 0};
}
inline Argument argument(float x)
{
    return {Argument::Kind::value32f, std::bit_cast<std::uint32_t>(x)};
}
inline Argument argument(double x)
{
    return {Argument::Kind::value64f, std::bit_cast<std::uint64_t>(x)};
}
template <typename N>
requires std::is_integral_v<N> Argument argument(N word)
{
    return {Argument::Kind::word, static_cast<std::uint32_t>(word)};
}

inline support::Outcome invoke(const std::string& name, const std::vector<Argument>& arguments)
{
    void* f = support::exportedAddress(name);
    if (!f) {
        ADD_FAILURE() << "there is no function " << name;
        return {.status = 1};
    }
    return support::call(f, arguments);
}

// The status of a function called with these arguments: pointers, words, and values in the type of the
// function.
template <typename... A>
tenkStatus status(const std::string& name, A... arguments)
{
    return invoke(name, {argument(arguments)...}).status;
}

template <typename T>
std::string typeName()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}

// Elements from an address that is a multiple of 16 on.
template <typename T>
class AlignedRun
{
public:
    explicit AlignedRun(std::size_t n, T value = T()) : values_(n + 16 / sizeof(T), value), n_(n) {}
    T* begin()
    {
        return reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(values_.data()) + 15) &
                                    ~std::uintptr_t{15});
    }
    T* end() { return begin() + n_; }
    T& operator[](std::size_t j) { return begin()[j]; }
    std::vector<T> all() { return {begin(), end()}; }
    AlignedRun(const AlignedRun&) = delete;
    AlignedRun& operator=(const AlignedRun&) = delete;

private:
    std::vector<T> values_;
    std::size_t n_;
};

// `count` objects of rows x columns elements in a layout, with so many elements between rows, and their
// arguments.
template <typename T>
class Objects
{
public:
    struct Shape
    {
        char kind; // m or v
        bool array;
        unsigned rows, columns, count;
    };

    Objects(Shape s, const std::string& layout, unsigned gap)
        : shape_(s), layout_(layout), values_(4000, T(7))
    {
        const bool steps = layout == "_S2" || layout == "_LS2" || layout == "_PS2";
        stride2_ = steps ? 2 : 1;
        stride1_ = (s.columns + gap) * stride2_;
        stride0_ =
            isTable() ? stride2_ : s.rows * (s.kind == 'm' ? stride1_ : s.columns * stride2_ + gap) + gap / 2;
        for (unsigned e = 0; isTable() && e < s.rows * s.columns; ++e)
            pointers_.push_back(values_.begin() + e * (s.count * stride2_ + gap));
        for (unsigned k = 0; isList() && k < s.count; ++k)
            pointers_.push_back(values_.begin() + k * stride0_);
    }

    T& at(unsigned k, unsigned i, unsigned j)
    {
        k = shape_.array ? k : 0;
        if (isTable())
            return *(pointers_[i * shape_.columns + j] + k * stride0_);
        return values_[k * stride0_ + i * stride1_ + j * stride2_];
    }

    void pass(std::vector<Argument>& a)
    {
        const unsigned size = sizeof(T);
        a.push_back(pointers_.empty() ? argument(values_.begin()) : argument(pointers_.data()));
        if (!pointers_.empty())
            a.push_back(argument(0U));
        if (shape_.array && !isList() && layout_ != "_P")
            a.push_back(argument(stride0_ * size));
        if (shape_.kind == 'm' && !isTable())
            a.push_back(argument(stride1_ * size));
        if (layout_ == "_S2" || layout_ == "_LS2")
            a.push_back(argument(stride2_ * size));
    }

    void randomise(unsigned seed)
    {
        std::mt19937 random(seed);
        std::uniform_real_distribution<T> number(T(-1), T(1));
        for (T& x : values_)
            x = number(random);
    }
    void fillWithSignallingNaNs()
    {
        const std::uint32_t nan[2] = {0x7FA00000, 0x7FF40000};
        for (std::size_t j = 0; j < 4000; ++j)
            std::memcpy(values_.begin() + j, nan, sizeof(T));
    }
    std::vector<T> all() { return values_.all(); }

private:
    bool isTable() const { return layout_ == "_P" || layout_ == "_PS2"; }
    bool isList() const { return shape_.array && (layout_ == "_L" || layout_ == "_LS2"); }

    Shape shape_;
    std::string layout_;
    AlignedRun<T> values_;
    std::vector<T*> pointers_;
    unsigned stride0_, stride1_, stride2_;
};

// Calls one function and compares all of the destination with the formula. `code` is that of the name:
// matrices, vectors and at most one constant.
template <typename T>
void expectFormula(const std::string& root, const std::string& code, unsigned fixed,
                   const std::string& layout, unsigned gap, unsigned width, unsigned height, unsigned count,
                   const std::function<T(T, T)>& f)
{
    struct Source
    {
        char kind;
        bool array = false, turned = false;
    };
    std::vector<Source> sources;
    for (const char c : code) {
        if (c == 'a')
            sources.back().array = true;
        else if (c == 'T')
            sources.back().turned = true;
        else
            sources.push_back({c});
    }
    const bool batch = code.find('a') != code.npos, vectors = code.find('v') != code.npos;
    const char kind = vectors ? 'v' : 'm';
    const std::string size =
        fixed == 0 ? "" : "_" + std::to_string(fixed) + "x" + std::to_string(vectors ? 1 : fixed);
    const std::string name = "tenk" + root + "_" + code + "_" + typeName<T>() + size + layout;
    SCOPED_TRACE(name + " with a gap of " + std::to_string(gap));

    const T value = T(0.3);
    std::deque<Objects<T>> objects;
    std::vector<Argument> arguments;
    for (const Source& s : sources) {
        if (s.kind == 'c')
            continue;
        objects.emplace_back(typename Objects<T>::Shape{kind, s.array, s.turned ? width : height,
                                                        s.turned ? height : width, count},
                             layout, gap);
        objects.back().randomise(static_cast<unsigned>(objects.size()));
        objects.back().pass(arguments);
    }
    if (code.find('c') != code.npos)
        arguments.push_back(argument(value));
    Objects<T> dst({kind, batch, height, width, count}, layout, gap),
        expected({kind, batch, height, width, count}, layout, gap);
    dst.pass(arguments);
    if (fixed == 0) {
        arguments.push_back(argument(width));
        if (!vectors)
            arguments.push_back(argument(height));
    }
    if (batch)
        arguments.push_back(argument(count));

    for (unsigned k = 0; k < count; ++k)
        for (unsigned i = 0; i < height; ++i)
            for (unsigned j = 0; j < width; ++j) {
                T x[2] = {value, value};
                unsigned n = 0;
                for (unsigned s = 0; s < sources.size(); ++s)
                    if (sources[s].kind != 'c') {
                        x[s] = sources[s].turned ? objects[n].at(k, j, i) : objects[n].at(k, i, j);
                        ++n;
                    }
                expected.at(k, i, j) = f(x[0], x[1]);
            }
    EXPECT_EQ(invoke(name, arguments).status, tenkOk);
    EXPECT_TRUE(dst.all() == expected.all());
}

// All layouts and sizes of some codes, in both types. `standsApart` has the names to leave out.
inline void expectFormulaEverywhere(const std::string& root, const std::vector<std::string>& codes,
                                    const std::function<float(float, float)>& f32,
                                    const std::function<double(double, double)>& f64,
                                    const std::function<bool(const std::string&)>& standsApart)
{
    for (const std::string& code : codes) {
        const bool batch = code.find('a') != code.npos, vectors = code.find('v') != code.npos;
        for (const std::string layout : {"", "_S2", "_P", "_PS2", "_L", "_LS2"}) {
            if (!batch && layout != "" && layout != "_S2" && layout != "_P")
                continue;
            for (unsigned gap : {0U, 1U, 2U})
                for (unsigned fixed : {0U, 3U, 4U, 5U, 6U})
                    for (unsigned count : {1U, 2U, 5U}) {
                        const unsigned width = fixed ? fixed : 17, height = vectors ? 1 : fixed ? fixed : 3;
                        const std::string size = std::to_string(fixed) + "x" + std::to_string(fixed) + layout;
                        if (!batch && count > 1)
                            continue;
                        if (!standsApart(code + "_32f_" + size))
                            expectFormula<float>(root, code, fixed, layout, gap, width, height, count, f32);
                        if (!standsApart(code + "_64f_" + size))
                            expectFormula<double>(root, code, fixed, layout, gap, width, height, count, f64);
                    }
        }
    }
}

} // namespace elementwise
