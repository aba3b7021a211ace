// The wave window's view: zoom texts, best fit, the pane in a tiny window, the
// option boxes and the channel boxes.
#include "frmwave_fixture.h"

#include "acquire/waverecord.h"
#include "document/sheetstate.h"
#include "link/linkstate.h"
#include "wave/wavechannels.h"
#include "wave/waverefresh.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {

struct ZoomCase {
    const char* name;
    const char* typed;
    double zoom;       // after the entry; 1 when refused
    const char* shown; // the combo's text afterwards
    bool refused;
};

class ZoomEntry : public WaveWindowTest, public ::testing::WithParamInterface<ZoomCase> {};

TEST_P(ZoomEntry, TakesAPercentTextOrRefusesIt)
{
    frmWave& wave = open();
    auto* combo = control<QComboBox>("ZoomCombo");
    combo->setEditText(QString::fromUtf8(GetParam().typed));
    Q_EMIT combo->lineEdit()->editingFinished();

    EXPECT_DOUBLE_EQ(wave.zoom(), GetParam().zoom);
    EXPECT_EQ(combo->currentText(), QString::fromUtf8(GetParam().shown));
    if (GetParam().refused) {
        ASSERT_EQ(platform->boxes.size(), 1);
        EXPECT_EQ(platform->boxes[0].text, "Invalid Zoom Factor!");
        EXPECT_EQ(platform->boxes[0].style, vbExclamation);
    } else {
        EXPECT_TRUE(platform->boxes.isEmpty());
        EXPECT_EQ(wave.picture().size(), QSize(qRound(350 * GetParam().zoom), qRound(250 * GetParam().zoom)));
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, ZoomEntry,
                         ::testing::Values(ZoomCase{"Listed", "150%", 1.5, "150%", false},
                                           ZoomCase{"NoPercentSign", "150", 1, "100%", true},
                                           ZoomCase{"NotANumber", "abc%", 1, "100%", true},
                                           ZoomCase{"OnlyPercent", "%", 1, "100%", true},
                                           ZoomCase{"Fraction", "62.5%", 0.625, "63%", false},
                                           ZoomCase{"BelowTheFloor", "0.2%", 0.01, "1%", false},
                                           ZoomCase{"Negative", "-50%", 0.01, "1%", false},
                                           ZoomCase{"HeldAtTheTop", "100000%", 10, "1000%", false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(WaveWindowTest, BestFitInATinyWindowGivesOnePercent)
{
    frmWave& wave = open();
    resizeInner({paneLeft() + 3, 10});
    control<QCheckBox>("BestFitChk")->click();

    EXPECT_TRUE(WaveRecords[0].BestFit);
    EXPECT_TRUE(DataSheetDirty);
    EXPECT_DOUBLE_EQ(wave.zoom(), 0.01);
    EXPECT_EQ(control<QComboBox>("ZoomCombo")->currentText(), "1%");
    EXPECT_FALSE(control<QComboBox>("ZoomCombo")->isEnabled());
}

TEST_F(WaveWindowTest, BestFitFollowsTheWindowAndUntickingKeepsTheZoom)
{
    frmWave& wave = open();
    auto* best = control<QCheckBox>("BestFitChk");
    best->click();
    resizeInner({paneLeft() + 700 + 2, 7 + 500 + 2});
    EXPECT_DOUBLE_EQ(wave.zoom(), 2.0);
    EXPECT_FALSE(control<QScrollBar>("HScroll")->isVisible());

    best->click();
    EXPECT_FALSE(WaveRecords[0].BestFit);
    EXPECT_TRUE(control<QComboBox>("ZoomCombo")->isEnabled());
    EXPECT_DOUBLE_EQ(wave.zoom(), 2.0);
}

TEST_F(WaveWindowTest, AWindowNarrowerThanThePaneMarginLeavesThePane)
{
    open();
    resizeInner({600, 400});
    const QRect pane = control<QWidget>("BackPic")->geometry();
    resizeInner({50, 200});
    EXPECT_EQ(control<QWidget>("BackPic")->geometry().topLeft(), pane.topLeft());
    EXPECT_EQ(control<QWidget>("BackPic")->width(), pane.width());
}

TEST_F(WaveWindowTest, ALargePictureGetsScrollBarsThatMoveIt)
{
    open();
    resizeInner({400, 300});
    auto* combo = control<QComboBox>("ZoomCombo");
    combo->setEditText("300%");
    Q_EMIT combo->lineEdit()->editingFinished();
    auto* h = control<QScrollBar>("HScroll");
    auto* v = control<QScrollBar>("VScroll");
    ASSERT_TRUE(h->isVisible());
    ASSERT_TRUE(v->isVisible());
    auto* picture = control<QWidget>("WavePic");
    const int left = picture->x();
    h->setValue(100);
    const int paneInner = control<QWidget>("BackPic")->contentsRect().width();
    EXPECT_NEAR(picture->x(), left - (1050 - paneInner), 1) << "the far end shows the picture's right edge";
}

TEST_F(WaveWindowTest, OptionsAreStoredAndRedrawThePicture)
{
    frmWave& wave = open();
    control<QRadioButton>("OptionColor_0")->click();
    EXPECT_TRUE(WaveRecords[0].ColorMode);
    EXPECT_EQ(wave.picture().pixel(5, 5), qRgb(0, 0, 0)) << "colour pictures are on black";
    control<QRadioButton>("OptionColor_1")->click();
    EXPECT_FALSE(WaveRecords[0].ColorMode);
    EXPECT_EQ(wave.picture().pixel(5, 5), qRgb(255, 255, 255));

    DataSheetDirty = false;
    control<QCheckBox>("GridCheck")->click();
    EXPECT_TRUE(WaveRecords[0].GridOn);
    EXPECT_TRUE(DataSheetDirty);
}

TEST_F(WaveWindowTest, TheFirstRunRestoresTheRecordWithoutDirtyingTheSheet)
{
    WaveRecords[2].ShowCH3 = true;
    WaveRecords[2].BestFit = true;
    WaveRecords[2].GridOn = true;
    WaveRecords[2].ColorMode = true;
    frmWave& wave = open(2, "Wave2");
    EXPECT_TRUE(WaveRecords[2].WindowOpen);
    EXPECT_FALSE(DataSheetDirty);
    EXPECT_TRUE(control<QCheckBox>("ChkCH_2")->isChecked());
    EXPECT_TRUE(control<QCheckBox>("ChkCH_2")->isEnabled());
    EXPECT_FALSE(control<QCheckBox>("ChkCH_0")->isEnabled());
    EXPECT_TRUE(control<QCheckBox>("BestFitChk")->isChecked());
    EXPECT_FALSE(control<QComboBox>("ZoomCombo")->isEnabled());
    EXPECT_TRUE(control<QCheckBox>("GridCheck")->isChecked());
    EXPECT_TRUE(control<QRadioButton>("OptionColor_0")->isChecked());
    EXPECT_EQ(wave.tag(), "2");
    EXPECT_EQ(wave.windowTitle(), "Wave2");
}

bool showsColor(const QImage& image, QRgb color)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == color) return true;
    return false;
}

// A channel box redraws at once: unticking takes the trace off the picture.
TEST_F(WaveWindowTest, AChannelClickRedrawsAndIsRefusedWhileConnecting)
{
    WaveRecord& r = WaveRecords[0];
    r.ShowCH2 = r.HasData = r.YTMode = r.ColorMode = true;
    r.PrevShow[2] = true;
    r.Points = 600;
    r.Parameter.s16ScrEndPos = 299;
    r.WaveCH2 = WaveArray(1025, 100);
    frmWave& wave = open();
    const QRgb ch2 = qRgb(0, 255, 255);
    ASSERT_TRUE(showsColor(wave.picture(), ch2));
    auto* box = control<QCheckBox>("ChkCH_1");
    Connecting = true;
    box->click();
    EXPECT_TRUE(box->isChecked()) << "put back to the wanted flag";
    EXPECT_TRUE(WaveRecords[0].ShowCH2);
    Connecting = false;
    box->click();
    EXPECT_FALSE(box->isChecked());
    EXPECT_FALSE(WaveRecords[0].ShowCH2);
    EXPECT_FALSE(showsColor(wave.picture(), ch2));
}

TEST_F(WaveWindowTest, TheBoxesFollowTheInstrumentsDisplays)
{
    WaveRecords[0].ShowCH1 = true;
    InstrumentDisplaySwitches = [] { return DisplaySwitches{false, true, false, true, false}; };
    frmWave& wave = open();
    wave.Timer1_Timer();
    InstrumentDisplaySwitches = nullptr;
    EXPECT_FALSE(control<QCheckBox>("ChkCH_0")->isEnabled());
    EXPECT_FALSE(WaveRecords[0].ShowCH1);
    EXPECT_TRUE(control<QCheckBox>("ChkCH_1")->isChecked()) << "the first channel on takes over";
    EXPECT_TRUE(WaveRecords[0].ShowCH2);
    EXPECT_TRUE(control<QCheckBox>("ChkCH_3")->isEnabled());
    EXPECT_FALSE(control<QCheckBox>("ChkCH_3")->isChecked());
}

void mouse(QWidget* target, QEvent::Type type, QPointF at, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, target->mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

TEST_F(WaveWindowTest, AShownCursorIsDraggedOnThePictureAndStopsAtTheGrid)
{
    frmWave& wave = open();
    auto* picture = control<QWidget>("WavePic");
    mouse(picture, QEvent::MouseButtonPress, {52, 100}, Qt::LeftButton);
    mouse(picture, QEvent::MouseMove, {120, 100}, Qt::LeftButton);
    mouse(picture, QEvent::MouseButtonRelease, {120, 100}, Qt::NoButton);
    EXPECT_DOUBLE_EQ(wave.cursors().CursorX1, 52) << "hidden cursors are not taken";

    control<QCheckBox>("ChkCursorX")->click();
    const QImage before = wave.picture();
    mouse(picture, QEvent::MouseButtonPress, {53, 100}, Qt::LeftButton);
    mouse(picture, QEvent::MouseMove, {120, 100}, Qt::LeftButton);
    EXPECT_EQ(picture->cursor().shape(), Qt::SizeHorCursor);
    EXPECT_DOUBLE_EQ(wave.cursors().CursorX1, 120);
    EXPECT_NE(wave.picture(), before);
    mouse(picture, QEvent::MouseMove, {1, 100}, Qt::LeftButton);
    EXPECT_DOUBLE_EQ(wave.cursors().CursorX1, 27);
    mouse(picture, QEvent::MouseButtonRelease, {1, 100}, Qt::NoButton);
    mouse(picture, QEvent::MouseMove, {200, 100}, Qt::NoButton);
    EXPECT_DOUBLE_EQ(wave.cursors().CursorX1, 27) << "let go on release";
}

TEST_F(WaveWindowTest, CursorsKeepTheirPlaceWhenTheZoomChanges)
{
    frmWave& wave = open();
    auto* combo = control<QComboBox>("ZoomCombo");
    combo->setEditText("200%");
    Q_EMIT combo->lineEdit()->editingFinished();
    EXPECT_DOUBLE_EQ(wave.cursors().CursorX1, (52 - 25) * 2.0 + 25);
    EXPECT_DOUBLE_EQ(wave.cursors().CursorY1, (59 - 25) * 2.0 + 25);
}

TEST_F(WaveWindowTest, CaptionsFollowTheLanguage)
{
    frmWave& wave = open();
    EXPECT_EQ(control<QPushButton>("cmdRefresh")->text(), "     Refresh");
    EXPECT_EQ(control<QRadioButton>("OptionColor_1")->text(), "B&&W");
    wave.SetCaptions(0);
    EXPECT_EQ(control<QCheckBox>("BestFitChk")->text(), u"适合");
    EXPECT_EQ(control<QPushButton>("cmdRefresh")->toolTip(), u"更新数据(F5)");
    EXPECT_EQ(control<QPushButton>("cmdPreview")->text(), u"         预览 .");
}

TEST_F(WaveWindowTest, ClosingReleasesTheSlotUnlessATransferRuns)
{
    frmWave& wave = open(4, "Wave4");
    Connecting = true;
    EXPECT_FALSE(wave.close());
    EXPECT_EQ(WaveWindowOf(4), &wave);
    Connecting = false;
    RefreshingWaveSlot = 4;
    WaveRecords[4].AutoRefreshing = true;
    EXPECT_TRUE(wave.parentWidget()->close());
    EXPECT_EQ(WaveWindowOf(4), nullptr);
    EXPECT_FALSE(WaveRecords[4].WindowOpen);
    EXPECT_FALSE(WaveRecords[4].AutoRefreshing);
}

} // namespace
