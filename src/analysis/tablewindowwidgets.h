#pragma once
// What the measure and data windows share: a list (MeasureView), the channel
// options (OptionCH_0 to _3) that follow the instrument's display switches, the
// refresh and export buttons, the legend label, and the refresh loop with its
// two timers. The window holds its slot number as its tag.

#include "document/childwindowwidgets.h"
#include "text/captions.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>
#include <array>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QTimer;
class QTreeWidget;
class RefreshLoop;

class TableWindowBase : public QWidget {
    Q_OBJECT
  public:
    static constexpr int SlotCount = 18;
    // The open windows of one kind by slot.
    using WindowTable = std::array<QPointer<TableWindowBase>, SlotCount>;

    ~TableWindowBase() override;
    int slot() const { return slot_; }
    QString tag() const { return QString::number(slot_); }
    // The sheet renumbers a window when an earlier one goes; 0 to 17.
    void setSlot(int slot);

    void cmdRefresh_Click();
    void Timer1_Timer();
    // The channel chosen in OptionCH: 1 to 4, 0 when none is.
    int selectedChannel() const;
    void selectChannel(int channel);

  protected:
    // The window enters forms at its slot (0 to 17, else 0).
    TableWindowBase(int slot, WindowTable& forms, QWidget* parent);

    virtual void LoadData() = 0;
    virtual void cmdExport_Click() = 0;
    // The first run of Timer1 shows what the record holds.
    virtual void firstShow() = 0;
    virtual bool& autoRefreshing() = 0;
    virtual void OptionCH_Click(int index);
    // Runs operation code and waits for it; false when nothing ran.
    bool runReading(int code, const QString& caption);
    void setButtonTexts(CaptionList list, int language);

    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    QTreeWidget* MeasureView;
    std::array<QRadioButton*, 4> OptionCH{};
    QPushButton* cmdRefresh;
    QPushButton* cmdExport;
    QLabel* SettingLabel;
    QTimer* Timer1;
    QTimer* Timer2;
    QHBoxLayout* buttonRow;
    RefreshLoop* loop;
    int slot_;

  private:
    void followDisplaySwitches();
    WindowTable& forms_;
    bool firstRun_ = true;
};

// Creates a window of the kind for a slot inside area and shows it; null
// without an area or for a slot out of range.
template <typename Window> Window* CreateTableWindow(QMdiArea* area, int slot)
{
    if (!area || slot < 0 || slot >= TableWindowBase::SlotCount) return nullptr;
    auto* window = new Window(slot);
    ShowChildWindow(window, area, QString());
    return window;
}
