#include "controller/ctrlcommands.h"

#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "platform/platform.h"
#include "text/language.h"
#include "text/messages.h"

QString CtrlText(const char16_t* english, const char16_t* chinese)
{
    return QString::fromUtf16(Language == LanguageChinese ? chinese : english);
}

QString RuleMessage(int code)
{
    switch (code) {
    case 1: return CtrlText(u"Trigger can't be changed.", u"当前设置下不能修改触发系统.");
    case 2: return CtrlText(u"Horizontal can't be changed.", u"当前设置下不能修改水平系统.");
    case 3: return CtrlText(u"Low firmware,please update it.", u"示波器软件版本过低,请升级示波器固件.");
    default: return CtrlText(u"Can't be used.", u"使用受限.");
    }
}

bool CtrlChangesHandled(const std::function<void()>& save)
{
    if (!CtrlDirty) return true;
    const int answer = MsgBox(CtrlFileName + MsgSaveCtrl, vbYesNoCancel + vbQuestion);
    if (answer == vbYes) save();
    return answer != vbCancel;
}

void NewCtrlRecordInUse()
{
    ResetCtrlState();
}

namespace {

const QString ControlFilter = QStringLiteral("Control Files (*.rmt)");

QString dialogTitle(const char16_t* english, const char16_t* chinese)
{
    return CtrlText(english, chinese) + QLatin1Char(' ') + CtrlText(u"Control Files ", u"控制器文件 ");
}

} // namespace

QString AskOpenCtrlPath()
{
    return OpenFileDialog({dialogTitle(u"Open", u"打开"), ControlFilter, {}, {}});
}

QString SaveCtrlRecord(bool saveAs)
{
    QString path = saveAs ? QString() : CtrlFileName;
    if (path.isEmpty()) {
        const QString filter =
            saveAs ? ControlFilter + QStringLiteral(";;Text Files (*.txt);;All Files (*.*)") : ControlFilter;
        path = SaveFileDialog({saveAs ? CtrlText(u"Save As", u"另存为") : CtrlText(u"Save", u"保存"),
                               filter,
                               {},
                               CtrlFileName});
        if (path.isEmpty()) return {};
    }
    if (!WriteCtrlFile(path)) return {};
    CtrlFileName = path;
    CtrlDirty = false;
    return path;
}
