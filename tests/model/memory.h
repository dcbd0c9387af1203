// The memory that a modelled call works on. The behaviours read and write nothing but through this class: it
// keeps account of every byte they touch, and of what the library has to leave in every byte that they store.
#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace model {

// A byte address of the target; all sums of addresses and displacements wrap at its width.
using Address = std::uintptr_t;

// Thrown when a modelled call reaches outside the memory that it was given: not a call to make.
struct OutOfMemory
{
    Address address = 0;
};

// Thrown when a function makes no promise of what happens next, so that nothing can be compared: a
// value that is only known within a bound, or the payload of a NaN, would decide about it.
struct Undecided
{
    std::string reason;
};

// What the library has to leave in a place.
enum class Rule : std::uint8_t
{
    exact,      // these bits
    number,     // the result of an operation: these bits, or any NaN for a NaN
    signOpen,   // as `number`, but a zero may have either sign
    eitherSign, // as `number`, but with either sign
    within,     // a number not farther than a bound from this one; infinities and NaNs as `number`
    anything    // whatever it likes, also what was there before
};

struct Stored
{
    Address address = 0;
    std::uint32_t size = 0;
    Rule rule = Rule::exact;
    std::array<std::byte, 8> bytes{}; // unused where anything goes
    double bound = 0;
};

template <typename T>
using BitsOf = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

class Memory
{
public:
    static constexpr std::size_t pageSize = 4096;
    enum PageUse : std::uint8_t
    {
        untouched = 0,
        read = 1,
        written = 2
    };

    // The memory from which the calls take all their operands. Its start and size are multiples of the page
    // size.
    explicit Memory(std::span<std::byte> region);

    // How far the order of reading and writing inside a call is promised, which shows where operands overlap.
    // Each store is taken to end one element, whose loads come since the store before it.
    enum class Order : std::uint8_t
    {
        promised,  // as the behaviour does it
        readsOpen, // an element may be read before or after the stores of the others
        open       // and the elements of one object may be stored in any order, too
    };

    // States the order for the rest of the call. Where it is open and shows, the call is Undecided.
    void setOrder(Order order) { order_ = order; }

    // Objects are finished one after the other, also where the order inside an object is open.
    void nextObject() { objectStart_ = static_cast<std::uint32_t>(stores_.size()); }

    // --- Reading ---

    // An element as a number.
    template <std::floating_point T>
    T load(Address address)
    {
        beforeLoad(address, sizeof(T), true);
        T value;
        std::memcpy(&value, pointerTo(address), sizeof(T));
        return value;
    }

    // An element or word as raw bits: moves go through integers, which leave a signalling NaN as it is.
    template <std::unsigned_integral Word>
    Word loadBits(Address address)
    {
        beforeLoad(address, sizeof(Word), false);
        Word word;
        std::memcpy(&word, pointerTo(address), sizeof(Word));
        return word;
    }

    // An entry of a pointer table or list.
    Address loadPointer(Address address)
    {
        const std::size_t offset = offsetOf(address, sizeof(Address));
        touch(offset, sizeof(Address), read);
        Address entry;
        std::memcpy(&entry, pointerTo(address), sizeof(entry));
        return entry;
    }

    // Bytes that the library is free to read although the model has no use for them.
    void mayRead(Address address, std::size_t size);

    // --- Writing ---

    template <std::unsigned_integral Word>
    void storeBits(Address address, Word word)
    {
        store(address, &word, sizeof(word), Rule::exact, 0);
    }

    // The result of an arithmetic operation.
    template <std::floating_point T>
    void store(Address address, T value)
    {
        store(address, &value, sizeof(value), Rule::number, 0);
    }

    // A result whose sign is open if it is a zero.
    template <std::floating_point T>
    void storeSignOpen(Address address, T value)
    {
        store(address, &value, sizeof(value), Rule::signOpen, 0);
    }

    // A result whose sign is open, as when an open zero divides.
    template <std::floating_point T>
    void storeEitherSign(Address address, T value)
    {
        store(address, &value, sizeof(value), Rule::eitherSign, 0);
    }

    // A result that is known up to `bound`, an absolute distance.
    template <std::floating_point T>
    void storeWithin(Address address, T value, double bound)
    {
        store(address, &value, sizeof(value), Rule::within, bound);
    }

    // Scratch memory, or elements left undefined: the library may read and write there, and nothing is said
    // of what it leaves. The contents stay as they are for the model, which must not read them afterwards.
    void leaveOpen(Address address, std::size_t size);

    // --- What the test driver asks for ---

    // Forgets the account of the previous call.
    void reset();
    const std::vector<Stored>& stores() const { return stores_; }
    PageUse useOfPage(std::size_t page) const { return static_cast<PageUse>(pages_[page]); }
    std::size_t pageCount() const { return pages_.size(); }
    Address start() const { return reinterpret_cast<Address>(region_.data()); }
    std::size_t size() const { return region_.size(); }

    // Compares what the library left in the region with the account; `before` is the region before the call,
    // and is brought up to date. Empty if all is well, else the first difference in words.
    std::string compare(std::span<std::byte> before) const;

private:
    void store(Address address, const void* from, std::size_t size, Rule rule, double bound);
    void beforeLoad(Address address, std::size_t size, bool asNumber);
    void checkOrderOfLoad(std::size_t offset, std::size_t size);
    void checkOrderOfStore(std::size_t offset, std::size_t size) const;
    std::size_t offsetOf(Address address, std::size_t size) const;
    void touch(std::size_t offset, std::size_t size, PageUse use);
    bool intact(std::size_t index) const;
    std::string compareStored(std::size_t index) const;
    std::byte* pointerTo(Address address) const { return region_.data() + (address - start()); }

    std::span<std::byte> region_;
    std::vector<std::uint8_t> pages_;
    std::vector<std::uint32_t> owner_; // for each byte, 1 + the last entry of stores_ that covers it, or 0
    std::vector<Stored> stores_;
    Order order_ = Order::promised;
    std::uint32_t objectStart_ = 0; // the number of stores before the current object
    std::vector<std::uint32_t>
        reader_; // for each byte, 1 + the element it was read for, or `severalReaders`, or 0
    std::vector<std::size_t> readBytes_;
};

} // namespace model
