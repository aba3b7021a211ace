#include "panel/frmV_Panel.h"

#include "document/programiconwidgets.h"
#include "link/devicefacts.h"
#include "link/linkstate.h"
#include "link/visablocks.h"
#include "panel/keysetwidgets.h"
#include "panel/panelstate.h"
#include "panel/panelwindows.h"
#include "panel/screenpicturewidgets.h"
#include "platform/platform.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/pictureexport.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {

// While stopped the loop only looks for events; this keeps it from spinning.
constexpr int IdlePause = 20;

QPushButton* outputButton(const char* name, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    return button;
}

} // namespace

frmV_Panel::frmV_Panel(QWidget* parent)
    : QWidget(parent, Qt::Window), keys_(new KeySetWidgets(this, KeySet::Panel))
{
    setObjectName("frmV_Panel");
    SetWindowPicture(this, Picture::Panel);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(buildScreenSide());
    layout->addWidget(keys_->softKeys(), 0, Qt::AlignTop);
    layout->addWidget(keys_->groups(), 0, Qt::AlignTop);

    tDrawBmp = new QTimer(this);
    tDrawBmp->setObjectName("tDrawBmp");
    tDrawBmp->setSingleShot(true);
    tDrawBmp->setInterval(10);
    connect(tDrawBmp, &QTimer::timeout, this, &frmV_Panel::tDrawBmp_Timer);
    connect(cmdRun, &QPushButton::clicked, this, &frmV_Panel::cmdRun_Click);
    connect(cmdStop, &QPushButton::clicked, this, &frmV_Panel::cmdStop_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmV_Panel::cmdExport_Click);
    connect(cmdPrint, &QPushButton::clicked, this,
            [this] { PrintPictureWindow(*this, PageOutput::Print, this); });
    connect(cmdPreview, &QPushButton::clicked, this,
            [this] { PrintPictureWindow(*this, PageOutput::Preview, this); });

    PanelFlags.PanelOpen = true;
    PanelFlags.PanelRunning = true;
    keys_->repeat().HeldTicks = 0;
    keys_->ShowLaKey(HasLa);
    SetCaptions(Language);
    tDrawBmp->start();
}

frmV_Panel::~frmV_Panel()
{
    PanelFlags.PanelOpen = false;
}

QWidget* frmV_Panel::buildScreenSide()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    PanelWavePic = new QFrame(side);
    PanelWavePic->setObjectName("PanelWavePic");
    PanelWavePic->setFrameShape(QFrame::Panel);
    PanelWavePic->setFrameShadow(QFrame::Sunken);
    auto* frame = new QVBoxLayout(PanelWavePic);
    frame->setContentsMargins(2, 2, 2, 2);
    AddPic = new ScreenPictureBox(PanelWavePic);
    AddPic->setObjectName("AddPic");
    frame->addWidget(AddPic);
    column->addWidget(PanelWavePic, 1);

    auto* buttons = new QHBoxLayout;
    auto* control = new QGroupBox(side);
    control->setObjectName("fraControl");
    auto* controlRow = new QHBoxLayout(control);
    cmdRun = outputButton("cmdRun", control);
    cmdStop = outputButton("cmdStop", control);
    controlRow->addWidget(cmdRun);
    controlRow->addWidget(cmdStop);
    auto* output = new QGroupBox(side);
    output->setObjectName("fraOutput");
    auto* outputRow = new QHBoxLayout(output);
    cmdExport = outputButton("cmdExport", output);
    cmdPrint = outputButton("cmdPrint", output);
    cmdPreview = outputButton("cmdPreview", output);
    cmdRun->setIcon(ProgramIcon(Picture::Refresh));
    cmdStop->setIcon(ProgramIcon(Picture::Stop));
    cmdExport->setIcon(ProgramIcon(Picture::Export));
    cmdPrint->setIcon(ProgramIcon(Picture::Print));
    cmdPreview->setIcon(ProgramIcon(Picture::Preview));
    outputRow->addWidget(cmdExport);
    outputRow->addWidget(cmdPrint);
    outputRow->addWidget(cmdPreview);
    buttons->addWidget(control);
    buttons->addWidget(output);
    column->addLayout(buttons);
    return side;
}

