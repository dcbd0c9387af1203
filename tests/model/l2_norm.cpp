// L2Norm: the square root of the sum of the squares of a vector, into adjacent results.
#include "block_sum.h"
#include "frame.h"
#include "registry.h"
#include "roots.h"

#include <vector>

namespace model {

namespace {

// The short kernels of binary32 take the root by the processor's estimate.
bool estimatesRoot(const Name& name)
{
    return isShortKernel(name) && name.type == Type::f32;
}

// Those of arrays take four objects in one step; in lists the entries of all four are tested before it.
std::uint32_t objectsPerTest(const Name& name)
{
    return estimatesRoot(name) && name.layout == Layout::list ? 4 : 1;
}

// The short kernels, which have no zero to start from.
template <typename T>
T shortSum(const Name& name, const std::vector<T>& q)
{
    constexpr bool isDouble = sizeof(T) == 8;
    const bool array = name.anyArray();
    switch (q.size()) {
    case 3:
        if (isDouble)
            return (q[2] + q[0]) + q[1];
        return (q[0] + q[1]) + q[2];
    case 4:
        if (isDouble)
            return (q[0] + q[2]) + (q[1] + q[3]);
        if (array)
            return ((q[0] + q[1]) + q[2]) + q[3];
        return (q[0] + q[1]) + (q[2] + q[3]);
    case 5:
        if (isDouble)
            return ((q[0] + q[2]) + q[4]) + (q[1] + q[3]);
        if (array)
            return ((q[0] + q[2]) + (q[1] + q[3])) + q[4];
        return ((q[0] + q[1]) + (q[2] + q[3])) + q[4];
    default:
        if (isDouble || array)
            return ((q[0] + q[2]) + q[4]) + ((q[1] + q[3]) + q[5]);
        return ((q[0] + q[1]) + (q[2] + q[3])) + (q[4] + q[5]);
    }
}

template <typename T>
struct L2Norm
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Operand src = call.operand("src");
        const Address dst = call.pointer("dst");
        const std::uint32_t length = call.size("length");
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        if (nullInTables(call, memory, {&src}))
            return nullPointerError;
        // The fixed sizes may have the elements of the next objects in hand when they store a result.
        if (!name.general())
            memory.setOrder(Memory::Order::readsOpen);
        const std::uint32_t step = objectsPerTest(name);
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            const bool wholeStep = k % step == 0 && call.count() - k >= step;
            for (std::uint32_t ahead = 0; ahead < (wholeStep ? step : 1); ++ahead) {
                if (nullInLists(memory, k + ahead, {&src}))
                    return nullPointerError;
            }
            const auto square = [&](std::uint32_t i) {
                const T x = memory.load<T>(src.element(memory, k, i));
                const T rounded = x * x;
                return rounded;
            };
            T sum;
            if (isShortKernel(name)) {
                std::vector<T> squares;
                for (std::uint32_t i = 0; i < length; ++i)
                    squares.push_back(square(i));
                sum = shortSum(name, squares);
            } else if (!name.anyArray() && name.general() && name.layout == Layout::standard) {
                sum = sumByAddress<T>(src.pointer(), length, square);
            } else {
                sum = T(0);
                for (std::uint32_t i = 0; i < length; ++i) {
                    // The table of a single vector is looked at element by element.
                    if (!name.anyArray() && src.nullEntry(memory, i))
                        return nullPointerError;
                    sum = sum + square(i);
                }
            }
            memory.store(moved(dst, k, sizeof(T)), estimatesRoot(name) ? refinedRoot(sum) : squareRoot(sum));
        }
        return ok;
    }
};

const Family family(Root::L2Norm, &byType<L2Norm>);

} // namespace

} // namespace model
