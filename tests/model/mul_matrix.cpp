// Mul of two matrices.
//
// The loops run over src1Height rows, src2Width columns and src2Height terms in every code. The width and
// height of a transposed operand are those of the stored matrix in the test of the sizes and of the tables,
// and those of its use in the loops.
#include "mul_matrix.h"
#include "entries.h"
#include "frame.h"
#include "overlap.h"
#include "registry.h"

#include <vector>

namespace model {

namespace {

bool multipliesMatrix(const Name& name)
{
    return name.codes[0].kind == 'm' && name.codes[1].kind == 'm';
}

template <typename T>
class Product
{
public:
    Product(const Call& call, Memory& memory)
        : call_(call),
          memory_(memory),
          name_(call.name()),
          rows_(call.size("src1Height")),
          columns_(call.size("src2Width")),
          terms_(call.size("src2Height")),
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
        if (wrongSizes())
            return sizeError;
        if (name_.anyArray() && !testsNoEntry(name_) && nullInTables())
            return nullPointerError;
        if (isKernel(name_) && !src2_.form().array)
            keepSecond();
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (!testsNoEntry(name_) && nullInAnyList(memory_, k, {&src1_, &src2_, &dst_}))
                return nullPointerError;
            if (isKernel(name_))
                kernel(k);
            else if (!plainLoop(k))
                return nullPointerError;
        }
        return ok;
    }

private:
    // X and Y: what counts as the inner width of the first and the inner height of the second operand.
    std::uint32_t innerOfFirst() const { return src1_.form().transposed ? rows_ : call_.size("src1Width"); }
    std::uint32_t innerOfSecond() const { return src2_.form().transposed ? columns_ : terms_; }

    bool wrongSizes() const
    {
        if (call_.size("src1Width") == 0 || rows_ == 0 || terms_ == 0)
            return true;
        // Only here a destination without columns is no error.
        if (columns_ == 0 && name_.codeText != "mam")
            return true;
        // Two codes compare the outer sizes, although they transpose neither operand.
        if (name_.codeIn("mma mama"))
            return rows_ != columns_;
        return innerOfFirst() != innerOfSecond();
    }

    bool nullInTables()
    {
        return model::nullInTables(memory_, {{&src1_, call_.size("src1Width") * rows_},
                                             {&src2_, columns_ * terms_},
                                             {&dst_, innerOfFirst() * innerOfSecond()}});
    }

    // Ahead of the objects, also when there are none. Nothing needs it then, so that it is no more than may
    // be read.
    void keepSecond()
    {
        for (std::uint32_t p = 0; p < terms_; ++p) {
            for (std::uint32_t j = 0; j < columns_; ++j) {
                const Address place = src2_.used(memory_, 0, p, j);
                if (call_.count() == 0)
                    memory_.mayRead(place, sizeof(T));
                else
                    second_.push_back(memory_.load<T>(place));
            }
        }
    }

    void loadSecond(std::uint32_t k)
    {
        if (src2_.form().array) {
            second_.clear();
            for (std::uint32_t p = 0; p < terms_; ++p) {
                for (std::uint32_t j = 0; j < columns_; ++j)
                    second_.push_back(memory_.load<T>(src2_.used(memory_, k, p, j)));
            }
        }
        if (readsSecondFirst(name_))
            return;
        for (std::uint32_t p = 0; p < terms_; ++p) {
            for (std::uint32_t j = 0; j < columns_; ++j)
                open_.load(src2_.used(memory_, k, p, j), foreign);
        }
    }

    // On aligned operands some members stay at the first object of their first array.
    bool staysAtFirstObject() const
    {
        if (!staysAtFirstWhenAligned(name_))
            return false;
        const Address all = src2_.pointer() | static_cast<Address>(src2_.stride1()) | dst_.pointer() |
                            static_cast<Address>(dst_.stride0()) | static_cast<Address>(dst_.stride1());
        return (all & 15) == 0;
    }

