#include "controller/ctrltree.h"

#include "controller/ctrlstate.h"
#include "controller/pattern.h"
#include "link/devicefacts.h"
#include "text/productinfo.h"
#include "text/treewords.h"

namespace {

// Adds children in rows 2 and up of the parent's column.
class NodeAdder {
  public:
    explicit NodeAdder(CtrlNode& parent, int column) : parent_(parent), column_(column) {}
    CtrlNode& leaf(const char* english, const QString& value)
    {
        CtrlNode& node = action(english);
        node.text = NodeText(node.caption, value);
        return node;
    }
    CtrlNode& action(const char* english, WordSense sense = WordSense::Plain)
    {
        CtrlNode node;
        node.english = QString::fromLatin1(english);
        node.caption = NodeCaption(node.english, Language, sense);
        node.text = node.caption;
        return add(std::move(node));
    }
    // A node whose caption is a name of its own (an input, a channel).
    CtrlNode& named(const QString& caption)
    {
        CtrlNode node;
        node.english = node.caption = node.text = caption;
        return add(std::move(node));
    }
    CtrlNode& namedLeaf(const QString& caption, const QString& value)
    {
        CtrlNode& node = named(caption);
        node.text = NodeText(caption, value);
        return node;
    }

  private:
    CtrlNode& add(CtrlNode node)
    {
        node.row = int(parent_.children.size()) + 2;
        node.column = column_;
        parent_.children.push_back(std::move(node));
        return parent_.children.back();
    }
    CtrlNode& parent_;
    int column_;
};

bool isType(const QString& value, const char* english)
{
    return value == ValueWord(QString::fromLatin1(english));
}

void addRunning(NodeAdder add)
{
    add.leaf("Run|Stop", CtrlData.RunStop);
    for (const char* action : {"Auto Set", "Set Trig to 50%", "Force Trigger", "Single Trigger", "Default"})
        add.action(action);
}

void addChannel(NodeAdder add, int n)
{
    const CtrlRecord& r = CtrlData;
    add.leaf("Display", r.ChDisplay[n]);
    add.leaf("Volt/Div", r.ChVoltDiv[n]);
    add.leaf("Offset", r.ChOffset[n]);
    add.leaf("Coupling", r.ChCoupling[n]);
    add.leaf("BW Limit", r.ChBwLimit[n]);
    add.leaf("Probe", r.ChProbe[n]);
}

void addLa(NodeAdder add)
{
    const CtrlRecord& r = CtrlData;
    CtrlNode& display = add.action("Display");
    NodeAdder bits(display, display.row);
    bits.namedLeaf("D15-D8", r.LaHighByte);
    bits.namedLeaf("D7-D0", r.LaLowByte);
    for (int bit = 15; bit >= 0; --bit)
        bits.namedLeaf(QStringLiteral("D%1").arg(bit), r.LaDisplay[bit + 1]);
    CtrlNode& position = add.action("Position");
    NodeAdder positions(position, position.row);
    for (int bit = 15; bit >= 0; --bit)
        positions.namedLeaf(QStringLiteral("D%1").arg(bit), r.LaPosition[bit + 1]);
    add.leaf("Threshold", r.LaThreshold);
    add.action("Reset");
}

void addTimeWindow(NodeAdder add, const char* english, const QString& timeDiv, const QString& delay)
{
    CtrlNode& window = add.action(english);
    NodeAdder children(window, window.row);
    children.leaf("Time/Div", timeDiv);
    children.leaf("Delay", delay);
}

void addTimeBase(NodeAdder add)
{
    const CtrlRecord& r = CtrlData;
    if (isType(r.TrigMethod, "ALTERNATIVE")) {
        addTimeWindow(add, "WindowA", r.TimeDivA, r.TimeDelayA);
        addTimeWindow(add, "WindowB", r.TimeDivB, r.TimeDelayB);
        return;
    }
    add.leaf("Time/Div", r.TimeDiv);
    add.leaf("Delay", r.TimeDelay);
    add.leaf("Format", r.TimeFormat);
}

void addCodeGroup(NodeAdder add, const QString* codes, const QString& summary)
{
    CtrlNode& code = add.action("Code");
    if (!summary.isEmpty()) code.text = NodeText(code.caption, summary);
    NodeAdder rows(code, code.row);
    for (const char* input : {"CH1", "CH2", "CH3", "CH4", "EXT", "EXT/5"})
        rows.namedLeaf(QString::fromLatin1(input), *codes++);
}

void addPatternLevels(NodeAdder add)
{
    CtrlNode& level = add.action("Level");
    NodeAdder rows(level, level.row);
    for (int n = 0; n < 4; ++n)
        rows.namedLeaf(QStringLiteral("CH%1").arg(n + 1), CtrlData.PatternLevel[n]);
    rows.namedLeaf(CtrlData.PatternExtIsDiv5 ? QStringLiteral("EXT/5") : QStringLiteral("EXT"),
                   CtrlData.PatternLevel[4]);
}

void addAltWindow(NodeAdder add, const QString& source, const QString& type, int w)
{
    const CtrlRecord& r = CtrlData;
    CtrlNode& channel = add.named(source);
    NodeAdder c(channel, channel.row);
    c.leaf("Trig type", type);
    if (isType(type, "EDGE")) {
        const AltEdgeFields& e = r.AltEdge[w];
        c.leaf("Slope", e.Slope), c.leaf("Coupling", e.Coupling), c.leaf("Level", e.Level);
        c.leaf("Sensitivity", e.Sensitivity), c.leaf("Holdoff", e.Holdoff);
    } else if (isType(type, "PULSE")) {
        const AltPulseFields& p = r.AltPulse[w];
        c.leaf("Pulse mode", p.Mode), c.leaf("Pulse width", p.Width), c.leaf("Coupling", p.Coupling);
        c.leaf("Level", p.Level), c.leaf("Sensitivity", p.Sensitivity), c.leaf("Holdoff", p.Holdoff);
    } else if (isType(type, "VIDEO")) {
        const AltVideoFields& v = r.AltVideo[w];
        c.leaf("Polarity", v.Polarity), c.leaf("Sync", v.Sync), c.leaf("Line number", v.Line);
        c.leaf("Video Standard", v.Standard), c.leaf("Level", v.Level);
        c.leaf("Sensitivity", v.Sensitivity), c.leaf("Holdoff", v.Holdoff);
    } else if (isType(type, "SLOPE")) {
        const AltSlopeFields& s = r.AltSlope[w];
        c.leaf("Slope mode", s.Mode), c.leaf("Slope time", s.Time);
        c.leaf("Coupling", s.Coupling), c.leaf("LevelA", s.LevelA), c.leaf("LevelB", s.LevelB);
        c.leaf("Sensitivity", s.Sensitivity), c.leaf("Holdoff", s.Holdoff);
    }
}

// The nodes every plain type ends with.
void addLevelTail(NodeAdder& add, const QString& level, const QString& sensitivity)
{
    add.leaf("Level", level);
    add.leaf("Sensitivity", sensitivity);
    add.leaf("Holdoff", CtrlData.Holdoff);
}

void addTrigger(NodeAdder add)
{
    const CtrlRecord& r = CtrlData;
    add.leaf("Method", r.TrigMethod);
    if (isType(r.TrigMethod, "EDGE")) {
        add.leaf("Slope", r.EdgeSlope), add.leaf("Source", r.EdgeSource), add.leaf("Mode", r.EdgeSweep);
        add.leaf("Coupling", r.EdgeCoupling), add.leaf("HF", r.EdgeHf);
        addLevelTail(add, r.EdgeLevel, r.EdgeSensitivity);
    } else if (isType(r.TrigMethod, "PULSE")) {
        add.leaf("Source", r.PulseSource), add.leaf("Pulse mode", r.PulseMode);
        add.leaf("Pulse width", r.PulseWidth), add.leaf("Mode", r.PulseSweep);
        add.leaf("Coupling", r.PulseCoupling), add.leaf("HF", r.PulseHf);
        addLevelTail(add, r.PulseLevel, r.PulseSensitivity);
    } else if (isType(r.TrigMethod, "SLOPE")) {
        add.leaf("Source", r.SlopeSource), add.leaf("Slope mode", r.SlopeMode);
        add.leaf("Slope time", r.SlopeTime), add.leaf("Mode", r.SlopeSweep);
        // The HF slot shows the coupling again for this type.
        add.leaf("Coupling", r.SlopeCoupling), add.leaf("Coupling", r.SlopeCoupling);
        add.leaf("LevelA", r.SlopeLevelA), add.leaf("LevelB", r.SlopeLevelB);
        add.leaf("Sensitivity", r.SlopeSensitivity), add.leaf("Holdoff", r.Holdoff);
    } else if (isType(r.TrigMethod, "VIDEO")) {
        add.leaf("Source", r.VideoSource), add.leaf("Mode", r.VideoMode),
            add.leaf("Polarity", r.VideoPolarity);
        add.leaf("Sync", r.VideoSync), add.leaf("Line number", r.VideoLine);
        add.leaf("Video Standard", r.VideoStandard);
        addLevelTail(add, r.VideoLevel, r.VideoSensitivity);
    } else if (isType(r.TrigMethod, "PATTERN")) {
        addCodeGroup(add, r.PatternCode, BuildPatternDispString());
        add.leaf("Mode", r.PatternSweep), add.leaf("Coupling", r.PatternCoupling),
            add.leaf("HF", r.PatternHf);
        addPatternLevels(add);
        add.leaf("Sensitivity", r.PatternSensitivity), add.leaf("Holdoff", r.Holdoff);
    } else if (isType(r.TrigMethod, "DURATION")) {
        addCodeGroup(add, r.DurationCode, QString());
        add.leaf("Qualifier", r.DurationQualifier), add.leaf("Duration time", r.DurationTime);
        add.leaf("Mode", r.DurationSweep), add.leaf("Holdoff", r.Holdoff);
    } else if (isType(r.TrigMethod, "ALTERNATIVE")) {
        add.leaf("Alt Channel", r.AltChannel.isEmpty() ? QStringLiteral("CH1CH2") : r.AltChannel);
        addAltWindow(add, r.AltSourceA, r.AltTypeA, 0);
        addAltWindow(add, r.AltSourceB, r.AltTypeB, 1);
    }
}

void addAcquire(NodeAdder add)
{
    const CtrlRecord& r = CtrlData;
    add.leaf("Acquisition", r.AcqType);
    add.leaf("Sampling Mode", r.AcqMode);
    if (isType(r.AcqType, "AVERAGE")) add.leaf("Averages", r.AcqAverages);
}

void addDisplay(NodeAdder add)
{
    const CtrlRecord& r = CtrlData;
    add.leaf("Type", r.DisplayType);
    add.leaf("Persist", r.DisplayPersist);
    add.action("Clear");
    add.leaf("Grid", r.DisplayGrid);
}

CtrlNode& addGroup(CtrlNode& root, int group, const char* english, WordSense sense = WordSense::Plain)
{
    CtrlNode node;
    node.english = QString::fromLatin1(english);
    node.caption = node.text = NodeCaption(node.english, Language, sense);
    node.row = 0;
    node.column = group;
    root.children.push_back(std::move(node));
    return root.children.back();
}

} // namespace

