// Invert of general order: the determinant by pivoted elimination, and each element as a cofactor, for which
// a submatrix is eliminated anew, times the reciprocal of the determinant.
#include "elimination.h"
#include "ground.h"
#include "registry.h"

namespace model {

namespace {

template <typename T>
class Inverting
{
public:
    // What follows the elimination is kept in binary32, or in the wide unit for binary64.
    using Kept = typename Elimination<T>::Factor;

    Inverting(const Call& call, Memory& memory)
        : memory_(memory),
          src_(call.operand("src")),
          dst_(call.operand("dst")),
          order_(call.size("order")),
          testsEntries_(!call.name().anyArray())
    {
    }

    const Operand& src() const { return src_; }
    const Operand& dst() const { return dst_; }

    std::int32_t run(std::uint32_t k)
    {
        Elimination<T> matrix(order_);
        for (std::uint32_t i = 0; i < order_; ++i) {
            for (std::uint32_t j = 0; j < order_; ++j) {
                const Address entry = Address{i} * order_ + j;
                if (testsEntries_ && (src_.nullEntry(memory_, entry) || dst_.nullEntry(memory_, entry)))
                    return nullPointerError;
                matrix.at(i, j) = element(k, i, j);
            }
        }
        Kept product = 1;
        for (std::uint32_t p = 0; p + 1 < order_; ++p) {
            if (!matrix.findPivot(p))
                return singularError;
            matrix.eliminate(p);
            product = product * static_cast<Kept>(matrix.pivot(p));
        }
        if (!matrix.lastPasses())
            return singularError;
        const Kept det = timesLast(product, matrix.sign(), matrix.last());
        const Wide quotient = Wide(1) / static_cast<Wide>(det);
        const Kept reciprocal = static_cast<Kept>(quotient);
        for (std::uint32_t r = 0; r < order_; ++r) {
            for (std::uint32_t c = 0; c < order_; ++c) {
                const Wide scaled = static_cast<Wide>(minor(k, r, c)) * static_cast<Wide>(reciprocal);
                const Wide result = scaled * Wide((r + c) % 2 == 0 ? 1 : -1);
                memory_.store(dst_.stored(memory_, k, c, r), static_cast<T>(result));
            }
        }
        return ok;
    }

private:
    T element(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return memory_.load<T>(src_.stored(memory_, k, i, j));
    }

    // The product with sign and last pivot, formed in the wide unit.
    static Kept timesLast(Kept product, int sign, T last)
    {
        const Wide signedLast = static_cast<Wide>(sign) * static_cast<Wide>(last);
        const Wide whole = static_cast<Wide>(product) * signedLast;
        return static_cast<Kept>(whole);
    }

    // The determinant without row r and column c, zero if a pivot fails. It is read from the source, also
    // where elements of the inverse have come to lie there. Order 1 has the empty determinant.
    Kept minor(std::uint32_t k, std::uint32_t r, std::uint32_t c)
    {
        if (order_ == 1)
            return 1;
        Elimination<T> matrix(order_ - 1);
        for (std::uint32_t i = 0; i + 1 < order_; ++i) {
            for (std::uint32_t j = 0; j + 1 < order_; ++j)
                matrix.at(i, j) = element(k, i < r ? i : i + 1, j < c ? j : j + 1);
        }
        Kept product = 1;
        for (std::uint32_t p = 0; p + 1 < matrix.order(); ++p) {
            if (!matrix.findPivot(p)) {
                product = 0;
                break;
            }
            matrix.eliminate(p);
            product = product * static_cast<Kept>(matrix.pivot(p));
        }
        // Also after a pivot that failed, for a zero of either sign or a NaN.
        return matrix.lastPasses() ? timesLast(product, matrix.sign(), matrix.last()) : Kept(0);
    }

    Memory& memory_;
    Operand src_;
    Operand dst_;
    std::uint32_t order_;
    bool testsEntries_;
};

template <typename T>
struct Invert
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        Inverting<T> inverting(call, memory);
        const Operand& src = inverting.src();
        const Operand& dst = inverting.dst();
        if (nullInTables(call, memory, {&src, &dst}))
            return nullPointerError;
        const Ground buffer(call.pointer("buffer"), eliminationScratch(call.size("order"), sizeof(T)));
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (nullInLists(memory, k, {&dst, &src}))
                return nullPointerError;
            memory.leaveOpen(call.pointer("buffer"), eliminationScratch(call.size("order"), sizeof(T)));
            if (!nullInAnyTable(memory, {&dst})) // else that ends the call before a result
                undecidedIf(buffer.meets(groundOf(memory, dst, k)), "the buffer overlaps the results");
            if (const std::int32_t status = inverting.run(k); status != ok)
                return status;
        }
        return ok;
    }
};

const Family family(Root::Invert,
                    [](const Name& name) { return name.general() ? byType<Invert>(name) : nullptr; });

} // namespace

} // namespace model
