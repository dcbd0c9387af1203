// Saxpy: the first vector times a constant, plus the second.
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

template <typename T>
struct Saxpy
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const T value = call.value<T>();
        const auto formula = [=](std::array<T, 2> x) {
            const T product = x[0] * value;
            const T sum = product + x[1];
            return sum;
        };
        return runElementwise<T>(call, memory, std::array{call.operand("src1"), call.operand("src2")},
                                 orderOf(call.name()), formula);
    }
};

const Family family(Root::Saxpy, &byType<Saxpy>);

} // namespace

} // namespace model
