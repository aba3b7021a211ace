#pragma once
// The data table window: one channel's screen samples as rows of number, time
// and volts (and the second peak half when the channel was in peak mode). Its
// reading lives in DataRecords at its slot.

#include "analysis/tablewindowwidgets.h"

class QMdiArea;
struct DataRecord;

class frmData : public TableWindowBase {
    Q_OBJECT
  public:
    explicit frmData(int slot, QWidget* parent = nullptr);

    void SetCaptions(int language);
    void ShowTable();
    void ShowEmptyTable();
    void SetDataColumns(bool peak);
    // Writes the record of slot; false (with a critical box) when it fails.
    static bool ExportDataFile(const QString& fileName, int slot);

    void LoadData() override;

  protected:
    void cmdExport_Click() override;
    void firstShow() override;
    bool& autoRefreshing() override { return autoRefreshing_; }
    void OptionCH_Click(int index) override;

  private:
    DataRecord& record() const;
    bool autoRefreshing_ = false;
};

frmData* CreateDataWindow(QMdiArea* area, int slot);
frmData* DataWindowOf(int slot);
