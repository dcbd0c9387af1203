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
bool readsSingleAhead(const Name& name)
{
    return name.codeText == "vav" && !name.general() &&
           (name.layout == Layout::standard || name.layout == Layout::list);
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
        const std::int32_t status = runElementwise<T>(call, memory, sources, orderOf(call.name()), formula);
        const bool tested = !nullArgument(call);
        if (tested && readsSingleAhead(call.name()))
            memory.mayRead(sources[1].pointer(), call.name().size * sizeof(T));
        return status;
    }
};

const Family family(Root::LComb, &byType<LComb>);

} // namespace

} // namespace model
