// Add and Sub on matrices of a fixed size with an array among the operands.
//
// A single operand is read once, ahead of the objects. Each object is loaded in any order that loads an
// element before it is stored; of the 32f members of order 3 the next object is loaded before the current one
// is stored.
#include "add_sub_matrix.h"
#include "entries.h"
#include "frame.h"
#include "overlap.h"
#include "registry.h"

#include <array>
#include <string_view>
#include <vector>

namespace model {

namespace {

// What stands in the place of the single operand at the nine positions of the result where its alignment and
// that of the object disagree: stored row and column, "0" for +0 and "u" for anything.
using Arrangement = std::array<std::string_view, 9>;

constexpr Arrangement plainForAligned = {"00", "0", "01", "02", "0", "10", "11", "0", "12"};
constexpr Arrangement alignedForPlainFirst = {"00", "02", "10", "12", "20", "22", "u", "u", "22"};
constexpr Arrangement alignedForPlainSecond = {"00", "02", "10", "12", "20", "22", "u", "u", "10"};
constexpr Arrangement transposedPlainForAligned = {"00", "0", "01", "10", "0", "11", "20", "0", "21"};
constexpr Arrangement transposedAlignedForPlain = {"00", "01", "02", "20", "21", "22", "u", "u", "22"};

const Arrangement& arrangementOf(const Name& name, bool singlePasses)
{
    if (name.codeIn("mamT mTma"))
        return singlePasses ? transposedAlignedForPlain : transposedPlainForAligned;
    if (!singlePasses)
        return plainForAligned;
    return name.codeText == "mma" ? alignedForPlainFirst : alignedForPlainSecond;
}

// Whether all these addresses and steps are multiples of 16.
bool aligned(std::initializer_list<Address> values)
{
    Address all = 0;
    for (const Address value : values)
        all |= value;
    return (all & 15) == 0;
}

constexpr Address low(Displacement step)
{
    return static_cast<Address>(step);
}

template <typename T>
class Batch
{
public:
    Batch(const Call& call, Memory& memory)
        : call_(call),
          memory_(memory),
          name_(call.name()),
          n_(name_.size),
          pair_(call),
          dst_(call.operand("dst")),
          open_(sizeof(T))
    {
    }

    std::int32_t run()
    {
        if (nullArgument(call_))
            return nullPointerError;
        const std::uint32_t entries = n_ * n_;
        if (nullInTables(memory_, {{&dst_, entries}, {&src1_, entries}, {&src2_, entries}}))
            return nullPointerError;
        if (call_.count() == 0 && !takesOneAtLeast(name_))
            return ok;
        keepSingle();
        if (takesOneAtLeast(name_))
            return runAhead();
        return loadsNextObjectFirst(name_) ? runLoadingAhead() : runInTurn();
    }

private:
    struct Element
    {
        T value{};
        bool known = true;
    };
    using Object = std::vector<Element>;

    const Operand& single() const { return src1_.form().array ? src2_ : src1_; }
    const Operand& array() const { return src1_.form().array ? src1_ : src2_; }
    bool hasSingle() const { return !src1_.form().array || !src2_.form().array; }

    Address place(const Operand& operand, std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return &operand == &src1_ ? pair_.first(memory_, k, i, j) : pair_.second(memory_, k, i, j);
    }

    void keepSingle()
    {
        if (!hasSingle())
            return;
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j)
                kept_.push_back(memory_.load<T>(place(single(), 0, i, j)));
        }
        for (std::uint32_t row = 0; row < n_ && findsSecondRowsByFirst(name_); ++row)
            memory_.mayRead(place(src2_, 0, 0, row), 16);
    }

    // The tests of alignment of the list members that keep the single operand in one of two arrangements.
    bool singlePasses() const { return aligned({single().pointer(), low(single().stride1())}); }

    bool objectPasses(std::uint32_t k)
    {
        return aligned({array().object(memory_, k), dst_.object(memory_, k), low(array().stride1()),
                        low(dst_.stride1())});
    }

    // The one test of the whole call in the members that have no lists.
    bool callPasses() const
    {
        return aligned({src1_.pointer(), low(src1_.stride0()), low(src1_.stride1()), src2_.pointer(),
                        low(src2_.stride0()), low(src2_.stride1()), dst_.pointer(), low(dst_.stride0()),
                        low(dst_.stride1())});
    }

    // The single operand's element as stored.
    T keptStored(std::uint32_t row, std::uint32_t column) const
    {
        return single().form().transposed ? kept_[column * n_ + row] : kept_[row * n_ + column];
    }

    Element arranged(std::string_view text) const
    {
        if (text == "0")
            return {T{0}, true};
        if (text == "u")
            return {T{0}, false};
        return {
            keptStored(static_cast<std::uint32_t>(text[0] - '0'), static_cast<std::uint32_t>(text[1] - '0')),
            true};
    }

    Element singleElement(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        if (arrangesSingleByItsAlignment(name_) && singlePasses() != objectPasses(k))
            return arranged(arrangementOf(name_, singlePasses())[i * n_ + j]);
        return {kept_[i * n_ + j], true};
    }

    Element operandElement(const Operand& operand, std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        if (!operand.form().array)
            return singleElement(k, i, j);
        const Address from = place(operand, k, i, j);
        open_.load(from, i * n_ + j);
        return {memory_.load<T>(from), true};
    }

