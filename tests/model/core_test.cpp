// Names and addresses, with literal expectations.
#include "call.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <sys/mman.h>

namespace {

using model::Address;

TEST(Name, numbersOfFunctions)
{
    std::map<std::string, int> counts;
    for (const model::Name& name : model::allNames())
        ++counts[std::string(model::rootText(name.root))];
    const std::map<std::string, int> expected = {
        {"Add", 840},         {"Sub", 1230},    {"Mul", 1530},        {"Saxpy", 210},
        {"LComb", 150},       {"Gaxpy", 90},    {"DotProduct", 150},  {"CrossProduct", 42},
        {"L2Norm", 90},       {"Trace", 90},    {"FrobNorm", 90},     {"Det", 90},
        {"Invert", 90},       {"LUDecomp", 90}, {"LUBackSubst", 150}, {"QRDecomp", 90},
        {"QRBackSubst", 150}, {"Copy", 36},     {"Transpose", 90},    {"Extract", 27},
        {"LoadIdentity", 6}};
    EXPECT_EQ(counts, expected);
    EXPECT_EQ(model::allNames().size(), 5331u); // and tenkGetLibVersion
}

TEST(Name, parts)
{
    const model::Name* name = model::find("tenkMul_mTmaT_64f_5x5_LS2");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->root, model::Root::Mul);
    EXPECT_EQ(name->codes, (std::vector<model::Code>{{'m', false, true}, {'m', true, true}}));
    EXPECT_EQ(name->type, model::Type::f64);
    EXPECT_EQ(name->size, 5u);
    EXPECT_EQ(name->layout, model::Layout::stridedList);
    EXPECT_TRUE(name->codeIn("mma mTmaT"));
    EXPECT_FALSE(name->codeIn("mma mTma"));

    const model::Name* copy = model::find("tenkCopy_va_32f_PL");
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->layout, model::Layout::stridedPointer);
    EXPECT_EQ(copy->destinationLayout, model::Layout::stridedList);
}

TEST(Name, whatDoesNotExist)
{
    for (const char* text :
         {"tenkAdd_mma_32f", "tenkAdd_cv_32f", "tenkAdd_mm_32f_L", "tenkAdd_mm_32f_3x1", "tenkAdd_vv_32f_3x3",
          "tenkAdd_mm_32f_7x7", "tenkExtract_mT_64f_S2", "tenkCopy_ma_32f_S", "tenkCrossProduct_vv_32f",
          "tenkGaxpy_v_32f_3x1", "tenkGetLibVersion", "tenkLComb_vva_32f"})
        EXPECT_FALSE(model::find(text)) << text;
}

// A page to take addresses in, with the arguments given in order.
class Addresses : public testing::Test
{
protected:
    void SetUp() override
    {
        void* place = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        ASSERT_NE(place, MAP_FAILED);
        bytes = {static_cast<std::byte*>(place), size};
        base = reinterpret_cast<Address>(place);
        memory = std::make_unique<model::Memory>(bytes);
    }

    void TearDown() override { munmap(bytes.data(), size); }

    // The operand of a call in which all arguments but those given are zero.
    model::Operand operand(const char* function, const char* operandBase,
                           std::map<std::string, std::uint64_t> given)
    {
        const model::Name& name = *model::find(function);
        std::vector<support::Argument> list;
        for (const model::Parameter& parameter : model::parameters(name)) {
            list.push_back({parameter.kind, given[parameter.name]});
            given.erase(parameter.name);
        }
        EXPECT_TRUE(given.empty()) << given.begin()->first << " is no argument of " << function;
        return model::Call(name, list).operand(operandBase);
    }

    // A table or list of pointers at the start of the page.
    void entries(std::initializer_list<Address> list)
    {
        std::size_t at = 0;
        for (const Address entry : list) {
            std::memcpy(bytes.data() + at, &entry, sizeof(entry));
            at += sizeof(entry);
        }
    }

