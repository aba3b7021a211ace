#include "panel/keysetwidgets.h"

#include "link/linkcommands.h"
#include "panel/knobwidgets.h"
#include "text/language.h"
#include "wave/wavecolors.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace {

struct GroupTitle {
    const char* name;
    const char16_t* english;
    const char16_t* chinese;
};

constexpr GroupTitle GroupTitles[] = {
    {"fraMenu", u"Menu", u"菜单"},
    {"fraRun", u"Run Control", u"运行控制"},
    {"fraVertical", u"Vertical", u"垂直系统"},
    {"fraHorizontal", u"Horizontal", u"水平系统"},
    {"fraTrigger", u"Trigger", u"触发系统"},
};

// The printed names of the keys (artwork: the same in both languages).
struct KeyLabel {
    const char* control;
    const char* label;
};

constexpr KeyLabel MenuKeys[] = {
    {"VK_Acquire", "Acquire"}, {"VK_Storage", "Storage"},
    {"VK_Measure", "Measure"}, {"VK_Cursor", "Cursor"},
    {"VK_Display", "Display"}, {"VK_Utility", "Utility"},
    {"VK_Ref", "Ref"},         {"VK_Math", "Math"},
    {"VK_HELP", "Help"},       {"VK_Q_MEASURE", "Q-Meas"},
    {"VK_Q_PRINT", "Print"},   {"VK_Menu_Off", "Menu Off"},
    {"VK_La", "LA"},
};
constexpr int MenuColumns = 4;

QString indexed(const char* stem, int index)
{
    return QString::fromLatin1(stem) + u'_' + QString::number(index);
}

void setKeyColour(QAbstractButton* button, const QColor& colour)
{
    button->setStyleSheet(QStringLiteral("QPushButton { background: %1; color: black; }").arg(colour.name()));
}

} // namespace

KeySetWidgets::KeySetWidgets(QWidget* host, KeySet set)
    : QObject(host), set_(set),
      repeat_([this](bool on) { on ? ButtonPressTimer->start() : ButtonPressTimer->stop(); })
{
    ButtonPressTimer = new QTimer(host);
    ButtonPressTimer->setObjectName("ButtonPressTimer");
    ButtonPressTimer->setInterval(ButtonPressInterval);
    connect(ButtonPressTimer, &QTimer::timeout, this, [this] { repeat_.tick(); });

    softKeys_ = new QWidget(host);
    softKeys_->setObjectName("SoftKeys");
    auto* soft = new QVBoxLayout(softKeys_);
    soft->setContentsMargins(0, 0, 0, 0);
    for (int n = 1; n <= 5; ++n) {
        QAbstractButton* key = keyButton("VK_F" + QString::number(n), "F" + QString::number(n), softKeys_);
        key->setMinimumHeight(34);
        soft->addWidget(key);
    }

    groups_ = new QWidget(host);
    groups_->setObjectName("KeyGroups");
    auto* rows = new QGridLayout(groups_);
    rows->setContentsMargins(0, 0, 0, 0);
    buildMenuGroup(groups_);
    buildRunGroup(groups_);
    buildVerticalGroup(groups_);
    buildHorizontalGroup(groups_);
    buildTriggerGroup(groups_);
    const auto find = [this](const char* name) { return groups_->findChild<QGroupBox*>(name); };
    rows->addWidget(find("fraMenu"), 0, 0);
    rows->addWidget(find("fraRun"), 0, 1, 1, 2);
    rows->addWidget(find("fraVertical"), 1, 0);
    rows->addWidget(find("fraHorizontal"), 1, 1);
    rows->addWidget(find("fraTrigger"), 1, 2);
    SetCaptions(Language);
}

QGroupBox* KeySetWidgets::group(const char* name, QWidget* parent)
{
    auto* box = new QGroupBox(parent);
    box->setObjectName(name);
    return box;
}

QAbstractButton* KeySetWidgets::keyButton(const QString& name, const QString& label, QWidget* parent)
{
    auto* button = new QPushButton(label, parent);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus);
    button->setMinimumWidth(58);
    wire(button);
    return button;
}

QWidget* KeySetWidgets::knob(const char* caption, const QString& dec, const QString& push, const QString& inc,
                             QWidget* parent)
{
    auto* widget = new KnobWidget(QString::fromLatin1(caption), dec, push, inc, parent);
    wire(widget->dec);
    wire(widget->push);
    wire(widget->inc);
    return widget;
}

