// Gaxpy: a matrix times a vector, plus a vector that is added to each element after the whole sum.
#include "entries.h"
#include "frame.h"
#include "overlap.h"
#include "registry.h"
#include "row_sum.h"

#include <array>

namespace model {

namespace {

template <typename T>
class Update
{
public:
    Update(const Call& call, Memory& memory)
        : call_(call),
          memory_(memory),
          name_(call.name()),
          width_(call.size("width")),
          height_(call.size("height")),
          src1_(call.operand("src1")),
          src2_(call.operand("src2")),
          src3_(call.operand("src3")),
          dst_(call.operand("dst")),
          open_(sizeof(T))
    {
    }

    std::int32_t run()
    {
        if (nullArgument(call_))
            return nullPointerError;
        if (zeroSize(call_))
            return sizeError;
        if (name_.anyArray() &&
            nullInTables(memory_,
                         {{&src1_, width_ * height_}, {&src2_, width_}, {&src3_, height_}, {&dst_, height_}}))
            return nullPointerError;
        mayReadAhead(call_, memory_, {&src1_});
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (nullInAnyList(memory_, k, {&src2_, &src3_, &dst_}))
                return nullPointerError;
            if (sumsRowsInLanes(name_))
                kernel(k);
            else if (!plainLoop(k))
                return nullPointerError;
        }
        return ok;
    }

private:
    using Vector = std::array<T, 6>;

    // The vector multiplied is read before an element of the destination is written, and each element of the
    // vector added before the one written at its place. When the matrix is read is open.
    void kernel(std::uint32_t k)
    {
        Vector x{};
        for (std::uint32_t p = 0; p < width_; ++p)
            x[p] = memory_.load<T>(src2_.element(memory_, k, p));
        Vector result{};
        for (std::uint32_t i = 0; i < height_; ++i) {
            Vector terms{};
            for (std::uint32_t p = 0; p < width_; ++p) {
                const Address place = src1_.used(memory_, k, i, p);
                open_.load(place, foreign);
                const T term = memory_.load<T>(place) * x[p];
                terms[p] = term;
            }
            const T product = rowSum<T>(std::span<const T>(terms).first(width_), i, false);
            const Address added = src3_.element(memory_, k, i);
            open_.load(added, i);
            const T sum = product + memory_.load<T>(added);
            result[i] = sum;
        }
        for (std::uint32_t i = 0; i < height_; ++i) {
            const Address to = dst_.element(memory_, k, i);
            open_.store(to, i);
            memory_.store(to, result[i]);
        }
        open_.settle();
    }

    // The element of the destination is the running sum. Single operands with tables are tested on the way.
    // False at a null entry.
    bool plainLoop(std::uint32_t k)
    {
        const bool tests = !name_.anyArray();
        for (std::uint32_t i = 0; i < height_; ++i) {
            const bool addedNull = tests && src3_.nullEntry(memory_, i);
            const bool destinationNull = tests && dst_.nullEntry(memory_, i);
            if (addedNull || destinationNull)
                return false;
            const Address to = dst_.element(memory_, k, i);
            memory_.store(to, T{0});
            for (std::uint32_t p = 0; p < width_; ++p) {
                const bool vectorNull = tests && src2_.nullEntry(memory_, p);
                const bool matrixNull = tests && src1_.nullEntry(memory_, usedEntry(src1_, i, p));
                if (vectorNull || matrixNull)
                    return false;
                const T left = memory_.load<T>(src1_.used(memory_, k, i, p));
                const T term = left * memory_.load<T>(src2_.element(memory_, k, p));
                const T sum = memory_.load<T>(to) + term;
                memory_.store(to, sum);
            }
            const T all = memory_.load<T>(to) + memory_.load<T>(src3_.element(memory_, k, i));
            memory_.store(to, all);
        }
        return true;
    }

    const Call& call_;
    Memory& memory_;
    const Name& name_;
    const std::uint32_t width_;
    const std::uint32_t height_;
    const Operand src1_;
    const Operand src2_;
    const Operand src3_;
    const Operand dst_;
    OpenOrder open_;
};

template <typename T>
struct Gaxpy
{
    static std::int32_t run(const Call& call, Memory& memory) { return Update<T>(call, memory).run(); }
};

const Family family(Root::Gaxpy, &byType<Gaxpy>);

} // namespace

} // namespace model
