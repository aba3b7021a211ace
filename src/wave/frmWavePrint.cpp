#include "wave/frmWavePrint.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace {

PrinterChooser& chooser()
{
    static PrinterChooser installed;
    return installed;
}

bool choosePrinter(QPrinter& printer, QWidget* parent)
{
    if (chooser()) return chooser()(printer);
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

void previewPage(const PicturePage& page, QWidget* parent)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested,
                     [&page](QPrinter* target) { PrintPicturePage(*target, page); });
    dialog.exec();
}

void printPage(const PicturePage& page, QWidget* parent)
{
    QPrinter printer(QPrinter::HighResolution);
    if (choosePrinter(printer, parent)) PrintPicturePage(printer, page);
}

} // namespace

PrinterChooser SetPrinterChooser(PrinterChooser next)
{
    PrinterChooser previous = std::move(chooser());
    chooser() = std::move(next);
    return previous;
}

void PrintPicturePage(QPrinter& printer, const PicturePage& page)
{
    printer.setFullPage(true);
    QPainter painter(&printer);
    if (!painter.isActive()) return;
    PaintPicturePage(painter, printer.resolution(), page);
}

void PrintPictureWindow(PrintablePicture& window, PageOutput output, QWidget* parent)
{
    const double savedZoom = window.pictureZoom();
    window.drawForPrint(PrintZoom, QSize(PrintPictureWidth, PrintPictureHeight));
    const PicturePage page{window.printTitle(), window.printLegend(), window.printImage()};
    SavePrintImage(page.image);
    if (output == PageOutput::Preview)
        previewPage(page, parent);
    else
        printPage(page, parent);
    window.restoreAfterPrint(savedZoom);
}
