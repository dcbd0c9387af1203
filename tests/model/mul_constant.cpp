// Mul of vectors and matrices by a constant: each element is one product.
#include "elementwise.h"
#include "registry.h"

namespace model {

namespace {

bool scales(const Name& name)
{
    return name.codes.back().kind == 'c';
}

Order orderOf(const Name& name)
{
    const bool adjacent = name.layout == Layout::standard || name.layout == Layout::list;
    // Plain loops.
    if (!adjacent)
        return Order::ascending;
    // The one member on adjacent vectors that looks for an overlap.
    if (name.general() && name.codeText == "vc")
        return Order::ascending;
    // The order 4 is transposed between registers.
    if (name.size == 4 && name.codeIn("mTc maTc"))
        return Order::objectFirst;
    // The others take a row at a time.
    return Order::ownPlace;
}

template <typename T>
struct Scaling
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const T value = call.value<T>();
        const auto formula = [=](std::array<T, 1> x) {
            const T product = x[0] * value;
            return product;
        };
        return runElementwise<T>(call, memory, std::array{call.operand("src")}, orderOf(call.name()),
                                 formula);
    }
};

const Family family(Root::Mul, [](const Name& name) -> Behaviour {
    return scales(name) ? byType<Scaling>(name) : nullptr;
});

} // namespace

} // namespace model
