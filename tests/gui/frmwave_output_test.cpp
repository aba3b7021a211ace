// The wave window's picture output: export to a bitmap file, and print of one
// page with the print image kept beside the program.
#include "frmwave_fixture.h"

#include "acquire/waverecord.h"
#include "text/language.h"
#include "wave/waveprint.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

namespace {

struct ExportCase {
    const char* name;
    const char* file;
    const char* format;
};

class ExportPictureFile : public WaveWindowTest, public ::testing::WithParamInterface<ExportCase> {};

TEST_P(ExportPictureFile, WritesTheShownPicture)
{
    frmWave& wave = open();
    QTemporaryDir dir;
    const QString path = dir.filePath(QString::fromLatin1(GetParam().file));
    platform->savePaths = {path};

    control<QPushButton>("cmdExport")->click();

    ASSERT_EQ(platform->saveRequests.size(), 1);
    EXPECT_EQ(platform->saveRequests[0].title, "Export File");
    EXPECT_EQ(platform->saveRequests[0].filter, "BitMap Files (*.bmp)");
    QImageReader reader(path);
    EXPECT_EQ(reader.format(), GetParam().format);
    const QImage written = reader.read();
    ASSERT_FALSE(written.isNull()) << reader.errorString().toStdString();
    EXPECT_EQ(written.convertToFormat(QImage::Format_RGB32),
              wave.picture().convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(platform->boxes.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Files, ExportPictureFile,
                         ::testing::Values(ExportCase{"Bitmap", "wave.bmp", "bmp"},
                                           ExportCase{"Png", "wave.png", "png"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(WaveWindowTest, AnUnwritableExportShowsTheErrorCritically)
{
    open();
    QTemporaryDir dir;
    platform->savePaths = {dir.filePath("missing/folder/wave.bmp")};
    control<QPushButton>("cmdExport")->click();
    ASSERT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(platform->boxes[0].style, vbCritical);
    EXPECT_FALSE(platform->boxes[0].text.isEmpty());
}

TEST_F(WaveWindowTest, TheExportDialogSpeaksChineseAndACancelWritesNothing)
{
    open();
    Language = 0;
    platform->savePaths = {QString()};
    control<QPushButton>("cmdExport")->click();
    ASSERT_EQ(platform->saveRequests.size(), 1);
    EXPECT_EQ(platform->saveRequests[0].title, u"导出文件");
    EXPECT_EQ(platform->saveRequests[0].filter, u"位图文件 (*.bmp)");
    EXPECT_TRUE(platform->boxes.isEmpty()) << "a cancelled export writes nothing and says nothing";
}

int pageCount(const QByteArray& pdf)
{
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page(?!s)"));
    return int(QString::fromLatin1(pdf).count(page));
}

TEST_F(WaveWindowTest, PrintSendsOnePageAndPutsTheWindowBack)
{
    frmWave& wave = open();
    wave.setWindowTitle("Wave0");
    WaveRecords[0].DateText = "2026-11-21 09:30:00";
    const QSize shown = wave.picture().size();
    QTemporaryDir dir;
    const QString pdf = dir.filePath("page.pdf");
    const PrinterChooser previous = SetPrinterChooser([&pdf](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return true;
    });
    const QDateTime started = QDateTime::currentDateTime().addSecs(-1);

    control<QPushButton>("cmdPrint")->click();
    SetPrinterChooser(previous);

    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(pageCount(file.readAll()), 1);
    // Atomic writes let other windows' prints replace the file meanwhile; all are 700 by 500.
    EXPECT_GE(QFileInfo(PrintImagePath()).lastModified(), started);
    const QImage kept(PrintImagePath());
    EXPECT_EQ(kept.size(), QSize(700, 500)) << "the print image is drawn at zoom 2";
    EXPECT_DOUBLE_EQ(wave.zoom(), 1.0);
    EXPECT_EQ(wave.picture().size(), shown);
    EXPECT_TRUE(platform->boxes.isEmpty());
}

TEST_F(WaveWindowTest, PreviewShowsThePageAndPutsTheWindowBack)
{
    frmWave& wave = open();
    const QSize shown = wave.picture().size();
    bool previewed = false;
    QTimer::singleShot(0, [&previewed] {
        QWidget* preview = QApplication::activeModalWidget();
        previewed = preview != nullptr;
        if (preview) preview->close();
    });
    control<QPushButton>("cmdPreview")->click();
    EXPECT_TRUE(previewed);
    EXPECT_DOUBLE_EQ(wave.zoom(), 1.0);
    EXPECT_EQ(wave.picture().size(), shown);
}

TEST(PicturePage, PlacesTheImageAtItsPlaceInInches)
{
    QImage page(850, 1100, QImage::Format_RGB32);
    page.fill(Qt::white);
    QImage picture(70, 50, QImage::Format_RGB32);
    picture.fill(Qt::red);
    {
        QPainter painter(&page);
        PaintPicturePage(painter, 100, {"Wave0", "2026-11-21", picture});
    }
    EXPECT_EQ(page.pixel(61, 201), qRgb(255, 0, 0)) << "left 0.6, top 2.0";
    EXPECT_EQ(page.pixel(787, 719), qRgb(255, 0, 0)) << "width 7.28, height 5.2";
    EXPECT_EQ(page.pixel(59, 199), qRgb(255, 255, 255));
    EXPECT_EQ(page.pixel(790, 722), qRgb(255, 255, 255));
}

} // namespace
