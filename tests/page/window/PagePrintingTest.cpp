#include "page/window/PagePrinting.h"

#include "page/model/Canvas.h"
#include "page/painting/PageExport.h"
#include "support/TestDirectory.h"

#include <QPageLayout>
#include <QPrinter>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

class PagePrinting : public testing::Test, protected TestDirectory {
protected:
  PagePrinting() {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("printed.pdf"));
  }
  QString info() const {
    QProcess reader;
    reader.start("pdfinfo", {path("printed.pdf")});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
  }

  const Canvas canvas; // an A4 sheet that lies
  QPrinter printer;
};

TEST_F(PagePrinting, hasTheSizeOfItsSheetOnAPaperOfThatSize) {
  printer.setPageLayout(sheetLayout(canvas.paperSize()));
  EXPECT_EQ(printPage(canvas, printer), 1);
  EXPECT_TRUE(info().contains("842 x 595 pts (A4)")) << qPrintable(info());
}

TEST_F(PagePrinting, shrinksOnASmallerPaper) {
  printer.setPageLayout(sheetLayout({210, 148}));
  EXPECT_NEAR(printPage(canvas, printer), 148.0 / 210, 0.005);
  EXPECT_TRUE(info().contains("595 x 420 pts (A5)")) << qPrintable(info());
}

TEST_F(PagePrinting, keepsOutOfTheMargins) {
  QPageLayout layout = sheetLayout(canvas.paperSize());
  layout.setUnits(QPageLayout::Millimeter);
  layout.setMargins({21, 21, 21, 21});
  printer.setPageLayout(layout);
  EXPECT_NEAR(printPage(canvas, printer), 0.8, 0.005) << "of 210 mm remain 168";
}

TEST_F(PagePrinting, keepsItsSizeOnALargerPaper) {
  printer.setPageLayout(sheetLayout({420, 297}));
  EXPECT_EQ(printPage(canvas, printer), 1);
}

} // namespace
