#include "text/captiontexts.h"

#include <utility>

// The lists keep every caption exactly as the program shows it: leading and
// trailing blanks, "&&" for a plain ampersand, and the old misspellings.

namespace {

// clang-format off
// frmMain: menus
constexpr const char16_t* MainMenusEn[] = {
    u"File", u"New", u"Open...", u"Save Data Sheet", u"Save Controller", u"Save All", u"Page Setup...",
    u"Recent Control File", u"Recent Data Sheet File", u"Exit", u"View", u"Toolbar", u"Status Bar",
    u"Show Controller", u"Show Data Browser", u"Tools", u"Connect to Oscilloscope", u"Disconnect",
    u"Options...", u"Window", u"Cascade", u"Tile Horizontal", u"Tile Vertical", u"Arrange Icons", u"Help",
    u"Contents", u"About...", u"Language",
};
constexpr const char16_t* MainMenusZh[] = {
    u"文件", u"新建", u"打开...", u"保存数据文件", u"保存控制器文件", u"保存全部", u"打印设置...",
    u"最近控制文件", u"最近数据文件", u"退出", u"视图", u"工具栏", u"状态栏", u"显示控制器", u"显示浏览器",
    u"工具", u"连接示波器", u"断开连接", u"选项...", u"窗口", u"叠放", u"水平排列", u"垂直排列", u"排列图标",
    u"帮助", u"内容", u"关于...", u"语言",
};

// frmMain: toolbar tooltips and the two lamps
constexpr const char16_t* MainToolbarEn[] = {
    u"New", u"Open", u"Save All", u"Connect to Oscilloscope", u"Disconnect", u"DSO Controller",
    u"Data Browser ", u"Add New Waveform ", u"Add New Measure ", u"Add New Data ", u"Add New Record ",
    u"Add New Memory Waveform ", u"Options", u"Connection Status-[Disconnected]",
    u"Connection Status-[Connected]",
};
constexpr const char16_t* MainToolbarZh[] = {
    u"新建", u"打开", u"保存全部", u"连接示波器", u"断开连接", u"DSO控制器", u"数据浏览器", u"添加波形窗口",
    u"添加测量窗口", u"添加数据窗口", u"添加录制文件回放窗口", u"添加波形文件读取窗口", u"选项",
    u"连接状态-[未连接]", u"连接状态-[已连接]",
};

// Pop-up menus of the data sheet pane, then of the controller pane
constexpr const char16_t* PanePopupsEn[] = {
    u"&New Data Sheet", u"&Open Data Sheet", u"&Save Data Sheet", u"Sa&ve Data Sheet As", u"&Add New",
    u"So&rted", u"&Waveform", u"&Measure", u"&Data", u"&Record", u"M&emory waveform", u"&New Control File",
    u"&Open Control File", u"&Save Control File", u"Save Control File &As", u"&Connect To DSO",
    u"D&isconnect", u"&Upload", u"&Download", u"&Expand All",
};
constexpr const char16_t* PanePopupsZh[] = {
    u"新建数据浏览器", u"打开数据浏览器", u"保存数据浏览器", u"另存数据浏览器为", u"添加新建", u"排序",
    u"波形窗口", u"测量窗口", u"数据窗口", u"波形录制回放窗口", u"波形文件读取窗口", u"新建控制文件",
    u"打开控制文件", u"保存控制文件", u"另存控制文件为", u"连接示波器", u"断开连接", u"上传", u"下载",
    u"展开全部节点",
};

// Default names of the data sheet
constexpr const char16_t* SheetNamesEn[] = {
    u"Data Sheet", u"Untitle",
};
constexpr const char16_t* SheetNamesZh[] = {
    u"数据浏览器", u"未标题",
};

// frmCtrlList
constexpr const char16_t* CtrlListEn[] = {
    u"DSO Controller", u"     Upload", u"     Download", u"Upload To Scope", u"Download To Software",
};
constexpr const char16_t* CtrlListZh[] = {
    u"DSO控制器", u"      上传 .", u"      下载 .", u"上传到仪器", u"下载到软件",
};

// New document dialog
constexpr const char16_t* NewDocumentEn[] = {
    u"New Document", u"File Type", u"Data Sheet", u"Controller", u"Wave", u"Measure", u"Wave Data",
    u"Record", u"Memory Wave", u"OK", u"Cancel",
};
constexpr const char16_t* NewDocumentZh[] = {
    u"新建文档", u"文件类型", u"数据浏览器", u"控制器", u"波形窗口", u"测量窗口", u"数据窗口", u"录制窗口",
    u"波形文件窗口", u"确定", u"取消",
};

// Open document dialog
constexpr const char16_t* OpenDocumentEn[] = {
    u"New Document", u"File Type", u"Data Sheet", u"Controller", u"OK", u"Cancel",
};
constexpr const char16_t* OpenDocumentZh[] = {
    u"打开文档", u"文件类型", u"数据浏览器", u"控制器", u"确定", u"取消",
};

// frmOptions
constexpr const char16_t* OptionsEn[] = {
    u"Options", u"General", u"Refresh", u"OK", u"Cancel", u"IO Selection", u"Startup Option",
    u"Startup Hardware Check", u"Recent Data Sheet File Load", u"Recent Control File Load", u"Time Setting",
    u"Single", u"Auto", u"Interval", u"RS232 Setting", u"RS232 Port", u"Baud Rate", u"Device",
};
constexpr const char16_t* OptionsZh[] = {
    u"选项", u"常规", u"更新", u"确定", u"取消", u"IO选择", u"启动选项", u"设置硬件检查",
    u"最近的数据表装载", u"最近的控制文件装载", u"时间设置", u"单次", u"自动", u"时间间隔", u"RS232 设置",
    u"RS232 端口", u"波特率", u"设备号",
};

// frmV_Panel
constexpr const char16_t* VirtualPanelEn[] = {
    u"Virtual Panel", u"Control", u"Run", u"Stop", u"Output", u"Export  ", u"Print    ", u"      Preview",
    u"Export", u"Print", u"Print Preview",
};
constexpr const char16_t* VirtualPanelZh[] = {
    u"虚拟面板", u"控制", u"运行  ", u"停止  ", u"输出", u"导出     ", u"  打印    ", u"      预览  ",
    u"运行", u"停止", u"导出", u"打印", u"预览",
};

// frmV_Key
constexpr const char16_t* VirtualKeyboardEn[] = {
    u"Virtual Keyboard",
};
constexpr const char16_t* VirtualKeyboardZh[] = {
    u"虚拟键盘",
};

// Fine-adjust dialog
constexpr const char16_t* FineAdjustEn[] = {
    u"Coarse", u"Fine", u"OK", u"Cancel",
};
constexpr const char16_t* FineAdjustZh[] = {
    u"粗调", u"微调", u"确定", u"取消",
};

// frmPassFailed
constexpr const char16_t* PassFailedEn[] = {
    u"Pass", u"Fail Settings", u"Select Measure Type", u"Enabled", u"Pass Range Settings",
    u"Under Limit Setting", u"Over Limit Setting", u"OK", u"Cancel",
};
constexpr const char16_t* PassFailedZh[] = {
    u"通过", u"失败设置", u"选择测量参数", u"使能", u"通过参数范围设置", u"下限设置", u"上限设置", u"确定",
    u"取消",
};

// frmWave
constexpr const char16_t* WaveEn[] = {
    u"     Refresh", u"Refresh", u"Display", u"Zoom", u"Best Fit", u"Color", u"B&&W", u"Grid", u"Cursor",
    u"CursorX", u"CursorY", u"Output", u"Export", u"Print", u"     Preview", u"Refresh Data(F5)",
    u"Print Preview", u"Refreshing",
};
constexpr const char16_t* WaveZh[] = {
    u"  更新 .", u"更新", u"显示", u"缩放", u"适合", u"彩色", u"黑白", u"网格", u"光标", u"光标X", u"光标Y",
    u"输出", u"导出 .", u"打印 .", u"         预览 .", u"更新数据(F5)", u"打印", u"打印预览",
};

// frmOpenWaveform, memory wave window: frmWave's lists and one more Chinese caption
constexpr const char16_t* MemoryWaveZhExtra[] = {
    u"     更新",
};

// frmData
constexpr const char16_t* DataEn[] = {
    u" Refresh", u"Export", u"NO.", u"Time[S]", u"Voltage[V]", u"Voltage2[V]", u"Refresh Data(F5)",
    u"Output",
};
constexpr const char16_t* DataZh[] = {
    u" 更新 .", u"导出 .", u"序号", u"时间[S]", u"电压[V]", u"电压2[V]", u"更新数据(F5)", u"输出",
};

// frmMeasure
constexpr const char16_t* MeasureEn[] = {
    u" Refresh", u"Export", u"Pass", u"Fail  ", u"Type", u"Value", u"Under Limit", u"Over Limit",
    u"Pass&Fail", u"Refresh Data(F5)", u"Output",
};
constexpr const char16_t* MeasureZh[] = {
    u" 更新 .", u"导出 .", u"通过", u"失败 .  ", u"类型", u"值", u"下限", u"上限", u"通过&失败",
    u"更新数据(F5)", u"输出",
};

// frmRecordPlay
constexpr const char16_t* RecordPlayEn[] = {
    u"Open record file", u"Color", u"Mono Color", u"Save to bitmap file", u"Print", u"Print Preview",
    u"Replay", u"Pause", u"Stop", u"Go to start", u"Go to end", u"The last frame", u"Then next frame",
    u"Circulation and single replay", u"Default Time Interval Setting",
    u"Please open the waveform record file.", u"Replaying", u"/",
};
constexpr const char16_t* RecordPlayZh[] = {
    u"正在回放", u"暂停", u"停止", u"打开波形录制文件", u"彩色显示", u"单色显示", u"保存为位图文件", u"打印",
    u"打印预览", u"开始回放", u"指向第一帧", u"指向最后一帧", u"前一帧", u"后一帧", u"循环或单次回放",
    u"设置缺省时间间隔",
};

// frmRecordPlay, second form
constexpr const char16_t* RecordPlaySecondEn[] = {
    u"Open record file", u"Color", u"Mono Color", u"Save to bitmap file", u"Print", u"Print Preview",
    u"Replay", u"Pause", u"Stop", u"Go to start", u"Go to end", u"The last frame", u"Then next frame",
    u"Circulation and single replay", u"Default Time Interval Setting",
};
constexpr const char16_t* RecordPlaySecondZh[] = {
    u"打开波形录制文件", u"彩色显示", u"单色显示", u"保存为位图文件", u"打印", u"打印预览", u"开始回放",
    u"暂停", u"停止", u"指向第一帧", u"指向最后一帧", u"前一帧", u"后一帧", u"循环或单次回放",
    u"设置缺省时间间隔",
};

// frmOpenWaveform, file menu
constexpr const char16_t* MemoryWaveFileMenuEn[] = {
    u"Open", u" File", u"Display", u"Zoom", u"Color", u"B&&W", u"Grid", u"Cursor", u"CursorX", u"CursorY",
    u"Output", u"       Bitmap", u"       Print", u"     Preview", u"Reset", u"Time/Div",
    u"Open waveform File", u"Output CSV", u"Output Bitmap", u"Print", u"Print Preview",
};
constexpr const char16_t* MemoryWaveFileMenuZh[] = {
    u"打开", u"文件 .", u"显示", u"缩放", u"彩色", u"黑白", u"网格", u"光标", u"光标X", u"光标Y", u"输出",
    u"       位图 .", u"       打印 .", u"  预览 .", u"复位", u"时基", u"打开波形文件", u"输出CSV文件",
    u"输出位图文件", u"打印", u"打印预览",
};

// Measure names
constexpr const char16_t* MeasureNamesEn[] = {
    u"Vpp", u"Vmax", u"Vmin", u"Vavg", u"Vamp", u"Vrms", u"Vtop", u"Vbase", u"Vpre", u"Vover", u"Frequency",
    u"Period", u"Rise Time", u"Fall Time", u"Pulse Width+", u"Pulse Width-", u"Duty+", u"Duty-",
};
constexpr const char16_t* MeasureNamesZh[] = {
    u"峰峰值", u"最大值", u"最小值", u"平均值", u"幅度", u"均方根值", u"顶端值", u"底端值", u"预冲", u"过冲",
    u"频率", u"周期", u"上升时间", u"下降时间", u"正脉宽", u"负脉宽", u"正占空比", u"负占空比",
};

// Value words of the control tree
constexpr const char16_t* ValueWordsEn[] = {
    u"RUN", u"ON", u"AC", u"DC", u"USER", u"EDGE", u"PULSE", u"SLOPE", u"VIDEO", u"RISING", u"FALLING",
    u"AUTO", u"NORMAL", u"LF", u"+Less Than", u"-Less Than", u"+Greater Than", u"-Greater Than", u"+Equal",
    u"POSITIVE", u"ALLlines", u"LINE", u"ODDfield", u"ALTERNATIVE", u"PATTERN", u"DURATION", u"Less Than",
    u"Greater Than", u"REAL_TIME", u"PEAKDETECT", u"VECTORS", u"FULL", u"HALF",
};
constexpr const char16_t* ValueWordsZh[] = {
    u"运行", u"打开", u"交流", u"直流", u"用户定义", u"边沿触发", u"脉宽触发", u"斜率触发", u"视频触发",
    u"市电", u"上升沿", u"下降沿", u"自动", u"普通", u"低频抑制", u"正脉宽小于", u"负脉宽小于",
    u"正脉宽大于", u"负脉宽大于", u"正脉宽等于", u"上升沿小于", u"下降沿小于", u"上升沿大于", u"下降沿大于",
    u"上升沿等于", u"正极性", u"所有行", u"指定行", u"奇数场", u"交替触发", u"码型触发", u"持续时间触发",
    u"小于", u"大于", u"实时采样", u"峰值检测", u"矢量", u"全屏", u"半屏",
};

// Value words of the control tree, second list
constexpr const char16_t* ValueWordsSecondEn[] = {
    u"RUN", u"STOP", u"ON", u"OFF", u"USER", u"EDGE", u"PULSE", u"VIDEO", u"SLOPE", u"ALTERNATIVE",
    u"PATTERN", u"DURATION", u"AC", u"DC", u"LF", u"HF", u"GND", u"AUTO", u"NORMAL", u"SINGLE", u"RISING",
    u"FALLING", u"ALTERNATION", u"+Less Than", u"-Less Than", u"+Greater Than", u"-Greater Than", u"+Equal",
    u"-Equal", u"POSITIVE", u"NEGATIVE", u"ALLlines", u"LINE", u"ODDfield", u"EVENfield", u"Channel",
    u"Less Than", u"Greater Than", u"Equal", u"ChannelA", u"ChannelB", u"WindowA", u"WindowB", u"CH1CH2",
    u"CH1CH3", u"CH1CH4", u"CH2CH3", u"CH2CH4", u"CH3CH4", u"Alt Channel", u"Code", u"REAL_TIME",
    u"EQUAL_TIME", u"PEAKDETECT", u"AVERAGE", u"VECTORS", u"DOTS", u"FULL", u"HALF", u"NONE",
};
constexpr const char16_t* ValueWordsSecondZh[] = {
    u"运行", u"停止", u"打开", u"关闭", u"用户定义", u"边沿触发", u"脉宽触发", u"视频触发", u"斜率触发",
    u"交替触发", u"码型触发", u"持续时间触发", u"市电", u"交流", u"直流", u"低频抑制", u"高频抑制", u"接地",
    u"自动", u"普通", u"单次", u"上升沿", u"下降沿", u"上升&下降沿", u"通道A", u"通道B", u"窗口A", u"窗口B",
    u"交替通道", u"码型", u"正脉宽小于", u"负脉宽小于", u"正脉宽大于", u"负脉宽大于", u"正脉宽等于",
    u"负脉宽等于", u"正极性", u"负极性", u"所有行", u"指定行", u"奇数场", u"偶数场", u"上升沿小于",
    u"下降沿小于", u"上升沿大于", u"下降沿大于", u"上升沿等于", u"下降沿等于", u"通道设置", u"小于", u"大于",
    u"等于", u"实时采样", u"等效采样", u"峰值检测", u"平均", u"矢量", u"点", u"完全", u"半网格", u"无",
};

// Node names of the control tree
constexpr const char16_t* NodeNamesEn[] = {
    u"CH1", u"CH2", u"CH3", u"CH4", u"LA", u"H", u"L", u"X", u"D15", u"D14", u"D13", u"D12", u"D11", u"D10",
    u"D9", u"D8", u"D7", u"D6", u"D5", u"D4", u"D3", u"D2", u"D1", u"D0", u"D15-D8", u"D7-D0", u"D15-D0",
    u"Running Control", u"Run|Stop", u"Auto Set", u"Set Trig to 50%", u"Force Trigger", u"Single Trigger",
    u"Default", u"Display", u"Volt/Div", u"Offset", u"Coupling", u"BW Limit", u"Probe", u"Invert",
    u"Position", u"Reset", u"Threshold", u"Time Base", u"Time/Div", u"Delay", u"Holdoff", u"Memory Size",
    u"Format", u"Trigger", u"Method", u"Source", u"Slope", u"Mode", u"Polarity", u"Sync", u"Line number",
    u"Video Standard", u"Pulse mode", u"Pulse width", u"Slope mode", u"Slope time", u"Slope Window",
    u"Trig type", u"Code", u"Rising", u"Falling", u"Qualifier", u"Duration time", u"Level", u"LevelA",
    u"LevelB", u"Sensitivity", u"Acquire", u"Sampling Mode", u"Persistence", u"Acquisition", u"Averages",
    u"Intensity", u"Anti-aliasing", u"Type", u"Persist", u"Grid", u"Clear", u"Virtual Keyboard",
    u"Virtual Panel", u"Untitle", u"Data Sheet",
};
constexpr const char16_t* NodeNamesZh[] = {
    u"运行控制", u"运行|停止", u"自动设置", u"触发电平至50%", u"强制触发", u"单次触发", u"默认设置", u"显示",
    u"档位", u"偏移", u"耦合", u"带宽限制", u"探头", u"反相", u"位置", u"复位", u"门限类型", u"水平系统",
    u"时基", u"位移", u"触发释抑", u"内存大小", u"模式", u"触发系统", u"触发模式", u"信源选择", u"边沿类型",
    u"触发方式", u"视频极性", u"同步", u"指定行", u"视频标准", u"脉宽模式", u"脉冲宽度", u"斜率条件",
    u"斜率时间", u"垂直窗", u"触发类型", u"码型", u"上升沿", u"下降沿", u"限定符", u"持续时间", u"触发电平",
    u"触发电平A", u"触发电平B", u"触发灵敏度", u"采样系统", u"采样方式", u"持续", u"获取方式", u"平均次数",
    u"亮度", u"显示系统", u"显示类型", u"波形保持", u"网格", u"清除显示", u"虚拟系统", u"虚拟面板",
    u"未标题", u"数据浏览器",
};

// DlgResource
constexpr const char16_t* ResourceDialogEn[] = {u"Choose a resource", u"Resource ", u"OK", u"Cancel"};
constexpr const char16_t* ResourceDialogZh[] = {u"选择设备资源", u"当前系统中的资源", u"确定", u"取消"};

// frmWaveSetting: title, tab, the labels of the lists, the screen options, buttons
constexpr const char16_t* WaveSettingEn[] = {
    u"FFT", u"FFT", u"Target", u"Source", u"Window", u"Scale", u"Screen", u"Full", u"Split", u"OK", u"Cancel",
};
constexpr const char16_t* WaveSettingZh[] = {
    u"FFT设置", u"FFT", u"目标窗口", u"信源", u"窗函数", u"刻度", u"屏幕", u"全屏", u"半屏", u"确定", u"取消",
};

// frmAbout: the title before the program's name, the button; the product texts stay as they are
constexpr const char16_t* AboutEn[] = {u"About ", u"OK"};
constexpr const char16_t* AboutZh[] = {u"关于 ", u"确定"};

// frmHelp: the title until a page names itself, then Back, Forward, Home, Contents
constexpr const char16_t* HelpViewerEn[] = {u"Help", u"Back", u"Forward", u"Home", u"Contents"};
constexpr const char16_t* HelpViewerZh[] = {u"帮助", u"后退", u"前进", u"主页", u"目录"};
// clang-format on

template <std::size_t N> QStringList toList(const char16_t* const (&texts)[N])
{
    QStringList list;
    list.reserve(N);
    for (const char16_t* text : texts)
        list.append(QString::fromUtf16(text));
    return list;
}

template <std::size_t E, std::size_t C>
CaptionData lists(const char16_t* const (&english)[E], const char16_t* const (&chinese)[C])
{
    return {toList(english), toList(chinese), {}};
}

// Builds a pairing from runs of consecutive slots; a negative Chinese start
// leaves the whole run without Chinese captions of its own.
class Pairs {
  public:
    Pairs& run(int english, int chinese, int count, WordSense sense = WordSense::Plain)
    {
        for (int i = 0; i < count; ++i)
            pairs_.append({short(english + i), short(chinese < 0 ? -1 : chinese + i), sense});
        return *this;
    }
    Pairs& one(int english, int chinese, WordSense sense = WordSense::Plain)
    {
        return run(english, chinese, 1, sense);
    }
    operator QList<CaptionPair>() const { return pairs_; }

