// QRBackSubst: the reflectors of QRDecomp applied to a right-hand side, and the triangular system solved.
#include "registry.h"
#include "solve.h"

#include <algorithm>
#include <vector>

namespace model {

namespace {

// General members that multiply with the reciprocal of the diagonal element; the others divide.
bool multipliesByReciprocal(const Name& name)
{
    if (!name.general())
        return false;
    if (name.codeText == "mv")
        return name.layout == Layout::standard || name.layout == Layout::strided;
    return name.layout == Layout::pointer || isList(name.layout);
}

// The binary64 list members for many factors find the reflectors where they are, but step by one byte from
// row to row of the triangle, from one row above the matrix.
bool stepsByOne(const Name& name)
{
    return name.codeText == "mava" && name.type == Type::f64 && name.layout == Layout::list;
}

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
          buffer_(call.pointer("buffer")),
          width_(call.size("width")),
          height_(call.size("height"))
    {
    }

    bool nullInTables() { return nullInAnyTable(memory_, {&factor_, &b_, &dst_}); }
    bool nullInLists(std::uint32_t k) { return model::nullInLists(memory_, k, {&factor_, &b_, &dst_}); }

    void run(std::uint32_t k)
    {
        checkOverlap(k);
        transform(k);
        solve(k);
    }

private:
    std::uint32_t reflectors() const { return width_ == height_ ? width_ - 1 : width_; }

    Address reflectorPlace(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return factorElement(memory_, name_, factor_, k, i, j);
    }

    Address trianglePlace(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        if (!stepsByOne(name_))
            return factorElement(memory_, name_, factor_, k, i, j);
        const Address above = factor_.object(memory_, k) - static_cast<Address>(factor_.stride1());
        return above + (Address{i} + 1) + Address{j} * 8;
    }

    T reflector(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return memory_.load<T>(reflectorPlace(k, i, j));
    }

    T triangle(std::uint32_t k, std::uint32_t i, std::uint32_t j)
    {
        return memory_.load<T>(trianglePlace(k, i, j));
    }

    // With more columns than rows the steps go on behind the buffer and are seen there.
    void transform(std::uint32_t k)
    {
        y_.clear();
        for (std::uint32_t i = 0; i < height_; ++i)
            y_.push_back(memory_.load<T>(b_.element(memory_, k, i)));
        memory_.leaveOpen(buffer_, std::size_t{height_} * sizeof(T));
        for (std::uint32_t i = height_; i < width_; ++i)
            y_.push_back(memory_.load<T>(moved(buffer_, i, sizeof(T))));
        for (std::uint32_t step = 0; step < reflectors(); ++step) {
            T u = T(1);
            T e = y_[step];
            for (std::uint32_t i = step + 1; i < height_; ++i) {
                const T v = reflector(k, i, step);
                const T product = y_[i] * v;
                e = e + product;
                const T square = v * v;
                u = u + square;
            }
            const T coefficient = T(-2) / u;
            e = e * coefficient;
            y_[step] = y_[step] + e;
            for (std::uint32_t i = step + 1; i < height_; ++i) {
                const T product = reflector(k, i, step) * e;
                y_[i] = y_[i] + product;
            }
        }
        for (std::uint32_t i = height_; i < width_; ++i)
            memory_.store(moved(buffer_, i, sizeof(T)), y_[i]);
    }

    void solve(std::uint32_t k)
    {
        std::vector<T> x(width_);
        for (std::uint32_t i = width_; i-- > 0;) {
            T right = y_[i];
            if (i + 1 < width_) {
                T sum = T(0);
                for (std::uint32_t j = i + 1; j < width_; ++j) {
                    const T product = triangle(k, i, j) * x[j];
                    sum = sum + product;
                }
                right = y_[i] - sum;
            }
            const T diagonal = triangle(k, i, i);
            if (multipliesByReciprocal(name_)) {
                const T reciprocal = T(1) / diagonal;
                x[i] = right * reciprocal;
            } else {
                x[i] = right / diagonal;
            }
        }
        for (std::uint32_t i = 0; i < width_; ++i)
            memory_.store(dst_.element(memory_, k, i), x[i]);
    }

    // The solution may lie on the right-hand side of its own object in any way; no other overlap has a
    // defined result.
    void checkOverlap(std::uint32_t k)
    {
        const Ground target = groundOf(memory_, dst_, k);
        undecidedIf(target.meetsItself(), "the solution overlaps itself");
        Ground factor;
        for (std::uint32_t j = 0; j < width_; ++j) {
            for (std::uint32_t i = 0; i <= j; ++i)
                factor.add(trianglePlace(k, i, j), sizeof(T));
            for (std::uint32_t i = j + 1; i < height_; ++i)
                factor.add(reflectorPlace(k, i, j), sizeof(T));
        }
        const Ground right = groundOf(memory_, b_, k);
        const Ground buffer(buffer_, std::size_t{std::max(width_, height_)} * sizeof(T));
        undecidedIf(target.meets(factor), "the solution overlaps the factor");
        undecidedIf(buffer.meets(factor) || buffer.meets(right) || buffer.meets(target),
                    "the buffer overlaps an operand");
        undecidedIf(factor.meets(earlier_) || right.meets(earlier_), "a source overlaps earlier results");
        earlier_.add(target);
    }

    const Name& name_;
    Memory& memory_;
    Operand factor_;
    Operand b_;
    Operand dst_;
    Address buffer_;
    std::uint32_t width_;
    std::uint32_t height_;
    std::vector<T> y_;
    Ground earlier_;
};

template <typename T>
struct QRBackSubst
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

const Family family(Root::QRBackSubst, &byType<QRBackSubst>);

} // namespace

} // namespace model
