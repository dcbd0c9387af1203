// Calls of element-wise functions by name, operands in all layouts, and the plain formula beside them.
#pragma once

#include <algorithm>
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

// What is between rows and between objects: a number of elements between rows and half as many between
// objects, or elements between objects alone. Entries of lists and tables stand as many elements before what
// they are for, which is their shift.
constexpr unsigned betweenObjectsAlone = 3;

// `count` objects of rows x columns elements in a layout, with such gaps, and their arguments.
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

    // From an address that is a multiple of 16 on, or `first` elements behind one.
    Objects(Shape s, const std::string& layout, unsigned gap, unsigned first = 0)
        : shape_(s), layout_(layout), values_(4000, T(7)), first_(first), shift_(gap)
    {
        const bool steps = layout == "_S2" || layout == "_LS2" || layout == "_PS2";
        stride2_ = steps ? 2 : 1;
        stride1_ = (s.columns + (gap == betweenObjectsAlone ? 0 : gap)) * stride2_;
        stride0_ =
            isTable() ? stride2_ : s.rows * (s.kind == 'm' ? stride1_ : s.columns * stride2_ + gap) + gap / 2;
        for (unsigned e = 0; isTable() && e < s.rows * s.columns; ++e)
            pointers_.push_back(origin() + e * (s.count * stride2_ + gap) - gap);
        for (unsigned k = 0; isList() && k < s.count; ++k)
            pointers_.push_back(origin() + k * stride0_ - gap);
    }

    T& at(unsigned k, unsigned i, unsigned j)
    {
        k = shape_.array ? k : 0;
        if (isTable())
            return *(pointers_[i * shape_.columns + j] + shift_ + k * stride0_);
        return origin()[k * stride0_ + i * stride1_ + j * stride2_];
    }

    void pass(std::vector<Argument>& a)
    {
        const unsigned size = sizeof(T);
        a.push_back(pointers_.empty() ? argument(origin()) : argument(pointers_.data()));
        if (!pointers_.empty())
            a.push_back(argument(shift_ * size));
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

    // Makes entry k of the list null; only lists have one.
    bool loseObject(unsigned k)
    {
        if (isList())
            pointers_[k] = nullptr;
        return isList();
    }

private:
    T* origin() { return values_.begin() + 4 + first_; } // behind the first shifted entry
    bool isTable() const { return layout_ == "_P" || layout_ == "_PS2"; }
    bool isList() const { return shape_.array && (layout_ == "_L" || layout_ == "_LS2"); }

    Shape shape_;
    std::string layout_;
    AlignedRun<T> values_;
    std::vector<T*> pointers_;
    unsigned first_, shift_, stride0_, stride1_, stride2_;
};

// The gaps of the destination and of the sources, and which of them begin an element behind a multiple of 16:
// bit 0 is the destination, bits 1 and 2 are the sources.
struct Gaps
{
    unsigned dst, src[2], odd = 0;
};

// One call of the member of a code, matrices or vectors and at most one constant, with operands of its own.
template <typename T>
class Call
{
public:
    struct Shape
    {
        unsigned fixed, width, height, count; // `fixed` is 0 for a general member
    };
    static constexpr T value = T(0.3);

    Call(const std::string& root, const std::string& code, const std::string& layout, Shape s, Gaps gaps)
        : shape_(s), batch_(code.find('a') != code.npos), vectors_(code.find('v') != code.npos)
    {
        for (const char c : code) {
            if (c == 'a')
                sources_.back().array = true;
            else if (c == 'T')
                sources_.back().turned = true;
            else
                sources_.push_back({.constant = c == 'c'});
        }
        const char kind = vectors_ ? 'v' : 'm';
        for (const Source& source : sources_)
            if (!source.constant) {
                src.emplace_back(typename Objects<T>::Shape{kind, source.array,
                                                            source.turned ? s.width : s.height,
                                                            source.turned ? s.height : s.width, s.count},
                                 layout, gaps.src[src.size()], gaps.odd >> (src.size() + 1) & 1);
                src.back().randomise(static_cast<unsigned>(src.size()));
            }
        for (int copy = 0; copy < 2; ++copy)
            dst.emplace_back(typename Objects<T>::Shape{kind, batch_, s.height, s.width, s.count}, layout,
                             gaps.dst, gaps.odd & 1);
        const std::string order = std::to_string(s.fixed);
        const std::string size = s.fixed == 0 ? "" : "_" + order + "x" + (vectors_ ? "1" : order);
        name_ = "tenk" + root + "_" + code + "_" + typeName<T>() + size + layout;
    }

    const std::string& name() const { return name_; }

