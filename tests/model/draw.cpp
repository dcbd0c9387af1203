#include "draw.h"

#include "manners.h"
#include "place.h"
#include "values.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace model {

namespace {

constexpr std::size_t scratchRoom = Arena::roomCount - 1;

class Drawing
{
public:
    Drawing(const Name& name, Random& random)
        : name_(name),
          random_(random),
          manners_(mannersOf(name)),
          arena_(*arenas()[random.below(static_cast<std::uint32_t>(arenas().size()))])
    {
        taste_.aligned = random_.chance(40);
        taste_.nullEntry = random_.chance(10);
        taste_.loosePercent = manners_.loosePercent;
        plain_ = random_.chance(manners_.plainPercent);
    }

    Draw run()
    {
        drawSizes();
        drawConstants();
        placeOperands();
        placeScratch();
        if (random_.chance(4))
            makeNull();
        Draw draw{.call = call(), .arena = &arena_, .entry = drawEntry(), .protect = random_.chance(40)};
        // A call with a size or pointer of zero has nothing to fill.
        fillOperands();
        // Operands may run over into other rooms, backward too.
        arena_.snapshot();
        return draw;
    }

private:
    std::uint32_t drawSize(bool length, bool large)
    {
        if (length && random_.chance(40))
            return 8 + random_.below(33);
        if (large)
            return 8 + random_.below(13);
        const std::uint32_t most =
            random_.chance(80) ? std::min(7u, manners_.largestSize) : manners_.largestSize;
        return manners_.smallestSize + random_.below(most - manners_.smallestSize + 1);
    }

    void drawSizes()
    {
        const std::vector<std::string> sizes = sizeNames(name_);
        // Sizes that have to agree are drawn from two values.
        const bool lengthOnly = sizes.size() == 1 && sizes[0] == "length";
        const bool large = manners_.largeSizes && name_.general() && random_.chance(4);
        const std::array values = {drawSize(lengthOnly, large), drawSize(lengthOnly, large)};
        for (const std::string& size : sizes)
            arguments_[size] = values[random_.below(2)];
        if (manners_.tall && arguments_["width"] > arguments_["height"] && random_.chance(85))
            std::swap(arguments_["width"], arguments_["height"]);
        if (!sizes.empty() && random_.chance(4))
            arguments_[sizes[random_.below(static_cast<std::uint32_t>(sizes.size()))]] = 0;
        if (manners_.signedSizes && random_.chance(5))
            arguments_[random_.pick({"width", "height"})] = random_.pick({0xFFFFFFFFu, 0x80000000u});
        // Batches of fixed size are worked on in groups, and some read ahead of what they write.
        const bool longBatch = !name_.general() && random_.chance(8);
        count_ = random_.chance(5)    ? 0
                 : random_.chance(15) ? 1
                 : longBatch          ? 10 + random_.below(31)
                 : random_.chance(70) ? 2 + random_.below(4)
                                      : 6 + random_.below(4);
        if (large)
            count_ = std::min(count_, 2u);
        arguments_["count"] = count_;
    }

    void drawConstants()
    {
        for (const char* value : {"value", "value1", "value2"})
            arguments_[value] = Values(name_.type, drawProfile(random_, plain_), random_).next();
    }

    // The call with the arguments so far, the others being zero.
    Call call() const
    {
        std::vector<support::Argument> list;
        for (const Parameter& parameter : parameters(name_)) {
            const auto found = arguments_.find(parameter.name);
            std::uint64_t bits = found == arguments_.end() ? 0 : found->second;
            if (parameter.kind == Kind::word || parameter.kind == Kind::value32f)
                bits = static_cast<std::uint32_t>(bits);
            list.push_back({parameter.kind, bits});
        }
        return Call(name_, list);
    }

    // Sizes that only a test of the arguments looks at do not count for the places.
    static Shape bounded(Shape shape)
    {
        const auto bound = [](std::uint32_t size) { return size > 64 ? 0 : size; };
        return {bound(shape.width), bound(shape.height)};
    }

    void placeOperands()
    {
        Placing placing(arena_, random_, taste_, name_.elementSize());
        const Call sized = call();
        std::vector<Place> places;
        for (const Form& form : forms(name_)) {
            const std::size_t room = 2 * places.size();
            const std::uint32_t objects = form.array ? count_ : 1;
            const Place* other = nullptr;
            if (!places.empty() && random_.chance(form.base == "dst" ? 12 : 4))
                other = &places[random_.below(static_cast<std::uint32_t>(places.size()))];
            if (form.dense)
                places.push_back(dense(placing, form, room, places, other));
            else
                places.push_back(placing.operand(form, bounded(shapeOf(sized, form)), objects, room, other));
            enter(arguments_, places.back());
            if (form.idleStride0)
                arguments_[form.base + "Stride0"] = random_.bits();
        }
    }

    Place dense(Placing& placing, const Form& form, std::size_t room, const std::vector<Place>& places,
                const Place* other)
    {
        Place place{.form = form};
        std::size_t elements = std::max(count_, 1u);
        if (name_.root == Root::Extract)
            elements *= places[0].columns * places[0].rows;
        place.pointer =
            other ? other->pieces[0] : placing.run(elements * name_.elementSize(), name_.elementSize(), room);
        return place;
    }

    void placeScratch()
    {
        Placing placing(arena_, random_, taste_, name_.elementSize());
        const Call sized = call();
        if (sized.has("buffer")) {
            std::size_t size = 0;
            if (name_.root == Root::Det || name_.root == Root::Invert)
                size = sized.size("order") * (sized.size("order") * name_.elementSize() + 4);
            else
                size = sized.size("height") * name_.elementSize();
            arguments_["buffer"] = placing.run(size, 4, scratchRoom);
        }
        if (sized.has("rowIndex")) {
            const std::uint32_t order = sized.size("order");
            const std::uint32_t objects = std::max(count_, 1u);
            arguments_["rowIndex"] = placing.run(std::size_t{4} * order * objects, 4, scratchRoom);
        }
    }

