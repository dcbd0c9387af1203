// Invert of orders 3 to 6.
#include "block_sum.h"
#include "ground.h"
#include "inverse.h"
#include "registry.h"

namespace model {

namespace {

// The packed kernels of orders 3 and 4 read the whole matrix before they store, so that the inverse may
// replace it.
bool readsFirst(const Name& name)
{
    return isShortKernel(name) && name.size <= 4;
}

template <typename T>
class InvertingSmall
{
public:
    InvertingSmall(const Call& call, Memory& memory)
        : name_(call.name()),
          memory_(memory),
          src_(call.operand("src")),
          dst_(call.operand("dst")),
          order_(call.name().size)
    {
    }

    bool nullInTables() { return nullInAnyTable(memory_, {&src_, &dst_}); }
    bool nullInLists(std::uint32_t k) { return model::nullInLists(memory_, k, {&dst_, &src_}); }

    std::int32_t run(std::uint32_t k)
    {
        const Ground target = groundOf(memory_, dst_, k);
        undecidedIf(target.meetsItself(), "the inverse overlaps itself");
        undecidedIf(!readsFirst(name_) && target.meets(groundOf(memory_, src_, k)),
                    "the inverse overlaps the matrix");
        Matrix<T> a(order_, order_);
        for (std::uint32_t i = 0; i < order_; ++i) {
            for (std::uint32_t j = 0; j < order_; ++j)
                a.at(i, j) = Span<T>(memory_.load<T>(src_.stored(memory_, k, i, j)));
        }
        // Which terms of the cofactors carry their signs is open, as are the signs of zeros. With a rounding
        // that looks at the sign, other results would be as well.
        undecidedIf(!roundsBySize(), "the rounding depends on the sign");
        return store(k, outcome(a));
    }

private:
    Outcome<T> outcome(const Matrix<T>& a) const
    {
        if (!isShortKernel(name_))
            return scalarInverse(a);
        if constexpr (sizeof(T) == 4) {
            return packedInverse(a);
        } else {
            ZeroSigns zeros;
            Outcome<T> all = packedInverse(a, zeros);
            const unsigned ways = 1u << zeros.divisions;
            for (unsigned way = 1; way < ways; ++way) {
                ZeroSigns other{way, 0};
                const Outcome<T> more = packedInverse(a, other);
                undecidedIf(more.status != all.status || other.divisions != zeros.divisions,
                            "the sign of a zero decides");
                for (std::size_t e = 0; e < all.values.size(); ++e)
                    all.values[e].insert(all.values[e].end(), more.values[e].begin(), more.values[e].end());
            }
            return all;
        }
    }

    std::int32_t store(std::uint32_t k, const Outcome<T>& outcome)
    {
        for (std::uint32_t i = 0; i < order_; ++i) {
            for (std::uint32_t j = 0; j < order_; ++j) {
                const std::vector<Span<T>>& values = outcome.values[std::size_t{i} * order_ + j];
                const Address address = dst_.stored(memory_, k, i, j);
                if (!values.empty())
                    storeAny(address, values);
                else if (i < outcome.scratchRows)
                    memory_.leaveOpen(address, sizeof(T));
            }
        }
        return outcome.status;
    }

    // One of these values.
    void storeAny(Address address, const std::vector<Span<T>>& values)
    {
        const Span<T>& first = values[0];
        bool same = true;
        bool sameSize = true;
        for (const Span<T>& other : values) {
            const bool bothNaN = first.nan() && other.nan();
            const bool equal = first.low() == other.low() && first.high() == other.high();
            const bool opposite = first.exact() && other.exact() && first.low() == -other.low();
            same = same && (bothNaN || equal);
            sameSize = sameSize && (bothNaN || equal || opposite);
        }
        if (same)
            storeSpan(memory_, address, first);
        else if (sameSize)
            memory_.storeEitherSign(address, first.low());
        else
            memory_.leaveOpen(address, sizeof(T));
    }

    const Name& name_;
    Memory& memory_;
    Operand src_;
    Operand dst_;
    std::uint32_t order_;
};

template <typename T>
struct InvertSmall
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        InvertingSmall<T> inverting(call, memory);
        if (inverting.nullInTables())
            return nullPointerError;
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (inverting.nullInLists(k))
                return nullPointerError;
            if (const std::int32_t status = inverting.run(k); status != ok)
                return status;
        }
        return ok;
    }
};

const Family family(Root::Invert,
                    [](const Name& name) { return name.general() ? nullptr : byType<InvertSmall>(name); });

} // namespace

} // namespace model
