// For the tests of the factorisations and solves: operands in any layout, calls by name, and comparison by
// bits.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include "support/call.h"
#include "support/library.h"
#include "tenk/types.h"

namespace factors {

enum class Form
{
    standard,
    strided,
    pointer,
    stridedPointer,
    list,
    stridedList
};
inline constexpr Form forms[] = {Form::standard,       Form::strided, Form::pointer,
                                 Form::stridedPointer, Form::list,    Form::stridedList};

inline std::string suffix(Form f)
{
    static const char* const text[] = {"", "_S2", "_P", "_PS2", "_L", "_LS2"};
    return text[static_cast<int>(f)];
}
inline bool isTable(Form f)
{
    return f == Form::pointer || f == Form::stridedPointer;
}
inline bool isList(Form f)
{
    return f == Form::list || f == Form::stridedList;
}
inline bool isStrided(Form f)
{
    return f == Form::strided || f == Form::stridedList;
}
inline bool existsForOne(Form f)
{
    return f == Form::standard || f == Form::strided || f == Form::pointer;
}

template <typename T>
const char* typeText()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}

// tenkLUDecomp_ma_32f_3x3_S2 and the like; size 0 is a general member.
template <typename T>
std::string nameOf(const std::string& root, const std::string& codes, unsigned size, Form f)
{
    const std::string n = std::to_string(size);
    return "tenk" + root + "_" + codes + "_" + typeText<T>() + (size ? "_" + n + "x" + n : "") + suffix(f);
}

using Arguments = std::vector<support::Argument>;
inline void addPointer(Arguments& to, const void* p)
{
    to.push_back({support::Argument::Kind::pointer, reinterpret_cast<std::uintptr_t>(p)});
}
inline void addWord(Arguments& to, std::uint32_t word)
{
    to.push_back({support::Argument::Kind::word, word});
}

inline tenkStatus callByName(const std::string& name, const Arguments& arguments)
{
    void* const function = support::exportedAddress(name);
    EXPECT_NE(function, nullptr) << name;
    if (!function)
        return 1;
    const support::Outcome outcome = support::call(function, arguments);
    EXPECT_TRUE(outcome.x87Empty && outcome.controlKept && outcome.registersKept) << name;
    return outcome.status;
}

// An operand: `count` objects of `rows` x `columns` in one layout, with gaps everywhere and memory behind its
// end that is readable and holds large numbers. A vector is an object of one row.
template <typename T>
class Operand
{
public:
    // `room` is the number of columns in the gap behind each row.
    Operand(Form form, bool array, bool vector, std::size_t rows, std::size_t columns, std::size_t count,
            std::size_t room = 0)
        : form(form), array(array), vector(vector), rows(rows), columns(columns), count(array ? count : 1)
    {
        const std::size_t E = sizeof(T);
        stride2 = isStrided(form) ? E + 4 : E;
        stride1 = (columns + room) * stride2 + 4;
        if (isTable(form)) {
            stride0 = !array ? 0 : form == Form::pointer ? E : E + 8;
            const std::size_t run = this->count * std::max<std::size_t>(stride0, E) + 4;
            const std::size_t entries =
                rows * columns + 64 * (count + 1); // tables may be read behind their end
            memory.assign(rows * columns * run + 4096, filling);
            for (std::size_t e = 0; e < entries; ++e)
                pointers.push_back(at(4 + (e < rows * columns ? e * run : rows * columns * run)) - shift);
        } else {
            stride0 = rows * stride1 + 12;
            memory.assign(this->count * stride0 + (count + 2) * (columns + 1) * (stride2 + 1) * 2 + 64,
                          filling);
            for (std::size_t k = 0; k < this->count; ++k)
                pointers.push_back(at(4 + k * stride0) - shift);
        }
    }

