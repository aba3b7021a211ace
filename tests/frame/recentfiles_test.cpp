#include "frame/recentfiles.h"
#include "platform/testplatform.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

class RecentFiles : public ::testing::TestWithParam<QString> {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
    QStringList shown() const { return LoadRecentList(GetParam()); }
    void add(const QString& path) const { AddRecent(GetParam(), path); }
    ScopedTestPlatform test;
};

TEST_P(RecentFiles, AnEmptyListShowsNothing)
{
    EXPECT_TRUE(shown().isEmpty());
    SaveSetting(GetParam(), "RecentFile2", "/kept/b");
    EXPECT_TRUE(shown().isEmpty()) << "the list hangs on RecentFile1";
}

TEST_P(RecentFiles, NewestComesFirstAndTheFourthDropsTheOldest)
{
    add("/d/a");
    EXPECT_EQ(shown(), QStringList({"/d/a", "", ""}));
    const QString other = GetParam() == RecentCtrlSection ? RecentSheetSection : RecentCtrlSection;
    EXPECT_TRUE(LoadRecentList(other).isEmpty()) << "the two lists keep apart";
    add("/d/b");
    add("/d/c");
    EXPECT_EQ(shown(), QStringList({"/d/c", "/d/b", "/d/a"}));
    add("/d/d");
    EXPECT_EQ(shown(), QStringList({"/d/d", "/d/c", "/d/b"}));
}

TEST_P(RecentFiles, APathAlreadyShownLeavesTheOrder)
{
    for (const char* path : {"/d/a", "/d/b", "/d/c"})
        add(path);
    EXPECT_FALSE(AddRecent(GetParam(), "/d/a"));
    EXPECT_FALSE(AddRecent(GetParam(), "/d/b"));
    EXPECT_EQ(shown(), QStringList({"/d/c", "/d/b", "/d/a"}));
    EXPECT_TRUE(AddRecent(GetParam(), "/D/A")) << "paths are told apart by case";
}

INSTANTIATE_TEST_SUITE_P(BothLists, RecentFiles, ::testing::Values(RecentCtrlSection, RecentSheetSection));

} // namespace
