// Extract: the elements of a strided, list or pointer operand side by side in one plain run, as raw bits.
#include "frame.h"
#include "registry.h"

namespace model {

namespace {

// Pointer-layout members of single objects that test neither pointers nor sizes. Of the vectors' two types
// only one is among them.
bool testsNothing(const Name& name)
{
    if (name.layout != Layout::pointer)
        return false;
    return name.codes[0].kind == 'm' || name.type == Type::f64;
}

template <typename T>
class Gathering
{
public:
    Gathering(const Call& call, Memory& memory)
        : call_(call), memory_(memory), src_(call.operand("src")), dst_(call.pointer("dst"))
    {
    }

    void run()
    {
        const Layout layout = call_.name().layout;
        if (layout == Layout::stridedPointer)
            byEntries();
        else if (layout == Layout::pointer && call_.name().codes[0].transposed)
            scatterTable();
        else
            byRows();
    }

private:
    void move(Address place, Address from) { moveElement<T>(memory_, moved(dst_, place, sizeof(T)), from); }

    // Objects, rows, elements; a transposed source has its two steps exchanged and keeps the order of the
    // rows.
    void byRows()
    {
        Address place = 0;
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            for (std::uint32_t i = 0; i < src_.shape().height; ++i) {
                for (std::uint32_t j = 0; j < src_.shape().width; ++j)
                    move(place++, src_.used(memory_, k, i, j));
            }
        }
    }

    // One table entry after the other, each over all objects. Here a T in the name has no effect.
    void byEntries()
    {
        const Address length = src_.tableLength();
        for (std::uint32_t n = 0; n < length; ++n) {
            for (std::uint32_t k = 0; k < call_.count(); ++k)
                move(k * length + n, src_.through(memory_, n, k));
        }
    }

    // The single transposed table: read in its own order, scattered in the destination, without its shift.
    void scatterTable()
    {
        const Shape shape = src_.shape();
        for (std::uint32_t i = 0; i < shape.height; ++i) {
            for (std::uint32_t j = 0; j < shape.width; ++j)
                move(Address{j} * shape.height + i, src_.entry(memory_, Address{i} * shape.width + j));
        }
    }

    const Call& call_;
    Memory& memory_;
    Operand src_;
    Address dst_;
};

template <typename T>
struct Extract
{
    static std::int32_t run(const Call& call, Memory& memory)
    {
        if (!testsNothing(call.name())) {
            if (nullArgument(call))
                return nullPointerError;
            // An empty batch counts as a size of zero.
            if (zeroSize(call) || call.count() == 0)
                return sizeError;
        }
        Gathering<T>(call, memory).run();
        return ok;
    }
};

const Family family(Root::Extract, &byType<Extract>);

} // namespace

} // namespace model