    static constexpr std::size_t size = model::Memory::pageSize;
    static constexpr std::uint64_t back8 = 0xFFFFFFF8u; // -8 as a word
    std::span<std::byte> bytes;
    Address base = 0;
    std::unique_ptr<model::Memory> memory;
};

TEST_F(Addresses, standardMatrixArray)
{
    const auto a =
        operand("tenkAdd_mam_32f", "src1",
                {{"src1", 0x10000}, {"src1Stride0", 100}, {"src1Stride1", 24}, {"width", 5}, {"height", 3}});
    EXPECT_EQ(a.stored(*memory, 2, 1, 3), 0x10000u + 200 + 24 + 12);
    EXPECT_EQ(a.used(*memory, 2, 1, 3), 0x10000u + 200 + 24 + 12);
}

TEST_F(Addresses, standardMatrixSingleHasNoObjectTerm)
{
    const auto b = operand("tenkAdd_mam_64f", "src2",
                           {{"src2", 0x10000}, {"src2Stride1", 40}, {"width", 5}, {"height", 3}});
    EXPECT_EQ(b.stored(*memory, 7, 2, 1), 0x10000u + 80 + 8);
}

TEST_F(Addresses, transposedExchangesRowAndColumn)
{
    const auto a = operand("tenkAdd_maTm_64f_S2", "src1",
                           {{"src1", 0x10000},
                            {"src1Stride0", 1000},
                            {"src1Stride1", 100},
                            {"src1Stride2", 10},
                            {"width", 5},
                            {"height", 3}});
    EXPECT_EQ(a.used(*memory, 1, 2, 4), 0x10000u + 1000 + 400 + 20);
}

TEST_F(Addresses, stridesAreSigned)
{
    const auto a = operand(
        "tenkAdd_vava_64f_S2", "dst",
        {{"dst", 0x10000}, {"dstStride0", 0xFFFFFF00u}, {"dstStride2", back8}, {"length", 5}, {"count", 9}});
    EXPECT_EQ(a.element(*memory, 3, 4), 0x10000u - 0x300 - 32);
}

TEST_F(Addresses, productsHaveTheWidthOfAnAddress)
{
    const auto a =
        operand("tenkAdd_vava_32f", "dst", {{"dst", 0x10000}, {"dstStride0", 0x7FFFFFF0u}, {"length", 5}});
    EXPECT_EQ(a.element(*memory, 4, 0), static_cast<Address>(0x10000u + 4 * std::uint64_t{0x7FFFFFF0}));
}

TEST_F(Addresses, table)
{
    entries({0, 0, 0, base + 512});
    const auto a =
        operand("tenkAdd_vava_64f_P", "src1", {{"src1", base}, {"src1Shift", back8}, {"length", 5}});
    EXPECT_EQ(a.element(*memory, 2, 3), base + 512 - 8 + 16);
    EXPECT_TRUE(a.nullEntry(*memory, 0));
    EXPECT_FALSE(a.nullEntry(*memory, 3));
    EXPECT_TRUE(a.nullInTable(*memory));
}

TEST_F(Addresses, spreadTable)
{
    entries({0, base + 512});
    const auto a = operand("tenkAdd_vava_32f_PS2", "src1",
                           {{"src1", base}, {"src1Shift", 4}, {"src1Stride0", 40}, {"length", 5}});
    EXPECT_EQ(a.element(*memory, 2, 1), base + 512 + 4 + 80);
}

TEST_F(Addresses, singleOperandAmongTables)
{
    entries({0, base + 512});
    const auto a = operand("tenkAdd_vav_32f_PS2", "src2", {{"src2", base}, {"src2Shift", 4}, {"length", 5}});
    EXPECT_EQ(a.element(*memory, 2, 1), base + 516);
}