    bool exchanges(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        if (!exchangesLastElement(name_) || i != 2 || j != 2)
            return false;
        return name_.layout == Layout::list ? objectPasses(k) : callPasses();
    }

    T combined(T first, T second) const
    {
        const T result = name_.root == Root::Add ? first + second : first - second;
        return result;
    }

    // Loads object k and computes it.
    Object loaded(std::uint32_t k)
    {
        Object object;
        pair_.mayReadUnused(memory_, k);
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j) {
                const Element a = operandElement(src1_, k, i, j);
                const Element b = operandElement(src2_, k, i, j);
                const T value = exchanges(k, i, j) ? combined(b.value, a.value) : combined(a.value, b.value);
                object.push_back({value, a.known && b.known});
            }
        }
        return object;
    }

    void store(const Object& object, std::uint32_t i, std::uint32_t j, Address to)
    {
        const Element& element = object[i * n_ + j];
        open_.store(to, i * n_ + j);
        if (element.known)
            memory_.store(to, element.value);
        else
            memory_.leaveOpen(to, sizeof(T));
    }

    void store(const Object& object, std::uint32_t k)
    {
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j)
                store(object, i, j, dst_.stored(memory_, k, i, j));
        }
    }

    // Through the entry ahead of the destination's list.
    void storeAheadOfList(const Object& object)
    {
        const Address base = moved(entryAheadOfList(), 1, dst_.shift());
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j)
                store(object, i, j, moved(moved(base, i, dst_.stride1()), j, dst_.elementStep()));
        }
    }

    Address entryAheadOfList() { return memory_.loadPointer(dst_.pointer() - sizeof(Address)); }

    void noteNextObject(std::uint32_t k)
    {
        for (const Operand* operand : {&src1_, &src2_}) {
            if (!operand->form().array || operand->nullInList(memory_, k))
                continue;
            for (std::uint32_t i = 0; i < n_; ++i) {
                for (std::uint32_t j = 0; j < n_; ++j)
                    open_.load(place(*operand, k, i, j), foreign);
            }
        }
    }

    std::int32_t runInTurn()
    {
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (nullInAnyList(memory_, k, {&dst_, &src1_, &src2_}))
                return nullPointerError;
            const Object object = loaded(k);
            store(object, k);
            if (mayLoadNextObjectFirst(name_) && k + 1 < call_.count())
                noteNextObject(k + 1);
            open_.settle();
        }
        return ok;
    }

    // The next object is loaded before the current one is stored.
    std::int32_t runLoadingAhead()
    {
        Object next;
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (nullInAnyList(memory_, k, {&dst_, &src1_, &src2_}))
                return nullPointerError;
            const Object current = next.empty() ? loaded(k) : next;
            next.clear();
            if (k + 1 < call_.count() && !nullInAnyList(memory_, k + 1, {&src1_, &src2_}))
                next = loaded(k + 1);
            storeLoadedBefore(current, k);
        }
        return ok;
    }

    // What was loaded stays as it was, and no more than the order of the stores is open.
    void storeLoadedBefore(const Object& object, std::uint32_t k)
    {
        open_ = OpenOrder(sizeof(T));
        store(object, k);
        open_.settle();
    }

    // The same with the tests of the lists ahead: of the last object stored and the first one loaded, and
    // then of each object loaded and the one stored behind it.
    std::int32_t runAhead()
    {
        const std::uint32_t count = call_.count();
        if (nullAtStart(count))
            return nullPointerError;
        Object current = loaded(0);
        for (std::uint32_t k = 1; k < count; ++k) {
            const bool sourceNull = src1_.nullInList(memory_, k);
            const bool destinationNull = dst_.nullInList(memory_, k - 1);
            if (sourceNull || destinationNull)
                return nullPointerError;
            const Object next = loaded(k);
            storeLoadedBefore(current, k - 1);
            current = next;
        }
        if (count == 0 && dst_.isList()) {
            open_ = OpenOrder(sizeof(T));
            storeAheadOfList(current);
            open_.settle();
        } else {
            storeLoadedBefore(current, count == 0 ? 0 : count - 1);
        }
        return ok;
    }

    bool nullAtStart(std::uint32_t count)
    {
        if (!dst_.isList())
            return false;
        const bool destinationNull =
            count == 0 ? entryAheadOfList() == 0 : dst_.nullInList(memory_, count - 1);
        const bool sourceNull = src1_.nullInList(memory_, 0);
        return destinationNull || sourceNull;
    }

    const Call& call_;
    Memory& memory_;
    const Name& name_;
    const std::uint32_t n_;
    const MatrixPair pair_;
    const Operand& src1_ = pair_.src1;
    const Operand& src2_ = pair_.src2;
    const Operand dst_;
    std::vector<T> kept_;
    OpenOrder open_;
};

template <typename T>
struct BatchSum
{
    static std::int32_t run(const Call& call, Memory& memory) { return Batch<T>(call, memory).run(); }
};

Behaviour batchSum(const Name& name)
{
    return isFixedBatch(name) ? byType<BatchSum>(name) : nullptr;
}

const Family addition(Root::Add, &batchSum);
const Family subtraction(Root::Sub, &batchSum);

} // namespace

} // namespace model