QString NodeText(const QString& caption, const QString& value)
{
    return caption + QStringLiteral(" [") + value + QLatin1Char(']');
}

CtrlNode BuildCtrlTree()
{
    CtrlNode root;
    root.caption = root.english = root.text = ProductModel;
    addRunning(NodeAdder(addGroup(root, GroupRunning, "Running Control"), GroupRunning));
    for (int n = 1; n <= 4; ++n) {
        static const char* names[] = {"", "CH1", "CH2", "CH3", "CH4"};
        addChannel(NodeAdder(addGroup(root, n + 1, names[n]), n + 1), n);
    }
    if (HasLa) addLa(NodeAdder(addGroup(root, GroupLa, "LA"), GroupLa));
    addTimeBase(NodeAdder(addGroup(root, GroupTimeBase, "Time Base"), GroupTimeBase));
    addTrigger(NodeAdder(addGroup(root, GroupTrigger, "Trigger"), GroupTrigger));
    addAcquire(NodeAdder(addGroup(root, GroupAcquire, "Acquire"), GroupAcquire));
    addDisplay(NodeAdder(addGroup(root, GroupDisplay, "Display", WordSense::DisplayGroup), GroupDisplay));
    addGroup(root, GroupVirtualPanel, "Virtual Panel");
    return root;
}
