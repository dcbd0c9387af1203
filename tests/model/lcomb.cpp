// LComb: a linear combination of two vectors.
#include "elementwise.h"
#include "registry.h"

namespace model {

namespace {

// A destination that is displaced against a source is promised the ascending order by the general member
// on adjacent single vectors alone.
Order orderOf(const Name& name)
{
    const bool ascends = name.general() && name.layout == Layout::standard && !name.anyArray();
    return ascends ? Order::ascending : Order::ownPlace;
}

// Members that may form the products of the single vector ahead of the objects, also when there are none.
bool multipliesAhead(const Name& name)
{
    return name.codeText == "vav" && !name.general() &&
           (name.layout == Layout::standard || name.layout == Layout::list);
}

// What is left of that in a call without objects: the loads, and the flags of the products.
template <typename T>
void multiplyAhead(Memory& memory, const Operand& src2, T value2)
{
    for (std::uint32_t j = 0; j < src2.shape().width; ++j) {
        const T element = memory.load<T>(src2.element(memory, 0, j));
        [[maybe_unused]] const volatile T product = element * value2;
    }
}

template <typename T>
struct LComb
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const T value1 = call.value<T>("value1");
        const T value2 = call.value<T>("value2");
        const auto formula = [=](std::array<T, 2> x) {
            const T first = x[0] * value1;
            const T second = x[1] * value2;
            const T sum = first + second;
            return sum;
        };
        const std::array sources = {call.operand("src1"), call.operand("src2")};
        if (!nullArgument(call) && multipliesAhead(call.name()))
            multiplyAhead(memory, sources[1], value2);
        return runElementwise<T>(call, memory, sources, orderOf(call.name()), formula);
    }
};

const Family family(Root::LComb, &byType<LComb>);

} // namespace

} // namespace model
