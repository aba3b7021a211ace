#include "controller/editpath.h"

#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "text/treewords.h"

namespace {

// A part of the path up to its value: "Level [0.00div]" is "Level".
QString captionOf(const QString& part)
{
    const qsizetype bracket = part.indexOf(QStringLiteral(" ["));
    return bracket < 0 ? part : part.left(bracket);
}

const CtrlNode* childNamed(const CtrlNode& parent, const QString& caption, int* index = nullptr)
{
    for (size_t i = 0; i < parent.children.size(); ++i)
        if (captionOf(parent.children[i].text) == caption) {
            if (index) *index = int(i);
            return &parent.children[i];
        }
    return nullptr;
}

// Items the editor answers that no node of this build shows.
QString unshownItem(const QString& caption)
{
    for (const char* english : {"Invert", "Memory Size", "Intensity", "Anti-aliasing", "Persistence",
                                "ChannelA", "ChannelB", "Virtual Keyboard"})
        if (caption == NodeCaption(QString::fromLatin1(english))) return QString::fromLatin1(english);
    return {};
}

int rowOf(const QString& caption, std::initializer_list<const char*> rows)
{
    int row = 0;
    for (const char* name : rows) {
        if (caption == QLatin1String(name)) return row;
        ++row;
    }
    return -1;
}

} // namespace

EditTarget ParseEditPath(const QString& fullPath)
{
    EditTarget t;
    const QStringList parts = fullPath.split(QLatin1Char('\\'));
    if (parts.size() < 2) return t;
    const CtrlNode root = BuildCtrlTree();
    const QString groupCaption = captionOf(parts[1]);
    const CtrlNode* group = childNamed(root, groupCaption);
    t.group = group ? group->english : unshownItem(groupCaption);
    t.caption = groupCaption;
    t.EditKey = groupCaption;
    if (t.group.size() == 3 && t.group.startsWith(QLatin1String("CH"))) t.channel = t.group.mid(2).toInt();
    if (parts.size() < 3 || t.group.isEmpty()) {
        t.known = !t.group.isEmpty();
        return t;
    }
    const QString itemCaption = captionOf(parts[2]);
    int index = -1;
    const CtrlNode* item = group ? childNamed(*group, itemCaption, &index) : nullptr;
    t.item = item ? item->english : unshownItem(itemCaption);
    t.caption = itemCaption;
    const bool altNode = t.group == QLatin1String("Trigger") && item && item->english == item->caption &&
                         IsValueWord(CtrlData.TrigMethod, QStringLiteral("ALTERNATIVE")) && index >= 2;
    if (altNode) t.altWindow = index - 2; // after "Method" and "Alt Channel"
    if (t.item == QLatin1String("WindowA") || t.item == QLatin1String("WindowB"))
        t.altWindow = t.item.endsWith(QLatin1Char('A')) ? 0 : 1;
    // The alternate windows are told apart as CH1 and CH2, whichever channels they are.
    t.EditKey += altNode ? (t.altWindow == 0 ? QStringLiteral("CH1") : QStringLiteral("CH2")) : itemCaption;
    if (parts.size() < 4) {
        t.known = !t.item.isEmpty();
        return t;
    }
    const QString subCaption = captionOf(parts[3]);
    const CtrlNode* sub = item ? childNamed(*item, subCaption) : nullptr;
    if (!sub) return t;
    t.sub = sub->english;
    t.caption = subCaption;
    t.EditKey += subCaption;
    if (t.item == QLatin1String("Code"))
        t.input = rowOf(subCaption, {"CH1", "CH2", "CH3", "CH4", "EXT", "EXT/5"});
    else if (t.item == QLatin1String("Level"))
        t.input = std::max(rowOf(subCaption, {"CH1", "CH2", "CH3", "CH4", "EXT"}),
                           subCaption == QLatin1String("EXT/5") ? 4 : -1);
    t.known = true;
    return t;
}

QString NodeTextAt(const QString& fullPath)
{
    const QStringList parts = fullPath.split(QLatin1Char('\\'));
    const CtrlNode root = BuildCtrlTree();
    const CtrlNode* node = &root;
    for (qsizetype i = 1; i < parts.size() && node; ++i)
        node = childNamed(*node, captionOf(parts[i]));
    return node ? node->text : QString();
}

namespace {

// The Format node's text compared in both languages; an ALTERNATIVE layout has no such node.
bool formatNodeIs(const char* format)
{
    const CtrlNode root = BuildCtrlTree();
    for (const CtrlNode& group : root.children)
        if (group.column == GroupTimeBase)
            for (const CtrlNode& node : group.children)
                if (node.english == QLatin1String("Format"))
                    for (int language : {LanguageEnglish, LanguageChinese})
                        if (node.text == NodeText(NodeCaption(node.english, language), QLatin1String(format)))
                            return true;
    return false;
}

} // namespace

int EditRule(const EditTarget& t)
{
    const bool yt = formatNodeIs("Y-T");
    const bool notXy = !formatNodeIs("X-Y");
    const bool needsYT = t.group == QLatin1String("Trigger") || t.item == QLatin1String("Set Trig to 50%") ||
                         t.item == QLatin1String("Force Trigger") ||
                         t.item == QLatin1String("Single Trigger");
    if (needsYT && !yt) return 1;
    const bool plainTime = t.group == QLatin1String("Time Base") && t.altWindow < 0 &&
                           (t.item == QLatin1String("Time/Div") || t.item == QLatin1String("Delay"));
    if (plainTime && !notXy) return 2;
    if ((t.channel == 3 || t.channel == 4) && !notXy) return 0;
    return -1;
}
