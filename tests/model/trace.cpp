// Trace: the sum of the diagonal of a square matrix, into adjacent results.
#include "block_sum.h"
#include "frame.h"
#include "registry.h"

namespace model {

namespace {

template <typename T>
struct Trace
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Operand src = call.operand("src");
        const Address dst = call.pointer("dst");
        const std::uint32_t order = call.size("order");
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        // Only the first row of a table is looked through; the entries of the diagonal below it are not.
        if (name.anyArray() && src.nullInTable(memory, order))
            return nullPointerError;
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (nullInLists(memory, k, {&src}))
                return nullPointerError;
            const Address result = moved(dst, k, sizeof(T));
            if (isShortKernel(name)) {
                memory.store(result, straightSum(memory, src, k, order));
                continue;
            }
            // The running sum stands in the result after every addition.
            T sum = T(0);
            memory.store(result, sum);
            for (std::uint32_t i = 0; i < order; ++i) {
                if (!name.anyArray() && src.nullEntry(memory, Address{i} * order + i))
                    return nullPointerError;
                sum = sum + memory.load<T>(src.stored(memory, k, i, i));
                memory.store(result, sum);
            }
        }
        return ok;
    }

    static T straightSum(Memory& memory, const Operand& src, std::uint32_t k, std::uint32_t order)
    {
        T sum = memory.load<T>(src.stored(memory, k, 0, 0));
        for (std::uint32_t i = 1; i < order; ++i)
            sum = sum + memory.load<T>(src.stored(memory, k, i, i));
        return sum;
    }
};

const Family family(Root::Trace, &byType<Trace>);

} // namespace

} // namespace model
