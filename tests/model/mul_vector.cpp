// Mul of a matrix and a vector.
//
// The loops run over src1Height rows and src1Width terms, whatever src2Length says. A transposed matrix is
// measured by its width and height as stored in the test of the sizes and of the tables, and as used in the
// loops.
#include "entries.h"
#include "frame.h"
#include "overlap.h"
#include "registry.h"
#include "row_sum.h"

#include <array>
#include <optional>

namespace model {

namespace {

bool multipliesVector(const Name& name)
{
    return name.codes[0].kind == 'm' && name.codes[1].kind == 'v';
}

template <typename T>
class Product
{
public:
    Product(const Call& call, Memory& memory)
        : call_(call),
          memory_(memory),
          name_(call.name()),
          width_(call.size("src1Width")),
          height_(call.size("src1Height")),
          length_(call.size("src2Length")),
          src1_(call.operand("src1")),
          src2_(call.operand("src2")),
          dst_(call.operand("dst")),
          open_(sizeof(T))
    {
    }

    std::int32_t run()
    {
        if (nullArgument(call_))
            return nullPointerError;
        if (width_ == 0 || height_ == 0 || (transposed() ? height_ : width_) != length_)
            return sizeError;
        if (name_.anyArray() && nullInTables(memory_, {{&src1_, width_ * height_},
                                                       {&src2_, length_},
                                                       {&dst_, transposed() ? width_ : height_}}))
            return nullPointerError;
        if (call_.count() == 0)
            return ok;
        mayReadAhead(call_, memory_, {&src1_});
        if (sumsRowsInLanes(name_) && !src2_.form().array)
            kept_ = vector(0);
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (nullInAnyList(memory_, k, {&src1_, &src2_, &dst_}))
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

    bool transposed() const { return src1_.form().transposed; }

    Vector vector(std::uint32_t k)
    {
        Vector values{};
        for (std::uint32_t p = 0; p < length_; ++p)
            values[p] = memory_.load<T>(src2_.element(memory_, k, p));
        return values;
    }

    // The whole vector is read before an element of the destination is written, a single one once per call.
    // When the matrix is read is open.
    void kernel(std::uint32_t k)
    {
        const Vector x = kept_ ? *kept_ : vector(k);
        Vector result{};
        for (std::uint32_t i = 0; i < height_; ++i) {
            Vector terms{};
            for (std::uint32_t p = 0; p < width_; ++p) {
                const Address place = src1_.used(memory_, k, i, p);
                open_.load(place, foreign);
                const T term = memory_.load<T>(place) * x[p];
                terms[p] = term;
            }
            result[i] = rowSum<T>(std::span<const T>(terms).first(width_), i, transposed());
        }
        for (std::uint32_t i = 0; i < height_; ++i) {
            const Address to = dst_.element(memory_, k, i);
            open_.store(to, i);
            memory_.store(to, result[i]);
        }
        open_.settle();
    }

    // The element of the destination is the running sum. Single operands with tables are tested on the way;
    // of a transposed matrix it is not the entry read that is tested. False at a null entry.
    bool plainLoop(std::uint32_t k)
    {
        const bool tests = !name_.anyArray();
        for (std::uint32_t i = 0; i < height_; ++i) {
            if (tests && dst_.nullEntry(memory_, i))
                return false;
            const Address to = dst_.element(memory_, k, i);
            memory_.store(to, T{0});
            for (std::uint32_t p = 0; p < width_; ++p) {
                const bool matrixNull = tests && src1_.nullEntry(memory_, positionEntry(src1_, i, p));
                const bool vectorNull = tests && src2_.nullEntry(memory_, p);
                if (matrixNull || vectorNull)
                    return false;
                const T left = memory_.load<T>(src1_.used(memory_, k, i, p));
                const T term = left * memory_.load<T>(src2_.element(memory_, k, p));
                const T sum = memory_.load<T>(to) + term;
                memory_.store(to, sum);
            }
        }
        return true;
    }

    const Call& call_;
    Memory& memory_;
    const Name& name_;
    const std::uint32_t width_;
    const std::uint32_t height_;
    const std::uint32_t length_;
    const Operand src1_;
    const Operand src2_;
    const Operand dst_;
    std::optional<Vector> kept_;
    OpenOrder open_;
};

template <typename T>
struct MatrixByVector
{
    static std::int32_t run(const Call& call, Memory& memory) { return Product<T>(call, memory).run(); }
};

const Family family(Root::Mul, [](const Name& name) -> Behaviour {
    return multipliesVector(name) ? byType<MatrixByVector>(name) : nullptr;
});

} // namespace

} // namespace model
