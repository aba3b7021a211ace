#include "controller/frmCtrlDialog.h"

#include "controller/ctrlcommands.h"
#include "document/programiconwidgets.h"
#include "platform/platform.h"
#include "settings/softwaresettings.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/valuetext.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {
constexpr int ListWidthTwips = 1680;
constexpr int NumberWidthTwips = 3540;
// Unit keys: "m", "u", "n", "p", "mV" and the factor each applies.
constexpr const char* UnitCaptions[] = {"m", "u", "n", "p", "mV"};
constexpr double UnitFactors[] = {0.001, 1e-06, 1e-09, 1e-12, 0.001};
constexpr const char* KeyCaptions[] = {"0", "1", "2", "3", "4",   "5",    "6",
                                       "7", "8", "9", ".", "+/-", "Back", "Clear"};
} // namespace

CtrlDialog::CtrlDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName("CtrlDialog");
    SetWindowPicture(this, Picture::CtrlSetting);
    Frame = new QGroupBox(this);
    Frame->setObjectName("Frame");
    Combo = new QComboBox(Frame);
    Combo->setObjectName("Combo");
    Combo->installEventFilter(this);
    inputTxt = new QLineEdit(Frame);
    inputTxt->setObjectName("inputTxt");
    auto* frameLayout = new QVBoxLayout(Frame);
    frameLayout->addWidget(Combo);
    frameLayout->addWidget(inputTxt);

    Frame1 = new QGroupBox(this);
    Frame1->setObjectName("Frame1");
    auto* keys = new QGridLayout(Frame1);
    keys->setSpacing(3);
    for (int i = 0; i < 14; ++i) {
        cmdKey[size_t(i)] = new QPushButton(QString::fromLatin1(KeyCaptions[i]), Frame1);
        cmdKey[size_t(i)]->setObjectName(QStringLiteral("cmdKey_%1").arg(i));
        cmdKey[size_t(i)]->setFocusPolicy(Qt::NoFocus);
        // Digits 1 to 9 as on a keypad, then 0 . +/- and the two editing keys.
        const int row = i >= 1 && i <= 9 ? (9 - i) / 3 : 3 + (i >= 12);
        const int column = i >= 1 && i <= 9     ? (i - 1) % 3
                           : i == 0 || i == 12  ? 0
                           : i == 10 || i == 13 ? 1
                                                : 2;
        keys->addWidget(cmdKey[size_t(i)], row, column, 1, i == 13 ? 2 : 1);
        connect(cmdKey[size_t(i)], &QPushButton::clicked, this, [this, i] { cmdKey_Click(i); });
    }
    for (int i = 0; i < 5; ++i) {
        cmdEnter[size_t(i)] = new QPushButton(QString::fromLatin1(UnitCaptions[i]), this);
        cmdEnter[size_t(i)]->setObjectName(QStringLiteral("cmdEnter_%1").arg(i));
        cmdEnter[size_t(i)]->setFocusPolicy(Qt::NoFocus);
        connect(cmdEnter[size_t(i)], &QPushButton::clicked, this, [this, i] { cmdEnter_Click(i); });
    }
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    connect(cmdOK, &QPushButton::clicked, this, &CtrlDialog::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* units = new QVBoxLayout;
    for (QPushButton* unit : cmdEnter)
        units->addWidget(unit);
    auto* body = new QHBoxLayout;
    body->addWidget(Frame1);
    body->addLayout(units);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Frame);
    layout->addLayout(body);
    layout->addLayout(buttons);
    SetCaptions(Language);
    setNumberShape(false);
}

void CtrlDialog::SetCaptions(int language)
{
    const bool chinese = language == LanguageChinese;
    cmdOK->setText(chinese ? QStringLiteral("确定") : QStringLiteral("OK"));
    cmdCancel->setText(chinese ? QStringLiteral("取消") : QStringLiteral("Cancel"));
}

void CtrlDialog::setNumberShape(bool number)
{
    Combo->setVisible(!number);
    Combo->setEnabled(!number);
    inputTxt->setVisible(number);
    Frame1->setVisible(number);
    for (QPushButton* unit : cmdEnter)
        unit->setVisible(number);
    const int width = (number ? NumberWidthTwips : ListWidthTwips) / TwipsPerPixel;
    setFixedWidth(std::max(width, minimumSizeHint().width()));
    adjustSize();
}

void CtrlDialog::Load(const EditTarget& target, const EditPlan& plan)
{
    target_ = target;
    setWindowTitle(plan.caption);
    Frame->setTitle(plan.caption);
    Combo->clear();
    Combo->setEditable(plan.editable);
    Combo->addItems(plan.items);
    const bool number = plan.shape == EditShape::Number;
    if (number) {
        inputTxt->setText(plan.value);
    } else {
        const int index = Combo->findText(plan.value);
        if (index >= 0) Combo->setCurrentIndex(index);
        if (plan.editable) Combo->setEditText(plan.value.isEmpty() ? QStringLiteral("CH1CH2") : plan.value);
    }
    setNumberShape(number);
}

void CtrlDialog::cmdOK_Click()
{
    // The list shape leaves only the Combo enabled.
    const QString value = Combo->isEnabled() ? Combo->currentText() : inputTxt->text();
    const EditResult result = ApplyEdit(target_, value);
    if (result.outcome == EditOutcome::Stays) return;
    result_ = result;
    stored_ = result.outcome == EditOutcome::Stored;
    accept();
}

void CtrlDialog::cmdKey_Click(int index)
{
    if (index < 0 || index > 13) return;
    inputTxt->setFocus();
    QString text = inputTxt->text();
    int caret = inputTxt->cursorPosition();
    if (index <= 10) {
        text.insert(caret++, index == 10 ? QLatin1Char('.') : QChar(u'0' + index));
    } else if (index == 11) {
        const bool negative = text.startsWith(QLatin1Char('-'));
        text = negative ? text.mid(1) : QLatin1Char('-') + text;
        caret = std::max(0, caret + (negative ? -1 : 1));
    } else if (index == 12) {
        if (caret > 0) text.remove(--caret, 1);
    } else {
        text.clear();
        caret = 0;
    }
    inputTxt->setText(text);
    inputTxt->setCursorPosition(caret);
}

void CtrlDialog::cmdEnter_Click(int index)
{
    if (index < 0 || index > 4) return;
    if (!IsNumberText(inputTxt->text())) {
        MsgBox(MsgNumberOnly, vbExclamation);
        return;
    }
    inputTxt->setText(GeneralFormat(Val(inputTxt->text()) * UnitFactors[index]));
    cmdOK_Click();
}

bool CtrlDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Combo && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            cmdOK_Click();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
