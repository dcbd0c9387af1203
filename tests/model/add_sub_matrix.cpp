// Add and Sub on matrices: where each element is taken from, and the members that are plain loops or have no
// array among their operands. The fixed members with an array are in add_sub_batch.cpp.
#include "add_sub_matrix.h"

#include "elementwise.h"
#include "registry.h"

namespace model {

namespace {

struct Place
{
    std::uint32_t row;
    std::uint32_t column;
};

// Stored row and column of both operands for the members that permute their places.
constexpr Place permutedPlaces[6][6] = {
    {{0, 0}, {0, 4}, {2, 0}, {2, 4}, {4, 0}, {4, 4}}, {{0, 1}, {0, 5}, {2, 1}, {2, 5}, {4, 1}, {4, 5}},
    {{0, 2}, {1, 4}, {2, 2}, {3, 4}, {4, 2}, {5, 4}}, {{0, 2}, {1, 4}, {2, 2}, {3, 4}, {4, 2}, {5, 4}},
    {{1, 0}, {1, 2}, {3, 0}, {3, 2}, {5, 0}, {5, 2}}, {{1, 1}, {1, 3}, {3, 1}, {3, 3}, {5, 1}, {5, 3}},
};

Address usualPlace(const Name& name, const Operand& operand, Memory& memory, std::uint32_t k, std::uint32_t i,
                   std::uint32_t j)
{
    if (permutesPlaces(name)) {
        const Place place = permutedPlaces[i][j];
        return operand.stored(memory, k, place.row, place.column);
    }
    return operand.used(memory, k, repeatsRowTwo(name) && i == 3 ? 2 : i, j);
}

} // namespace

Address MatrixPair::first(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const
{
    if (findsLastColumnBySecond(name) && j == 4)
        return moved(src1.object(memory, k), i, src2.stride1()) + 32;
    return usualPlace(name, src1, memory, k, i, j);
}

Address MatrixPair::second(Memory& memory, std::uint32_t k, std::uint32_t i, std::uint32_t j) const
{
    const auto found = [&](std::uint32_t row, Displacement rowStep, std::uint32_t column,
                           Displacement columnStep) {
        return moved(moved(src2.object(memory, k), row, rowStep), column, columnStep);
    };
    if (findsSecondRowsByFirst(name))
        return found(j, src1.stride1(), i, src2.elementStep());
    if (findsSecondElementsByFirst(name))
        return found(i, src2.stride1(), j, src1.elementStep());
    return usualPlace(name, src2, memory, k, i, j);
}

void MatrixPair::mayReadUnused(Memory& memory, std::uint32_t k) const
{
    if (!repeatsRowTwo(name) && !permutesPlaces(name))
        return;
    for (std::uint32_t i = 0; i < name.size; ++i) {
        for (std::uint32_t j = 0; j < name.size; ++j) {
            memory.mayRead(src1.used(memory, k, i, j), src1.elementSize());
            memory.mayRead(src2.used(memory, k, i, j), src2.elementSize());
        }
    }
}

bool isFixedBatch(const Name& name)
{
    return name.codes[0].kind == 'm' && !name.general() && name.anyArray();
}

namespace {

// General members are plain loops, and a single matrix with a table is computed entry by entry. The other
// fixed members load and store as suits them.
Order orderOf(const Name& name)
{
    const bool plain = name.general() || name.layout == Layout::pointer;
    return plain ? Order::ascending : Order::ownPlace;
}

template <typename T>
struct MatrixSum
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const bool adds = call.name().root == Root::Add;
        const auto formula = [=](std::array<T, 2> x) {
            const T result = adds ? x[0] + x[1] : x[0] - x[1];
            return result;
        };
        const MatrixPair pair(call);
        const auto place = [&](std::size_t s, std::uint32_t k, std::uint32_t i, std::uint32_t j) {
            return s == 0 ? pair.first(memory, k, i, j) : pair.second(memory, k, i, j);
        };
        const std::array sources = {pair.src1, pair.src2};
        using Member = Elementwise<T, 2, decltype(formula), decltype(place)>;
        if (!nullArgument(call))
            pair.mayReadUnused(memory, 0);
        return Member(call, memory, sources, orderOf(call.name()), formula, place).run();
    }
};

Behaviour matrixSum(const Name& name)
{
    return name.codes[0].kind == 'm' && !isFixedBatch(name) ? byType<MatrixSum>(name) : nullptr;
}

const Family addition(Root::Add, &matrixSum);
const Family subtraction(Root::Sub, &matrixSum);

} // namespace

} // namespace model