    T product(std::uint32_t k, std::uint32_t i, std::uint32_t j, bool inPlace)
    {
        std::vector<T> t;
        for (std::uint32_t p = 0; p < terms_; ++p) {
            const Address place = src1_.used(memory_, k, i, p);
            open_.load(place, inPlace ? i * columns_ + p : foreign);
            const T term = memory_.load<T>(place) * second_[p * columns_ + j];
            t.push_back(term);
        }
        if (sumsPairs(name_)) {
            const T low = t[0] + t[1];
            const T high = t[2] + t[3];
            const T four = low + high;
            const T last = t[4] + t[5];
            const T all = four + last;
            return all;
        }
        T sum = t[0];
        for (std::uint32_t p = 1; p < terms_; ++p) {
            const T next = sum + t[p];
            sum = next;
        }
        return sum;
    }

    void kernel(std::uint32_t k)
    {
        loadSecond(k);
        const bool stays = staysAtFirstObject();
        const bool inPlace = worksInPlaceOfFirst(name_) && !stays;
        std::vector<T> result;
        for (std::uint32_t i = 0; i < rows_; ++i) {
            for (std::uint32_t j = 0; j < columns_; ++j)
                result.push_back(product(stays ? 0 : k, i, j, inPlace));
        }
        for (std::uint32_t i = 0; i < rows_; ++i) {
            for (std::uint32_t j = 0; j < columns_; ++j) {
                const Address to = dst_.stored(memory_, k, i, j);
                open_.store(to, i * columns_ + j);
                memory_.store(to, result[i * columns_ + j]);
            }
        }
        open_.settle();
        if (fetchesListsAhead(name_))
            mayReadEntry(k + 1);
    }

    void mayReadEntry(std::uint32_t k)
    {
        for (const Operand* operand : {&src1_, &src2_, &dst_}) {
            if (operand->isList())
                memory_.mayRead(operand->pointer() + Address{k} * sizeof(Address), sizeof(Address));
        }
    }

    // The element of the destination is the running sum. Single operands with tables are tested on the way.
    // False at a null entry.
    bool plainLoop(std::uint32_t k)
    {
        const bool tests = !name_.anyArray();
        for (std::uint32_t i = 0; i < rows_; ++i) {
            for (std::uint32_t j = 0; j < columns_; ++j) {
                if (tests && dst_.nullEntry(memory_, usedEntry(dst_, i, j)))
                    return false;
                const Address to = dst_.stored(memory_, k, i, j);
                memory_.store(to, T{0});
                for (std::uint32_t p = 0; p < terms_; ++p) {
                    const bool firstNull = tests && src1_.nullEntry(memory_, usedEntry(src1_, i, p));
                    const bool secondNull = tests && src2_.nullEntry(memory_, usedEntry(src2_, p, j));
                    if (firstNull || secondNull)
                        return false;
                    const T left = memory_.load<T>(src1_.used(memory_, k, i, p));
                    const T term = left * memory_.load<T>(src2_.used(memory_, k, p, j));
                    const T sum = memory_.load<T>(to) + term;
                    memory_.store(to, sum);
                }
            }
        }
        return true;
    }

    const Call& call_;
    Memory& memory_;
    const Name& name_;
    const std::uint32_t rows_;
    const std::uint32_t columns_;
    const std::uint32_t terms_;
    const Operand src1_;
    const Operand src2_;
    const Operand dst_;
    std::vector<T> second_;
    OpenOrder open_;
};

template <typename T>
struct MatrixByMatrix
{
    static std::int32_t run(const Call& call, Memory& memory) { return Product<T>(call, memory).run(); }
};

const Family family(Root::Mul, [](const Name& name) -> Behaviour {
    return multipliesMatrix(name) ? byType<MatrixByMatrix>(name) : nullptr;
});

} // namespace

} // namespace model