    // With the first or the second destination.
    tenkStatus run(unsigned count, unsigned destination = 0) { return runTo(dst[destination], count); }
    // With the first source as the destination.
    tenkStatus runInPlace(unsigned count) { return runTo(src[0], count); }

    // Whether the first source has an object for each of the destination's, stored like it.
    bool canBeInPlace() const
    {
        const Source& first = sources_[sources_[0].constant ? 1 : 0];
        return first.array == batch_ && !first.turned;
    }

    tenkStatus runTo(Objects<T>& destination, unsigned count)
    {
        std::vector<Argument> arguments;
        for (Objects<T>& source : src)
            source.pass(arguments);
        for (const Source& source : sources_)
            if (source.constant)
                arguments.push_back(argument(value));
        destination.pass(arguments);
        if (shape_.fixed == 0) {
            arguments.push_back(argument(shape_.width));
            if (!vectors_)
                arguments.push_back(argument(shape_.height));
        }
        if (batch_)
            arguments.push_back(argument(count));
        return invoke(name_, arguments).status;
    }

    // The second destination by the formula.
    void compute(const std::function<T(T, T)>& f)
    {
        for (unsigned k = 0; k < shape_.count; ++k)
            for (unsigned i = 0; i < shape_.height; ++i)
                for (unsigned j = 0; j < shape_.width; ++j) {
                    T x[2] = {value, value};
                    unsigned n = 0;
                    for (unsigned s = 0; s < sources_.size(); ++s)
                        if (!sources_[s].constant) {
                            x[s] = sources_[s].turned ? src[n].at(k, j, i) : src[n].at(k, i, j);
                            ++n;
                        }
                    dst[1].at(k, i, j) = f(x[0], x[1]);
                }
    }

    std::deque<Objects<T>> src, dst;

private:
    struct Source
    {
        bool constant = false, array = false, turned = false;
    };

    Shape shape_;
    bool batch_, vectors_;
    std::vector<Source> sources_;
    std::string name_;
};

// Calls one function and compares all of the destination with the formula.
template <typename T>
void expectFormula(Call<T> call, unsigned count, const std::function<T(T, T)>& f)
{
    call.compute(f);
    EXPECT_EQ(call.run(count), tenkOk) << call.name();
    EXPECT_TRUE(call.dst[0].all() == call.dst[1].all()) << call.name();
}

// Calls visit(code, layout, fixed) for all layouts and sizes of some codes.
inline void eachMember(const std::vector<std::string>& codes,
                       const std::function<void(const std::string&, const std::string&, unsigned)>& visit)
{
    for (const std::string& code : codes)
        for (const std::string layout : {"", "_S2", "_P", "_PS2", "_L", "_LS2"})
            for (unsigned fixed : {0U, 3U, 4U, 5U, 6U})
                if (code.find('a') != code.npos || layout == "" || layout == "_S2" || layout == "_P")
                    visit(code, layout, fixed);
}

template <typename T>
typename Call<T>::Shape shapeOf(const std::string& code, unsigned fixed, unsigned count)
{
    const bool vectors = code.find('v') != code.npos;
    return {fixed, fixed ? fixed : 17, vectors ? 1 : fixed ? fixed : 3, count};
}

// Which members to leave out, by what is behind the root in their names: always, and with operands of
// different gaps.
struct LeftOut
{
    std::vector<std::string> always, withDifferentGaps;

    bool has(const std::string& name, bool differentGaps) const
    {
        const auto in = [&](const std::vector<std::string>& names) {
            return std::find(names.begin(), names.end(), name) != names.end();
        };
        return in(always) || (differentGaps && in(withDifferentGaps));
    }
};

