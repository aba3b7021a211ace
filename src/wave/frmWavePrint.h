#pragma once
// Preview and print of a picture window's page. The window draws itself at the
// print zoom and size, the image is kept as the print image file, the page is
// previewed or printed, and the window is put back as it was. The wave view and
// the memory view share it through PrintablePicture.

#include "wave/waveprint.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <functional>

class QPrinter;
class QWidget;

class PrintablePicture {
  public:
    virtual ~PrintablePicture() = default;
    virtual double pictureZoom() const = 0;
    // Draws the whole picture at zoom on a picture of size.
    virtual void drawForPrint(double zoom, QSize size) = 0;
    virtual QImage printImage() const = 0;
    virtual QString printTitle() const = 0;
    virtual QString printLegend() const = 0;
    // Puts the zoom back and runs the window's redraw.
    virtual void restoreAfterPrint(double zoom) = 0;
};

enum class PageOutput { Preview, Print };

// Readies a printer for a page that Print sends; false cancels. By default the
// system's print dialog asks; the command line and tests route pages elsewhere.
using PrinterChooser = std::function<bool(QPrinter&)>;
// Installs a chooser (empty: the print dialog) and returns the previous one.
PrinterChooser SetPrinterChooser(PrinterChooser chooser);

// Paints the page on the printer: one page, the paper's corner as origin.
void PrintPicturePage(QPrinter& printer, const PicturePage& page);

// The whole sequence of preview or print for a window.
void PrintPictureWindow(PrintablePicture& window, PageOutput output, QWidget* parent);
