// Operands in any layout, and calls by name: for tests that go over many members.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/mman.h>
#include <vector>

#include "support/call.h"
#include "support/library.h"
#include "tenk/types.h"

namespace objects {

using Arguments = std::vector<support::Argument>;

inline support::Argument word(std::uint32_t w)
{
    return {support::Argument::Kind::word, w};
}
inline support::Argument pointer(const void* p)
{
    return {support::Argument::Kind::pointer, reinterpret_cast<std::uintptr_t>(p)};
}
inline Arguments words(std::initializer_list<std::uint32_t> list)
{
    Arguments a;
    for (std::uint32_t w : list)
        a.push_back(word(w));
    return a;
}
inline Arguments operator+(Arguments a, const Arguments& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline std::int32_t call(const std::string& name, const Arguments& arguments)
{
    void* const f = support::exportedAddress(name);
    if (!f) {
        ADD_FAILURE() << "there is no " << name;
        return 1;
    }
    return support::call(f, arguments).status;
}

inline const std::string singleLayouts[] = {"", "_S2", "_P"};
inline const std::string arrayLayouts[] = {"", "_S2", "_P", "_PS2", "_L", "_LS2"};

inline bool hasTable(const std::string& layout)
{
    return layout == "_P" || layout == "_PS2";
}
inline bool hasList(const std::string& layout)
{
    return layout == "_L" || layout == "_LS2";
}
inline bool hasStep(const std::string& layout)
{
    return layout == "_S2" || layout == "_LS2";
}

template <typename T>
const char* typeName()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}
inline std::string sizeName(unsigned n)
{
    return n == 0 ? "" : "_" + std::to_string(n) + "x" + std::to_string(n);
}

// `count` stored objects of rows x columns elements in a layout. Between rows, between elements in a strided
// layout, and between objects there are gaps. A vector has one row and no Stride1.
template <typename T>
class Objects
{
public:
    Objects(std::string layout, bool array, bool vector, unsigned count, unsigned rows, unsigned columns)
        : layout_(std::move(layout)),
          array_(array),
          vector_(vector),
          count_(array ? count : 1),
          rows_(rows),
          columns_(columns),
          step_(hasStep(layout_) ? 2 : 1),
          rowStep_(columns * step_ + 1),
          objectStep_(rows * rowStep_ + 1),
          values_(std::max<std::size_t>(std::size_t{count_} * objectStep_, 1), T(0))
    {
        if (hasTable(layout_))
            for (unsigned e = 0; e < rows_ * columns_; ++e)
                pointers.push_back(&at(0, e / columns_, e % columns_));
        else if (hasList(layout_) && array_)
            for (unsigned k = 0; k < count_; ++k)
                pointers.push_back(&at(k, 0, 0));
    }

    T& at(unsigned k, unsigned i, unsigned j)
    {
        if (!array_)
            k = 0;
        if (layout_ == "_P" && array_)
            return values_[(std::size_t{i} * columns_ + j) * count_ + k];
        return values_[std::size_t{k} * objectStep_ + i * rowStep_ + j * step_];
    }
    T& at(unsigned k, unsigned j) { return at(k, 0, j); }

    void fill(unsigned seed)
    {
        std::mt19937 random(seed);
        std::uniform_real_distribution<T> number(T(-1), T(1));
        for (T& x : values_)
            x = number(random);
    }
    void fillWith(T x) { std::fill(values_.begin(), values_.end(), x); }

    Arguments arguments() const
    {
        constexpr unsigned e = sizeof(T);
        const bool table = hasTable(layout_), list = hasList(layout_) && array_;
        Arguments a{pointer(table || list ? static_cast<const void*>(pointers.data()) : values_.data())};
        if (table || list)
            a.push_back(word(shift));
        if (array_ && (layout_ == "" || layout_ == "_S2" || layout_ == "_PS2"))
            a.push_back(word(objectStep_ * e));
        if (!table && !vector_)
            a.push_back(word(rowStep_ * e));
        if (hasStep(layout_))
            a.push_back(word(step_ * e));
        return a;
    }

    std::vector<T> values() const { return values_; }

    std::vector<T*> pointers; // the table or list, if the operand has one
    std::uint32_t shift = 0;

private:
    std::string layout_;
    bool array_, vector_;
    unsigned count_, rows_, columns_, step_, rowStep_, objectStep_;
    std::vector<T> values_;
};

// Memory at an address that fits a shift: what a null entry plus that shift leads to.
class LowMemory
{
public:
    LowMemory()
    {
        for (std::uintptr_t address = 0x20000000; address < 0x30000000; address += 0x1000000) {
            p_ = mmap(reinterpret_cast<void*>(address), 4096, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
            if (p_ != MAP_FAILED)
                return;
        }
        ADD_FAILURE() << "no memory at a low address";
    }
    ~LowMemory() { munmap(p_, 4096); }
    LowMemory(const LowMemory&) = delete;
    LowMemory& operator=(const LowMemory&) = delete;

    std::uint32_t shift() const { return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(p_)); }
    template <typename T>
    T& value() const
    {
        return *static_cast<T*>(p_);
    }
    // An entry that leads to x when the shift is added.
    template <typename T>
    T* before(T& x) const
    {
        return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(&x) - shift());
    }

private:
    void* p_;
};

template <typename T>
std::uint64_t bitsOf(T x)
{
    std::uint64_t b = 0;
    std::memcpy(&b, &x, sizeof x);
    return b;
}

} // namespace objects
