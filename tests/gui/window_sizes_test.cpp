// Every child window and dialog opens at a size that shows all its controls and
// its picture, with no caption cut, in both languages; it carries the drawing
// of its kind, and in Chinese no English caption is left that has a Chinese
// counterpart. Sheet windows cascade inside the main window's area.
#include "fakevisa.h"
#include "frmwave_fixture.h"

#include "acquire/frmPrgress.h"
#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "analysis/frmPassFailed.h"
#include "controller/editor.h"
#include "controller/frmCtrlDialog.h"
#include "controller/frmCtrlDialogAdjust.h"
#include "controller/frmCtrlList.h"
#include "controller/frmPatternDlg.h"
#include "document/programiconwidgets.h"
#include "frame/frmAbout.h"
#include "frame/frmMain.h"
#include "frame/frmOptions.h"
#include "link/frmDlgResource.h"
#include "panel/frmV_Key.h"
#include "panel/frmV_Panel.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmNewDoc.h"
#include "stored/frmOpenWaveform.h"
#include "stored/frmRecordPlay.h"
#include "text/captions.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/frmWaveSetting.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGroupBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <functional>
#include <memory>

namespace {

// The window to look at, and what to delete afterwards (the window itself, or
// the main window that holds a pane).
struct Opened {
    QWidget* window;
    std::unique_ptr<QObject> owner;
};

struct WindowKind {
    const char* name;
    Picture picture; // PictureCount: the window carries no drawing of its own
    std::function<Opened(QMdiArea&)> open;
    bool sized = true;   // opened at a size of its own, so checked for room
    bool chinese = true; // every caption has a Chinese one (not so for key and item names)
};

void PrintTo(const WindowKind& kind, std::ostream* out)
{
    *out << kind.name;
}

QString shownText(QString text)
{
    text.replace(QLatin1String("&&"), QChar(1));
    text.remove(QLatin1Char('&'));
    return text.replace(QChar(1), QLatin1Char('&'));
}

int widestLine(const QFontMetrics& metrics, const QString& text)
{
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

QStyleOptionButton buttonOption(const QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    return option;
}

// The caption a control shows and the width the style gives it; room -1 when the
// control shows no caption of its own.
std::pair<QString, int> captionRoom(const QWidget* w)
{
    const QStyle* style = w->style();
    if (auto* push = qobject_cast<const QPushButton*>(w)) {
        const QStyleOptionButton option = buttonOption(push);
        int room = style->subElementRect(QStyle::SE_PushButtonContents, &option, push).width();
        if (!push->icon().isNull()) room -= push->iconSize().width() + 4;
        return {push->text(), room};
    }
    if (auto* tool = qobject_cast<const QToolButton*>(w)) {
        if (tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull()) return {{}, -1};
        return {tool->text(), tool->contentsRect().width() - 6};
    }
    if (qobject_cast<const QCheckBox*>(w) || qobject_cast<const QRadioButton*>(w)) {
        const auto* button = static_cast<const QAbstractButton*>(w);
        const QStyleOptionButton option = buttonOption(button);
        const auto element =
            qobject_cast<const QCheckBox*>(w) ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents;
        return {button->text(), style->subElementRect(element, &option, w).width()};
    }
    if (auto* label = qobject_cast<const QLabel*>(w)) {
        if (label->wordWrap() || label->textFormat() == Qt::RichText) return {{}, -1};
        return {label->text(), label->contentsRect().width() - 2 * std::max(0, label->margin())};
    }
    return {{}, -1};
}

// The group box's title lies inside the box.
bool titleFits(const QGroupBox* box)
{
    if (box->title().isEmpty()) return true;
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.textAlignment = box->alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect label =
        box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box);
    return box->rect().contains(label);
}

// Inside a scroll area's viewport a control may lie beyond the visible part.
bool scrolled(const QWidget* w, const QWidget* window)
{
    for (const QWidget* p = w->parentWidget(); p && p != window; p = p->parentWidget())
        if (auto* area = qobject_cast<const QAbstractScrollArea*>(p->parentWidget());
            area && area->viewport() == p)
            return true;
    return false;
}

// English captions whose Chinese differs, less any text that is itself a Chinese caption.
QSet<QString> englishOnlyCaptions()
{
    QSet<QString> english, chinese;
    for (int list = 0; list < CaptionListCount; ++list)
        for (int slot = 0; slot < CaptionSlotCount(CaptionList(list)); ++slot) {
            const QString en = Caption(CaptionList(list), slot, LanguageEnglish);
            const QString zh = Caption(CaptionList(list), slot, LanguageChinese);
            chinese.insert(zh.trimmed());
            if (!en.trimmed().isEmpty() && en != zh) english.insert(en.trimmed());
        }
    return english - chinese;
}

// Every caption a person reads on the window: title, tabs, headers, buttons,
// labels, frames and tooltips.
QStringList captionsOf(QWidget* window)
{
    QStringList texts{window->windowTitle()};
    for (QWidget* w : window->findChildren<QWidget*>()) {
        texts << w->toolTip();
        if (auto* button = qobject_cast<QAbstractButton*>(w)) texts << button->text();
        if (auto* label = qobject_cast<QLabel*>(w)) texts << label->text();
        if (auto* frame = qobject_cast<QGroupBox*>(w)) texts << frame->title();
        if (auto* tabs = qobject_cast<QTabWidget*>(w))
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i);
        if (auto* tree = qobject_cast<QTreeWidget*>(w); tree && tree->headerItem())
            for (int i = 0; i < tree->columnCount(); ++i)
                texts << tree->headerItem()->text(i);
    }
    return texts;
}

