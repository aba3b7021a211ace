// The program's pictures load, and the main window, its toolbar buttons and its
// tree nodes carry the drawings of their kinds (each child window's: window_sizes_test).
#include "mainwindowfixture.h"

#include "document/programiconwidgets.h"
#include "sheet/frmDataSheetTree.h"

#include <QDir>
#include <QMdiSubWindow>
#include <QSet>
#include <QToolBar>
#include <QTreeWidget>

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
