#include "controller/frmPatternDlg.h"

#include "controller/ctrlcommands.h"
#include "controller/ctrlstate.h"
#include "document/programiconwidgets.h"
#include "link/linkcommands.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
// Control array names by code number.
const char* const ArrayNames[] = {"N", "High", "Low", "Option1", "Down"};
} // namespace

PatternDlg::PatternDlg(QWidget* parent) : QDialog(parent)
{
    setObjectName("PatternDlg");
    SetWindowPicture(this, Picture::CtrlSetting);
    setWindowTitle(CtrlText(u"Code ", u"码型"));
    auto* inputs = new QHBoxLayout;
    for (int input = 0; input < 5; ++input) {
        auto* frame =
            new QGroupBox(input < 4 ? QStringLiteral("CH%1").arg(input + 1) : QStringLiteral("EXT"), this);
        auto* column = new QVBoxLayout(frame);
        auto* group = new QButtonGroup(frame);
        for (int code = 0; code < 5; ++code) {
            auto* radio = new QRadioButton(GetCodeString(code), frame);
            radio->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(ArrayNames[code])).arg(input));
            group->addButton(radio);
            column->addWidget(radio);
            radios[size_t(code)][size_t(input)] = radio;
            if (code == CodeUp || code == CodeDown)
                connect(radio, &QRadioButton::clicked, this, [this, input] { edgeChosen(input); });
        }
        if (input == 4) {
            auto* extGroup = new QButtonGroup(frame);
            optExt = new QRadioButton(QStringLiteral("EXT"), frame);
            optExt->setObjectName("optExt");
            optExt5 = new QRadioButton(QStringLiteral("EXT/5"), frame);
            optExt5->setObjectName("optExt5");
            extGroup->addButton(optExt);
            extGroup->addButton(optExt5);
            column->addWidget(optExt);
            column->addWidget(optExt5);
        }
        inputs->addWidget(frame);
    }
    auto* ok = new QPushButton(CtrlText(u"OK", u"确定"), this);
    ok->setObjectName("cmdOK");
    auto* cancel = new QPushButton(CtrlText(u"Cancel", u"取消"), this);
    cancel->setObjectName("cmdCancel");
    connect(ok, &QPushButton::clicked, this, &PatternDlg::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(inputs);
    layout->addLayout(buttons);
    PresetPattern({}, false);
}

void PatternDlg::PresetPattern(const PatternCodes& codes, bool isDiv5)
{
    for (int input = 0; input < 5; ++input) {
        const int code =
            codes[size_t(input)] >= CodeX && codes[size_t(input)] <= CodeDown ? codes[size_t(input)] : 0;
        radios[size_t(code)][size_t(input)]->setChecked(true);
    }
    (isDiv5 ? optExt5 : optExt)->setChecked(true);
}

void PatternDlg::GetPattern(PatternCodes& codes, bool& isDiv5) const
{
    for (int input = 0; input < 5; ++input)
        for (int code = 0; code < 5; ++code)
            if (radios[size_t(code)][size_t(input)]->isChecked()) codes[size_t(input)] = int16_t(code);
    isDiv5 = optExt5->isChecked();
}

// Only one input may hold an edge.
void PatternDlg::edgeChosen(int input)
{
    for (int other = 0; other < 5; ++other) {
        if (other == input) continue;
        if (radios[CodeUp][size_t(other)]->isChecked() || radios[CodeDown][size_t(other)]->isChecked())
            radios[CodeX][size_t(other)]->setChecked(true);
    }
}

void PatternDlg::cmdOK_Click()
{
    PatternCodes codes{};
    bool isDiv5 = false;
    GetPattern(codes, isDiv5);
    std::copy(codes.begin(), codes.end(), std::begin(CtrlData.PatternEdge));
    CtrlData.PatternExtIsDiv5 = isDiv5;
    WriteCmd(QStringLiteral(":TRIG:PATT:PATT ") + BuildPatternString());
    Q_EMIT codeChanged(BuildPatternDispString());
    accept();
}
