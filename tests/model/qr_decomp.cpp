// QRDecomp: Householder reflections column by column. R is left on and above the diagonal, the reflectors'
// vectors below it.
#include "block_sum.h"
#include "ground.h"
#include "qr_reflect.h"
#include "registry.h"
#include "span.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace model {

namespace {

// Of the matrices that a factorisation in binary32 can leave, as each step may add squares in several ways.
// More than that are not followed.
constexpr std::size_t mostOutcomes = 20000;

template <typename T>
using Outcomes = std::vector<Grid<T>>;

template <typename T>
bool before(const Grid<T>& x, const Grid<T>& y)
{
    return std::lexicographical_compare(
        x.elements.begin(), x.elements.end(), y.elements.begin(), y.elements.end(),
        [](T a, T b) { return std::bit_cast<BitsOf<T>>(a) < std::bit_cast<BitsOf<T>>(b); });
}

template <typename T>
void dropRepeated(Outcomes<T>& list)
{
    std::sort(list.begin(), list.end(), before<T>);
    const auto same = [](const Grid<T>& x, const Grid<T>& y) { return !before(x, y) && !before(y, x); };
    list.erase(std::unique(list.begin(), list.end(), same), list.end());
}

// One element of all outcomes: exact where they agree, else what lies between them.
template <typename T>
void storeElement(Memory& memory, Address address, const Outcomes<T>& outcomes, std::size_t place)
{
    Span<T> range(outcomes[0].elements[place]);
    for (const Grid<T>& outcome : outcomes)
        range.include(outcome.elements[place]);
    if (range.exact())
        memory.store(address, range.low());
    else
        storeBetween(memory, address, range.low(), range.high());
}

template <typename T>
class Factoring
{
public:
    Factoring(const Call& call, Memory& memory)
        : memory_(memory),
          src_(call.operand("src")),
          dst_(call.operand("dst")),
          buffer_(call.pointer("buffer")),
          width_(call.size("width")),
          height_(call.size("height"))
    {
    }

    const Operand& src() const { return src_; }
    const Operand& dst() const { return dst_; }

    std::int32_t run(std::uint32_t k)
    {
        const Ground scratch(buffer_, std::size_t{height_} * sizeof(T));
        checkFactoring(groundOf(memory_, src_, k), groundOf(memory_, dst_, k), scratch, earlier_);
        copy(k);
        Outcomes<T> outcomes(1);
        outcomes[0] = {width_, height_, {}};
        for (std::uint32_t i = 0; i < height_; ++i) {
            for (std::uint32_t j = 0; j < width_; ++j)
                outcomes[0].elements.push_back(memory_.load<T>(dst_.stored(memory_, k, i, j)));
        }
        const std::uint32_t steps = width_ == height_ ? width_ - 1 : width_;
        std::uint32_t step = 0;
        while (step < steps && next(outcomes, step))
            ++step;
        if (step > 0) {
            memory_.leaveOpen(buffer_, std::size_t{height_} * sizeof(T));
            store(k, outcomes);
        }
        return step == steps ? ok : singularError;
    }

private:
    void copy(std::uint32_t k)
    {
        for (std::uint32_t i = 0; i < height_; ++i) {
            for (std::uint32_t j = 0; j < width_; ++j)
                moveElement<T>(memory_, dst_.stored(memory_, k, i, j), src_.stored(memory_, k, i, j));
        }
    }

    // Puts what the step may leave in the place of `outcomes`; false if it finds the matrix singular.
    static bool next(Outcomes<T>& outcomes, std::uint32_t step)
    {
        Outcomes<T> after;
        bool singular = false;
        for (const Grid<T>& outcome : outcomes) {
            const Outcomes<T> more = reflected(outcome, step);
            singular = singular || more.empty();
            after.insert(after.end(), more.begin(), more.end());
            undecidedIf(after.size() > mostOutcomes, "too many ways of adding the squares");
        }
        if (singular) {
            undecidedIf(!after.empty(), "singular in some ways of adding the squares");
            return false;
        }
        dropRepeated(after);
        outcomes = std::move(after);
        return true;
    }

    void store(std::uint32_t k, const Outcomes<T>& outcomes)
    {
        for (std::uint32_t i = 0; i < height_; ++i) {
            for (std::uint32_t j = 0; j < width_; ++j)
                storeElement(memory_, dst_.stored(memory_, k, i, j), outcomes, std::size_t{i} * width_ + j);
        }
    }

    Memory& memory_;
    Operand src_;
    Operand dst_;
    Address buffer_;
    std::uint32_t width_;
    std::uint32_t height_;
    Ground earlier_;
};

template <typename T>
struct QRDecomp
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        Factoring<T> factoring(call, memory);
        if (nullInAnyTable(memory, {&factoring.src(), &factoring.dst()}))
            return nullPointerError;
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (nullInLists(memory, k, {&factoring.src(), &factoring.dst()}))
                return nullPointerError;
            const std::int32_t status = factoring.run(k);
            if (status != ok) {
                if (isShortKernel(call.name()))
                    mayReadAhead(memory, factoring.src(), factoring.dst(), k, call.count());
                return status;
            }
        }
        return ok;
    }
};

const Family family(Root::QRDecomp, &byType<QRDecomp>);

} // namespace

} // namespace model