    void makeNull()
    {
        std::vector<std::string> pointers;
        for (const Parameter& parameter : parameters(name_)) {
            if (parameter.kind == Kind::pointer)
                pointers.push_back(parameter.name);
        }
        arguments_[pointers[random_.below(static_cast<std::uint32_t>(pointers.size()))]] = 0;
    }

    // Any numbers all over the rooms, so that also what a member reads beside its operand is something.
    void fillBackground()
    {
        const Profile profile = drawProfile(random_, true);
        Values values(name_.type, profile, random_);
        constexpr std::size_t patch = 512;
        std::array<std::byte, patch> bytes;
        for (std::size_t i = 0; i < patch; i += name_.elementSize()) {
            const std::uint64_t bits = values.next();
            std::memcpy(bytes.data() + i, &bits, name_.elementSize());
        }
        for (std::size_t i = 0; i < forms(name_).size(); ++i) {
            // The alignment of the operand, if its elements stand side by side.
            const auto offset =
                static_cast<std::size_t>(arguments_[forms(name_)[i].base] % name_.elementSize());
            const Address first = arena_.room(2 * i) + offset;
            for (std::size_t place = 0; place + patch + offset <= Arena::roomSize; place += patch)
                std::memcpy(arena_.at(first + place), bytes.data(), patch);
        }
    }

    void fillOperands()
    {
        fillBackground();
        const Call drawn = call();
        const Profile common = drawProfile(random_, plain_);
        for (const Form& form : forms(name_)) {
            if (form.dense || drawn.pointer(form.base) == 0)
                continue;
            Values values(name_.type, random_.chance(60) ? common : drawProfile(random_, plain_), random_);
            const Operand operand(drawn, form, bounded(shapeOf(drawn, form)));
            const Shape shape = operand.shape();
            const std::uint32_t rows = form.transposed ? shape.width : shape.height;
            const std::uint32_t columns = form.transposed ? shape.height : shape.width;
            for (std::uint32_t k = 0; k < (form.array ? count_ : 1); ++k) {
                for (std::uint32_t row = 0; row < rows; ++row) {
                    for (std::uint32_t column = 0; column < columns; ++column)
                        put(operand.stored(arena_.memory(), k, row, column), values.next(),
                            name_.elementSize());
                }
            }
        }
        fillScratch(drawn);
        arena_.memory().reset();
    }

    void fillScratch(const Call& drawn)
    {
        if (drawn.has("rowIndex") && drawn.pointer("rowIndex") != 0) {
            const std::uint32_t order = drawn.size("order");
            Address place = drawn.pointer("rowIndex");
            rowsInOrder_ = random_.chance(25);
            for (std::uint32_t k = 0; k < std::max(count_, 1u); ++k) {
                for (const std::uint32_t row : drawRows(order)) {
                    put(place, row, 4);
                    place += 4;
                }
            }
        }
        if (drawn.has("buffer") && drawn.pointer("buffer") != 0) {
            for (std::size_t i = 0; i < 64; ++i)
                put(drawn.pointer("buffer") + 4 * i, random_.bits(), 4);
        }
    }

    // A permutation of the rows, or now and then any rows at all.
    std::vector<std::uint32_t> drawRows(std::uint32_t order)
    {
        std::vector<std::uint32_t> rows(order);
        for (std::uint32_t i = 0; i < order; ++i)
            rows[i] = i;
        if (rowsInOrder_ ? random_.chance(98) : random_.chance(20))
            return rows;
        for (std::uint32_t i = 1; i < order; ++i)
            std::swap(rows[i], rows[random_.below(i + 1)]);
        if (order != 0 && random_.chance(10))
            rows[random_.below(order)] = random_.below(order);
        return rows;
    }

    // Entries that are null, or wrong for having been changed, are not written through.
    void put(Address address, std::uint64_t bits, std::size_t size)
    {
        if (arena_.contains(address) && arena_.contains(address + size - 1))
            std::memcpy(arena_.at(address), &bits, size);
    }

    support::Entry drawEntry()
    {
        support::Entry entry;
        entry.stackOffset = 4 * random_.below(4);
        if (random_.chance(75))
            return entry;
        const std::uint32_t rounding = random_.below(4);
        entry.mxcsr |= rounding << 13;
        if (random_.chance(30))
            entry.mxcsr |= random_.pick({0x8000u, 0x0040u, 0x8040u}); // flush to zero, denormals are zero
        const std::uint32_t precision = random_.pick({0x000u, 0x200u, 0x300u});
        entry.x87Control = static_cast<std::uint16_t>(0x007Fu | precision | rounding << 10);
        return entry;
    }

    const Name& name_;
    Random& random_;
    Manners manners_;
    Arena& arena_;
    Taste taste_;
    bool plain_ = false;
    std::uint32_t count_ = 1;
    bool rowsInOrder_ = false; // of almost all objects
    Arguments arguments_;
};

} // namespace

std::string Draw::text() const
{
    char state[120];
    std::snprintf(state, sizeof(state), "\n  with MXCSR %04x, x87 control %04x, stack offset %u%s",
                  entry.mxcsr, static_cast<unsigned>(entry.x87Control), entry.stackOffset,
                  protect ? ", pages protected" : "");
    return call.text() + state;
}

Draw drawCall(const Name& name, Random& random)
{
    return Drawing(name, random).run();
}

} // namespace model
