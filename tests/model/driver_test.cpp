// The driver itself: it must find what is wrong with a function, and nothing wrong with one that is right.
#include "compare.h"
#include "guard.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sys/mman.h>
#include <xmmintrin.h>

namespace {

enum class Mistake
{
    none,
    status,
    nullNotTested,
    value,
    quietNaN,
    order,
    unsignedStride,
    strayWrite,
    writeOverRead,
    readBehind,
    readInFront,
    x87Left,
    controlChanged,
    flagRaised
};

// What the compiler must not take away.
volatile float zero = 0;
volatile unsigned char sink = 0;

// tenkCopy_va_32f_SS as somebody might write it. Callers on i386 do not always align the stack. Its mistakes
// are for the driver to find, not for a sanitizer.
template <Mistake mistake>
[[gnu::force_align_arg_pointer, gnu::no_sanitize("address", "undefined")]] std::int32_t
copy(const unsigned char* src, std::uint32_t srcStride0, std::uint32_t srcStride2, unsigned char* dst,
     std::uint32_t dstStride0, std::uint32_t dstStride2, std::uint32_t length, std::uint32_t count)
{
    if (mistake != Mistake::nullNotTested && (!src || !dst))
        return -8;
    if (length == 0)
        return mistake == Mistake::status ? 0 : -6;
    const auto step = [](std::uint32_t stride) {
        return mistake == Mistake::unsignedStride
                   ? static_cast<std::ptrdiff_t>(stride & 0x7FFFFFFF)
                   : static_cast<std::ptrdiff_t>(static_cast<std::int32_t>(stride));
    };
    for (std::uint32_t k = 0; k < count; ++k) {
        for (std::uint32_t n = 0; n < length; ++n) {
            const std::uint32_t j = mistake == Mistake::order ? length - 1 - n : n;
            const auto* from = src + static_cast<std::ptrdiff_t>(k) * step(srcStride0) +
                               static_cast<std::ptrdiff_t>(j) * step(srcStride2);
            auto* to = dst + static_cast<std::ptrdiff_t>(k) * step(dstStride0) +
                       static_cast<std::ptrdiff_t>(j) * step(dstStride2);
            if (mistake == Mistake::readBehind)
                sink = *static_cast<const volatile unsigned char*>(from + 4);
            if (mistake == Mistake::readInFront)
                sink = *static_cast<const volatile unsigned char*>(from - 1);
            if (mistake == Mistake::writeOverRead) {
                auto* source = const_cast<volatile unsigned char*>(from);
                *source = *source;
            }
            std::uint32_t bits;
            std::memcpy(&bits, from, 4);
            if (mistake == Mistake::value && k == 3 && j == length - 1)
                bits ^= 1;
            if (mistake == Mistake::quietNaN && (bits & 0x7FC00000) == 0x7F800000 && (bits & 0x003FFFFF) != 0)
                bits |= 0x00400000;
            std::memcpy(to, &bits, 4);
            if (mistake == Mistake::strayWrite)
                to[4] = 0x55;
        }
    }
    if (mistake == Mistake::x87Left)
        asm volatile("fld1");
    if (mistake == Mistake::controlChanged)
        _mm_setcsr(_mm_getcsr() ^ 0x2000);
    if (mistake == Mistake::flagRaised)
        zero = zero / zero;
    return 0;
}

// The number of calls, of those drawn, in which something is found.
int findings(void* function)
{
    const model::Name& name = *model::find("tenkCopy_va_32f_SS");
    int found = 0;
    for (std::uint64_t round = 0; round < 400; ++round) {
        model::Random random(round);
        const model::Draw draw = model::drawCall(name, random);
        if (!model::compareCall(draw, model::behaviour(name), function).difference.empty())
            ++found;
    }
    return found;
}

template <Mistake mistake>
int findings()
{
    return findings(reinterpret_cast<void*>(&copy<mistake>));
}

TEST(Driver, findsNothingWhereNothingIs)
{
    EXPECT_EQ(findings<Mistake::none>(), 0);
}

TEST(Driver, findsMistakes)
{
    EXPECT_GT(findings<Mistake::status>(), 0);
    EXPECT_GT(findings<Mistake::nullNotTested>(), 0);
    EXPECT_GT(findings<Mistake::value>(), 0);
    EXPECT_GT(findings<Mistake::quietNaN>(), 0);
    EXPECT_GT(findings<Mistake::order>(), 0);
    EXPECT_GT(findings<Mistake::unsignedStride>(), 0);
    EXPECT_GT(findings<Mistake::strayWrite>(), 0);
}

TEST(Driver, findsAccessesThatNobodyExpects)
{
    EXPECT_GT(findings<Mistake::writeOverRead>(), 0);
    EXPECT_GT(findings<Mistake::readBehind>(), 0);
    EXPECT_GT(findings<Mistake::readInFront>(), 0);
}

TEST(Driver, findsWhatIsDoneToTheProcessor)
{
    EXPECT_GT(findings<Mistake::x87Left>(), 0);
    EXPECT_GT(findings<Mistake::controlChanged>(), 0);
    EXPECT_GT(findings<Mistake::flagRaised>(), 0);
}

TEST(Driver, aSeedDrawsTheSameCallAgain)
{
    const model::Name& name = *model::find("tenkSaxpy_vav_64f_PS2");
    model::Random first(7), second(7), third(8);
    const std::string text = model::drawCall(name, first).text();
    EXPECT_EQ(model::drawCall(name, second).text(), text);
    EXPECT_NE(model::drawCall(name, third).text(), text);
}

TEST(Guard, tellsTheFault)
{
    void* page = mmap(nullptr, model::Memory::pageSize, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(page, MAP_FAILED);
    auto* place = static_cast<volatile unsigned char*>(page) + 100;
    const std::optional<model::Fault> fault = model::guarded([place] { *place = 1; });
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->address, reinterpret_cast<model::Address>(place));
    EXPECT_FALSE(model::guarded([place] { sink = *place; }));
    munmap(page, model::Memory::pageSize);
}

} // namespace
