// The account that Memory keeps, and what it lets pass.
#include "memory.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <sys/mman.h>

namespace {

using model::Address;
using model::Memory;

class Account : public testing::Test
{
protected:
    void SetUp() override
    {
        void* place = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        ASSERT_NE(place, MAP_FAILED);
        bytes = {static_cast<std::byte*>(place), size};
        base = reinterpret_cast<Address>(place);
        memory = std::make_unique<Memory>(bytes);
        before.assign(bytes.begin(), bytes.end());
    }

    void TearDown() override { munmap(bytes.data(), size); }

    template <typename T>
    void libraryStores(Address address, T value)
    {
        std::memcpy(bytes.data() + (address - base), &value, sizeof(value));
    }

    bool agrees() { return memory->compare(before).empty(); }

    static constexpr std::size_t size = 3 * Memory::pageSize;
    static constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    std::span<std::byte> bytes;
    Address base = 0;
    std::unique_ptr<Memory> memory;
    std::vector<std::byte> before;
};

TEST_F(Account, exactBits)
{
    memory->storeBits(base + 8, 0x7F800001u);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, 0x7FC00001u); // the same NaN made quiet
    EXPECT_FALSE(agrees());
}

TEST_F(Account, numbers)
{
    memory->store(base + 8, 1.0f);
    libraryStores(base + 8, 1.0f + 0x1p-23f);
    EXPECT_FALSE(agrees());
}

TEST_F(Account, anyNaNForANaN)
{
    memory->store(base + 8, nan);
    libraryStores(base + 8, 0xFFC12345u);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, 0x7F800000u); // infinity
    EXPECT_FALSE(agrees());
}

TEST_F(Account, aNaNForANumber)
{
    memory->store(base + 8, 1.0f);
    libraryStores(base + 8, nan);
    EXPECT_FALSE(agrees());
}

TEST_F(Account, signOfAZero)
{
    memory->store(base + 8, 0.0f);
    libraryStores(base + 8, -0.0f);
    EXPECT_FALSE(agrees());
    memory->reset();
    memory->storeSignOpen(base + 8, 0.0f);
    libraryStores(base + 8, -0.0f);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, 1e-45f);
    EXPECT_FALSE(agrees());
}

TEST_F(Account, bounds)
{
    memory->storeWithin(base + 8, 2.0, 0.25);
    libraryStores(base + 8, 2.25);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, 1.5);
    EXPECT_FALSE(agrees());
    libraryStores(base + 8, std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(agrees());
}

TEST_F(Account, infinityIsWithinNoBound)
{
    memory->storeWithin(base + 8, std::numeric_limits<double>::infinity(), 1.0);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, std::numeric_limits<double>::max());
    EXPECT_FALSE(agrees());
}

TEST_F(Account, whatIsLeftOpen)
{
    memory->leaveOpen(base + 100, 10);
    for (Address i = 0; i < 10; ++i)
        libraryStores(base + 100 + i, std::uint8_t{0xFF});
    EXPECT_TRUE(agrees());
    libraryStores(base + 110, std::uint8_t{1});
    EXPECT_FALSE(agrees());
}

TEST_F(Account, strayWrite)
{
    memory->store(base + 8, 1.0f);
    libraryStores(base + 5000, std::uint8_t{1});
    EXPECT_FALSE(agrees());
}

TEST_F(Account, missingWrite)
{
    memory->store(base + 8, 1.0f);
    libraryStores(base + 8, 0.0f);
    EXPECT_FALSE(agrees());
}

// Of a number that was stored over in part, the rest is still expected; of a NaN it is not.
TEST_F(Account, partlyOverwritten)
{
    memory->store(base + 8, 1.0f);
    memory->store(base + 10, 1.0f);
    EXPECT_TRUE(agrees());
    libraryStores(base + 8, std::uint8_t{1});
    EXPECT_FALSE(agrees());
    memory->reset();
    memory->store(base + 8, nan);
    memory->store(base + 10, 1.0f);
    libraryStores(base + 8, std::uint8_t{1});
    EXPECT_TRUE(agrees());
}

TEST_F(Account, pages)
{
    memory->load<float>(base + Memory::pageSize - 2);
    memory->storeBits(base + 2 * Memory::pageSize, 1u);
    EXPECT_EQ(memory->useOfPage(0), Memory::read);
    EXPECT_EQ(memory->useOfPage(1), Memory::read);
    EXPECT_EQ(memory->useOfPage(2), Memory::written);
    memory->reset();
    EXPECT_EQ(memory->useOfPage(0), Memory::untouched);
}

TEST_F(Account, outside)
{
    EXPECT_THROW(memory->load<float>(base + size - 3), model::OutOfMemory);
    EXPECT_THROW(memory->load<float>(base - 1), model::OutOfMemory);
    EXPECT_THROW(memory->storeBits(0, 1u), model::OutOfMemory);
    EXPECT_NO_THROW(memory->load<float>(base + size - 4));
}

TEST_F(Account, whatIsKnownMayBeReadAgain)
{
    memory->store(base, nan);
    EXPECT_TRUE(memory->load<float>(base) != memory->load<float>(base));
    memory->store(base + 4, 1.5f);
    EXPECT_EQ(memory->load<float>(base + 4), 1.5f);
    EXPECT_EQ(memory->loadBits<std::uint8_t>(base + 6), 0xC0);
}

TEST_F(Account, whatIsNotKnownMayNot)
{
    memory->store(base, nan);
    EXPECT_THROW(memory->load<float>(base + 2), model::Undecided);
    EXPECT_THROW(memory->loadBits<std::uint32_t>(base), model::Undecided);
    memory->storeWithin(base + 8, 1.0f, 0.5);
    EXPECT_THROW(memory->load<float>(base + 8), model::Undecided);
    memory->leaveOpen(base + 16, 8);
    EXPECT_THROW(memory->load<float>(base + 20), model::Undecided);
    memory->storeSignOpen(base + 32, 0.0f);
    EXPECT_THROW(memory->load<float>(base + 32), model::Undecided);
}

// Three elements in place: each is read for itself alone.
TEST_F(Account, openOrderInPlace)
{
    memory->setOrder(Memory::Order::open);
    for (const Address place : {base, base + 4, base + 8}) {
        memory->load<float>(place);
        memory->store(place, 1.0f);
    }
    EXPECT_TRUE(agrees());
}

TEST_F(Account, openOrderShowsWhenOneElementIsReadForAnother)
{
    memory->setOrder(Memory::Order::readsOpen);
    memory->load<float>(base);
    memory->store(base + 4, 1.0f);
    EXPECT_THROW(memory->load<float>(base + 4), model::Undecided);
    memory->reset();
    memory->setOrder(Memory::Order::readsOpen);
    memory->load<float>(base);
    memory->store(base + 16, 1.0f);
    EXPECT_THROW(memory->store(base, 1.0f), model::Undecided);
}

TEST_F(Account, openOrderOfStoresInsideAnObject)
{
    memory->setOrder(Memory::Order::open);
    memory->store(base, 1.0f);
    EXPECT_THROW(memory->store(base, 2.0f), model::Undecided);
    memory->nextObject();
    EXPECT_NO_THROW(memory->store(base, 2.0f));
}

} // namespace
