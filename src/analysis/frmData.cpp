#include "analysis/frmData.h"

#include "acquire/operation.h"
#include "analysis/dataexport.h"
#include "analysis/datarecord.h"
#include "analysis/exportfile.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "platform/platform.h"
#include "text/language.h"

#include <QLabel>
#include <QMdiArea>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>

namespace {

TableWindowBase::WindowTable DataForms;

constexpr int EmptyRows = 1000;

bool validSlot(int slot)
{
    return slot >= 0 && slot < DataRecordCount;
}

QStringList headers(bool peak)
{
    constexpr int firstColumn = 2; // "NO." follows the two buttons in the caption list
    QStringList names;
    for (int column = 0; column < (peak ? 4 : 3); ++column)
        names << Caption(CaptionList::Data, firstColumn + column, Language);
    return names;
}

QString cell(const DataColumn& column, int index)
{
    return index >= 0 && size_t(index) < column.size() ? column[size_t(index)] : QString();
}

} // namespace

frmData::frmData(int slot, QWidget* parent) : TableWindowBase(slot, DataForms, parent)
{
    setObjectName(QStringLiteral("frmData"));
    SetWindowPicture(this, Picture::Data);
    SetCaptions(Language);
    ShowEmptyTable();
    resize(460, 430);
}

DataRecord& frmData::record() const
{
    return DataRecords[size_t(slot_)];
}

void frmData::SetCaptions(int language)
{
    setButtonTexts(CaptionList::Data, language);
    SetDataColumns(record().IsPeak);
}

void frmData::SetDataColumns(bool peak)
{
    MeasureView->setColumnCount(peak ? 4 : 3);
    MeasureView->setHeaderLabels(headers(peak));
}

void frmData::ShowEmptyTable()
{
    MeasureView->clear();
    QList<QTreeWidgetItem*> rows;
    rows.reserve(EmptyRows);
    for (int n = 0; n < EmptyRows; ++n)
        rows.append(new QTreeWidgetItem);
    MeasureView->addTopLevelItems(rows);
}

void frmData::ShowTable()
{
    const DataRecord& r = record();
    SetDataColumns(r.IsPeak);
    SettingLabel->setText(r.Legend);
    MeasureView->clear();
    const DataRows span = DataRowsOf(r);
    QList<QTreeWidgetItem*> rows;
    for (int index = span.first, row = 1; index <= span.last; ++index, ++row) {
        QStringList cells = {QString::number(row), cell(r.Times, index), cell(r.Voltages, index)};
        if (r.IsPeak) cells.append(cell(r.Voltages2, index));
        rows.append(new QTreeWidgetItem(cells));
    }
    MeasureView->addTopLevelItems(rows);
}

void frmData::firstShow()
{
    record().Shown = true;
    if (record().HasData) ShowTable();
}

void frmData::OptionCH_Click(int index)
{
    TableWindowBase::OptionCH_Click(index);
    record().Channel = QStringLiteral("CH%1").arg(index + 1);
}

void frmData::LoadData()
{
    const QString caption = IsChinese(Language) ? QStringLiteral("波形数据的数据下载中...")
                                                : QStringLiteral("Wave Data Data Loading...");
    const int channel = selectedChannel();
    if (channel == 0) return;
    QPointer<frmData> alive(this);
    const bool ran = runReading(OperationTableCH1 + channel - 1, caption);
    if (!alive || !ran) return;
    TakeTableReading(record());
    DataSheetDirty = true;
    ShowTable();
    cmdRefresh->setEnabled(true);
}

bool frmData::ExportDataFile(const QString& fileName, int slot)
{
    return validSlot(slot) && SaveExportFile(fileName, DataExportText(DataRecords[size_t(slot)]));
}

void frmData::cmdExport_Click()
{
    ExportTextFile(DataExportText(record()), Language);
}

frmData* CreateDataWindow(QMdiArea* area, int slot)
{
    return CreateTableWindow<frmData>(area, slot);
}

frmData* DataWindowOf(int slot)
{
    return validSlot(slot) ? static_cast<frmData*>(DataForms[size_t(slot)].data()) : nullptr;
}