// All layouts and sizes of some codes, in both types: with gaps and without, that differ among the operands,
// and with every choice of operands on multiples of 16, where rows are on them as well and where they are
// not.
inline void expectFormulaEverywhere(const std::string& root, const std::vector<std::string>& codes,
                                    const std::function<float(float, float)>& f32,
                                    const std::function<double(double, double)>& f64, const LeftOut& leftOut)
{
    constexpr unsigned alone = betweenObjectsAlone;
    std::vector<Gaps> all = {{0, {0, 0}}, {1, {1, 1}},     {2, {2, 2}},     {1, {0, 0}},    {0, {1, 0}},
                             {0, {0, 1}}, {alone, {0, 0}}, {0, {alone, 0}}, {0, {0, alone}}};
    for (unsigned odd = 1; odd < 8; ++odd)
        for (unsigned gap : {0U, 1U})
            all.push_back({gap, {gap, gap}, odd});
    eachMember(codes, [&](const std::string& code, const std::string& layout, unsigned fixed) {
        for (const Gaps& gaps : all)
            for (unsigned count : {1U, 2U, 5U}) {
                const std::string size = std::to_string(fixed) + "x" + std::to_string(fixed) + layout;
                const bool different = gaps.dst != gaps.src[0] || gaps.dst != gaps.src[1];
                if (count > 1 && (code.find('a') == code.npos || (count == 5 && gaps.odd != 0)))
                    continue;
                SCOPED_TRACE("gaps " + std::to_string(gaps.dst) + std::to_string(gaps.src[0]) +
                             std::to_string(gaps.src[1]) + ", odd " + std::to_string(gaps.odd) + ", count " +
                             std::to_string(count));
                if (!leftOut.has(code + "_32f_" + size, different))
                    expectFormula<float>({root, code, layout, shapeOf<float>(code, fixed, count), gaps},
                                         count, f32);
                if (!leftOut.has(code + "_64f_" + size, different))
                    expectFormula<double>({root, code, layout, shapeOf<double>(code, fixed, count), gaps},
                                          count, f64);
            }
    });
}

// With the first source as the destination, every element is read just before it is written.
template <typename T>
void expectFormulaInPlace(Call<T> call, unsigned count, const std::function<T(T, T)>& f)
{
    if (!call.canBeInPlace())
        return;
    call.dst[1].randomise(1); // like the first source, gaps and all
    call.compute(f);
    EXPECT_EQ(call.runInPlace(count), tenkOk) << call.name();
    EXPECT_TRUE(call.src[0].all() == call.dst[1].all()) << call.name();
}

inline void worksInPlaceEverywhere(const std::string& root, const std::vector<std::string>& codes,
                                   const std::function<float(float, float)>& f32,
                                   const std::function<double(double, double)>& f64, const LeftOut& leftOut)
{
    eachMember(codes, [&](const std::string& code, const std::string& layout, unsigned fixed) {
        const std::string size = std::to_string(fixed) + "x" + std::to_string(fixed) + layout;
        const unsigned count = code.find('a') == code.npos ? 1 : 3;
        for (const unsigned odd : {0U, 3U, 4U, 7U}) // the destination is where the first source is
            for (const unsigned gap : {0U, 1U}) {
                const Gaps gaps = {gap, {gap, gap}, odd};
                SCOPED_TRACE("gap " + std::to_string(gap) + ", odd " + std::to_string(odd));
                if (!leftOut.has(code + "_32f_" + size, false))
                    expectFormulaInPlace<float>(
                        {root, code, layout, shapeOf<float>(code, fixed, count), gaps}, count, f32);
                if (!leftOut.has(code + "_64f_" + size, false))
                    expectFormulaInPlace<double>(
                        {root, code, layout, shapeOf<double>(code, fixed, count), gaps}, count, f64);
            }
    });
}

// An entry that is null ends a call before its object: the same bytes are written as by a call that is told
// to stop there. That call does not look at the entry.
template <typename T>
void testsListsObjectByObject(const std::string& root, const std::string& code, const std::string& layout,
                              unsigned fixed, unsigned gap)
{
    for (unsigned bad : {0U, 1U, 2U})
        for (std::size_t operand = 0; operand < 3; ++operand) {
            Call<T> call(root, code, layout, shapeOf<T>(code, fixed, 3), {gap, {gap, gap}});
            EXPECT_EQ(call.run(bad, 1), tenkOk) << call.name();
            if (operand > call.src.size() ||
                !(operand == 0 ? call.dst[0] : call.src[operand - 1]).loseObject(bad))
                continue;
            EXPECT_EQ(call.run(bad), tenkOk) << call.name();
            EXPECT_EQ(call.run(3), tenkNullPointerError) << call.name();
            EXPECT_TRUE(call.dst[0].all() == call.dst[1].all())
                << call.name() << " operand " << operand << " at " << bad;
        }
}

inline void testsListsObjectByObjectEverywhere(const std::string& root, const std::vector<std::string>& codes,
                                               const LeftOut& leftOut)
{
    eachMember(codes, [&](const std::string& code, const std::string& layout, unsigned fixed) {
        const std::string size = std::to_string(fixed) + "x" + std::to_string(fixed) + layout;
        for (const unsigned gap : {0U, 1U}) {
            if (layout != "_L" && layout != "_LS2")
                continue;
            if (!leftOut.has(code + "_32f_" + size, false))
                testsListsObjectByObject<float>(root, code, layout, fixed, gap);
            testsListsObjectByObject<double>(root, code, layout, fixed, gap);
        }
    });
}

} // namespace elementwise
