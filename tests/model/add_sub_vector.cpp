// Add and Sub on vectors and constants: each element is one sum or difference in the element type.
#include "elementwise.h"
#include "registry.h"

namespace model {

namespace {

bool addsVectors(const Name& name)
{
    return name.codes[0].kind != 'm';
}

// Only the general members on adjacent single vectors promise anything of a destination that is displaced
// against a source: they go by ascending index.
Order orderOf(const Name& name)
{
    const bool ascends = name.general() && name.layout == Layout::standard && !name.anyArray();
    return ascends ? Order::ascending : Order::ownPlace;
}

template <typename T>
T combined(Root root, T first, T second)
{
    const T result = root == Root::Add ? first + second : first - second;
    return result;
}

template <typename T>
struct VectorSum
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Root root = name.root;
        const Order order = orderOf(name);
        if (name.codeIn("vc vac")) {
            const T value = call.value<T>();
            return runElementwise<T>(call, memory, std::array{call.operand("src")}, order,
                                     [=](std::array<T, 1> x) { return combined(root, x[0], value); });
        }
        if (name.codeIn("cv cva")) {
            const T value = call.value<T>();
            return runElementwise<T>(call, memory, std::array{call.operand("src")}, order,
                                     [=](std::array<T, 1> x) { return combined(root, value, x[0]); });
        }
        return runElementwise<T>(call, memory, std::array{call.operand("src1"), call.operand("src2")}, order,
                                 [=](std::array<T, 2> x) { return combined(root, x[0], x[1]); });
    }
};

Behaviour vectorSum(const Name& name)
{
    return addsVectors(name) ? byType<VectorSum>(name) : nullptr;
}

const Family addition(Root::Add, &vectorSum);
const Family subtraction(Root::Sub, &vectorSum);

} // namespace

} // namespace model
