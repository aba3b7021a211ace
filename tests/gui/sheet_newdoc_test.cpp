#include "mainwindowfixture.h"

#include "document/sheetstate.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmNewDoc.h"
#include "sheet/sheetfile.h"
#include "text/language.h"

#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

namespace {

class NewDocTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        load();
        test->clearRecords();
    }

    // Answers the next modal new document dialog with an option and a button.
    void answerDialog(int option, const char* button)
    {
        QTimer::singleShot(0, [option, button] {
            auto* dialog = qobject_cast<frmDocChoice*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            if (option >= 0)
                dialog->findChild<QRadioButton*>(QStringLiteral("NewOption_%1").arg(option))
                    ->setChecked(true);
            dialog->findChild<QPushButton*>(QString::fromLatin1(button))->click();
        });
    }
    QTreeWidget* tree() const { return window->dataSheetTree()->tree(); }
};

TEST_F(NewDocTest, TheFirstOptionMakesADataSheetAndTheThirdAWaveWindow)
{
    answerDialog(0, "cmdOK");
    find("mnuFileNew")->trigger();
    EXPECT_EQ(DocChoice, NewDocDataSheet);
    ASSERT_EQ(tree()->topLevelItemCount(), 1);
    EXPECT_EQ(tree()->topLevelItem(0)->text(0), "Untitle");
    answerDialog(2, "cmdOK");
    find("mnuFileNew")->trigger();
    EXPECT_EQ(DocChoice, NewDocWave);
    EXPECT_EQ(tree()->topLevelItem(0)->child(0)->text(0), "Wave0");
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 1);
}

TEST_F(NewDocTest, EveryWindowKindAndTheControllerHaveTheirChoice)
{
    answerDialog(0, "cmdOK");
    find("mnuFileNew")->trigger();
    const struct {
        int option;
        const char* node;
    } kinds[] = {{3, "Measure0"}, {4, "Data0"}, {5, "Record0"}, {6, "Memory Wave0"}};
    for (const auto& kind : kinds) {
        answerDialog(kind.option, "cmdOK");
        find("mnuFileNew")->trigger();
        EXPECT_EQ(DocChoice, kind.option + 1);
        QStringList names;
        for (int i = 0; i < tree()->topLevelItem(0)->childCount(); ++i)
            names << tree()->topLevelItem(0)->child(i)->text(0);
        EXPECT_TRUE(names.contains(QString::fromLatin1(kind.node))) << kind.node;
    }
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 4);
    answerDialog(1, "cmdOK");
    find("mnuFileNew")->trigger();
    EXPECT_EQ(DocChoice, 2) << "a new control file, nothing asked while it has no changes";
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(NewDocTest, CancelRunsNothingAndKeepsTheLastChoice)
{
    DocChoice = NewDocMeasure;
    answerDialog(0, "cmdCancel");
    find("mnuFileNew")->trigger();
    EXPECT_FALSE(DocChosen);
    EXPECT_EQ(DocChoice, NewDocMeasure);
    EXPECT_EQ(tree()->topLevelItemCount(), 0);
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(NewDocTest, ANewSheetOverAChangedOneAsksFirst)
{
    RunNewDocumentChoice(window->dataSheetTree(), NewDocDataSheet);
    RunNewDocumentChoice(window->dataSheetTree(), NewDocRecord);
    test->boxAnswers = {vbCancel};
    RunNewDocumentChoice(window->dataSheetTree(), NewDocDataSheet);
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "Save the changes to the Data Sheet File? ");
    EXPECT_EQ(tree()->topLevelItem(0)->childCount(), 1) << "Cancel keeps the sheet";
}

TEST_F(NewDocTest, TheDialogSpeaksChinese)
{
    Language = LanguageChinese;
    frmNewDoc dialog;
    EXPECT_EQ(dialog.windowTitle(), u"新建文档");
    EXPECT_EQ(dialog.findChild<QRadioButton*>("NewOption_6")->text(), u"波形文件窗口");
    EXPECT_EQ(dialog.findChild<QPushButton*>("cmdCancel")->text(), u"取消");
    // Each choice has its own picture, none of them blank.
    QSet<qint64> pictures;
    for (int i = 1; i <= 7; ++i) {
        const auto* image = dialog.findChild<QLabel*>(QStringLiteral("Image%1").arg(i));
        ASSERT_TRUE(image) << i;
        pictures.insert(image->pixmap().cacheKey());
        EXPECT_FALSE(image->pixmap().toImage().allGray()) << i;
    }
    EXPECT_EQ(pictures.size(), 7);
}

TEST_F(NewDocTest, OpenTakesADataSheetFileAndShowsItsWindows)
{
    RunNewDocumentChoice(window->dataSheetTree(), NewDocDataSheet);
    RunNewDocumentChoice(window->dataSheetTree(), NewDocMeasure);
    QTemporaryDir dir;
    const QString path = dir.filePath("one.kvs");
    ASSERT_TRUE(SaveSheet(path));
    RunNewDocumentChoice(window->dataSheetTree(), NewDocDataSheet);

    test->openPaths << path;
    answerDialog(0, "cmdOK");
    find("mnuFileOpen")->trigger();
    ASSERT_EQ(test->openRequests.size(), 1);
    EXPECT_EQ(test->openRequests[0].filter, "Data Sheet Files (*.kvs)");
    EXPECT_EQ(tree()->topLevelItem(0)->child(0)->text(0), "Measure0");
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 1);

    answerDialog(1, "cmdOK");
    find("mnuFileOpen")->trigger();
    EXPECT_EQ(DocChoice, NewDocController);
    ASSERT_EQ(test->openRequests.size(), 2) << "the controller asks for its own file";
    EXPECT_NE(test->openRequests[1].filter, "Data Sheet Files (*.kvs)");
}

TEST_F(NewDocTest, TheOpenDialogKeepsItsEnglishTitle)
{
    frmOpenDoc dialog;
    EXPECT_EQ(dialog.windowTitle(), "New Document");
    EXPECT_EQ(dialog.findChildren<QRadioButton*>().size(), 2);
}

} // namespace
