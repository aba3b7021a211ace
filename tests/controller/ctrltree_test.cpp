// The tree's layout from the record alone: the Trigger and Time Base groups of
// every trigger type in both languages (kept as a data file), fixed group
// numbers, and the nodes that come and go with a value.

#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "link/devicefacts.h"
#include "support/freshstate.h"
#include "text/treewords.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

const char* const methods[] = {"EDGE", "PULSE", "SLOPE", "VIDEO", "PATTERN", "DURATION", "ALTERNATIVE"};

// A group's node texts, children indented by two blanks per level.
void listNodes(const CtrlNode& node, int depth, QStringList& out)
{
    out << QString(depth * 2, QLatin1Char(' ')) + node.text;
    for (const CtrlNode& child : node.children)
        listNodes(child, depth + 1, out);
}

const CtrlNode* groupNode(const CtrlNode& root, int group)
{
    for (const CtrlNode& node : root.children)
        if (node.column == group) return &node;
    return nullptr;
}

class CtrlTreeTest : public FreshStateTest {
  protected:
    // The Time Base and Trigger groups of every type in a language.
    QStringList layouts(int language)
    {
        QStringList out;
        for (const char* method : methods) {
            Language = language;
            ResetCtrlState();
            CtrlData.TrigMethod = ValueWord(method);
            CtrlData.AltTypeB = ValueWord("SLOPE");
            out << QStringLiteral("== %1").arg(method);
            const CtrlNode root = BuildCtrlTree();
            listNodes(*groupNode(root, GroupTimeBase), 0, out);
            listNodes(*groupNode(root, GroupTrigger), 0, out);
        }
        return out;
    }
};

TEST_F(CtrlTreeTest, TriggerLayoutsOfEveryTypeInBothLanguages)
{
    for (const auto& [language, name] :
         {std::pair{LanguageEnglish, "english"}, {LanguageChinese, "chinese"}}) {
        QFile file(QStringLiteral(SELVANE_TEST_DATA "/controller/data/layouts_%1.txt").arg(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << name;
        const QStringList expected = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
        const QStringList actual = layouts(language);
        EXPECT_EQ(actual.join('\n').toStdString(), expected.join('\n').toStdString()) << name;
    }
}

TEST_F(CtrlTreeTest, GroupsKeepTheirNumbersWithoutLogicInputs)
{
    const CtrlNode root = BuildCtrlTree();
    EXPECT_EQ(root.text, "KV7200B");
    QStringList groups;
    for (const CtrlNode& group : root.children)
        groups << QStringLiteral("%1 %2").arg(group.column).arg(group.text);
    EXPECT_EQ(groups.join(", "), "1 Running Control, 2 CH1, 3 CH2, 4 CH3, 5 CH4, 7 Time Base, 8 Trigger, "
                                 "9 Acquire, 10 Display, 11 Virtual Panel");
    const CtrlNode* time = groupNode(root, GroupTimeBase);
    EXPECT_EQ(time->children[2].row, 4) << "Format is read from row 4";
}

TEST_F(CtrlTreeTest, NodesThatFollowValues)
{
    CtrlNode root = BuildCtrlTree();
    EXPECT_EQ(groupNode(root, GroupAcquire)->children.size(), 2u);
    CtrlData.AcqType = ValueWord("AVERAGE");
    root = BuildCtrlTree();
    EXPECT_EQ(groupNode(root, GroupAcquire)->children.back().text, "Averages [16]");

    // Chinese values read in English match no type: only the Method node stays.
    CtrlData.TrigMethod = QStringLiteral("边沿触发");
    root = BuildCtrlTree();
    EXPECT_EQ(groupNode(root, GroupTrigger)->children.size(), 1u);

    SetHasLa(true);
    root = BuildCtrlTree();
    ASSERT_NE(groupNode(root, GroupLa), nullptr);
    EXPECT_EQ(groupNode(root, GroupLa)->children[0].children.size(), 18u);
    SetHasLa(false);
}

} // namespace
