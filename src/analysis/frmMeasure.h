#pragma once
// The measure window: the eighteen automatic measurements of one channel, each
// judged against its limits when enabled. Its results live in MeasureRecords
// at its slot, so a sheet shows them again without an instrument.

#include "analysis/tablewindowwidgets.h"

class QComboBox;
class QLineEdit;
class QMdiArea;
struct MeasureRecord;

class frmMeasure : public TableWindowBase {
    Q_OBJECT
  public:
    explicit frmMeasure(int slot, QWidget* parent = nullptr);

    void SetCaptions(int language);
    void LoadMeasure();
    void DispMeasure(int slot);
    void StartDispMeasure();
    void cmdPassFailed_Click();
    // Writes the record of slot; false (with a critical box) when it fails.
    static bool ExportMeasureFileProc(const QString& fileName, int slot);

  protected:
    void LoadData() override { LoadMeasure(); }
    void cmdExport_Click() override;
    void firstShow() override;
    bool& autoRefreshing() override { return autoRefreshing_; }
    void resizeEvent(QResizeEvent* event) override;

  private:
    MeasureRecord& record() const;
    void showEmptyList();
    void setColumnWidths();

    QPushButton* cmdPassFailed;
    QLineEdit* txtValue;
    QComboBox* combUnit;
    bool autoRefreshing_ = false;
};

// Creates the window of a slot inside area and shows it; null without an area.
frmMeasure* CreateMeasureWindow(QMdiArea* area, int slot);
frmMeasure* MeasureWindowOf(int slot);
