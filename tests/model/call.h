// One call, and its operands: where element (i, j) of object k stands.
#pragma once

#include "interface.h"
#include "memory.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace model {

using Displacement = std::intptr_t;

// A stride or shift: 32 bits in two's complement on every target, so 2^32 - 4 steps back by 4.
constexpr Displacement displacement(std::uint32_t word)
{
    return static_cast<std::int32_t>(word);
}

// The address `times` steps of `step` from `from`; the product is formed at the width of an address.
constexpr Address moved(Address from, Address times, Displacement step)
{
    return from + times * static_cast<Address>(step);
}

class Call;

// The numbers of columns and rows of a matrix as the arguments give them; a vector of n elements is one row
// of n.
struct Shape
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    bool operator==(const Shape&) const = default;
};

class Operand
{
public:
    Operand(const Call& call, const Form& form, Shape shape);

    const Form& form() const { return form_; }
    Shape shape() const { return shape_; }
    Address pointer() const { return pointer_; }
    std::size_t elementSize() const { return elementSize_; }

    // The arguments of the operand as displacements; 0 where the layout has none, except that the step
    // between elements is always there: Stride2 or the element size.
    Displacement shift() const { return shift_; }
    Displacement stride0() const { return stride0_; }
    Displacement stride1() const { return stride1_; }
    Displacement elementStep() const { return elementStep_; }

    // Element (row, column) of object k as stored. A single operand is the same object for every k.
    Address stored(Memory& memory, std::uint32_t k, std::uint32_t row, std::uint32_t column) const;

    // The element that a computation uses at (i, j): the stored (j, i) if the operand is read transposed.
    Address used(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const;

    // Element j of a vector.
    Address element(Memory& memory, std::uint32_t k, std::uint32_t j) const
    {
        return stored(memory, k, 0, j);
    }

    // Where object k begins, in the layouts that are not tables: the pointer, or the list's entry with the
    // shift.
    Address object(Memory& memory, std::uint32_t k) const;

    // --- Tables and lists ---

    bool isTable() const { return !form_.dense && model::isTable(form_.layout); }
    bool isList() const { return !form_.dense && form_.array && model::isList(form_.layout); }

    // Number of entries of the table of one object.
    std::uint32_t tableLength() const { return shape_.width * shape_.height; }

    // Entry `index` of the table or list, as it stands there.
    Address entry(Memory& memory, Address index) const;

    // The element of object k that is found through entry `index` of the table: shifted, and in an array
    // object k of its run. For members whose tables are not in row-major order.
    Address through(Memory& memory, Address index, std::uint32_t k) const;

    // Whether entry `index` is null; false where the operand has neither table nor list.
    bool nullEntry(Memory& memory, Address index) const;

    // Whether one of the first `length` entries of the table is null; false if there is no table.
    bool nullInTable(Memory& memory, std::uint32_t length) const;
    bool nullInTable(Memory& memory) const { return nullInTable(memory, tableLength()); }

    // Whether the entry of object k is null; false if the operand is no list.
    bool nullInList(Memory& memory, std::uint32_t k) const { return isList() && nullEntry(memory, k); }

private:
    Form form_;
    Shape shape_;
    std::size_t elementSize_;
    Address pointer_;
    Displacement shift_ = 0;
    Displacement stride0_ = 0;
    Displacement stride1_ = 0;
    Displacement elementStep_ = 0;
};

class Call
{
public:
    // `arguments` in the order of parameters(name).
    Call(const Name& name, std::vector<support::Argument> arguments);

    const Name& name() const { return *name_; }
    const std::vector<Parameter>& parameters() const { return parameters_; }
    const std::vector<support::Argument>& arguments() const { return arguments_; }

    bool has(std::string_view argument) const;
    std::uint32_t word(std::string_view argument) const;
    Address pointer(std::string_view argument) const;

    template <std::floating_point T>
    T value(std::string_view argument = "value") const
    {
        return std::bit_cast<T>(static_cast<BitsOf<T>>(bits(argument)));
    }

    // A size by its argument name, from the name of the function if that fixes it.
    std::uint32_t size(std::string_view argument) const;

    // The number of objects; 1 if the function takes no count.
    std::uint32_t count() const { return has("count") ? word("count") : 1; }

    // An operand with the shape that the arguments state for it. A dense destination has the pointer only.
    Operand operand(std::string_view base) const;

    // The call with all its arguments in words.
    std::string text() const;

private:
    std::uint64_t bits(std::string_view argument) const;

    const Name* name_;
    std::vector<Parameter> parameters_;
    std::vector<support::Argument> arguments_;
};

// The shape that the size arguments state for an operand: for one that is read transposed the shape of the
// use.
Shape shapeOf(const Call& call, const Form& form);

} // namespace model