    T get(std::size_t k, std::size_t i, std::size_t j) const
    {
        T x;
        std::memcpy(&x, address(k, i, j), sizeof x);
        return x;
    }
    void set(std::size_t k, std::size_t i, std::size_t j, T x)
    {
        std::memcpy(address(k, i, j), &x, sizeof x);
    }

    // The elements of object k, row by row.
    std::vector<T> object(std::size_t k) const
    {
        std::vector<T> all;
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                all.push_back(get(k, i, j));
        return all;
    }
    void setObject(std::size_t k, const std::vector<T>& all)
    {
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                set(k, i, j, all[i * columns + j]);
    }

    // `unusedStride0`: a single matrix that passes one as if it were an array.
    void pass(Arguments& to, bool unusedStride0 = false) const
    {
        const bool list = isList(form) && array;
        if (isTable(form) || list)
            addPointer(to, pointers.data());
        else
            addPointer(to, address(0, 0, 0));
        if (isTable(form) || list)
            addWord(to, shift);
        if (array && !list && form != Form::pointer)
            addWord(to, static_cast<std::uint32_t>(stride0));
        if (unusedStride0)
            addWord(to, 0x7EADBEEF);
        if (!vector && !isTable(form))
            addWord(to, static_cast<std::uint32_t>(stride1));
        if (isStrided(form))
            addWord(to, static_cast<std::uint32_t>(stride2));
    }

    unsigned char* at(std::size_t byte) { return memory.data() + byte; }
    unsigned char* address(std::size_t k, std::size_t i, std::size_t j) const
    {
        if (isTable(form))
            return pointers[i * columns + j] + shift + k * stride0;
        return pointers[k] + shift + i * stride1 + j * stride2;
    }

    static constexpr unsigned char filling = 0x4B; // 1.3e7 in binary32, 5.2e54 in binary64
    static constexpr std::uint32_t shift = 8;

    Form form;
    bool array, vector;
    std::size_t rows, columns, count;
    std::size_t stride0 = 0, stride1 = 0, stride2 = 0;
    std::vector<unsigned char> memory;
    std::vector<unsigned char*> pointers; // the table or the list
};

// Equal bits; NaNs are all the same.
template <typename T>
bool same(T a, T b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}
template <typename T>
::testing::AssertionResult same(const std::vector<T>& a, const std::vector<T>& b)
{
    if (a.size() != b.size())
        return ::testing::AssertionFailure() << "sizes " << a.size() << " and " << b.size();
    for (std::size_t e = 0; e < a.size(); ++e)
        if (!same(a[e], b[e]))
            return ::testing::AssertionFailure() << "element " << e << ": " << a[e] << " and " << b[e];
    return ::testing::AssertionSuccess();
}

template <typename T>
std::vector<T> randomElements(std::mt19937& random, std::size_t n)
{
    std::uniform_real_distribution<double> uniform(-1, 1);
    std::vector<T> all(n);
    for (T& x : all)
        x = static_cast<T>(uniform(random));
    return all;
}

// The shapes of the tests of whole families: sizes of general members, and 3 to 6 by name.
struct Shape
{
    unsigned fixed;
    std::size_t width, height;
};
inline std::string text(const Shape& s)
{
    return (s.fixed ? "fixed " : "general ") + std::to_string(s.width) + " x " + std::to_string(s.height);
}

// Memory that ends where nothing may be read any more.
class PageEnd
{
public:
    PageEnd() : page(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
    {
        memory = static_cast<unsigned char*>(
            mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        EXPECT_NE(memory, MAP_FAILED);
        EXPECT_EQ(mprotect(memory + page, page, PROT_NONE), 0);
    }
    ~PageEnd() { munmap(memory, 2 * page); }
    PageEnd(const PageEnd&) = delete;
    PageEnd& operator=(const PageEnd&) = delete;

    // The last n elements of type T.
    template <typename T>
    T* last(std::size_t n) const
    {
        return reinterpret_cast<T*>(memory + page - n * sizeof(T));
    }

private:
    std::size_t page;
    unsigned char* memory;
};

} // namespace factors
