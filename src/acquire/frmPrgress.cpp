#include "acquire/frmPrgress.h"

#include "link/linkstate.h"
#include "platform/platform.h"
#include "settings/softwaresettings.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QProgressBar>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int Timer1IntervalMs = 100;
constexpr int Timer2IntervalMs = 1;
// Where the window goes when its kept corner lies off the screen, in twips.
constexpr int FallbackLeft = 400;
constexpr int FallbackTop = 600;
const QString PlacementSection = QStringLiteral("Settings_KV7200B");

QRect screenTwips()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect pixels = screen ? screen->geometry() : QRect();
    return {pixels.topLeft() * TwipsPerPixel, pixels.size() * TwipsPerPixel};
}

} // namespace

frmPrgress::frmPrgress(const Operation& operation, QWidget* parent)
    : QDialog(parent), operation_(operation), ProgressBar1(new QProgressBar(this)), Timer1(new QTimer(this)),
      Timer2(new QTimer(this))
{
    setObjectName(QStringLiteral("frmPrgress"));
    setModal(true);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setRange(0, int(barMaximum()));
    ProgressBar1->setTextVisible(false);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer2->setObjectName(QStringLiteral("Timer2"));
    Timer1->setInterval(Timer1IntervalMs);
    Timer2->setInterval(Timer2IntervalMs);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(ProgressBar1);
    resize(320, 48);
    connect(Timer1, &QTimer::timeout, this, &frmPrgress::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &frmPrgress::Timer2_Timer);
    placeFromSettings();
    SetProgressView(this);
    BeginReadingFrame(operation_);
    Timer1->start();
}

frmPrgress::~frmPrgress()
{
    if (&Progress() == this) SetProgressView(nullptr);
}

bool frmPrgress::RunReading(const Operation& operation, const QString& caption, QWidget* parent)
{
    if (!Connected || OperationRunning) return false;
    QPointer<frmPrgress> window = new frmPrgress(operation, parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(caption);
    window->show();
    while (!OperationDone && window)
        DoEvents();
    return true;
}

void frmPrgress::Timer1_Timer()
{
    Timer1->stop();
    FinishReadingFrame(operation_);
    SetProgressView(nullptr);
    savePlacement();
    close();
}

void frmPrgress::Timer2_Timer()
{
    ProgressTimerTick(operation_);
}

void frmPrgress::setTimer2Enabled(bool enabled)
{
    if (enabled)
        Timer2->start();
    else
        Timer2->stop();
}

void frmPrgress::setBarValue(double value)
{
    ProgressBar1->setValue(int(std::clamp(value, 0.0, barMaximum())));
}

double frmPrgress::barValue() const
{
    return ProgressBar1->value();
}

double frmPrgress::barMaximum() const
{
    return 100;
}

void frmPrgress::refresh()
{
    repaint();
}

void frmPrgress::closeEvent(QCloseEvent* event)
{
    if (OperationRunning)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

void frmPrgress::reject()
{
    if (!OperationRunning) QDialog::reject();
}

// The corner is kept in twips; one off the screen is put back where it shows.
void frmPrgress::placeFromSettings()
{
    LoadProgressPlacement();
    const QRect screen = screenTwips();
    int left = ProgressPlacement.left;
    int top = ProgressPlacement.top;
    if (left < screen.left() || left > screen.right()) left = FallbackLeft;
    if (top < screen.top() || top > screen.bottom()) top = FallbackTop;
    placedTwips_ = {left, top};
    placedAt_ = {left / TwipsPerPixel, top / TwipsPerPixel};
    move(placedAt_);
}

// Twips don't survive the way through whole pixels, so a window left where it
// was put keeps its corner exactly.
void frmPrgress::savePlacement()
{
    const QPoint twips = pos() == placedAt_ ? placedTwips_ : pos() * TwipsPerPixel;
    SaveSetting(PlacementSection, QStringLiteral("ProgressLeft"), QString::number(twips.x()));
    SaveSetting(PlacementSection, QStringLiteral("ProgressTop"), QString::number(twips.y()));
}
