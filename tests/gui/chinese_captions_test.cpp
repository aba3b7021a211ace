// In Chinese no window or dialog shows an English caption that has a Chinese
// counterpart: each one's caption routine covers all its controls.
#include "frmwave_fixture.h"

#include "acquire/frmPrgress.h"
#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "analysis/frmPassFailed.h"
#include "controller/frmCtrlList.h"
#include "controller/frmPatternDlg.h"
#include "frame/frmAbout.h"
#include "frame/frmOptions.h"
#include "link/frmDlgResource.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmNewDoc.h"
#include "text/captions.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/frmWaveSetting.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QSet>
#include <QTabWidget>
#include <QTreeWidget>
#include <functional>

namespace {

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

struct WindowCase {
    const char* name;
    std::function<QWidget*(QMdiArea&)> make;
};

class ChineseCaptions : public WaveWindowTest, public ::testing::WithParamInterface<WindowCase> {};

TEST_P(ChineseCaptions, NoEnglishCaptionIsLeft)
{
    Language = LanguageChinese;
    LoadMessages();
    QWidget* window = GetParam().make(area);
    ASSERT_NE(window, nullptr);
    const QSet<QString> english = englishOnlyCaptions();
    for (const QString& text : captionsOf(window))
        EXPECT_FALSE(english.contains(text.trimmed())) << '"' << text.toStdString() << '"';
    delete window;
}

template <typename T> std::function<QWidget*(QMdiArea&)> plain()
{
    return [](QMdiArea&) -> QWidget* { return new T; };
}

INSTANTIATE_TEST_SUITE_P(
    Windows, ChineseCaptions,
    ::testing::Values(
        WindowCase{"Wave", [](QMdiArea&) -> QWidget* { return new frmWave(0); }},
        WindowCase{"WaveSetting", [](QMdiArea& area) -> QWidget* { return new frmWaveSetting(&area); }},
        WindowCase{"Data", [](QMdiArea&) -> QWidget* { return new frmData(0); }},
        WindowCase{"Measure", [](QMdiArea&) -> QWidget* { return new frmMeasure(0); }},
        WindowCase{"PassFailed", [](QMdiArea&) -> QWidget* { return new frmPassFailed(0, "Measure0"); }},
        WindowCase{"CtrlList", plain<frmCtrlList>()}, WindowCase{"Options", plain<frmOptions>()},
        WindowCase{"DlgResource", plain<frmDlgResource>()},
        WindowCase{"DataSheetTree", plain<frmDataSheetTree>()}, WindowCase{"NewDoc", plain<frmNewDoc>()},
        WindowCase{"OpenDoc", plain<frmOpenDoc>()}, WindowCase{"About", plain<frmAbout>()},
        WindowCase{"Pattern", plain<PatternDlg>()},
        WindowCase{"Progress", [](QMdiArea&) -> QWidget* { return new frmPrgress({OperationUpload}); }}),
    [](const auto& info) { return std::string(info.param.name); });

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

} // namespace
