// The library record.
#include "tenk.h"

#include <gtest/gtest.h>

namespace {

TEST(GetLibVersion, GivesTheSameAddressOnEveryCall)
{
    ASSERT_NE(tenkGetLibVersion(), nullptr);
    EXPECT_EQ(tenkGetLibVersion(), tenkGetLibVersion());
}

TEST(GetLibVersion, NamesTheGenericBuild)
{
    const tenkLibraryRecord& r = *tenkGetLibVersion();
    EXPECT_EQ(r.versionMajor, 3);
    EXPECT_EQ(r.versionMinor, 0);
    EXPECT_EQ(r.buildMajor, 0);
    EXPECT_EQ(r.buildMinor, 0);
    EXPECT_EQ(r.cpuTag[0], 'q');
    EXPECT_EQ(r.cpuTag[1], 'z');
    EXPECT_EQ(r.cpuTag[2], 0);
    EXPECT_EQ(r.cpuTag[3], 0);
    EXPECT_STREQ(r.libraryName, "tenkqz");
    EXPECT_STREQ(r.versionText, "v3.0 beta");
    EXPECT_STREQ(r.buildDateText, "Apr 16 2002");
}

TEST(GetLibVersion, LaysOutTheRecordAsDeclared)
{
    EXPECT_EQ(offsetof(tenkLibraryRecord, versionMajor), 0U);
    EXPECT_EQ(offsetof(tenkLibraryRecord, buildMinor), 12U);
    EXPECT_EQ(offsetof(tenkLibraryRecord, cpuTag), 16U);
    EXPECT_EQ(offsetof(tenkLibraryRecord, libraryName), sizeof(void*) == 8 ? 24U : 20U);
    EXPECT_EQ(sizeof(tenkLibraryRecord), sizeof(void*) == 8 ? 48U : 32U);
}

TEST(Status, HasFourValues)
{
    EXPECT_EQ(tenkOk, 0);
    EXPECT_EQ(tenkSizeError, -6);
    EXPECT_EQ(tenkNullPointerError, -8);
    EXPECT_EQ(tenkSingularError, -10);
    EXPECT_EQ(sizeof(tenkStatus), 4U);
}

} // namespace
