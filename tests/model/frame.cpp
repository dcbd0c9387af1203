#include "frame.h"

#include <algorithm>

namespace model {

bool nullArgument(const Call& call)
{
    for (const Parameter& parameter : call.parameters()) {
        if (parameter.kind == Kind::pointer && call.pointer(parameter.name) == 0)
            return true;
    }
    return false;
}

bool zeroSize(const Call& call)
{
    for (const std::string& size : sizeNames(call.name())) {
        if (call.size(size) == 0)
            return true;
    }
    return false;
}

bool nullInTables(const Call& call, Memory& memory, std::initializer_list<const Operand*> operands)
{
    if (!call.name().anyArray())
        return false;
    std::uint32_t longest = 0;
    for (const Operand* operand : operands)
        longest = std::max(longest, operand->isTable() ? operand->tableLength() : 0);
    for (std::uint32_t index = 0; index < longest; ++index) {
        for (const Operand* operand : operands) {
            if (operand->isTable() && index < operand->tableLength() && operand->nullEntry(memory, index))
                return true;
        }
    }
    return false;
}

bool nullInLists(Memory& memory, std::uint32_t k, std::initializer_list<const Operand*> operands)
{
    for (const Operand* operand : operands) {
        if (operand->nullInList(memory, k))
            return true;
    }
    return false;
}

} // namespace model
