#include "place.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace model {

namespace {

constexpr Displacement page = Memory::pageSize;
constexpr Displacement usable = Arena::roomSize - 2 * page; // a page at either end stays free

// Entries in front of a list or table, and behind it: some members look there.
constexpr std::size_t entriesInFront = 4;
constexpr std::size_t entriesBehindList = 8;
constexpr std::size_t entriesBehindTable = 256;

Displacement roundUp(Displacement value, Displacement to)
{
    return (value + to - 1) / to * to;
}

Displacement modulo(Displacement value, Displacement by)
{
    return ((value % by) + by) % by;
}

} // namespace

Placing::Placing(Arena& arena, Random& random, const Taste& taste, std::size_t elementSize)
    : arena_(arena), random_(random), taste_(taste), elementSize_(elementSize)
{
}

// The step from one thing of `extent` bytes to the next. A loose one may be so short that they overlap.
Displacement Placing::drawStep(Displacement extent, bool loose)
{
    if (taste_.aligned && !random_.chance(4)) {
        const Displacement step = roundUp(extent, 16) + 16 * random_.between(0, 2);
        return random_.chance(10) ? -step : step;
    }
    if (loose && random_.chance(30))
        return random_.pick({Displacement{0}, size(), -size(), extent / 2, Displacement{1}, size() - 1});
    Displacement step = extent;
    switch (random_.below(6)) {
    case 0:
        step += size() * random_.between(1, 4);
        break;
    case 1:
        step = roundUp(extent, 16) + 16 * random_.between(0, 2);
        break;
    case 2:
        step += random_.between(1, 7);
        break;
    default:
        break;
    }
    return random_.chance(15) ? -step : step;
}

void Placing::drawSteps(Place& place)
{
    const bool loose = random_.chance(place.form.base == "dst" ? taste_.loosePercent : 40);
    const bool strided = isStrided(place.form.layout) && !isTable(place.form.layout);
    place.step2 = size();
    if (isTable(place.form.layout)) {
        place.step0 = size();
        if (place.form.array && place.form.layout == Layout::stridedPointer)
            place.step0 = drawStep(random_.chance(50) ? size() : size() * random_.between(2, 12), loose);
        return;
    }
    if (strided && !random_.chance(35))
        place.step2 = drawStep(size() * random_.between(1, 3), loose);
    const Displacement row = (place.columns - 1) * std::abs(place.step2) + size();
    place.step1 = drawStep(row, loose);
    if (strided && random_.chance(15)) { // by columns
        place.step1 = size();
        place.step2 = drawStep(place.rows * size(), loose);
    }
    const Displacement object = pieceExtent(place).high - pieceExtent(place).low;
    place.step0 = drawStep(object, loose);
}

// The bytes of one object around its first element; of a table, the run of one element over the objects.
Placing::Extent Placing::pieceExtent(const Place& place) const
{
    Extent extent{0, size()};
    const auto add = [&extent](std::uint32_t count, Displacement step) {
        const Displacement reach = (static_cast<Displacement>(count) - 1) * step;
        extent.low += std::min<Displacement>(reach, 0);
        extent.high += std::max<Displacement>(reach, 0);
    };
    if (isTable(place.form.layout)) {
        add(place.objects, place.step0);
        return extent;
    }
    add(place.columns, place.step2);
    if (place.form.matrix)
        add(place.rows, place.step1);
    return extent;
}

// A place for `extent` in the room: its last byte at the end of a page, its first at the beginning of one, or
// anywhere.
Address Placing::settle(Extent extent, std::size_t room, std::size_t unit, bool aligned)
{
    const Address first = arena_.room(room) + page;
    const Displacement span = extent.high - extent.low;
    const Displacement pages = std::max<Displacement>((usable - span) / page, 0);
    const Displacement skipped = page * random_.between(0, static_cast<std::int32_t>(pages));
    Address base = 0;
    switch (random_.below(3)) {
    case 0:
        base = moved(first, 1, skipped - extent.low);
        break;
    case 1:
        base = moved(first, 1, usable - skipped - extent.high);
        break;
    default: {
        const Displacement room0 = std::max<Displacement>(usable - span, 1);
        base = moved(first, 1, random_.between(0, static_cast<std::int32_t>(room0 - 1)) - extent.low);
        if (random_.chance(80))
            base -= base % unit;
        if (random_.chance(30))
            base -= base % 16;
        break;
    }
    }
    return aligned ? base - base % 16 : base;
}

Address Placing::run(std::size_t bytes, std::size_t unit, std::size_t room)
{
    return settle({0, static_cast<Displacement>(bytes)}, room, unit, taste_.aligned && random_.chance(95));
}

// Pieces that are found one by one: side by side in some order, with gaps, or all of them the same.
void Placing::placePieces(Place& place, Extent extent, std::size_t count, std::size_t room)
{
    const bool aligned = taste_.aligned && !random_.chance(6);
    const Displacement span = extent.high - extent.low;
    if (count == 1 || random_.chance(5)) {
        place.pieces.assign(count, settle(extent, room, elementSize_, aligned));
        return;
    }
    Displacement pitch = span;
    switch (random_.below(4)) {
    case 0:
        pitch += size() * random_.between(0, 3);
        break;
    case 1:
        pitch += random_.between(0, 7);
        break;
    case 2:
        pitch = roundUp(pitch, 16);
        break;
    default:
        break;
    }
    if (aligned)
        pitch = roundUp(pitch, 16);
    // The runs of a table may be interleaved like the elements of objects that stand side by side.
    if (isTable(place.form.layout) && random_.chance(40))
        pitch = aligned ? 16 : size();
    pitch = std::min(pitch, (usable - span) / static_cast<Displacement>(count - 1));
    if (aligned)
        pitch -= modulo(pitch, 16);
    const Displacement rest = static_cast<Displacement>(count - 1) * pitch;
    const Address base = settle({extent.low, extent.high + rest}, room, elementSize_, aligned);
    for (std::size_t i = 0; i < count; ++i)
        place.pieces.push_back(moved(base, i, pitch));
    if (random_.chance(50)) {
        for (std::size_t i = count - 1; i > 0; --i)
            std::swap(place.pieces[i], place.pieces[random_.below(static_cast<std::uint32_t>(i + 1))]);
    }
}

