#include "panel/keytable.h"

#include "link/vocabulary.h"

namespace {

namespace K = Vocab::Key;
using Text = QLatin1StringView;

constexpr Text Nothing[] = {Text{}};
constexpr Text ForceTrig[] = {Vocab::Whole::ForceTrig};
constexpr Text TrigTo50[] = {Vocab::Whole::TrigTo50};

constexpr const Text* one(const Text& piece)
{
    return &piece;
}

// clang-format off
constexpr KeyDef Table[] = {
    {"VK_Acquire", KeyKind::Release, one(K::Acquire), 1},
    {"VK_Auto", KeyKind::Release, one(K::Auto), 1},
    {"VK_CH1", KeyKind::Release, one(K::Ch[0]), 1},
    {"VK_CH2", KeyKind::Release, one(K::Ch[1]), 1},
    {"VK_CH3", KeyKind::Release, one(K::Ch[2]), 1},
    {"VK_CH4", KeyKind::Release, one(K::Ch[3]), 1},
    {"VK_CH_Off", KeyKind::Release, Nothing, 1, KeyForm::PanelBareKey},
    {"VK_Cursor", KeyKind::Release, one(K::Cursor), 1},
    {"VK_Display", KeyKind::Release, one(K::Display), 1},
    {"VK_F1", KeyKind::Release, one(K::F[0]), 1},
    {"VK_F2", KeyKind::Release, one(K::F[1]), 1},
    {"VK_F3", KeyKind::Release, one(K::F[2]), 1},
    {"VK_F4", KeyKind::Release, one(K::F[3]), 1},
    {"VK_F5", KeyKind::Release, one(K::F[4]), 1},
    {"VK_F_DEC", KeyKind::Repeat, one(K::FuncDec), 1},
    {"VK_F_INC", KeyKind::Repeat, one(K::FuncInc), 1},
    {"VK_F_F", KeyKind::Click, one(K::FuncZ), 1},
    {"VK_H_Dec", KeyKind::Click, one(K::TimeDec), 1},
    {"VK_H_Inc", KeyKind::Click, one(K::TimeInc), 1},
    {"VK_H_Pos_Dec", KeyKind::Repeat, one(K::TimePosDec), 1},
    {"VK_H_Pos_Inc", KeyKind::Repeat, one(K::TimePosInc), 1},
    {"VK_HELP", KeyKind::Release, one(K::Help), 1},
    {"VK_La", KeyKind::Inert, Nothing, 1, KeyForm::None},
    {"VK_Math", KeyKind::Release, one(K::Math), 1},
    {"VK_Measure", KeyKind::Release, one(K::Measure), 1},
    {"VK_Menu_Off", KeyKind::Release, one(K::MenuOff), 1},
    {"VK_P_H", KeyKind::Click, one(K::TimeZ), 1},
    {"VK_P_H_P", KeyKind::Click, one(K::TimePosZ), 1},
    {"VK_P_L", KeyKind::Click, one(K::TrigLevelZ), 1},
    {"VK_P_V", KeyKind::Click, K::ChVoltZ, 4},
    {"VK_P_V_P", KeyKind::Click, K::ChPosZ, 4},
    {"VK_Q_MEASURE", KeyKind::Release, one(K::QuickMeasure), 1},
    {"VK_Q_PRINT", KeyKind::Release, one(K::QuickPrint), 1},
    {"VK_Ref", KeyKind::Release, one(K::Ref), 1},
    {"VK_Run", KeyKind::Release, one(K::Run), 1},
    {"VK_SINGLE", KeyKind::Release, one(K::Single), 1},
    {"VK_Storage", KeyKind::Release, one(K::Storage), 1},
    {"VK_TimeMenu", KeyKind::Release, one(K::MenuTime), 1},
    {"VK_TRIGMODE", KeyKind::Release, one(K::TrigMode), 1},
    {"VK_Trig_50", KeyKind::Release, TrigTo50, 1},
    {"VK_Trig_Force", KeyKind::Release, ForceTrig, 1, KeyForm::Whole},
    {"VK_Trig_Lvl_Dec", KeyKind::Repeat, one(K::TrigLevelDec), 1},
    {"VK_Trig_Lvl_Inc", KeyKind::Repeat, one(K::TrigLevelInc), 1},
    {"VK_Trig_Menu", KeyKind::Release, one(K::TrigMenu), 1},
    {"VK_Utility", KeyKind::Release, one(K::Utility), 1},
    {"VK_V_Dec", KeyKind::Click, K::ChVoltDec, 4},
    {"VK_V_Inc", KeyKind::Click, K::ChVoltInc, 4},
    {"VK_V_Pos_Dec", KeyKind::Repeat, K::ChPosDec, 4},
    {"VK_V_Pos_Inc", KeyKind::Repeat, K::ChPosInc, 4},
};
// clang-format on

} // namespace

std::span<const KeyDef> KeyTable()
{
    return Table;
}

QString KeyControlName(const KeyRef& key)
{
    const QString stem = QLatin1StringView(key.def->control);
    return key.def->indexCount > 1 ? stem + u'_' + QString::number(key.index) : stem;
}

QStringList KeyControlNames()
{
    QStringList names;
    for (const KeyDef& def : Table)
        for (int index = 0; index < def.indexCount; ++index)
            names.append(KeyControlName({&def, index}));
    return names;
}

std::optional<KeyRef> FindKeyControl(QStringView name)
{
    for (const KeyDef& def : Table)
        for (int index = 0; index < def.indexCount; ++index)
            if (KeyControlName({&def, index}) == name) return KeyRef{&def, index};
    return std::nullopt;
}

QString KeyCommandOf(const KeyRef& key, KeySet set)
{
    const QLatin1StringView piece = key.def->pieces[key.index];
    switch (key.def->form) {
    case KeyForm::Key: return Vocab::KeyCommand(piece);
    case KeyForm::Whole: return piece;
    case KeyForm::PanelBareKey: return set == KeySet::Panel ? QString(Vocab::Piece::Key) : QString();
    case KeyForm::None: break;
    }
    return {};
}

bool RepeatKeyClicks(const KeyRef& key, KeySet set)
{
    if (key.def->kind != KeyKind::Repeat) return false;
    if (set == KeySet::Keyboard) return true;
    const QLatin1StringView name(key.def->control);
    return name != QLatin1StringView("VK_F_DEC") && name != QLatin1StringView("VK_F_INC");
}
