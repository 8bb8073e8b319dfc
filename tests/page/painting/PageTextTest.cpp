#include "page/painting/PageText.h"

#include "page/Painted.h"
#include "page/SamplePage.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace TVR::Page;

std::unique_ptr<TextItem> text(const QString& html, const QRectF& box) {
  auto item = std::make_unique<TextItem>(1);
  item->html = html;
  item->position = box.topLeft();
  item->size = box.size();
  item->pen = Qt::NoPen;
  return item;
}

TEST(PageText, aPointIsTheSeventySecondPartOfAnInch) {
  // A capital letter of this font and its likes is about 0.7 of the size high.
  const QImage image =
      Painted::item({60, 40}, text("<span style=\"font-size:72pt\">H</span>", {0, 0, 60, 40}));
  EXPECT_NEAR(Painted::inkBox(image).height() / 25.4, 0.7, 0.03);
}

TEST(PageText, linesBreakAtTheWidthOfTheBox) {
  const QString words = "Several words that do not fit one line of this box";
  const double oneLine =
      Painted::inkBox(Painted::item({60, 40}, text("Words", {0, 0, 30, 40}))).height();
  const QRectF ink = Painted::inkBox(Painted::item({60, 40}, text(words, {0, 0, 30, 40})));
  EXPECT_GT(ink.height(), 2 * oneLine);
  EXPECT_LT(ink.right(), 30);
}

TEST(PageText, aTextThatDoesNotWrapIsMadeSmaller) {
  auto item = text("Several words that do not fit one line of this box", {0, 0, 30, 40});
  item->wraps = false;
  EXPECT_LT(textItemScale(*item), 0.6);
  const QRectF ink = Painted::inkBox(Painted::item({60, 40}, std::move(item)));
  EXPECT_LT(ink.right(), 30);
  EXPECT_LT(ink.height(), 5);
}

TEST(PageText, aTableOfTwentyFiveRowsFitsTheSummaryAtItsSize) {
  const auto item = text(Sample::summaryTable(25), {187.5, 7.5, 100, 125});
  EXPECT_EQ(textItemScale(*item), 1);
}

TEST(PageText, aLongerTableIsMadeSmallerJustSoFarThatItFits) {
  auto item = text(Sample::summaryTable(40), {0, 0, 100, 125});
  const double scale = textItemScale(*item);
  EXPECT_LT(scale, 0.9);
  EXPECT_GT(scale, 0.6);
  const QRectF ink = Painted::inkBox(Painted::item({120, 140}, std::move(item)));
  EXPECT_LT(ink.bottom(), 125);
  EXPECT_GT(ink.bottom(), 115);
  EXPECT_LT(ink.right(), 100);
}

TEST(PageText, itStaysOnASheetThatItsBoxReachesBeyond) {
  const QString address = QString("Street of the Long Name 123, ").repeated(20);
  const QRectF ink = Painted::inkBox(Painted::item({60, 40}, text(address, {5, 20, 100, 5})));
  EXPECT_LT(ink.right(), 55);
  EXPECT_GT(ink.right(), 50);
  EXPECT_LT(ink.bottom(), 25);
  const QRectF low = Painted::inkBox(Painted::item({60, 40}, text(address, {5, 2, 50, 80})));
  EXPECT_LT(low.bottom(), 38);
}

TEST(PageText, itKeepsItsMargin) {
  auto item = text("H", {10, 10, 40, 20});
  item->margin = 5;
  EXPECT_GT(Painted::inkBox(Painted::item({60, 40}, std::move(item))).left(), 15);
}

TEST(PageText, aFrameIsDrawnAroundTheBox) {
  auto item = text("", {10, 10, 40, 20});
  item->pen = QPen(Qt::black, 0.3);
  const QRectF ink = Painted::inkBox(Painted::item({60, 40}, std::move(item)));
  EXPECT_NEAR(ink.left(), 10, 0.3);
  EXPECT_NEAR(ink.bottom(), 30, 0.3);
}

TEST(PageText, noPenMeansNoFrame) {
  EXPECT_TRUE(Painted::inkBox(Painted::item({60, 40}, text("", {10, 10, 40, 20}))).isEmpty());
}

TEST(PageText, theColourOfTheItemIsTheColourOfItsText) {
  auto item = text("<span style=\"font-size:72pt\">H</span>", {0, 0, 60, 40});
  item->colour = QColor(255, 170, 0);
  const QImage image = Painted::item({60, 40}, std::move(item));
  const QRectF ink = Painted::inkBox(image);
  EXPECT_EQ(Painted::at(image, ink.center()), QColor(255, 170, 0));
}

TEST(PageText, aColourInTheTextComesFirst) {
  auto item = text("<span style=\"font-size:72pt;color:#6EA5A5\">H</span>", {0, 0, 60, 40});
  item->colour = QColor(255, 170, 0);
  const QImage image = Painted::item({60, 40}, std::move(item));
  EXPECT_EQ(Painted::at(image, Painted::inkBox(image).center()), QColor("#6EA5A5"));
}

TEST(PageText, anUprightTextUsesTheHeightOfItsBox) {
  auto item = text("Upright text", {20, 5, 6, 30});
  item->rotation = -90;
  EXPECT_EQ(textItemScale(*item), 1);
  const QRectF ink = Painted::inkBox(Painted::item({60, 40}, std::move(item)));
  EXPECT_GT(ink.height(), 2 * ink.width());
  EXPECT_TRUE(QRectF(20, 5, 6, 30).contains(ink));
}

TEST(PageText, itOpensNoFileThatItNames) {
  const QTemporaryDir directory;
  const QString picture = directory.filePath("picture.png");
  QImage red(300, 300, QImage::Format_RGB32);
  red.fill(Qt::red);
  ASSERT_TRUE(red.save(picture));
  ASSERT_EQ(mkfifo(directory.filePath("pipe").toUtf8().constData(), 0600), 0);
  for (const QString& name : {picture, "file://" + picture, directory.filePath("pipe")}) {
    const QString html = QStringLiteral("<link rel=stylesheet href='%1'><body background='%1'>"
                                        "<img src='%1' width=90 height=90></body>")
                             .arg(name);
    EXPECT_TRUE(Painted::inkBox(Painted::item({60, 40}, text(html, {0, 0, 60, 40}))).isEmpty())
        << name.toStdString();
  }
}

TEST(PageText, aHiddenTextIsNotDrawn) {
  auto item = text("H", {10, 10, 40, 20});
  item->pen = QPen(Qt::black, 0.3);
  item->visible = false;
  EXPECT_TRUE(Painted::inkBox(Painted::item({60, 40}, std::move(item))).isEmpty());
}

TEST(PageText, aBoxWithoutRoomDrawsNothing) {
  EXPECT_TRUE(Painted::inkBox(Painted::item({60, 40}, text("H", {10, 10, 1, 1}))).isEmpty());
}

TEST(PageText, itIsAsWideOnEveryResolution) {
  const auto widthAt = [](double pixels) {
    const int width = qRound(60 * pixels);
    QImage image(width, width, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixels, pixels);
    drawText(painter, {5, 5}, Qt::AlignLeft | Qt::AlignTop, "Horizontal extension",
             QFont("Arial", 12));
    painter.end();
    int last = 0;
    for (int y = 0; y < width; ++y)
      for (int x = last; x < width; ++x)
        if (qGray(image.pixel(x, y)) < 128)
          last = x;
    return (last + 1) / pixels;
  };
  EXPECT_NEAR(widthAt(5), widthAt(40), 0.3);
}

} // namespace
