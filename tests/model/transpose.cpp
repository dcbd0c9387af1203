// Transpose: the element at (i, j) of the source goes to (j, i) of the destination, as raw bits.
#include "frame.h"
#include "registry.h"

namespace model {

namespace {

template <typename T>
struct Transpose
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Operand src = call.operand("src");
        const Operand dst = call.operand("dst");
        const std::uint32_t width = call.size("width");
        const std::uint32_t height = call.size("height");
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        if (nullInTables(call, memory, {&src, &dst}))
            return nullPointerError;
        // The fixed sizes read a whole object or a single element before they write; only the loops of the
        // general members have an order that a caller can rely on.
        if (!call.name().general())
            memory.setOrder(Memory::Order::open);
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            memory.nextObject();
            if (nullInLists(memory, k, {&src, &dst}))
                return nullPointerError;
            for (std::uint32_t i = 0; i < height; ++i) {
                for (std::uint32_t j = 0; j < width; ++j) {
                    if (!src.isTable()) {
                        moveElement<T>(memory, dst.stored(memory, k, j, i), src.stored(memory, k, i, j));
                        continue;
                    }
                    // The tables are row-major for a square matrix only: each is indexed with the length of
                    // the other's row.
                    const std::uint32_t from = i * height + j;
                    const std::uint32_t to = j * width + i;
                    if (!src.form().array && (src.nullEntry(memory, from) || dst.nullEntry(memory, to)))
                        return nullPointerError;
                    moveElement<T>(memory, dst.through(memory, to, k), src.through(memory, from, k));
                }
            }
        }
        return ok;
    }
};

const Family family(Root::Transpose, &byType<Transpose>);

} // namespace

} // namespace model
