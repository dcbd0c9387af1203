// CrossProduct of vectors of three elements.
#include "frame.h"
#include "ground.h"
#include "registry.h"

#include <array>

namespace model {

namespace {

// The standard members read both vectors before they store, so that the result may replace an operand. The
// others promise no order.
bool readsFirst(const Name& name)
{
    return name.layout == Layout::standard;
}

// The two arrays of binary32 in the standard layout are taken four objects at a time.
bool fourAtATime(const Name& name)
{
    return readsFirst(name) && name.codeText == "vava" && name.type == Type::f32;
}

template <typename T>
std::array<T, 3> elements(Memory& memory, const Operand& operand, std::uint32_t k)
{
    std::array<T, 3> values;
    for (std::uint32_t j = 0; j < 3; ++j)
        values[j] = memory.load<T>(operand.element(memory, k, j));
    return values;
}

template <typename T>
T component(T x, T y, T z, T w)
{
    const T first = x * y;
    const T second = z * w;
    const T difference = first - second;
    return difference;
}

template <typename T>
struct CrossProduct
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Operand src1 = call.operand("src1");
        const Operand src2 = call.operand("src2");
        const Operand dst = call.operand("dst");
        if (nullArgument(call))
            return nullPointerError;
        if (nullInAnyTable(memory, {&src1, &src2, &dst}))
            return nullPointerError;
        if (call.count() == 0)
            return ok;
        // What is single is read once for all objects.
        std::array<T, 3> a{};
        std::array<T, 3> b{};
        if (!src1.form().array)
            a = elements<T>(memory, src1, 0);
        if (!src2.form().array)
            b = elements<T>(memory, src2, 0);
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (fourAtATime(name) && k % 4 == 0 && call.count() - k >= 4)
                checkStep(memory, k, {&src1, &src2}, dst);
            if (nullInLists(memory, k, {&src1, &src2, &dst}))
                return nullPointerError;
            if (!readsFirst(name))
                checkObject(memory, k, {&src1, &src2}, dst);
            if (src1.form().array)
                a = elements<T>(memory, src1, k);
            if (src2.form().array)
                b = elements<T>(memory, src2, k);
            memory.store(dst.element(memory, k, 0), component(a[1], b[2], a[2], b[1]));
            memory.store(dst.element(memory, k, 1), component(a[2], b[0], a[0], b[2]));
            memory.store(dst.element(memory, k, 2), component(a[0], b[1], a[1], b[0]));
        }
        return ok;
    }

    // Members that may store a component before they read for the next. A single operand of an array function
    // has been read before.
    static void checkObject(Memory& memory, std::uint32_t k, std::initializer_list<const Operand*> sources,
                            const Operand& dst)
    {
        const Ground result = groundOf(memory, dst, k);
        undecidedIf(result.meetsItself(), "a result overlaps itself");
        for (const Operand* source : sources) {
            if (source->form().array || !dst.form().array)
                undecidedIf(result.meets(groundOf(memory, *source, k)), "a result overlaps its operands");
        }
    }

    // A result that lies on an operand of a later object of the same step may be stored before or after that
    // is read.
    static void checkStep(Memory& memory, std::uint32_t first, std::initializer_list<const Operand*> sources,
                          const Operand& dst)
    {
        for (std::uint32_t earlier = first; earlier < first + 4; ++earlier) {
            const Ground result = groundOf(memory, dst, earlier);
            for (std::uint32_t later = earlier + 1; later < first + 4; ++later) {
                for (const Operand* source : sources)
                    undecidedIf(result.meets(groundOf(memory, *source, later)), "an overlap within a step");
                undecidedIf(result.meets(groundOf(memory, dst, later)), "an overlap within a step");
            }
        }
    }
};

const Family family(Root::CrossProduct, &byType<CrossProduct>);

} // namespace

} // namespace model
