#include "page/painting/PageExport.h"

#include "page/PageSamples.h"
#include "page/document/PageDocument.h"
#include "page/model/Canvas.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using namespace Sketra_lib::Property;

/// A page of A4 in a directory of its own.
class PageExport : public testing::Test, protected TestDirectory {
protected:
  PageExport() {
    EXPECT_TRUE(directory.isValid());
    EXPECT_TRUE(readPage(canvas_, Samples::smallPage()));
    canvas_.setProperty(Samples::summary, Html, "Groundwater");
  }

  /// What another program prints about a file.
  static QString output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  Canvas canvas_;
};

TEST_F(PageExport, aPdfHasTheSizeOfTheSheet) {
  ASSERT_TRUE(exportPage(canvas_, path("page.pdf")));
  const QString info = output("pdfinfo", {path("page.pdf")});
  const auto size = QRegularExpression(R"(Page size: +([\d.]+) x ([\d.]+) pts)").match(info);
  ASSERT_TRUE(size.hasMatch()) << qPrintable(info);
  EXPECT_NEAR(size.captured(1).toDouble(), 297 / 25.4 * 72, 0.5);
  EXPECT_NEAR(size.captured(2).toDouble(), 210 / 25.4 * 72, 0.5);
  EXPECT_TRUE(info.contains(QRegularExpression("Pages: +1\n")));
}

TEST_F(PageExport, aPdfHoldsItsTextAsText) {
  ASSERT_TRUE(exportPage(canvas_, path("page.pdf")));
  EXPECT_TRUE(output("pdftotext", {path("page.pdf"), "-"}).contains("Groundwater"));
}

TEST_F(PageExport, aPngHasAHundredAndFiftyDotsPerInch) {
  ASSERT_TRUE(exportPage(canvas_, path("page.png")));
  const QImage image(path("page.png"));
  EXPECT_EQ(image.size(), QSize(1754, 1240));
  EXPECT_EQ(image.dotsPerMeterX(), 5906);
  EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(PageExport, anSvgMeasuresInMillimetres) {
  ASSERT_TRUE(exportPage(canvas_, path("page.svg")));
  const QString svg = contentOf(path("page.svg"));
  EXPECT_TRUE(svg.contains("viewBox=\"0 0 297 210\""));
  const auto width = QRegularExpression("width=\"([\\d.]+)mm\"").match(svg);
  ASSERT_TRUE(width.hasMatch());
  EXPECT_NEAR(width.captured(1).toDouble(), 297, 0.05);
  EXPECT_TRUE(svg.contains("Groundwater"));
}

TEST_F(PageExport, aHundredMetresAtOneToFiveHundredAreTwoHundredMillimetresInThePdf) {
  for (const auto& [number, value] : {std::pair(XAutoScale, 0.), std::pair(YAutoScale, 0.)})
    canvas_.setProperty(Samples::map, number, value != 0);
  for (const auto& [number, value] :
       {std::pair(MarginTop, 0.), std::pair(MarginLeft, 0.), std::pair(MarginRight, 0.),
        std::pair(MarginBottom, 0.), std::pair(XMaximum, 125.), std::pair(XMinimum, 0.),
        std::pair(YMaximum, 80.), std::pair(YMinimum, 0.)})
    canvas_.setProperty(Samples::map, number, value);
  canvas_.setProperty(Samples::map, Size, QSizeF(250, 160));
  const int line =
      canvas_.addCurve(Samples::map, QPolygonF(QVector<QPointF>{{10, 40}, {110, 40}}), true);
  canvas_.setProperty(line, LineColour, QColor(Qt::red));
  ASSERT_TRUE(exportPage(canvas_, path("page.pdf")));
  output("pdftoppm", {"-r", "254", "-png", "-singlefile", path("page.pdf"), path("seen")});
  const QImage image(path("seen.png"));
  ASSERT_FALSE(image.isNull());
  QRect red;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (const QColor seen = image.pixelColor(x, y); seen.red() > 200 && seen.green() < 100)
        red |= QRect(x, y, 1, 1);
  EXPECT_NEAR(red.width() / 10., 200, 0.3);
}

TEST_F(PageExport, theEndingCountsInAnyCase) {
  EXPECT_TRUE(exportPage(canvas_, path("page.PNG")));
}

TEST_F(PageExport, anotherEndingIsRefused) {
  EXPECT_FALSE(exportPage(canvas_, path("page.bmp")));
  EXPECT_FALSE(exportPage(canvas_, path("page")));
  EXPECT_FALSE(QFileInfo::exists(path("page.bmp")));
}

TEST_F(PageExport, aDirectoryThatIsNotThereIsRefused) {
  EXPECT_FALSE(exportPage(canvas_, path("nowhere/page.pdf")));
}

TEST_F(PageExport, anOlderFileIsReplaced) {
  QFile old(path("page.svg"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("older");
  old.close();
  ASSERT_TRUE(exportPage(canvas_, path("page.svg")));
  EXPECT_TRUE(contentOf(path("page.svg")).startsWith("<?xml"));
}

TEST_F(PageExport, whatCannotBeReplacedStaysAndNothingLiesBesideIt) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("page.pdf"));
  EXPECT_FALSE(exportPage(canvas_, path("page.pdf")));
  EXPECT_TRUE(QFileInfo(path("page.pdf")).isDir());
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
            QStringList("page.pdf"));
}

} // namespace
