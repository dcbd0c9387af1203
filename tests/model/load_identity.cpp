// LoadIdentity: zeros, and a one in each row, over an array of matrices.
#include "frame.h"
#include "registry.h"

#include <algorithm>

namespace model {

namespace {

template <typename T>
class Filling
{
public:
    Filling(const Call& call, Memory& memory)
        : memory_(memory),
          dst_(call.operand("dst")),
          count_(call.word("count")),
          width_(call.word("width")),
          height_(call.word("height"))
    {
        // Steps too small for what they step over are raised. The row is measured with elements side by side,
        // also where they stand apart.
        constexpr std::uint32_t elementSize = sizeof(T);
        if (dst_.isTable()) {
            objectStep_ = displacement(std::max(call.word("dstStride0"), elementSize));
            return;
        }
        elementStep_ = displacement(std::max(call.word("dstStride2"), elementSize));
        rowStep_ = displacement(std::max(call.word("dstStride1"), width_ * elementSize));
    }

    void run()
    {
        if (negativeOrZero(width_) || negativeOrZero(height_))
            return;
        // The column of the one runs on from object to object, so that only the first gets a diagonal.
        std::uint32_t one = 0;
        for (std::uint32_t k = 0; k < count_; ++k) {
            for (std::uint32_t i = 0; i < height_; ++i) {
                for (std::uint32_t j = 0; j < width_; ++j)
                    fill(k, i, j, T(0));
                fill(k, i, one, T(1));
                ++one;
            }
        }
    }

private:
    static bool negativeOrZero(std::uint32_t size) { return static_cast<std::int32_t>(size) <= 0; }

    void fill(std::uint32_t k, std::uint32_t row, std::uint32_t column, T value)
    {
        memory_.storeBits(place(k, row, column), std::bit_cast<BitsOf<T>>(value));
    }

    Address place(std::uint32_t k, std::uint32_t row, std::uint32_t column)
    {
        if (dst_.isTable()) {
            const Address entry = dst_.entry(memory_, Address{row} * width_ + column);
            return moved(moved(entry, 1, dst_.shift()), k, objectStep_);
        }
        return moved(moved(dst_.object(memory_, k), row, rowStep_), column, elementStep_);
    }

    Memory& memory_;
    Operand dst_;
    std::uint32_t count_;
    std::uint32_t width_;
    std::uint32_t height_;
    Displacement objectStep_ = 0;
    Displacement rowStep_ = 0;
    Displacement elementStep_ = 0;
};

template <typename T>
struct LoadIdentity
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        // An empty batch is a size of zero; a matrix without rows or columns is not.
        if (call.word("count") == 0)
            return sizeError;
        Filling<T>(call, memory).run();
        return ok;
    }
};

const Family family(Root::LoadIdentity, &byType<LoadIdentity>);

} // namespace

} // namespace model