void frmV_Panel::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::VirtualPanel,
                  {{"", 0},
                   {"fraControl", 1},
                   {"cmdRun", 2},
                   {"cmdStop", 3},
                   {"fraOutput", 4},
                   {"cmdExport", 5},
                   {"cmdPrint", 6},
                   {"cmdPreview", 7},
                   {"cmdRun", 8, CaptionRole::ToolTip},
                   {"cmdStop", 9, CaptionRole::ToolTip},
                   {"cmdExport", 10, CaptionRole::ToolTip},
                   {"cmdPrint", 11, CaptionRole::ToolTip},
                   {"cmdPreview", 12, CaptionRole::ToolTip}},
                  language);
    keys_->SetCaptions(language);
}

bool frmV_Panel::DrawBulkWave()
{
    QByteArray screen;
    ReadDisplayData(screen, PanelRunsScreen);
    if (!PanelRunsScreen() || screen.size() != ScreenPictureSize) return false;
    screen_ = screen;
    AddPic->AddPic(screen_.constData(), int(screen_.size()));
    return true;
}

void frmV_Panel::tDrawBmp_Timer()
{
    tDrawBmp->stop();
    runScreenLoop();
}

// Runs until the window closes, inside the timer's tick: each pass lets the
// user's events through, so the keys and buttons work between screens. A
// window deleted meanwhile is noticed through the guard and left at once.
void frmV_Panel::runScreenLoop()
{
    const QPointer<frmV_Panel> self(this);
    loopRunning_ = true;
    // Noted before the first screen, so a link lost on it still closes the window.
    linkSeen_ = linkSeen_ || Connected;
    showRunState();
    while (self && PanelFlags.PanelOpen) {
        while (self && PanelRunsScreen()) {
            const bool shown = DrawBulkWave();
            DoEvents();
            if (self) closeIfGone();
            // No link, or one without binary reads (RS232): nothing comes, so don't spin.
            if (self && !shown) Sleep(IdlePause);
        }
        if (!self) return;
        DoEvents();
        if (self) closeIfGone();
        if (self && PanelFlags.PanelOpen) Sleep(IdlePause);
    }
    if (!self) return;
    loopRunning_ = false;
    deleteLater();
}

// A link that was up and has gone ends the panel; so does a window hidden with
// its parent, whose loop would otherwise keep the program from ending.
void frmV_Panel::closeIfGone()
{
    linkSeen_ = linkSeen_ || Connected;
    if ((linkSeen_ && !Connected) || !isVisible()) close();
}

void frmV_Panel::showRunState()
{
    cmdRun->setEnabled(!PanelFlags.PanelRunning);
    cmdStop->setEnabled(PanelFlags.PanelRunning);
}

void frmV_Panel::cmdRun_Click()
{
    PanelFlags.PanelRunning = true;
    showRunState();
}

void frmV_Panel::cmdStop_Click()
{
    PanelFlags.PanelRunning = false;
    showRunState();
}

void frmV_Panel::cmdExport_Click()
{
    ExportPicture(AddPic->image());
}

QImage frmV_Panel::printImage() const
{
    return AddPic->image();
}

QString frmV_Panel::printLegend() const
{
    return Now().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

void frmV_Panel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return void(close());
    QWidget::keyPressEvent(event);
}

void frmV_Panel::closeEvent(QCloseEvent* event)
{
    PanelFlags.PanelOpen = false;
    keys_->stop();
    tDrawBmp->stop();
    event->accept();
    // Without a loop to end, nothing else lets the window go.
    if (!loopRunning_) deleteLater();
}

frmV_Panel* ShowVirtualPanel(QWidget* parent)
{
    static QPointer<frmV_Panel> open;
    if (!open) open = new frmV_Panel(parent);
    open->show();
    open->raise();
    open->activateWindow();
    return open;
}

void CloseVirtualPanelWindows()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("frmV_Panel") ||
            window->objectName() == QLatin1String("frmV_Key"))
            window->close();
}