QImage drawn(const QIcon& icon)
{
    return icon.pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
}

void settle(const std::function<bool()>& done, int ms = 5000)
{
    const QDeadlineTimer deadline(ms);
    while (!done() && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
}

class WindowSizes : public WaveWindowTest, public ::testing::WithParamInterface<std::tuple<WindowKind, int>> {
  protected:
    ScopedFakeVisa instrument;
};

TEST_P(WindowSizes, ShowEveryControlAndCaptionWholeWithItsDrawing)
{
    const WindowKind& kind = std::get<0>(GetParam());
    Language = std::get<1>(GetParam());
    LoadMessages();
    area.resize(1600, 1200);
    Opened opened = kind.open(area);
    QWidget* window = opened.window;
    ASSERT_NE(window, nullptr);
    if (kind.picture != Picture(PictureCount)) {
        EXPECT_FALSE(window->windowIcon().isNull());
        EXPECT_EQ(drawn(window->windowIcon()), drawn(ProgramIcon(kind.picture)));
    }
    if (Language == LanguageChinese && kind.chinese) {
        const QSet<QString> english = englishOnlyCaptions();
        for (const QString& text : captionsOf(window))
            EXPECT_FALSE(english.contains(text.trimmed())) << '"' << text.toStdString() << '"';
    }
    if (!kind.sized) return;
    window->show();
    // The first timers: restored boxes, the wave window's picture.
    settle([] { return false; }, 150);
    for (QWidget* w : window->findChildren<QWidget*>()) {
        if (w->isWindow() || !w->isVisibleTo(window) || scrolled(w, window)) continue;
        const std::string name = w->objectName().toStdString() + " (" + w->metaObject()->className() + ")";
        EXPECT_TRUE(w->parentWidget()->rect().contains(w->geometry()))
            << name << " at " << w->geometry().x() << "," << w->geometry().y() << " " << w->width() << "x"
            << w->height() << " in " << w->parentWidget()->width() << "x" << w->parentWidget()->height();
        if (auto* box = qobject_cast<QGroupBox*>(w)) {
            EXPECT_TRUE(titleFits(box)) << name << " title";
        }
        const auto [text, room] = captionRoom(w);
        if (room < 0 || text.isEmpty()) continue;
        const int needed = widestLine(w->fontMetrics(), shownText(text));
        EXPECT_LE(needed, room) << name << " \"" << text.toStdString() << '"';
    }
}

template <typename T> Opened dialog()
{
    auto* window = new T;
    return {window, std::unique_ptr<QObject>(window)};
}

Opened sheetWindow(QWidget* window)
{
    return {window, nullptr}; // the area closes its sub-windows
}

Opened editor(EditShape shape, const QString& caption, const QStringList& items, const QString& value)
{
    auto* window = new CtrlDialog;
    EditTarget target;
    target.caption = caption;
    window->Load(target, {shape, caption, items, value, false});
    return {window, std::unique_ptr<QObject>(window)};
}

Opened controllerPane(QMdiArea&)
{
    auto main = std::make_unique<frmMain>();
    main->Form_Load();
    main->show();
    frmMain* shown = main.get();
    settle([shown] { return shown->ctrlList()->isVisible(); });
    return {shown->ctrlList(), std::move(main)};
}

const WindowKind kinds[] = {
    {"Wave", Picture::Wave, [](QMdiArea& area) { return sheetWindow(CreateWaveWindow(&area, 0)); }},
    {"Measure", Picture::Measure, [](QMdiArea& area) { return sheetWindow(CreateMeasureWindow(&area, 0)); }},
    {"Data", Picture::Data, [](QMdiArea& area) { return sheetWindow(CreateDataWindow(&area, 0)); }},
    {"MemoryWave", Picture::MemoryWave,
     [](QMdiArea& area) { return sheetWindow(CreateMemoryWaveWindow(&area, 0)); }},
    {"Record", Picture::Record, [](QMdiArea& area) { return sheetWindow(CreateRecordPlayWindow(&area, 0)); }},
    {"ControllerPane", Picture::Controller, controllerPane},
    {"EditorList", Picture::CtrlSetting,
     [](QMdiArea&) {
         return editor(EditShape::List, QStringLiteral("Sensitivity"), {"0.10div", "0.20div"}, "0.10div");
     },
     true, false},
    {"EditorNumber", Picture::CtrlSetting,
     [](QMdiArea&) { return editor(EditShape::Number, QStringLiteral("Offset"), {}, QStringLiteral("0")); },
     true, false},
    {"FineAdjust", Picture::CtrlSetting,
     [](QMdiArea&) {
         auto opened = dialog<CtrlDialogAdjust>();
         static_cast<CtrlDialogAdjust*>(opened.window)->Load(0, QStringLiteral("Volt/Div"));
         return opened;
     },
     true, false},
    {"Pattern", Picture::CtrlSetting, [](QMdiArea&) { return dialog<PatternDlg>(); }},
    {"VirtualKeyboard", Picture::Keyboard, [](QMdiArea&) { return dialog<frmV_Key>(); }, true, false},
    {"VirtualPanel", Picture::Panel,
     [](QMdiArea&) {
         auto opened = dialog<frmV_Panel>();
         static_cast<frmV_Panel*>(opened.window)->tDrawBmp->stop(); // no screen loop
         return opened;
     },
     true, false},
    {"FftSetting", Picture::Fft,
     [](QMdiArea& area) {
         auto* window = new frmWaveSetting(&area);
         return Opened{window, std::unique_ptr<QObject>(window)};
     }},
    {"Options", Picture::Options, [](QMdiArea&) { return dialog<frmOptions>(); }},
    {"About", Picture::Program, [](QMdiArea&) { return dialog<frmAbout>(); }},
    {"NewDocument", Picture::New, [](QMdiArea&) { return dialog<frmNewDoc>(); }},
    {"OpenDocument", Picture::Open, [](QMdiArea&) { return dialog<frmOpenDoc>(); }},
    {"PassFailed", Picture::Measure,
     [](QMdiArea&) {
         auto* window = new frmPassFailed(0, "Measure0");
         return Opened{window, std::unique_ptr<QObject>(window)};
     },
     false},
    {"DataSheetTree", Picture::DataBrowser, [](QMdiArea&) { return dialog<frmDataSheetTree>(); }, false},
    {"DlgResource", Picture(PictureCount), [](QMdiArea&) { return dialog<frmDlgResource>(); }, false},
    {"Progress", Picture(PictureCount),
     [](QMdiArea&) {
         auto* window = new frmPrgress({OperationUpload});
         return Opened{window, std::unique_ptr<QObject>(window)};
     },
     false},
};

INSTANTIATE_TEST_SUITE_P(Windows, WindowSizes,
                         ::testing::Combine(::testing::ValuesIn(kinds),
                                            ::testing::Values(LanguageChinese, LanguageEnglish)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    (std::get<1>(info.param) == LanguageChinese ? "Chinese" : "English");
                         });

// The table windows' buttons take their lists' captions, tooltips included.
TEST_F(WaveWindowTest, TableWindowButtonsSpeakTheListsChinese)
{
    Language = LanguageChinese;
    for (QWidget* window :
         {static_cast<QWidget*>(new frmData(0)), static_cast<QWidget*>(new frmMeasure(0))}) {
        auto* refresh = window->findChild<QAbstractButton*>("cmdRefresh");
        auto* output = window->findChild<QAbstractButton*>("cmdExport");
        EXPECT_EQ(refresh->text(), u" 更新 .");
        EXPECT_EQ(refresh->toolTip(), u"更新数据(F5)");
        EXPECT_EQ(output->text(), u"导出 .");
        EXPECT_EQ(output->toolTip(), u"输出");
        delete window;
    }
}

// Each new sheet window opens a title bar's height below and right of the last,
// back at the corner when it would leave the area.
TEST_F(WaveWindowTest, NewSheetWindowsCascadeInsideTheArea)
{
    area.resize(1000, 700);
    QList<QMdiSubWindow*> children;
    for (int slot = 0; slot < 4; ++slot)
        children << qobject_cast<QMdiSubWindow*>(CreateWaveWindow(&area, slot)->parentWidget());
    const QRect inside = area.viewport()->rect();
    for (int k = 0; k < children.size(); ++k) {
        EXPECT_TRUE(inside.contains(children[k]->geometry())) << k;
        if (k > 0 && children[k]->pos() != QPoint(0, 0)) {
            const QPoint step = children[k]->pos() - children[k - 1]->pos();
            EXPECT_GT(step.x(), 0) << k;
            EXPECT_EQ(step.x(), step.y()) << k;
        }
    }
    EXPECT_EQ(children[0]->pos(), QPoint(0, 0));
    EXPECT_NE(children[1]->pos(), QPoint(0, 0));
}

} // namespace