void KeySetWidgets::buildMenuGroup(QWidget* parent)
{
    QGroupBox* box = group("fraMenu", parent);
    auto* grid = new QGridLayout(box);
    int i = 0;
    for (const KeyLabel& key : MenuKeys) {
        grid->addWidget(keyButton(key.control, key.label, box), i / MenuColumns, i % MenuColumns);
        ++i;
    }
    grid->addWidget(knob("FUNCTION", "VK_F_DEC", "VK_F_F", "VK_F_INC", box), 0, MenuColumns, 3, 1,
                    Qt::AlignCenter);
}

void KeySetWidgets::buildRunGroup(QWidget* parent)
{
    QGroupBox* box = group("fraRun", parent);
    auto* column = new QVBoxLayout(box);
    QAbstractButton* run = keyButton("VK_Run", "RUN/STOP", box);
    setKeyColour(run, QColor(230, 90, 80));
    column->addWidget(run);
    column->addWidget(keyButton("VK_SINGLE", "SINGLE", box));
    column->addWidget(keyButton("VK_Auto", "AUTO", box));
    column->addStretch();
}

void KeySetWidgets::buildVerticalGroup(QWidget* parent)
{
    QGroupBox* box = group("fraVertical", parent);
    auto* grid = new QGridLayout(box);
    for (int n = 0; n < 4; ++n) {
        grid->addWidget(knob("POSITION", indexed("VK_V_Pos_Dec", n), indexed("VK_P_V_P", n),
                             indexed("VK_V_Pos_Inc", n), box),
                        0, n, Qt::AlignCenter);
        QAbstractButton* channel =
            keyButton("VK_CH" + QString::number(n + 1), "CH" + QString::number(n + 1), box);
        setKeyColour(channel, ChannelColor(n + 1, true));
        grid->addWidget(channel, 1, n);
        grid->addWidget(
            knob("VOLTS/DIV", indexed("VK_V_Dec", n), indexed("VK_P_V", n), indexed("VK_V_Inc", n), box), 2,
            n, Qt::AlignCenter);
    }
    grid->addWidget(keyButton("VK_CH_Off", "OFF", box), 3, 0, 1, 4, Qt::AlignRight);
}

void KeySetWidgets::buildHorizontalGroup(QWidget* parent)
{
    QGroupBox* box = group("fraHorizontal", parent);
    auto* column = new QVBoxLayout(box);
    column->addWidget(knob("POSITION", "VK_H_Pos_Dec", "VK_P_H_P", "VK_H_Pos_Inc", box), 0, Qt::AlignCenter);
    column->addWidget(keyButton("VK_TimeMenu", "Menu", box));
    column->addWidget(knob("TIME/DIV", "VK_H_Dec", "VK_P_H", "VK_H_Inc", box), 0, Qt::AlignCenter);
    column->addStretch();
}

void KeySetWidgets::buildTriggerGroup(QWidget* parent)
{
    QGroupBox* box = group("fraTrigger", parent);
    auto* column = new QVBoxLayout(box);
    column->addWidget(knob("LEVEL", "VK_Trig_Lvl_Dec", "VK_P_L", "VK_Trig_Lvl_Inc", box), 0, Qt::AlignCenter);
    column->addWidget(keyButton("VK_Trig_Menu", "Menu", box));
    column->addWidget(keyButton("VK_TRIGMODE", "Mode", box));
    column->addWidget(keyButton("VK_Trig_50", "50%", box));
    column->addWidget(keyButton("VK_Trig_Force", "FORCE", box));
    column->addStretch();
}

void KeySetWidgets::wire(QAbstractButton* button)
{
    const std::optional<KeyRef> key = FindKeyControl(button->objectName());
    if (!key) return;
    const QString command = KeyCommandOf(*key, set_);
    if (command.isEmpty()) return;
    const auto send = [command] { WriteCmd(command); };
    switch (key->def->kind) {
    case KeyKind::Release: connect(button, &QAbstractButton::released, this, send); break;
    case KeyKind::Click: connect(button, &QAbstractButton::clicked, this, send); break;
    case KeyKind::Repeat:
        connect(button, &QAbstractButton::pressed, this, [this, command] { repeat_.press(command); });
        connect(button, &QAbstractButton::released, this, [this] { repeat_.release(); });
        if (RepeatKeyClicks(*key, set_)) connect(button, &QAbstractButton::clicked, this, send);
        break;
    case KeyKind::Inert: break;
    }
}

void KeySetWidgets::SetCaptions(int language)
{
    for (const GroupTitle& title : GroupTitles)
        if (auto* box = groups_->findChild<QGroupBox*>(title.name))
            box->setTitle(QString::fromUtf16(IsChinese(language) ? title.chinese : title.english));
}

void KeySetWidgets::ShowLaKey(bool shown)
{
    if (auto* key = groups_->findChild<QAbstractButton*>("VK_La")) key->setVisible(shown);
}

void KeySetWidgets::stop()
{
    ButtonPressTimer->stop();
}
