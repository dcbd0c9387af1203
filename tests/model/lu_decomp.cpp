// LUDecomp: elimination with partial pivoting. The rows stay where they are; `rowIndex` tells which of them
// stands at which position.
#include "block_sum.h"
#include "frame.h"
#include "ground.h"
#include "reference.h"
#include "registry.h"

#include <vector>

namespace model {

namespace {

// Both types have the same floor.
template <typename T>
constexpr T pivotFloor = T(0x1p-23);

// In lists the multipliers are quotients; everywhere else, and in one list member, products with the
// reciprocal of the pivot.
bool divides(const Name& name)
{
    return isList(name.layout) && name.text != "tenkLUDecomp_ma_32f_4x4_L";
}

template <typename T>
class Factoring
{
public:
    Factoring(const Call& call, Memory& memory)
        : name_(call.name()),
          memory_(memory),
          src_(call.operand("src")),
          dst_(call.operand("dst")),
          rowIndex_(call.pointer("rowIndex")),
          n_(call.size("order"))
    {
    }

    const Operand& src() const { return src_; }
    const Operand& dst() const { return dst_; }

    std::int32_t run(std::uint32_t k)
    {
        const Ground rows(moved(rowIndex_, Address{k} * n_, 4), std::size_t{4} * n_);
        checkFactoring(groundOf(memory_, src_, k), groundOf(memory_, dst_, k), rows, earlier_);
        d_.clear();
        row_.clear();
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j)
                d_.push_back({memory_.loadBits<BitsOf<T>>(src_.stored(memory_, k, i, j))});
            row_.push_back(i);
        }
        const bool regular = eliminate();
        store(k);
        if (!regular)
            return singularError;
        const T last = memory_.load<T>(lastTested(k));
        return magnitude(last) >= pivotFloor<T> ? ok : singularError;
    }

private:
    struct Element
    {
        BitsOf<T> bits = 0;
        bool computed = false; // or as it came from the source
    };

    Element& place(std::uint32_t i, std::uint32_t j) { return d_[std::size_t{row_[i]} * n_ + j]; }
    T at(std::uint32_t i, std::uint32_t j) { return std::bit_cast<T>(place(i, j).bits); }
    void set(std::uint32_t i, std::uint32_t j, T value)
    {
        place(i, j) = {std::bit_cast<BitsOf<T>>(value), true};
    }

    // Positions, not rows, are what i, j, p and q count here.
    bool eliminate()
    {
        for (std::uint32_t p = 0; p + 1 < n_; ++p) {
            std::uint32_t best = p;
            T bestMagnitude = magnitude(at(p, p));
            for (std::uint32_t q = p + 1; q < n_; ++q) {
                const T candidate = magnitude(at(q, p));
                if (strictlyGreater(candidate, bestMagnitude)) {
                    best = q;
                    bestMagnitude = candidate;
                }
            }
            std::swap(row_[p], row_[best]);
            const T pivot = at(p, p);
            if (!(magnitude(pivot) >= pivotFloor<T>))
                return false;
            const T reciprocal = divides(name_) ? T(0) : T(1) / pivot;
            for (std::uint32_t q = p + 1; q < n_; ++q) {
                const T l = divides(name_) ? at(q, p) / pivot : at(q, p) * reciprocal;
                set(q, p, l);
                const T negative = T(0) - l;
                for (std::uint32_t j = p + 1; j < n_; ++j) {
                    const T product = at(p, j) * negative;
                    const T sum = at(q, j) + product;
                    set(q, j, sum);
                }
            }
        }
        return true;
    }

    void store(std::uint32_t k)
    {
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j) {
                const Element& element = d_[std::size_t{i} * n_ + j];
                const Address address = dst_.stored(memory_, k, i, j);
                if (element.computed)
                    memory_.store(address, std::bit_cast<T>(element.bits));
                else
                    memory_.storeBits(address, element.bits);
            }
            memory_.storeBits(moved(rowIndex_, Address{k} * n_ + i, 4), row_[i]);
        }
    }

    // The last pivot is tested where object k of an array would have it if the columns went on to the right,
    // `order` of them for each object before.
    Address lastTested(std::uint32_t k)
    {
        const Address row = row_[n_ - 1];
        const Address column = Address{n_} - 1 + Address{k} * n_;
        if (dst_.isTable())
            return dst_.through(memory_, row * n_ + column, k);
        return moved(moved(dst_.object(memory_, k), row, dst_.stride1()), column, dst_.elementStep());
    }

    const Name& name_;
    Memory& memory_;
    Operand src_;
    Operand dst_;
    Address rowIndex_;
    std::uint32_t n_;
    std::vector<Element> d_;         // by physical rows
    std::vector<std::uint32_t> row_; // the physical row at each position
    Ground earlier_;
};

template <typename T>
struct LUDecomp
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

const Family family(Root::LUDecomp, &byType<LUDecomp>);

} // namespace

} // namespace model