// With width 5 and height 3 the element used at (1, 4) goes through entry 4 x 3 + 1.
TEST_F(Addresses, transposedTableHasRowsOfTheHeight)
{
    entries({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, base + 512, 0});
    const auto a = operand("tenkAdd_maTm_32f_P", "src1", {{"src1", base}, {"width", 5}, {"height", 3}});
    EXPECT_EQ(a.used(*memory, 0, 1, 4), base + 512);
}

TEST_F(Addresses, list)
{
    entries({0, base + 512});
    const auto a = operand("tenkAdd_mam_32f_LS2", "dst",
                           {{"dst", base},
                            {"dstShift", back8},
                            {"dstStride1", 64},
                            {"dstStride2", 12},
                            {"width", 5},
                            {"height", 3}});
    EXPECT_EQ(a.stored(*memory, 1, 2, 3), base + 512 - 8 + 128 + 36);
    EXPECT_TRUE(a.nullInList(*memory, 0));
}

TEST_F(Addresses, singleOperandAmongListsIsNone)
{
    const auto a = operand("tenkAdd_mam_32f_L", "src2",
                           {{"src2", 0x10000}, {"src2Stride1", 64}, {"width", 5}, {"height", 3}});
    EXPECT_EQ(a.stored(*memory, 1, 2, 3), 0x10000u + 128 + 12);
    EXPECT_FALSE(a.nullInList(*memory, 0));
}

// The matrix of several right-hand sides has a Stride0 in the list of arguments, and nowhere else.
TEST_F(Addresses, idleStride)
{
    const auto a = operand(
        "tenkQRBackSubst_mva_32f_L", "src1",
        {{"src1", 0x10000}, {"src1Stride0", 0x5555}, {"src1Stride1", 64}, {"width", 3}, {"height", 4}});
    EXPECT_EQ(a.stored(*memory, 2, 1, 1), 0x10000u + 64 + 4);
}

TEST_F(Addresses, shapes)
{
    const std::map<std::string, std::uint64_t> sizes = {
        {"src1Width", 2}, {"src1Height", 3}, {"src2Width", 5}, {"src2Height", 7}};
    EXPECT_EQ(operand("tenkMul_mm_32f", "src1", sizes).shape(), (model::Shape{2, 3}));
    EXPECT_EQ(operand("tenkMul_mm_32f", "src2", sizes).shape(), (model::Shape{5, 7}));
    EXPECT_EQ(operand("tenkMul_mm_32f", "dst", sizes).shape(), (model::Shape{5, 3}));
    EXPECT_EQ(operand("tenkMul_mm_32f_4x4", "dst", {}).shape(), (model::Shape{4, 4}));
    EXPECT_EQ(operand("tenkMul_mv_32f", "dst", {{"src1Width", 2}, {"src1Height", 3}}).shape(),
              (model::Shape{3, 1}));
    EXPECT_EQ(operand("tenkGaxpy_v_32f", "src2", {{"width", 2}, {"height", 3}}).shape(),
              (model::Shape{2, 1}));
    EXPECT_EQ(operand("tenkGaxpy_v_32f", "src3", {{"width", 2}, {"height", 3}}).shape(),
              (model::Shape{3, 1}));
    EXPECT_EQ(operand("tenkQRBackSubst_mv_32f", "src2", {{"width", 2}, {"height", 3}}).shape(),
              (model::Shape{3, 1}));
    EXPECT_EQ(operand("tenkQRBackSubst_mv_32f", "dst", {{"width", 2}, {"height", 3}}).shape(),
              (model::Shape{2, 1}));
    EXPECT_EQ(operand("tenkTranspose_m_32f", "dst", {{"width", 2}, {"height", 3}}).shape(),
              (model::Shape{3, 2}));
    EXPECT_EQ(operand("tenkTrace_m_32f", "src", {{"order", 4}}).shape(), (model::Shape{4, 4}));
    EXPECT_EQ(operand("tenkCrossProduct_vv_32f_3x1", "dst", {}).shape(), (model::Shape{3, 1}));
}

} // namespace