  private:
    QList<CaptionPair> pairs_;
};

// The Chinese panel has two more tooltips, for Run and Stop; English shows "Run" and "Stop" there.
QList<CaptionPair> virtualPanelPairs()
{
    return Pairs().run(0, 0, 8).run(2, 8, 2).run(8, 10, 3);
}

// The Chinese memory window has one more caption, the refresh button's; English shows "     Refresh".
QList<CaptionPair> memoryWavePairs()
{
    return Pairs().run(0, 0, 18).one(0, 18);
}

// The Chinese replay list starts with the three state words and lacks the prompt and
// the frame separator, which show their English text in both languages.
QList<CaptionPair> recordPlayPairs()
{
    return Pairs().run(0, 3, 7).run(7, 1, 2).run(9, 10, 6).one(15, -1).one(16, 0).one(17, -1);
}

// Chinese has a word of its own for the mains "AC" and for the slope-mode set.
QList<CaptionPair> valueWordPairs()
{
    return Pairs()
        .run(0, 0, 9)
        .one(2, 9, WordSense::AcLine)
        .run(9, 10, 10)
        .run(14, 20, 5, WordSense::SlopeMode)
        .run(19, 25, 14);
}

// As above; besides, the channel pairs "CH1CH2" to "CH3CH4" are the same in both languages.
QList<CaptionPair> valueWordSecondPairs()
{
    return Pairs()
        .run(0, 0, 12)
        .one(12, 12, WordSense::AcLine)
        .run(12, 13, 11)
        .run(39, 24, 4)
        .run(49, 28, 2)
        .run(23, 30, 12)
        .run(23, 42, 6, WordSense::SlopeMode)
        .run(35, 48, 4)
        .run(51, 52, 9)
        .run(43, -1, 6);
}

// Channel, bit and group names and "Anti-aliasing" are the same in both languages;
// Chinese names the display group apart from a channel's "Display" node.
QList<CaptionPair> nodeNamePairs()
{
    return Pairs().run(0, -1, 27).run(27, 0, 53).one(80, -1).run(81, 54, 8).one(34, 53,
                                                                                WordSense::DisplayGroup);
}

CaptionData withPairs(CaptionData data, QList<CaptionPair> pairs)
{
    data.pairs = std::move(pairs);
    return data;
}

CaptionData memoryWave()
{
    return {toList(WaveEn), toList(WaveZh) + toList(MemoryWaveZhExtra), memoryWavePairs()};
}

} // namespace

