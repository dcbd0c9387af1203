// FrobNorm: the square root of the sum of the squares of all elements of a matrix, into adjacent results.
#include "block_sum.h"
#include "frame.h"
#include "reference.h"
#include "registry.h"
#include "roots.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace model {

namespace {

// The short kernels of binary32 take the root by the processor's estimate.
bool estimatesRoot(const Name& name)
{
    return isShortKernel(name) && name.type == Type::f32;
}

// Short kernels that take several arrays in one step. In lists they test the entries of a step before it, and
// the entries of the objects that do not fill a step not at all.
std::uint32_t objectsPerStep(const Name& name)
{
    if (!isShortKernel(name) || !name.anyArray() || name.size > 4)
        return 1;
    return name.type == Type::f32 ? 4 : 2;
}

// Short kernels that promise their grouping.
bool groupingKnown(const Name& name)
{
    if (name.codeText != "m")
        return false;
    return name.type == Type::f32 ? name.size < 6 : name.size == 3;
}

// The squares by rows, with the columns added up first.
template <typename T>
T shortSum(const std::vector<T>& squares, std::uint32_t n)
{
    std::vector<T> c;
    for (std::uint32_t j = 0; j < n; ++j) {
        const auto q = [&](std::uint32_t i) { return squares[i * n + j]; };
        if (n == 3)
            c.push_back((q(0) + q(1)) + q(2));
        else if (n == 4)
            c.push_back((q(0) + q(1)) + (q(2) + q(3)));
        else
            c.push_back(((q(0) + q(1)) + (q(2) + q(3))) + q(4));
    }
    if (n == 3)
        return sizeof(T) == 4 ? (c[0] + c[1]) + (T(0) + c[2]) : (c[2] + c[0]) + c[1];
    const T four = (c[0] + c[2]) + (c[1] + c[3]);
    return n == 4 ? four : four + c[4];
}

template <typename T>
class Norm
{
public:
    Norm(const Call& call, Memory& memory)
        : name_(call.name()),
          memory_(memory),
          src_(call.operand("src")),
          dst_(call.pointer("dst")),
          width_(call.size("width")),
          height_(call.size("height"))
    {
    }

    const Operand& src() const { return src_; }

    // False at a null entry in the table of a single matrix.
    bool run(std::uint32_t k)
    {
        if (isShortKernel(name_)) {
            runShort(k);
            return true;
        }
        // One matrix is summed by rows, those of an array by columns.
        const bool byColumns = name_.anyArray();
        T sum = T(0);
        for (std::uint32_t outer = 0; outer < (byColumns ? width_ : height_); ++outer) {
            for (std::uint32_t inner = 0; inner < (byColumns ? height_ : width_); ++inner) {
                const std::uint32_t i = byColumns ? inner : outer;
                const std::uint32_t j = byColumns ? outer : inner;
                if (!byColumns && src_.nullEntry(memory_, Address{i} * width_ + j))
                    return false;
                sum = sum + square(k, i, j);
            }
        }
        memory_.store(result(k), squareRoot(sum));
        return true;
    }

    // The rows of three elements are loaded with the element behind them when several matrices go together.
    void readBesideRows(std::uint32_t k)
    {
        if (estimatesRoot(name_) && name_.size == 3) {
            for (std::uint32_t i = 0; i < 3; ++i)
                memory_.mayRead(src_.stored(memory_, k, i, 0), 16);
        }
    }

private:
    Address result(std::uint32_t k) const { return moved(dst_, k, sizeof(T)); }

    T square(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        const T x = memory_.load<T>(src_.stored(memory_, k, i, j));
        const T rounded = x * x;
        return rounded;
    }

    T root(T sum) const { return estimatesRoot(name_) ? refinedRoot(sum) : squareRoot(sum); }

    void runShort(std::uint32_t k)
    {
        std::vector<T> squares;
        for (std::uint32_t i = 0; i < height_; ++i) {
            for (std::uint32_t j = 0; j < width_; ++j)
                squares.push_back(square(k, i, j));
        }
        if (groupingKnown(name_))
            memory_.store(result(k), root(shortSum(squares, width_)));
        else
            storeAnyOrder(result(k), squares);
    }

    // Any order and grouping of the sum. The squares themselves are known. The root is taken of every number
    // that the sum can be, or of the ends where the root is monotonic.
    void storeAnyOrder(Address address, const std::vector<T>& squares)
    {
        T plain = T(0);
        bool denormal = false;
        for (const T q : squares) {
            plain = plain + q;
            denormal = denormal || isDenormal(q);
        }
        const bool special =
            std::any_of(squares.begin(), squares.end(), [](T q) { return !std::isfinite(q); });
        if (special) { // a NaN or an infinity, in any order
            memory_.store(address, root(plain));
            return;
        }
        if (denormal && ignoresDenormals())
            throw Undecided{"a sum in which denormal terms may count or not"};
        const Range<T> sums = sumInAnyOrder(squares);
        if (!std::isfinite(sums.high) && std::isfinite(sums.low))
            throw Undecided{"a sum that overflows in some orders"};
        if (!std::isfinite(sums.high) && !roundsToNearest())
            throw Undecided{"a sum that may come to rest at the largest number"};
        T low = root(sums.low);
        T high = low;
        const auto include = [&](T sum) {
            const T value = root(sum);
            if (!(value >= low) || !(value <= high)) {
                if (!std::isfinite(value) || !std::isfinite(low) || !std::isfinite(high))
                    throw Undecided{"a sum whose root is finite in some orders"};
                low = std::min(low, value);
                high = std::max(high, value);
            }
        };
        if (estimatesRoot(name_) && std::isfinite(sums.high)) {
            for (T sum = sums.low; sum < sums.high;) {
                sum = std::bit_cast<T>(static_cast<BitsOf<T>>(std::bit_cast<BitsOf<T>>(sum) + 1));
                include(sum);
            }
        } else if (sums.high != sums.low) {
            include(sums.high);
        }
        if (std::bit_cast<BitsOf<T>>(low) == std::bit_cast<BitsOf<T>>(high))
            memory_.store(address, low);
        else
            storeBetween(memory_, address, low, high);
    }

    const Name& name_;
    Memory& memory_;
    Operand src_;
    Address dst_;
    std::uint32_t width_;
    std::uint32_t height_;
};

template <typename T>
struct FrobNorm
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        Norm<T> norm(call, memory);
        if (nullInTables(call, memory, {&norm.src()}))
            return nullPointerError;
        // The fixed sizes may have the elements of the next objects in hand when they store a result.
        if (!call.name().general())
            memory.setOrder(Memory::Order::readsOpen);
        const std::uint32_t step = objectsPerStep(call.name());
        const std::uint32_t inSteps = call.count() / step * step;
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (k % step == 0 && k < inSteps) {
                for (std::uint32_t ahead = 0; ahead < step; ++ahead) {
                    if (nullInLists(memory, k + ahead, {&norm.src()}))
                        return nullPointerError;
                }
            }
            if (step > 1 && k < inSteps)
                norm.readBesideRows(k);
            if (!norm.run(k))
                return nullPointerError;
        }
        return ok;
    }
};

const Family family(Root::FrobNorm, &byType<FrobNorm>);

} // namespace

} // namespace model