// On top of another operand, exactly or a little beside.
void Placing::overlap(Place& place, const Place& other, std::size_t count)
{
    Displacement beside = 0;
    if (random_.chance(40))
        beside = random_.pick(
            {size(), -size(), Displacement{16}, Displacement{-16}, Displacement{1}, other.step1});
    if (random_.chance(85)) {
        place.step0 = other.step0;
        place.step1 = other.step1;
        place.step2 = other.step2;
    }
    const bool apart = other.pieces.size() == 1 && other.form.array; // objects that have no pointer each
    for (std::size_t i = 0; i < count; ++i) {
        const Address piece =
            apart ? moved(other.pieces[0], i, other.step0) : other.pieces[i % other.pieces.size()];
        place.pieces.push_back(moved(piece, 1, beside));
    }
}

Displacement Placing::drawShift(const Place& place)
{
    // Low down, a shift may be nearly the whole address, the entries being what little is left of it. One of
    // them is then null without being nowhere, which calls the members that do not look at entries.
    const bool low = arena_.start() + Arena::roomSize * (Arena::roomCount + 2) <= 0x80000000u;
    if (low && random_.chance(taste_.nullEntry ? 60 : 8)) {
        const auto piece = static_cast<std::uint32_t>(place.pieces.size());
        const auto shift = static_cast<Displacement>(place.pieces[random_.below(piece)]);
        return taste_.nullEntry ? shift : shift - 0x10000;
    }
    switch (random_.below(8)) {
    case 0:
    case 1:
        return size() * random_.between(-8, 8);
    case 2:
        return 16 * random_.between(-4, 4);
    case 3:
        return random_.between(-40, 40);
    case 4:
        return displacement(static_cast<std::uint32_t>(random_.bits()));
    default:
        return 0;
    }
}

void Placing::writeEntries(Place& place, std::size_t count, std::size_t room)
{
    const bool table = isTable(place.form.layout);
    place.shift = drawShift(place);
    place.pointer =
        settle({0, static_cast<Displacement>(count * sizeof(Address))}, room, sizeof(Address), false);
    if (random_.chance(90))
        place.pointer -= place.pointer % sizeof(Address);
    const std::size_t behind = table ? entriesBehindTable : entriesBehindList;
    const Address first = place.pointer - entriesInFront * sizeof(Address);
    for (std::size_t i = 0; i < entriesInFront + count + behind; ++i) {
        const bool own = i >= entriesInFront && i < entriesInFront + count;
        const std::size_t index =
            own ? i - entriesInFront : random_.below(static_cast<std::uint32_t>(place.pieces.size()));
        const Address entry = place.pieces[index] - static_cast<Address>(place.shift);
        std::memcpy(arena_.at(first + i * sizeof(Address)), &entry, sizeof(entry));
    }
    if (!taste_.nullEntry || random_.chance(40))
        return;
    // Null is an entry of the operand, one shortly behind or, rarely, in front.
    const std::uint32_t reach = static_cast<std::uint32_t>(count) + (random_.chance(30) ? 6 : 0);
    for (std::uint32_t nulls = random_.below(2) + 1; nulls > 0; --nulls) {
        const Address index = random_.chance(4) ? entriesInFront - 1 : entriesInFront + random_.below(reach);
        const Address null = 0;
        std::memcpy(arena_.at(first + index * sizeof(Address)), &null, sizeof(null));
    }
}

Place Placing::operand(const Form& form, Shape shape, std::uint32_t objects, std::size_t room,
                       const Place* other)
{
    Place place{.form = form};
    place.columns = std::max(form.transposed ? shape.height : shape.width, 1u);
    place.rows = std::max(form.transposed ? shape.width : shape.height, 1u);
    place.objects = std::max(objects, 1u);
    const bool table = isTable(form.layout);
    const bool list = form.array && isList(form.layout);
    const std::size_t count = table ? place.columns * place.rows : list ? place.objects : 1;

    Extent extent;
    for (int attempt = 0;; ++attempt) {
        drawSteps(place);
        extent = pieceExtent(place);
        if (form.array && !table && !list) {
            const Displacement reach = (static_cast<Displacement>(place.objects) - 1) * place.step0;
            extent.low += std::min<Displacement>(reach, 0);
            extent.high += std::max<Displacement>(reach, 0);
        }
        const Displacement span = extent.high - extent.low;
        if (list ? span * static_cast<Displacement>(count) <= usable : span <= usable - page)
            break;
        if (attempt == 50)
            throw std::logic_error("an operand of a drawn call has no room");
    }
    if (other != nullptr && !other->pieces.empty())
        overlap(place, *other, count);
    else
        placePieces(place, extent, count, room);
    if (table || list)
        writeEntries(place, count, room + 1);
    else
        place.pointer = place.pieces[0];
    return place;
}

void enter(Arguments& arguments, const Place& place)
{
    const auto set = [&](const char* what, Displacement value) {
        arguments[place.form.base + what] = static_cast<std::uint32_t>(value);
    };
    arguments[place.form.base] = place.pointer;
    set("Shift", place.shift);
    set("Stride0", place.step0);
    set("Stride1", place.step1);
    set("Stride2", place.step2);
}

} // namespace model
