// Operands of any layout for tests that go over all members of a family: where the elements lie, and the
// arguments that say so. The steps between elements, rows and objects leave gaps, and no address is on a
// 16-byte boundary by plan.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/call.h"
#include "support/library.h"

namespace support {

using Arguments = std::vector<Argument>;

inline Argument pointer(const void* p)
{
    return {Argument::Kind::pointer, reinterpret_cast<std::uintptr_t>(p)};
}
inline Argument word(std::uint32_t w)
{
    return {Argument::Kind::word, w};
}

// Layouts by their suffixes, "" for Standard.
inline const std::vector<std::string> singleLayouts = {"", "_S2", "_P"};
inline const std::vector<std::string> arrayLayouts = {"", "_S2", "_P", "_PS2", "_L", "_LS2"};

// An operand: `count` objects of rows x columns elements, or one object beside arrays. A vector has no row
// step.
template <typename T>
class Objects
{
public:
    enum class Kind
    {
        matrix,
        vector
    };

    Objects(Kind kind, std::string layout, bool array, unsigned count, unsigned rows, unsigned columns)
        : kind_(kind),
          layout_(std::move(layout)),
          array_(array),
          count_(array ? count : 1),
          rows_(rows),
          columns_(columns),
          stride2_(layout_ == "_S2" || layout_ == "_LS2" ? 3 : 1),
          stride1_(columns * stride2_ + 1),
          stride0_(rows * stride1_ + 2),
          memory_(std::size_t{count_} * rows * columns * 4 + count_ * (rows + 3) + 64, T(77))
    {
        if (isTable()) {
            stride0_ = layout_ == "_PS2" && array_ ? 2 : 1;
            for (unsigned e = 0; e < rows * columns; ++e)
                pointers_.push_back(memory_.data() + std::size_t{e} * count_ * stride0_ - shift);
        } else if (isList()) {
            for (unsigned k = 0; k < count_; ++k)
                pointers_.push_back(memory_.data() + std::size_t{k} * stride0_ - shift);
        }
    }

    Objects(Objects&&) = default; // moves keep the elements where they are

    T& at(unsigned k, unsigned i, unsigned j)
    {
        if (!array_)
            k = 0;
        if (isTable())
            return memory_[(std::size_t{i} * columns_ + j) * count_ * stride0_ + std::size_t{k} * stride0_];
        return memory_[std::size_t{k} * stride0_ + i * stride1_ + j * stride2_];
    }
    T& at(unsigned k, unsigned j) { return at(k, 0, j); }

    template <typename F>
    Objects& fill(F f)
    {
        for (unsigned k = 0; k < count_; ++k)
            for (unsigned i = 0; i < rows_; ++i)
                for (unsigned j = 0; j < columns_; ++j)
                    at(k, i, j) = f();
        return *this;
    }

    // Entries of the table or list.
    std::vector<T*>& pointers() { return pointers_; }

    Arguments arguments() const
    {
        Arguments a = {isTable() || isList() ? pointer(pointers_.data()) : pointer(memory_.data())};
        if (isTable() || isList())
            a.push_back(word(shift * sizeof(T)));
        if (array_ && !isList() && layout_ != "_P")
            a.push_back(word(bytes(stride0_)));
        if (kind_ == Kind::matrix && !isTable())
            a.push_back(word(bytes(stride1_)));
        if (layout_ == "_S2" || layout_ == "_LS2")
            a.push_back(word(bytes(stride2_)));
        return a;
    }

    bool isTable() const { return layout_ == "_P" || layout_ == "_PS2"; }
    bool isList() const { return array_ && (layout_ == "_L" || layout_ == "_LS2"); }

    const std::vector<T>& memory() const { return memory_; }

private:
    static constexpr std::ptrdiff_t shift = 5;
    static std::uint32_t bytes(std::size_t elements)
    {
        return static_cast<std::uint32_t>(elements * sizeof(T));
    }

    Kind kind_;
    std::string layout_;
    bool array_;
    unsigned count_, rows_, columns_;
    std::size_t stride2_, stride1_, stride0_;
    std::vector<T> memory_;
    std::vector<T*> pointers_;
};

template <typename T>
Objects<T> vectors(const std::string& layout, bool array, unsigned count, unsigned length)
{
    return {Objects<T>::Kind::vector, layout, array, count, 1, length};
}
template <typename T>
Objects<T> matrices(const std::string& layout, bool array, unsigned count, unsigned height, unsigned width)
{
    return {Objects<T>::Kind::matrix, layout, array, count, height, width};
}

template <typename T>
std::string typeName()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}
template <typename T>
Argument value(T x)
{
    Argument a;
    a.kind = sizeof(T) == 4 ? Argument::Kind::value32f : Argument::Kind::value64f;
    __builtin_memcpy(&a.bits, &x, sizeof x);
    return a;
}

// Calls an exported function by its name with the arguments in order.
inline std::int32_t callByName(const std::string& name, std::initializer_list<Arguments> groups)
{
    void* const f = exportedAddress(name);
    if (!f)
        throw std::runtime_error("there is no function " + name);
    Arguments all;
    for (const Arguments& g : groups)
        all.insert(all.end(), g.begin(), g.end());
    return call(f, all).status;
}

} // namespace support