CaptionData MakeCaptionData(CaptionList which)
{
    switch (which) {
    case CaptionList::MainMenus: return lists(MainMenusEn, MainMenusZh);
    case CaptionList::MainToolbar: return lists(MainToolbarEn, MainToolbarZh);
    case CaptionList::PanePopups: return lists(PanePopupsEn, PanePopupsZh);
    case CaptionList::SheetNames: return lists(SheetNamesEn, SheetNamesZh);
    case CaptionList::CtrlList: return lists(CtrlListEn, CtrlListZh);
    case CaptionList::NewDocument: return lists(NewDocumentEn, NewDocumentZh);
    case CaptionList::OpenDocument: return lists(OpenDocumentEn, OpenDocumentZh);
    case CaptionList::Options: return lists(OptionsEn, OptionsZh);
    case CaptionList::VirtualPanel:
        return withPairs(lists(VirtualPanelEn, VirtualPanelZh), virtualPanelPairs());
    case CaptionList::VirtualKeyboard: return lists(VirtualKeyboardEn, VirtualKeyboardZh);
    case CaptionList::FineAdjust: return lists(FineAdjustEn, FineAdjustZh);
    case CaptionList::PassFailed: return lists(PassFailedEn, PassFailedZh);
    case CaptionList::Wave: return lists(WaveEn, WaveZh);
    case CaptionList::MemoryWave: return memoryWave();
    // The second forms of these windows carry the same captions as the first.
    case CaptionList::Data:
    case CaptionList::DataSecond: return lists(DataEn, DataZh);
    case CaptionList::Measure:
    case CaptionList::MeasureSecond: return lists(MeasureEn, MeasureZh);
    case CaptionList::RecordPlay: return withPairs(lists(RecordPlayEn, RecordPlayZh), recordPlayPairs());
    case CaptionList::RecordPlaySecond: return lists(RecordPlaySecondEn, RecordPlaySecondZh);
    case CaptionList::MemoryWaveFileMenu:
    case CaptionList::MemoryWaveSecond: return lists(MemoryWaveFileMenuEn, MemoryWaveFileMenuZh);
    case CaptionList::MeasureNames: return lists(MeasureNamesEn, MeasureNamesZh);
    case CaptionList::ValueWords: return withPairs(lists(ValueWordsEn, ValueWordsZh), valueWordPairs());
    case CaptionList::ValueWordsSecond:
        return withPairs(lists(ValueWordsSecondEn, ValueWordsSecondZh), valueWordSecondPairs());
    case CaptionList::NodeNames: return withPairs(lists(NodeNamesEn, NodeNamesZh), nodeNamePairs());
    case CaptionList::ResourceDialog: return lists(ResourceDialogEn, ResourceDialogZh);
    case CaptionList::WaveSetting: return lists(WaveSettingEn, WaveSettingZh);
    case CaptionList::About: return lists(AboutEn, AboutZh);
    case CaptionList::HelpViewer: return lists(HelpViewerEn, HelpViewerZh);
    }
    return {};
}
