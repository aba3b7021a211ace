#include "analysis/frmMeasure.h"

#include "acquire/operation.h"
#include "analysis/exportfile.h"
#include "analysis/frmPassFailed.h"
#include "analysis/measurejudge.h"
#include "analysis/readmeasure.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "platform/platform.h"
#include "settings/softwaresettings.h"
#include "text/language.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>

namespace {

TableWindowBase::WindowTable MeasureForms;

constexpr int ColumnCount = 5;
constexpr int ViewMargin = 200 / TwipsPerPixel; // 200 twips

bool validSlot(int slot)
{
    return slot >= 0 && slot < MeasureRecordCount;
}

// A small square in the family's colour marks each row.
QIcon rowIcon(MeasureFamily family)
{
    static const QColor colors[] = {QColor(255, 200, 0), QColor(0, 170, 255), QColor(0, 190, 90),
                                    QColor(220, 60, 220)};
    QPixmap image(10, 10);
    image.fill(colors[int(family)]);
    return QIcon(image);
}

QStringList headers(int language)
{
    if (IsChinese(language)) return {"类型", "值", "下限", "上限", "通过&失败"};
    return {" Type", "Value", "Under Limit", "Over Limit", "Pass&Fail"};
}

} // namespace

frmMeasure::frmMeasure(int slot, QWidget* parent) : TableWindowBase(slot, MeasureForms, parent)
{
    setObjectName(QStringLiteral("frmMeasure"));
    SetWindowPicture(this, Picture::Measure);
    cmdPassFailed = new QPushButton(this);
    cmdPassFailed->setObjectName(QStringLiteral("cmdPassFailed"));
    buttonRow->addWidget(cmdPassFailed);
    txtValue = new QLineEdit(this);
    txtValue->setObjectName(QStringLiteral("txtValue"));
    txtValue->hide();
    combUnit = new QComboBox(this);
    combUnit->setObjectName(QStringLiteral("combUnit"));
    combUnit->addItems({"Mv", "kv", "v", "mv", "uv"});
    combUnit->hide();
    MeasureView->setColumnCount(ColumnCount);
    connect(cmdPassFailed, &QPushButton::clicked, this, &frmMeasure::cmdPassFailed_Click);
    SetCaptions(Language);
    showEmptyList();
    resize(560, 430);
}

MeasureRecord& frmMeasure::record() const
{
    return MeasureRecords[size_t(slot_)];
}

void frmMeasure::SetCaptions(int language)
{
    setButtonTexts(CaptionList::Measure, language);
    const bool zh = IsChinese(language);
    cmdPassFailed->setText(zh ? QStringLiteral(" 通过&&失败") : QStringLiteral(" Pass&&Fail"));
    MeasureView->setHeaderLabels(headers(language));
    StartDispMeasure();
}

void frmMeasure::setColumnWidths()
{
    const int width = std::max((MeasureView->viewport()->width() - ViewMargin) / ColumnCount, 40);
    for (int column = 0; column < ColumnCount; ++column)
        MeasureView->setColumnWidth(column, width);
}

void frmMeasure::resizeEvent(QResizeEvent* event)
{
    TableWindowBase::resizeEvent(event);
    setColumnWidths();
}

void frmMeasure::showEmptyList()
{
    SettingLabel->clear();
    MeasureView->clear();
    for (int row = 0; row < MeasureItemCount; ++row) {
        auto* item = new QTreeWidgetItem(MeasureView, {MeasureItemName(row, Language)});
        item->setIcon(0, rowIcon(MeasureItems[size_t(row)].family));
    }
}

void frmMeasure::DispMeasure(int slot)
{
    if (!validSlot(slot)) return;
    MeasureRecord& r = MeasureRecords[size_t(slot)];
    SettingLabel->setText(r.Legend);
    setColumnWidths();
    MeasureView->clear();
    const auto rows = JudgeMeasureRecord(r, Language);
    QList<QTreeWidgetItem*> items;
    for (int row = 0; row < MeasureItemCount; ++row) {
        const MeasureRow& shown = rows[size_t(row)];
        auto* item = new QTreeWidgetItem({shown.name, shown.value, shown.under, shown.over, shown.result});
        item->setIcon(0, rowIcon(MeasureItems[size_t(row)].family));
        if (!shown.result.isEmpty() && shown.result != JudgementWordsOf(Language).pass)
            item->setForeground(4, QColor(200, 0, 0));
        items.append(item);
    }
    MeasureView->addTopLevelItems(items);
}

void frmMeasure::StartDispMeasure()
{
    if (record().HasData)
        DispMeasure(slot_);
    else
        showEmptyList();
}

void frmMeasure::firstShow()
{
    record().Shown = true;
    StartDispMeasure();
}

void frmMeasure::LoadMeasure()
{
    const QString caption =
        IsChinese(Language) ? QStringLiteral("测量数据下载中...") : QStringLiteral("Measure Data Loading...");
    const int channel = selectedChannel();
    if (channel == 0) return;
    InstallMeasureOperations();
    QPointer<frmMeasure> alive(this);
    const bool ran = runReading(OperationMeasureCH1 + channel - 1, caption);
    if (!alive || !ran) return;
    DataSheetDirty = true;
    TakeMeasureReading(record(), channel);
    DispMeasure(slot_);
    cmdRefresh->setEnabled(true);
}

bool frmMeasure::ExportMeasureFileProc(const QString& fileName, int slot)
{
    return validSlot(slot) && SaveExportFile(fileName, MeasureExportText(MeasureRecords[size_t(slot)]));
}

void frmMeasure::cmdExport_Click()
{
    ExportTextFile(MeasureExportText(record()), Language);
}

void frmMeasure::cmdPassFailed_Click()
{
    frmPassFailed dialog(slot_, windowTitle(), this);
    if (dialog.exec() == QDialog::Accepted) StartDispMeasure();
}

frmMeasure* CreateMeasureWindow(QMdiArea* area, int slot)
{
    return CreateTableWindow<frmMeasure>(area, slot);
}

frmMeasure* MeasureWindowOf(int slot)
{
    return validSlot(slot) ? static_cast<frmMeasure*>(MeasureForms[size_t(slot)].data()) : nullptr;
}
