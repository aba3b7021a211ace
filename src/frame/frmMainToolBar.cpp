// frmMain: the toolbar. Each button is told apart by its key (its objectName) and
// does what the menu entry it stands for does.

#include "frame/frmMain.h"

#include "text/captionwidgets.h"
#include "sheet/frmDataSheetTree.h"

#include <QAction>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

namespace {

// A small picture with a letter or two, for the buttons the style has no icon for.
QIcon letterIcon(const QString& letters, const QColor& colour)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour);
    painter.setPen(colour.darker(160));
    painter.drawRoundedRect(QRectF(1, 1, 18, 18), 3, 3);
    QFont font = painter.font();
    font.setPixelSize(letters.size() > 1 ? 8 : 11);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 0, 20, 20), Qt::AlignCenter, letters);
    return QIcon(pixmap);
}

QAction* addButton(QToolBar* bar, const char* key, const QIcon& icon)
{
    QAction* button = bar->addAction(icon, QString::fromLatin1(key));
    button->setObjectName(QString::fromLatin1(key));
    return button;
}

} // namespace

void frmMain::createToolBar()
{
    tbToolBar = addToolBar(QString());
    tbToolBar->setObjectName("tbToolBar");
    tbToolBar->setMovable(false);
    auto pass = [this](const char* key, const QIcon& icon, const char* menuEntry) {
        QAction* target = findChild<QAction*>(QString::fromLatin1(menuEntry));
        connect(addButton(tbToolBar, key, icon), &QAction::triggered, target, &QAction::trigger);
    };
    auto call = [this](const char* key, const QIcon& icon, auto handler) {
        connect(addButton(tbToolBar, key, icon), &QAction::triggered, this, handler);
    };
    QStyle* look = style();
    pass("New", look->standardIcon(QStyle::SP_FileIcon), "mnuFileNew");
    pass("Open", look->standardIcon(QStyle::SP_DialogOpenButton), "mnuFileOpen");
    pass("Save", look->standardIcon(QStyle::SP_DialogSaveButton), "mnuFileSaveAll");
    tbToolBar->addSeparator();
    pass("Connect", letterIcon("C", QColor(120, 220, 120)), "mnuToolsConnect");
    pass("Disconnect", letterIcon("D", QColor(230, 130, 120)), "mnuToolsDisconnect");
    pass("Options", look->standardIcon(QStyle::SP_FileDialogDetailedView), "mnuToolsOptions");
    tbToolBar->addSeparator();
    pass("Controller", letterIcon("Ct", QColor(200, 200, 240)), "mnuViewController");
    pass("DataBrowser", letterIcon("DB", QColor(200, 200, 240)), "mnuViewDataBrowser");
    tbToolBar->addSeparator();
    call("AddNewWaveform", letterIcon("W", QColor(255, 255, 120)),
         [this] { dataSheetTree()->mnuAddNewWaveform(); });
    call("AddNewMeasure", letterIcon("M", QColor(120, 255, 255)),
         [this] { dataSheetTree()->mnuAddNewMeasure(); });
    call("AddNewData", letterIcon("D", QColor(255, 140, 255)), [this] { dataSheetTree()->mnuAddNewData(); });
    call("FFT", letterIcon("F", QColor(190, 140, 255)), [this] { ShowWaveSetting(); });
    call("AddNewRecord", letterIcon("R", QColor(150, 200, 255)),
         [this] { dataSheetTree()->mnuAddNewPlayBack(); });
    call("AddNewMemoryWaveform", letterIcon("MW", QColor(220, 220, 220)),
         [this] { dataSheetTree()->mnuAddNewMemoryWave(); });
}

void frmMain::setToolbarCaptions(int language)
{
    constexpr CaptionRole tip = CaptionRole::ToolTip;
    ApplyCaptions(tbToolBar, CaptionList::MainToolbar,
                  {{"New", 0, tip},
                   {"Open", 1, tip},
                   {"Save", 2, tip},
                   {"Connect", 3, tip},
                   {"Disconnect", 4, tip},
                   {"Controller", 5, tip},
                   {"DataBrowser", 6, tip},
                   {"AddNewWaveform", 7, tip},
                   {"AddNewMeasure", 8, tip},
                   {"AddNewData", 9, tip},
                   {"AddNewRecord", 10, tip},
                   {"AddNewMemoryWaveform", 11, tip},
                   {"Options", 12, tip}},
                  language);
    ApplyCaptions(sbrStatus, CaptionList::MainToolbar, {{"picLED_OFF", 13, tip}, {"picLED_ON", 14, tip}},
                  language);
}
