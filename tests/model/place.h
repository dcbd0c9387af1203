// Places one operand of a drawn call in the arena: its strides and shift, where its objects stand, and the
// table or list through which they are found.
#pragma once

#include "arena.h"
#include "call.h"
#include "random.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace model {

// What is common to the operands of one call.
struct Taste
{
    bool aligned = false;            // addresses and strides are multiples of 16
    bool nullEntry = false;          // a table or list of the call has a null entry
    std::uint32_t loosePercent = 15; // of the destinations have strides that may let their elements overlap
};

// The arguments of the call so far.
using Arguments = std::map<std::string, std::uint64_t>;

struct Place
{
    Form form;
    std::uint32_t columns = 0; // of the object as stored
    std::uint32_t rows = 0;
    std::uint32_t objects = 0;
    Displacement step0 = 0;
    Displacement step1 = 0;
    Displacement step2 = 0;
    Displacement shift = 0;
    // Where the pieces stand that are found by a pointer each: the whole operand, the objects of a list, or
    // the runs of a table.
    std::vector<Address> pieces = {};
    Address pointer = 0;
};

class Placing
{
public:
    Placing(Arena& arena, Random& random, const Taste& taste, std::size_t elementSize);

    // The operand in `room`, its table or list in the room behind. If `other` is given, this one overlaps it.
    Place operand(const Form& form, Shape shape, std::uint32_t objects, std::size_t room, const Place* other);

    // A plain run of `size` bytes, at any multiple of `unit` or, now and then, elsewhere.
    Address run(std::size_t size, std::size_t unit, std::size_t room);

private:
    struct Extent
    {
        Displacement low = 0;  // of the first byte
        Displacement high = 0; // behind the last byte
    };

    Displacement size() const { return static_cast<Displacement>(elementSize_); }
    Displacement drawStep(Displacement extent, bool loose);
    void drawSteps(Place& place);
    Extent pieceExtent(const Place& place) const;
    Address settle(Extent extent, std::size_t room, std::size_t unit, bool aligned);
    void placePieces(Place& place, Extent extent, std::size_t count, std::size_t room);
    void overlap(Place& place, const Place& other, std::size_t count);
    Displacement drawShift(const Place& place);
    void writeEntries(Place& place, std::size_t count, std::size_t room);

    Arena& arena_;
    Random& random_;
    Taste taste_;
    std::size_t elementSize_;
};

// Enters the arguments of the operand.
void enter(Arguments& arguments, const Place& place);

} // namespace model
