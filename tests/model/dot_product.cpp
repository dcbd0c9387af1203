// DotProduct: the sum of the products of the elements of two vectors, into adjacent results.
#include "block_sum.h"
#include "frame.h"
#include "registry.h"

#include <vector>

namespace model {

namespace {

// Members that take several objects in one step and test the list entries of all of them before it.
std::uint32_t objectsPerTest(const Name& name)
{
    const bool four = name.codeText == "vav" && name.type == Type::f32 && name.layout == Layout::list &&
                      (name.size == 3 || name.size == 4);
    return four ? 4 : 1;
}

// The single pair in the general standard member is summed as the address of the second operand says.
bool sumsByAddress(const Name& name)
{
    return name.codeText == "vv" && name.general() && name.layout == Layout::standard;
}

// The short kernels, which have no zero to start from.
template <typename T>
T shortSum(const Name& name, const std::vector<T>& p)
{
    constexpr bool isDouble = sizeof(T) == 8;
    switch (p.size()) {
    case 3:
        return (p[0] + p[1]) + p[2];
    case 4:
        if (isDouble)
            return (p[0] + p[2]) + (p[1] + p[3]);
        if (name.codeText == "vav")
            return (p[0] + p[1]) + (p[2] + p[3]);
        return ((p[0] + p[1]) + p[2]) + p[3];
    case 5:
        if (isDouble)
            return ((p[0] + p[2]) + (p[1] + p[3])) + p[4];
        return (((p[0] + p[1]) + p[2]) + p[3]) + p[4];
    default:
        if (isDouble)
            return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]));
        return ((((p[0] + p[1]) + p[2]) + p[3]) + p[4]) + p[5];
    }
}

template <typename T>
struct DotProduct
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Operand src1 = call.operand("src1");
        const Operand src2 = call.operand("src2");
        const Address dst = call.pointer("dst");
        const std::uint32_t length = call.size("length");
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        if (nullInTables(call, memory, {&src1, &src2}))
            return nullPointerError;
        // The fixed sizes may have the elements of the next objects in hand when they store a result.
        if (!name.general())
            memory.setOrder(Memory::Order::readsOpen);
        const std::uint32_t step = objectsPerTest(name);
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            const bool wholeStep = k % step == 0 && call.count() - k >= step;
            for (std::uint32_t ahead = 0; ahead < (wholeStep ? step : 1); ++ahead) {
                if (nullInLists(memory, k + ahead, {&src1, &src2}))
                    return nullPointerError;
            }
            const auto product = [&](std::uint32_t i) {
                const T x = memory.load<T>(src1.element(memory, k, i));
                const T y = memory.load<T>(src2.element(memory, k, i));
                const T rounded = x * y;
                return rounded;
            };
            T sum;
            if (isShortKernel(name)) {
                std::vector<T> products;
                for (std::uint32_t i = 0; i < length; ++i)
                    products.push_back(product(i));
                sum = shortSum(name, products);
            } else if (sumsByAddress(name)) {
                sum = sumByAddress<T>(src2.pointer(), length, product);
            } else {
                sum = T(0);
                for (std::uint32_t i = 0; i < length; ++i) {
                    // The tables of single vectors are looked at element by element.
                    if (!name.anyArray() && (src1.nullEntry(memory, i) || src2.nullEntry(memory, i)))
                        return nullPointerError;
                    sum = sum + product(i);
                }
            }
            memory.store(moved(dst, k, sizeof(T)), sum);
        }
        return ok;
    }
};

const Family family(Root::DotProduct, &byType<DotProduct>);

} // namespace

} // namespace model
