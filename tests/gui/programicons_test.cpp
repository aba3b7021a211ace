// The program's pictures load, and each window, toolbar button and tree node
// carries the drawing of its kind.
#include "frmwave_fixture.h"
#include "mainwindowfixture.h"

#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "analysis/frmPassFailed.h"
#include "controller/frmCtrlDialog.h"
#include "controller/frmCtrlDialogAdjust.h"
#include "controller/frmCtrlList.h"
#include "controller/frmPatternDlg.h"
#include "document/programiconwidgets.h"
#include "frame/frmAbout.h"
#include "frame/frmOptions.h"
#include "panel/frmV_Key.h"
#include "panel/frmV_Panel.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmNewDoc.h"
#include "stored/frmOpenWaveform.h"
#include "stored/frmRecordPlay.h"
#include "wave/frmWaveSetting.h"

#include <QDir>
#include <QMdiSubWindow>
#include <QSet>
#include <QToolBar>
#include <QTreeWidget>
#include <functional>

namespace {

QImage drawn(const QIcon& icon)
{
    return icon.pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool shows(const QIcon& icon, Picture picture)
{
    return !icon.isNull() && drawn(icon) == drawn(ProgramIcon(picture));
}

int opaquePixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128;
    return count;
}

TEST(ProgramIcons, EveryPictureIsADrawingAndEveryDrawingAPicture)
{
    QSet<QString> named;
    for (int index = 0; index < PictureCount; ++index) {
        const Picture picture = Picture(index);
        const QIcon icon = ProgramIcon(picture);
        named.insert(PictureFile(picture).mid(QStringLiteral(":/icons/").size()));
        ASSERT_FALSE(icon.isNull()) << qPrintable(PictureFile(picture));
        // Neither blank nor a filled square, at the toolbar's size and the tree's.
        for (int side : {16, 24}) {
            const int opaque = opaquePixels(icon.pixmap(side, side).toImage());
            EXPECT_GT(opaque, side * side / 10) << qPrintable(PictureFile(picture)) << " at " << side;
            EXPECT_LT(opaque, side * side) << qPrintable(PictureFile(picture)) << " at " << side;
        }
        EXPECT_NE(drawn(icon.pixmap(24, 24, QIcon::Disabled)), drawn(icon))
            << qPrintable(PictureFile(picture));
    }
    const QStringList files = QDir(QStringLiteral(":/icons")).entryList(QDir::Files);
    EXPECT_EQ(QSet<QString>(files.begin(), files.end()), named);
    EXPECT_TRUE(ProgramIcon(Picture(PictureCount)).isNull());
}

struct WindowCase {
    const char* name;
    Picture picture;
    std::function<QWidget*(QMdiArea&)> make;
};

template <typename T> std::function<QWidget*(QMdiArea&)> plain()
{
    return [](QMdiArea&) -> QWidget* { return new T; };
}

class WindowIcons : public WaveWindowTest, public ::testing::WithParamInterface<WindowCase> {};

TEST_P(WindowIcons, TheWindowCarriesThePictureOfItsKind)
{
    std::unique_ptr<QWidget> window(GetParam().make(area));
    EXPECT_TRUE(shows(window->windowIcon(), GetParam().picture));
}

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowIcons,
    ::testing::Values(
        WindowCase{"Wave", Picture::Wave, [](QMdiArea&) -> QWidget* { return new frmWave(0); }},
        WindowCase{"Measure", Picture::Measure, [](QMdiArea&) -> QWidget* { return new frmMeasure(0); }},
        WindowCase{"Data", Picture::Data, [](QMdiArea&) -> QWidget* { return new frmData(0); }},
        WindowCase{"MemoryWave", Picture::MemoryWave,
                   [](QMdiArea&) -> QWidget* { return new frmOpenWaveform(0); }},
        WindowCase{"Record", Picture::Record, [](QMdiArea&) -> QWidget* { return new frmRecordPlay(0); }},
        WindowCase{"PassFailed", Picture::Measure,
                   [](QMdiArea&) -> QWidget* { return new frmPassFailed(0, "Measure0"); }},
        WindowCase{"WaveSetting", Picture::Fft,
                   [](QMdiArea& area) -> QWidget* { return new frmWaveSetting(&area); }},
        WindowCase{"CtrlList", Picture::Controller, plain<frmCtrlList>()},
        WindowCase{"CtrlDialog", Picture::CtrlSetting, plain<CtrlDialog>()},
        WindowCase{"CtrlDialogAdjust", Picture::CtrlSetting, plain<CtrlDialogAdjust>()},
        WindowCase{"Pattern", Picture::CtrlSetting, plain<PatternDlg>()},
        WindowCase{"Keyboard", Picture::Keyboard, plain<frmV_Key>()},
        WindowCase{"Panel", Picture::Panel, plain<frmV_Panel>()},
        WindowCase{"Options", Picture::Options, plain<frmOptions>()},
        WindowCase{"About", Picture::Program, plain<frmAbout>()},
        WindowCase{"NewDoc", Picture::New, plain<frmNewDoc>()},
        WindowCase{"OpenDoc", Picture::Open, plain<frmOpenDoc>()},
        WindowCase{"DataSheetTree", Picture::DataBrowser, plain<frmDataSheetTree>()}),
    [](const auto& info) { return std::string(info.param.name); });

using MainWindowIcons = MainWindowTest;

TEST_F(MainWindowIcons, TheWindowToolbarAndSheetNodesCarryTheirPictures)
{
    load();
    EXPECT_TRUE(shows(window->windowIcon(), Picture::Program));
    // Every button has a drawing, and no two the same one.
    QSet<QByteArray> drawings;
    int buttons = 0;
    for (QAction* action : find<QToolBar>("tbToolBar")->actions()) {
        if (action->isSeparator()) continue;
        ++buttons;
        EXPECT_FALSE(action->icon().isNull()) << qPrintable(action->objectName());
        const QImage image = drawn(action->icon());
        drawings.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(buttons, 14);
    EXPECT_EQ(drawings.size(), buttons);

    QTreeWidgetItem* node = find<QTreeWidget>("CtrlTreeView")->topLevelItem(0);
    ASSERT_NE(node, nullptr);
    EXPECT_TRUE(shows(node->icon(0), Picture::Controller));
    ASSERT_GT(node->childCount(), 0);
    EXPECT_TRUE(shows(node->child(0)->icon(0), Picture::CtrlGroup));
    while (node->childCount() > 0)
        node = node->child(0);
    EXPECT_TRUE(shows(node->icon(0), Picture::CtrlSetting));

    find("mnuNewDataSheet")->trigger();
    find("AddNewMeasure")->trigger();
    QTreeWidgetItem* root = window->dataSheetTree()->tree()->topLevelItem(0);
    ASSERT_NE(root, nullptr);
    ASSERT_EQ(root->childCount(), 1);
    EXPECT_TRUE(shows(root->icon(0), Picture::Sheet));
    EXPECT_TRUE(shows(root->child(0)->icon(0), Picture::Measure));
    ASSERT_EQ(window->mdiArea()->subWindowList().size(), 1);
    EXPECT_TRUE(shows(window->mdiArea()->subWindowList().first()->windowIcon(), Picture::Measure));
}

} // namespace
