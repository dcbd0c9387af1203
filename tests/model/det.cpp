// Det of general order: pivoted elimination in scratch memory. A singular matrix has the determinant zero,
// which is no error.
#include "elimination.h"
#include "ground.h"
#include "registry.h"

namespace model {

namespace {

template <typename T>
struct Det
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Operand src = call.operand("src");
        const Address dst = call.pointer("dst");
        const Address buffer = call.pointer("buffer");
        const std::uint32_t order = call.size("order");
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        if (nullInTables(call, memory, {&src}))
            return nullPointerError;
        const std::size_t scratch = eliminationScratch(order, sizeof(T));
        undecidedIf(Ground(buffer, scratch).meets(Ground(dst, call.count() * sizeof(T))),
                    "the buffer overlaps the results");
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (nullInLists(memory, k, {&src}))
                return nullPointerError;
            const Address result = moved(dst, k, sizeof(T));
            // One, before the source is read, which shows where the result lies on the matrix.
            memory.store(result, T(1));
            memory.leaveOpen(buffer, scratch);
            Elimination<T> matrix(order);
            for (std::uint32_t i = 0; i < order; ++i) {
                for (std::uint32_t j = 0; j < order; ++j) {
                    if (!call.name().anyArray() && src.nullEntry(memory, Address{i} * order + j))
                        return nullPointerError;
                    matrix.at(i, j) = memory.load<T>(src.stored(memory, k, i, j));
                }
            }
            memory.store(result, determinant(matrix));
        }
        return ok;
    }

    static T determinant(Elimination<T>& matrix)
    {
        T product = T(1);
        for (std::uint32_t p = 0; p + 1 < matrix.order(); ++p) {
            if (!matrix.findPivot(p))
                return T(0);
            matrix.eliminate(p);
            product = product * matrix.pivot(p);
        }
        if (!matrix.lastPasses())
            return T(0);
        const T last = static_cast<T>(matrix.sign()) * matrix.last();
        return product * last;
    }
};

const Family family(Root::Det, [](const Name& name) { return name.general() ? byType<Det>(name) : nullptr; });

} // namespace

} // namespace model
