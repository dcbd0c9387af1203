// Det of orders 3 to 6: cofactor expansion, with no test for singularity.
#include "block_sum.h"
#include "frame.h"
#include "ground.h"
#include "registry.h"
#include "span.h"

#include <vector>

namespace model {

namespace {

// A number of the wide unit that may at any time be parked in memory at the element type.
template <typename T>
class Parked
{
public:
    Parked() = default;
    Parked(T element) : span_(static_cast<Wide>(element)) {}

    const Span<Wide>& span() const { return span_; }

    friend Parked operator+(const Parked& x, const Parked& y) { return park(x.span_ + y.span_); }
    friend Parked operator-(const Parked& x, const Parked& y) { return park(x.span_ - y.span_); }
    friend Parked operator*(const Parked& x, const Parked& y) { return park(x.span_ * y.span_); }

private:
    static Parked park(const Span<Wide>& span)
    {
        Parked result;
        result.span_ = span;
        result.span_.include(static_cast<Wide>(static_cast<T>(span.low())));
        result.span_.include(static_cast<Wide>(static_cast<T>(span.high())));
        return result;
    }

    Span<Wide> span_;
};

// A square matrix row by row.
template <typename Number>
struct Square
{
    std::uint32_t order = 0;
    std::vector<Number> elements;

    const Number& at(std::uint32_t i, std::uint32_t j) const { return elements[i * order + j]; }
};

// The minor of the rows from `row` on and these columns, as many: the products of the first row's elements
// with their minors, added and subtracted by turns.
template <typename Number>
Number minor(const Square<Number>& a, std::uint32_t row, const std::vector<std::uint32_t>& columns)
{
    if (columns.size() == 2) {
        const Number first = a.at(row, columns[0]) * a.at(row + 1, columns[1]);
        const Number second = a.at(row, columns[1]) * a.at(row + 1, columns[0]);
        return first - second;
    }
    Number sum{};
    for (std::size_t t = 0; t < columns.size(); ++t) {
        std::vector<std::uint32_t> others = columns;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(t));
        const Number product = a.at(row, columns[t]) * minor(a, row + 1, others);
        if (t == 0)
            sum = product;
        else
            sum = t % 2 == 0 ? sum + product : sum - product;
    }
    return sum;
}

template <typename Number>
Number determinant(const Square<Number>& a)
{
    std::vector<std::uint32_t> columns;
    for (std::uint32_t j = 0; j < a.order; ++j)
        columns.push_back(j);
    return minor(a, 0, columns);
}

// Order 3: the products of the elements of a row or column and their cofactors, in an order by member.
template <typename Number>
Number determinant3(const Name& name, const Square<Number>& a)
{
    // The product of the element (i, j) and its cofactor, the difference of these two products.
    const auto term = [&](std::uint32_t i, std::uint32_t j) {
        const std::uint32_t i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
        const Number first = a.at(i1, j1) * a.at(i2, j2);
        const Number second = a.at(i1, j2) * a.at(i2, j1);
        const Number cofactor = first - second;
        const Number product = cofactor * a.at(i, j);
        return product;
    };
    const auto sum = [](Number x, Number y, Number z) {
        const Number two = x + y;
        const Number three = two + z;
        return three;
    };
    if (!isShortKernel(name))
        return sum(term(0, 0), term(0, 1), term(0, 2));
    if (!name.anyArray()) {
        if (name.type == Type::f32)
            return sum(term(0, 1), term(0, 2), term(0, 0));
        return sum(term(2, 0), term(0, 0), term(1, 0));
    }
    if (name.layout == Layout::standard)
        return sum(term(0, 2), term(0, 0), term(0, 1));
    return sum(term(0, 2), term(0, 1), term(0, 0));
}

template <typename Number, typename T>
Square<Number> as(const std::vector<T>& elements, std::uint32_t order)
{
    Square<Number> square{order, {}};
    for (const T element : elements)
        square.elements.push_back(static_cast<Number>(element));
    return square;
}

template <typename T>
void storeDeterminant(Memory& memory, Address address, const Name& name, const std::vector<T>& elements)
{
    const std::uint32_t order = name.size;
    if (order == 3) {
        if (isShortKernel(name)) { // fits on the stack of the wide unit
            const Wide value = determinant3(name, as<Wide>(elements, order));
            memory.store(address, static_cast<T>(value));
        } else {
            memory.store(address, determinant3(name, as<T>(elements, order)));
        }
        return;
    }
    if (!isShortKernel(name)) {
        memory.store(address, determinant(as<T>(elements, order)));
        return;
    }
    // What does not fit on the stack is parked; which numbers those are is open, so every one may be.
    const Span<Wide> value = determinant(as<Parked<T>>(elements, order)).span();
    Span<T> rounded(static_cast<T>(value.low()));
    rounded.include(static_cast<T>(value.high()));
    if (rounded.exact())
        memory.store(address, rounded.low());
    else
        storeBetween(memory, address, rounded.low(), rounded.high());
}

template <typename T>
struct DetSmall
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        const Name& name = call.name();
        const Operand src = call.operand("src");
        const Address dst = call.pointer("dst");
        if (nullArgument(call))
            return nullPointerError;
        if (nullInAnyTable(memory, {&src}))
            return nullPointerError;
        // A result may lie on its own matrix, but not on a later one.
        memory.setOrder(Memory::Order::readsOpen);
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (nullInLists(memory, k, {&src}))
                return nullPointerError;
            std::vector<T> elements;
            for (std::uint32_t i = 0; i < name.size; ++i) {
                for (std::uint32_t j = 0; j < name.size; ++j)
                    elements.push_back(memory.load<T>(src.stored(memory, k, i, j)));
            }
            storeDeterminant(memory, moved(dst, k, sizeof(T)), name, elements);
        }
        return ok;
    }
};

const Family family(Root::Det,
                    [](const Name& name) { return name.general() ? nullptr : byType<DetSmall>(name); });

} // namespace

} // namespace model
