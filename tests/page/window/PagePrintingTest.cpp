#include "page/window/PagePrinting.h"

#include "page/model/Canvas.h"
#include "support/TestDirectory.h"

#include <QPrinter>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

class PagePrinting : public testing::Test, protected TestDirectory {};

TEST_F(PagePrinting, followsTheSizeOfTheSheet) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path("printed.pdf"));
  printPage(Canvas(), printer);
  QProcess reader;
  reader.start("pdfinfo", {path("printed.pdf")});
  reader.waitForFinished();
  const QString info = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_TRUE(info.contains("842 x 595 pts (A4)")) << qPrintable(info);
}

} // namespace
