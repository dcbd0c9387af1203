// Copy: an array of vectors or matrices from one of the fully general layouts to another, as raw bits.
#include "frame.h"
#include "registry.h"

namespace model {

namespace {

// The vectors' member from table to table reads and writes through the destination's table, and takes from
// the source nothing but its shift and step.
bool readsThroughDestination(const Name& name)
{
    return name.codeText == "va" && isTable(name.layout) && isTable(name.destinationLayout);
}

template <typename T>
struct Copy
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        // A matrix without rows or columns is no error: there is nothing to move.
        if (call.name().codeText == "va" && zeroSize(call))
            return sizeError;
        const Operand src = call.operand("src");
        const Operand dst = call.operand("dst");
        const bool throughDestination = readsThroughDestination(call.name());
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            // The lists have an entry for each object, also where the objects are empty.
            for (const Operand* operand : {&src, &dst}) {
                if (operand->isList())
                    operand->entry(memory, k);
            }
            for (std::uint32_t i = 0; i < dst.shape().height; ++i) {
                for (std::uint32_t j = 0; j < dst.shape().width; ++j) {
                    const Address from =
                        throughDestination
                            ? moved(moved(dst.entry(memory, j), 1, src.shift()), k, src.stride0())
                            : src.stored(memory, k, i, j);
                    moveElement<T>(memory, dst.stored(memory, k, i, j), from);
                }
            }
        }
        return ok;
    }
};

const Family family(Root::Copy, &byType<Copy>);

} // namespace

} // namespace model
