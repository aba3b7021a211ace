#include "link/restriction.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    int number;
    const char* english;
    const char16_t* chinese;
};

const Case cases[] = {
    {1, "Trigger can't be changed.", u"当前设置下不能修改触发系统."},
    {2, "Horizontal can't be changed.", u"当前设置下不能修改水平系统."},
    {3, "Low firmware,please update it.", u"示波器软件版本过低,请升级示波器固件."},
    {0, "Can't be used.", u"使用受限."},
    {4, "Can't be used.", u"使用受限."},
    {-1, "Can't be used.", u"使用受限."},
    {1000, "Can't be used.", u"使用受限."},
};

TEST(RestrictionMessage, GivesTheTextOfEachNumberInBothLanguages)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(c.number);
        EXPECT_EQ(RestrictionMessage(c.number, 1), c.english);
        EXPECT_EQ(RestrictionMessage(c.number, 0), QString::fromUtf16(c.chinese));
        EXPECT_EQ(RestrictionMessage(c.number, 9), c.english);
    }
}

} // namespace
