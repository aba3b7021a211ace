#include "text/messages.h"

#include "text/language.h"

QString MsgVersionTooLow;
QString MsgCurrentVersion;
QString MsgDeviceNotFound;
QString MsgConnectTitle;
QString MsgNoCode;
QString MsgNoSysInfo;
QString MsgConnectFirst;
QString MsgQueryOnly;
QString MsgNumberOnly;
QString MsgRootName;
QString MsgZoomFactor;
QString MsgSheetFormat;
QString MsgFileLimit;
QString MsgSheetFirst;
QString MsgFileFormat;
QString MsgCantConnect;
QString MsgInit;
QString MsgSend;
QString MsgRead;
QString MsgTimeout;
QString MsgCantRead;
QString MsgNumeric;
QString MsgFileFail;
QString MsgChannelData;
QString MsgFileError;
QString MsgWaveData;
QString MsgRs232Init;
QString MsgRs232Send;
QString MsgSaveSheet;
QString MsgSaveCtrl;
QString MsgContactMaker;
QString MsgContactTitle;

namespace {

const MessageEntry Catalogue[] = {
    {&MsgVersionTooLow, u"The version of the DSO must be higher than ", u"DSO 版本必须高于"},
    {&MsgCurrentVersion, u"Current Version is ", u"当前版本是"},
    {&MsgDeviceNotFound, u"Device not found!", u"设备未找到!"},
    {&MsgConnectTitle, u"Connect to Oscilloscope", u"连接示波器"},
    {&MsgNoCode, u"Add 'mnuViewRefresh_Click' code", u"添加'mnuViewRefresh_Click'代码！"},
    {&MsgNoSysInfo, u"System Information Is Unavailable At This Time!", u"该时刻系统信息不可得到！"},
    {&MsgConnectFirst, u"Please Connect Oscilloscope First!", u"请首先连接示波器！"},
    {&MsgQueryOnly, u"This Item Query Only!", u"该项仅可被查询！"},
    {&MsgNumberOnly, u"Enter number only!", u"只可输入数字！"},
    {&MsgRootName, u"Name of Root Can't Change!", u"根目录名称不可被修改！"},
    {&MsgZoomFactor, u"Invalid Zoom Factor!", u"无效缩放因子！"},
    {&MsgSheetFormat, u"Data Sheet File Format is Invaild !", u"数据文件格式无效！"},
    {&MsgFileLimit, u"Exceed maximum file numbers limit!", u"超过最大可创建文件数目上限！"},
    {&MsgSheetFirst, u"Please Open or Creat a Data Sheet First!", u"请首先打开或创建一个数据浏览器"},
    {&MsgFileFormat, u"File Format is Invaild !", u"文件格式无效！"},
    {&MsgCantConnect, u"Can't Connect to Device!", u"不能连接设备！"},
    {&MsgInit, u"Init", u"初始化"},
    {&MsgSend, u"Send Message", u"传送信息"},
    {&MsgRead, u"Read Message", u"读取信息"},
    {&MsgTimeout, u"Read device time out!", u"读数据超时！"},
    {&MsgCantRead, u"Can't Read data from Device!", u"不能读取设备数据！"},
    {&MsgNumeric, u"Invalid Numeric!", u"无效数值！"},
    {&MsgFileFail, u"File utility fail!", u"文件操作失败！"},
    {&MsgChannelData, u"The channel's data is invalid!", u"通道数据无效！"},
    {&MsgFileError, u"The file format is error!", u"文件格式错误！"},
    {&MsgWaveData, u"Invalid waveform data!", u"无效波形数据！"},
    {&MsgRs232Init, u"RS232 Init", u"RS232初始化"},
    {&MsgRs232Send, u"RS232 Send Message", u"RS232发送信息"},
    {&MsgSaveSheet, u"Save the changes to the Data Sheet File? ", u"是否保存对数据浏览器文件的更改？"},
    {&MsgSaveCtrl, u"Save the changes to the Control File? ", u"是否保存对控制器文件的更改？"},
    {&MsgContactMaker,
     u"For help or a firmware update, please contact Korva Technologies,Inc. through its web site.",
     u"如需帮助或升级固件，请通过Korva Technologies,Inc.的网站与厂家联系。"},
    {&MsgContactTitle, u"Contact the Maker", u"联系厂家"},
};

} // namespace

std::span<const MessageEntry> MessageCatalogue()
{
    return Catalogue;
}

void LoadMessages()
{
    for (const MessageEntry& entry : Catalogue)
        *entry.text = QString::fromUtf16(IsChinese(Language) ? entry.chinese : entry.english);
}

// Boxes shown before Main reads the language still have a text.
[[maybe_unused]] const bool englishAtStart = (LoadMessages(), true);
