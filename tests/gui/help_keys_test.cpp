// The keys of the frame and the table windows, pressed as a user presses them
// (shortcuts first, then the focused control): F1 opens the help viewer on the
// manual of the language in force, the file menu's shortcuts reach their
// entries, and F5 in the measure and data windows refreshes as their button does.
// Also the About box's version and a missing help file.
#include "frmwave_fixture.h"
#include "mainwindowfixture.h"

#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "frame/frmAbout.h"
#include "frame/frmHelp.h"
#include "text/language.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QTextBrowser>
#include <QTreeWidget>

// Qt's own key delivery asks the shortcut map before the focused widget.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* o, ulong timestamp, int k, Qt::KeyboardModifiers mods,
                                               const QString& text = QString(), bool autorep = false,
                                               ushort count = 1);

namespace {

void pressKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    window->activateWindow();
    QApplication::processEvents();
    QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : window;
    if (qt_sendShortcutOverrideEvent(focus, 0, key, modifiers)) return;
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(focus, &press);
}

using AboutAndHelp = WaveWindowTest;

TEST_F(AboutAndHelp, AClickOnTheIconTellsTheVersion)
{
    frmAbout about;
    about.show();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(4, 4), QPointF(4, 4), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(about.findChild<QLabel*>("picIcon"), &release);
    ASSERT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(platform->boxes[0].text, "00.01.05.00.00");
    EXPECT_EQ(platform->boxes[0].title, "Version");
    EXPECT_EQ(platform->boxes[0].style, vbOKOnly);
}

// Without a help folder set, the test program has no help pages beside it.
TEST_F(AboutAndHelp, AMissingHelpFileIsToldWithItsReason)
{
    for (int language : {LanguageEnglish, LanguageChinese}) {
        platform->clearRecords();
        EXPECT_FALSE(OpenHelpFile(language));
        ASSERT_EQ(platform->boxes.size(), 1);
        const QString text = platform->boxes[0].text;
        EXPECT_TRUE(text.endsWith(HelpFilePath(language))) << qPrintable(text);
        EXPECT_TRUE(text.contains("No such file")) << qPrintable(text);
    }
}

class HelpKeyTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        SetHelpFolder(QStringLiteral(SELVANE_TEST_DATA "/../help"));
    }
    void TearDown() override
    {
        delete HelpWindow();
        MainWindowTest::TearDown();
    }
};

TEST_F(HelpKeyTest, F1OpensTheManualOfTheLanguageInForce)
{
    load();
    const struct {
        const char* menu;
        const char* page;
        const char16_t* title;
    } languages[] = {{"mnuLanguageEnglish", "KV7200help.html", u"Selvane Help"},
                     {"mnuLanguageChinese", "KV7200help_Chinese.html", u"Selvane 帮助"},
                     {"mnuLanguageEnglish", "KV7200help.html", u"Selvane Help"}};
    frmHelp* first = nullptr;
    for (const auto& language : languages) {
        SCOPED_TRACE(language.page);
        find(language.menu)->trigger();
        pressKey(window.get(), Qt::Key_F1);
        frmHelp* viewer = HelpWindow();
        ASSERT_NE(viewer, nullptr);
        EXPECT_TRUE(viewer->isVisible());
        EXPECT_EQ(QFileInfo(viewer->browser()->source().toLocalFile()).fileName(), language.page);
        EXPECT_EQ(viewer->windowTitle(), QString::fromUtf16(language.title));
        EXPECT_FALSE(viewer->browser()->toPlainText().isEmpty());
        // A second press raises the same viewer.
        if (!first) first = viewer;
        EXPECT_EQ(viewer, first);
    }
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(HelpKeyTest, ViewerButtonsWalkTheManual)
{
    load();
    ASSERT_TRUE(OpenHelpFile(LanguageEnglish, window.get()));
    frmHelp* viewer = HelpWindow();
    QTextBrowser* browser = viewer->browser();
    const QUrl home = browser->source();
    browser->setSource(home.resolved(QUrl(QStringLiteral("manual/en/connecting.html"))));
    EXPECT_TRUE(viewer->findChild<QPushButton*>("cmdBack")->isEnabled());
    viewer->findChild<QPushButton*>("cmdContents")->click();
    EXPECT_EQ(browser->source().fragment(), "contents");
    viewer->findChild<QPushButton*>("cmdBack")->click();
    EXPECT_TRUE(browser->source().toString().endsWith("connecting.html"));
    viewer->findChild<QPushButton*>("cmdHome")->click();
    EXPECT_EQ(browser->source(), home);
}

struct Shortcut {
    const char* entry;
    int key;
    Qt::KeyboardModifiers modifiers;
};

// Each key reaches its entry; the entry's own work is tested with the entry.
TEST_F(MainWindowTest, FileMenuShortcutsReachTheirEntries)
{
    load();
    const Shortcut shortcuts[] = {{"mnuFileNew", Qt::Key_N, Qt::ControlModifier},
                                  {"mnuFileOpen", Qt::Key_O, Qt::ControlModifier},
                                  {"mnuFileSaveAll", Qt::Key_S, Qt::ControlModifier},
                                  {"mnuHelpContents", Qt::Key_F1, Qt::NoModifier}};
    for (const Shortcut& shortcut : shortcuts) {
        SCOPED_TRACE(shortcut.entry);
        QAction* action = find(shortcut.entry);
        action->disconnect(SIGNAL(triggered(bool)));
        int triggered = 0;
        QObject::connect(action, &QAction::triggered, [&triggered] { ++triggered; });
        EXPECT_EQ(action->shortcut(), QKeySequence(shortcut.modifiers | shortcut.key));
        pressKey(window.get(), shortcut.key, shortcut.modifiers);
        EXPECT_EQ(triggered, 1);
    }
}

struct TableKeyCase {
    const char* name;
    bool measure;
    Qt::KeyboardModifiers modifiers;
    bool refreshes;
};

class TableRefreshKey : public WaveWindowTest, public ::testing::WithParamInterface<TableKeyCase> {
  protected:
    QWidget* open()
    {
        QWidget* window = GetParam().measure ? static_cast<QWidget*>(CreateMeasureWindow(&area, 0))
                                             : static_cast<QWidget*>(CreateDataWindow(&area, 0));
        QCoreApplication::processEvents();
        window->findChild<QTreeWidget*>("MeasureView")->setFocus();
        return window;
    }
};

// Without a link a refresh asks for one: the button's box is the mark of a refresh.
TEST_P(TableRefreshKey, F5RefreshesAsTheButtonDoes)
{
    QWidget* window = open();
    window->findChild<QPushButton*>("cmdRefresh")->click();
    ASSERT_EQ(platform->boxes.size(), 1);
    const QString asked = platform->boxes[0].text;
    EXPECT_EQ(asked, "Please Connect Oscilloscope First!");
    platform->clearRecords();
    pressKey(&area, Qt::Key_F5, GetParam().modifiers);
    ASSERT_EQ(platform->boxes.size(), GetParam().refreshes ? 1 : 0);
    if (GetParam().refreshes) {
        EXPECT_EQ(platform->boxes[0].text, asked);
    }
}

INSTANTIATE_TEST_SUITE_P(Keys, TableRefreshKey,
                         ::testing::Values(TableKeyCase{"Measure", true, Qt::NoModifier, true},
                                           TableKeyCase{"Data", false, Qt::NoModifier, true},
                                           TableKeyCase{"MeasureCtrl", true, Qt::ControlModifier, false},
                                           TableKeyCase{"DataShift", false, Qt::ShiftModifier, false}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
