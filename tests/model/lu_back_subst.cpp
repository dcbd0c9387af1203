// LUBackSubst: forward and backward substitution through the factors and rowIndex of LUDecomp.
#include "registry.h"
#include "solve.h"

#include <vector>

namespace model {

namespace {

template <typename T>
class Solving
{
public:
    Solving(const Call& call, Memory& memory)
        : name_(call.name()),
          memory_(memory),
          factor_(call.operand("src1")),
          b_(call.operand("src2")),
          dst_(call.operand("dst")),
          rowIndex_(call.pointer("rowIndex")),
          n_(call.size("order"))
    {
    }

    bool nullInTables() { return nullInAnyTable(memory_, {&factor_, &b_, &dst_}); }
    bool nullInLists(std::uint32_t k) { return model::nullInLists(memory_, k, {&factor_, &b_, &dst_}); }

    void run(std::uint32_t k)
    {
        readRows(k);
        checkOverlap(k);
        std::vector<T> x;
        for (std::uint32_t i = 0; i < n_; ++i) {
            const T right = memory_.load<T>(b_.element(memory_, k, row_[i]));
            if (i == 0) { // moved, not computed
                x.push_back(right);
                continue;
            }
            T sum = T(0);
            for (std::uint32_t j = 0; j < i; ++j) {
                const T product = factor(k, i, j) * x[j];
                sum = sum + product;
            }
            const T difference = right - sum;
            x.push_back(difference);
        }
        x[n_ - 1] = x[n_ - 1] / factor(k, n_ - 1, n_ - 1);
        for (std::uint32_t i = n_ - 1; i-- > 0;) {
            T sum = T(0);
            for (std::uint32_t j = i + 1; j < n_; ++j) {
                const T product = factor(k, i, j) * x[j];
                sum = sum + product;
            }
            const T difference = x[i] - sum;
            x[i] = difference / factor(k, i, i);
        }
        for (std::uint32_t i = 0; i < n_; ++i)
            memory_.store(dst_.element(memory_, k, i), x[i]);
    }

private:
    // The factor at positions, which rowIndex turns into rows, whatever it holds.
    T factor(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return memory_.load<T>(factorElement(memory_, name_, factor_, k, row_[i], j));
    }

    void readRows(std::uint32_t k)
    {
        const Address first = factor_.form().array ? Address{k} * n_ : 0;
        rows_ = Ground(moved(rowIndex_, first, 4), std::size_t{4} * n_);
        row_.clear();
        for (std::uint32_t i = 0; i < n_; ++i)
            row_.push_back(memory_.loadBits<std::uint32_t>(moved(rowIndex_, first + i, 4)));
    }

    // The solution may replace the right-hand side if the rows stand in their order; no other overlap has a
    // defined result.
    void checkOverlap(std::uint32_t k)
    {
        const Ground target = groundOf(memory_, dst_, k);
        undecidedIf(target.meetsItself(), "the solution overlaps itself");
        Ground factor;
        Ground right;
        bool inOrder = true;
        for (std::uint32_t i = 0; i < n_; ++i) {
            for (std::uint32_t j = 0; j < n_; ++j)
                factor.add(factorElement(memory_, name_, factor_, k, row_[i], j), sizeof(T));
            right.add(b_.element(memory_, k, row_[i]), sizeof(T));
            inOrder = inOrder && row_[i] == i;
        }
        undecidedIf(target.meets(factor) || target.meets(rows_), "the solution overlaps the factor");
        undecidedIf(!(inOrder && target == right) && target.meets(right),
                    "the solution overlaps the right-hand side");
        for (const Ground* source : {&factor, &right, &rows_})
            undecidedIf(source->meets(earlier_), "a source overlaps earlier results");
        earlier_.add(target);
    }

    const Name& name_;
    Memory& memory_;
    Operand factor_;
    Operand b_;
    Operand dst_;
    Address rowIndex_;
    std::uint32_t n_;
    std::vector<std::uint32_t> row_;
    Ground rows_;
    Ground earlier_;
};

template <typename T>
struct LUBackSubst
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (nullArgument(call))
            return nullPointerError;
        if (zeroSize(call))
            return sizeError;
        Solving<T> solving(call, memory);
        if (solving.nullInTables())
            return nullPointerError;
        for (std::uint32_t k = 0; k < call.count(); ++k) {
            if (solving.nullInLists(k))
                return nullPointerError;
            solving.run(k);
        }
        return ok;
    }
};

const Family family(Root::LUBackSubst, &byType<LUBackSubst>);

} // namespace

} // namespace model
