#include "call.h"

#include <cstdio>
#include <stdexcept>

namespace model {

Operand::Operand(const Call& call, const Form& form, Shape shape)
    : form_(form), shape_(shape), elementSize_(call.name().elementSize()), pointer_(call.pointer(form.base))
{
    const auto argument = [&](const char* what, Displacement otherwise) {
        const std::string text = form.base + what;
        return call.has(text) ? displacement(call.word(text)) : otherwise;
    };
    shift_ = argument("Shift", 0);
    stride0_ = argument("Stride0", 0);
    stride1_ = argument("Stride1", 0);
    elementStep_ = argument("Stride2", static_cast<Displacement>(elementSize_));
}

Address Operand::object(Memory& memory, std::uint32_t k) const
{
    if (isTable())
        throw std::logic_error("an operand with a table has no place of its own");
    if (!form_.array)
        return pointer_;
    if (isList())
        return moved(entry(memory, k), 1, shift_);
    return moved(pointer_, k, stride0_);
}

Address Operand::stored(Memory& memory, std::uint32_t k, std::uint32_t row, std::uint32_t column) const
{
    if (form_.dense)
        throw std::logic_error("a dense destination has no rows");
    if (isTable()) {
        const Address rowLength = form_.transposed ? shape_.height : shape_.width;
        return through(memory, row * rowLength + column, k);
    }
    return moved(moved(object(memory, k), row, stride1_), column, elementStep_);
}

Address Operand::used(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const
{
    return form_.transposed ? stored(memory, k, j, i) : stored(memory, k, i, j);
}

Address Operand::entry(Memory& memory, Address index) const
{
    return memory.loadPointer(pointer_ + index * sizeof(Address));
}

Address Operand::through(Memory& memory, Address index, std::uint32_t k) const
{
    const Address first = moved(entry(memory, index), 1, shift_);
    if (!form_.array)
        return first;
    // The values of one element stand side by side over the objects, or Stride0 apart.
    const bool spread = form_.layout == Layout::stridedPointer;
    return moved(first, k, spread ? stride0_ : static_cast<Displacement>(elementSize_));
}

bool Operand::nullEntry(Memory& memory, Address index) const
{
    return (isTable() || isList()) && entry(memory, index) == 0;
}

bool Operand::nullInTable(Memory& memory, std::uint32_t length) const
{
    if (!isTable())
        return false;
    for (std::uint32_t index = 0; index < length; ++index) {
        if (nullEntry(memory, index))
            return true;
    }
    return false;
}

Call::Call(const Name& name, std::vector<support::Argument> arguments)
    : name_(&name), parameters_(model::parameters(name)), arguments_(std::move(arguments))
{
    if (arguments_.size() != parameters_.size())
        throw std::logic_error("wrong number of arguments for " + name.text);
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        if (arguments_[i].kind != parameters_[i].kind)
            throw std::logic_error("wrong kind of " + parameters_[i].name + " for " + name.text);
    }
}

bool Call::has(std::string_view argument) const
{
    for (const Parameter& parameter : parameters_) {
        if (parameter.name == argument)
            return true;
    }
    return false;
}

std::uint64_t Call::bits(std::string_view argument) const
{
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
        if (parameters_[i].name == argument)
            return arguments_[i].bits;
    }
    throw std::logic_error(name_->text + " has no argument " + std::string(argument));
}

std::uint32_t Call::word(std::string_view argument) const
{
    return static_cast<std::uint32_t>(bits(argument));
}

Address Call::pointer(std::string_view argument) const
{
    return static_cast<Address>(bits(argument));
}

std::uint32_t Call::size(std::string_view argument) const
{
    return name_->general() ? word(argument) : name_->size;
}

Operand Call::operand(std::string_view base) const
{
    for (const Form& form : forms(*name_)) {
        if (form.base == base)
            return Operand(*this, form, shapeOf(*this, form));
    }
    throw std::logic_error(name_->text + " has no operand " + std::string(base));
}

std::string Call::text() const
{
    std::string list;
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
        const std::uint64_t raw = arguments_[i].bits;
        char text[64];
        switch (parameters_[i].kind) {
        case Kind::pointer:
            std::snprintf(text, sizeof(text), "0x%llx", static_cast<unsigned long long>(raw));
            break;
        case Kind::word:
            std::snprintf(text, sizeof(text), "%d",
                          static_cast<std::int32_t>(static_cast<std::uint32_t>(raw)));
            break;
        case Kind::value32f:
            std::snprintf(text, sizeof(text), "%a",
                          static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(raw))));
            break;
        case Kind::value64f:
            std::snprintf(text, sizeof(text), "%a", std::bit_cast<double>(raw));
            break;
        }
        list += (i == 0 ? "" : ", ") + parameters_[i].name + " = " + text;
    }
    return name_->text + "(" + list + ")";
}

Shape shapeOf(const Call& call, const Form& form)
{
    const std::string& base = form.base;
    if (form.dense)
        return {};
    const std::vector<std::string> sizes = sizeNames(call.name());
    if (sizes.empty()) // only vectors of a fixed length
        return {call.name().size, 1};
    switch (call.name().root) {
    case Root::Mul:
        if (sizes[0] == "src1Width") {
            if (base == "src1")
                return {call.size("src1Width"), call.size("src1Height")};
            if (sizes.size() == 3)
                return {base == "src2" ? call.size("src2Length") : call.size("src1Height"), 1};
            return {call.size("src2Width"),
                    base == "src2" ? call.size("src2Height") : call.size("src1Height")};
        }
        break;
    case Root::Gaxpy:
        if (base != "src1")
            return {base == "src2" ? call.size("width") : call.size("height"), 1};
        break;
    case Root::QRBackSubst:
        if (base != "src1")
            return {base == "src2" ? call.size("height") : call.size("width"), 1};
        break;
    case Root::Transpose:
        if (base == "dst")
            return {call.size("height"), call.size("width")};
        break;
    default:
        break;
    }
    if (!form.matrix)
        return {call.size(sizes[0]), 1};
    if (sizes[0] == "order")
        return {call.size("order"), call.size("order")};
    return {call.size("width"), call.size("height")};
}

} // namespace model
