#include "page/PageSamples.h"
#include "page/document/FieldReader.h"
#include "page/document/PageDocument.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

/// Documents that nobody in their right mind wrote.
class HostileDocument : public testing::Test {
protected:
  bool load(const QString& items) { return readPage(canvas, Samples::page(items)); }
  /// The page can still be worked with, and what it saves is a page again.
  void expectUsable() {
    const QByteArray saved = writePage(canvas);
    Canvas again;
    ASSERT_TRUE(readPage(again, saved));
    EXPECT_EQ(writePage(again).toStdString(), saved.toStdString());
  }
  Canvas canvas;
};

/// A PNG of this size with no picture elements behind its header.
QByteArray pngHeader(int side) {
  QImage image(1, 1, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  for (const int place : {16, 20})
    for (int byte = 0; byte < 4; ++byte)
      bytes[place + byte] = static_cast<char>(side >> (24 - 8 * byte));
  quint32 sum = 0xffffffff;
  for (int place = 12; place < 29; ++place) {
    sum ^= static_cast<quint8>(bytes[place]);
    for (int bit = 0; bit < 8; ++bit)
      sum = (sum >> 1) ^ (sum & 1 ? 0xedb88320 : 0);
  }
  sum ^= 0xffffffff;
  for (int byte = 0; byte < 4; ++byte)
    bytes[29 + byte] = static_cast<char>(sum >> (24 - 8 * byte));
  return bytes;
}

QString picture(const QByteArray& data) {
  return Samples::item(1, "GraphicsPixmapItem", "Logo", "<Picture>" + data + "</Picture>");
}

TEST_F(HostileDocument, anEntityBombIsNoPage) {
  EXPECT_FALSE(readPage(canvas, "<!DOCTYPE GraphicWidgetExport [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b "
                                "'&a;&a;&a;&a;'>]><CanvasEx bgColor='&b;'/>"));
  expectUsable();
}

TEST_F(HostileDocument, itemsAHundredThousandDeepAreNoPage) {
  EXPECT_FALSE(load(QString("<Item><Children>").repeated(50000) +
                    QString("</Children></Item>").repeated(50000)));
  expectUsable();
}

TEST_F(HostileDocument, itemsDeeperThanAPageCouldHaveAreNoPage) {
  const auto nested = [](int depth) {
    return QString("<Item><Children>").repeated(depth) +
           QString("</Children></Item>").repeated(depth);
  };
  EXPECT_FALSE(load(nested(31)));
  EXPECT_TRUE(load(nested(30)));
  expectUsable();
}

TEST_F(HostileDocument, anItemWithVeryManyAttributesIsNoPage) {
  QString attributes;
  for (int index = 0; index < 1000; ++index)
    attributes += QStringLiteral(" a%1=''").arg(index);
  EXPECT_TRUE(load("<Item" + attributes + "/>"));
  EXPECT_FALSE(load("<Item more=''" + attributes + "/>"));
  expectUsable();
}

TEST_F(HostileDocument, moreItemsThanAPageCouldHaveAreNoPage) {
  EXPECT_FALSE(load(QString("<Item/>").repeated(10'001)));
  EXPECT_TRUE(load(QString("<Item/>").repeated(10'000)));
  expectUsable();
}

TEST_F(HostileDocument, anElementAHundredThousandDeepIsNotImported) {
  readPage(canvas, Samples::smallPage());
  QDomDocument document;
  QDomElement deepest = document.createElement("Item");
  QDomElement outermost = deepest;
  for (int level = 0; level < 20000; ++level) {
    outermost = document.createElement("Item");
    outermost.appendChild(deepest);
    deepest = outermost;
  }
  EXPECT_EQ(importItem(canvas, Samples::map, outermost), 0);
  expectUsable();
}

TEST_F(HostileDocument, sizesBelowZeroAreNoSizes) {
  load("<Item id=\"1\" Type=\"GraphicsTextItem\"><Size Width=\"-500\" Height=\"1e400\"/></Item>");
  EXPECT_EQ(canvas.item(1)->size, QSizeF(0, 0));
  expectUsable();
}

TEST_F(HostileDocument, numbersThatAreNotFiniteAreLeftOut) {
  load("<Item id=\"1\" Type=\"GraphicsPlotItem\"><Position X=\"nan\" Y=\"inf\"/>"
       "<Axis><XAxis Min=\"nan\" Max=\"-inf\"/></Axis></Item>");
  EXPECT_EQ(canvas.item(1)->position, QPointF(0, 0));
  EXPECT_EQ(canvas.item<PlotItem>(1)->x.minimum, 0);
  EXPECT_EQ(canvas.item<PlotItem>(1)->x.maximum, 1);
  expectUsable();
}

TEST_F(HostileDocument, aSheetThatNobodyCouldShowIsA4) {
  for (const char* side : {"0", "-29.7", "1e300", "nan", ""}) {
    readPage(
        canvas,
        QString("<CanvasEx><Pagesize Width=\"%1\" Height=\"21\"/></CanvasEx>").arg(side).toUtf8());
    EXPECT_EQ(canvas.paperSize(), QSizeF(297, 210)) << side;
  }
}

TEST_F(HostileDocument, aNextItemIdAtTheEndOfTheNumbersIsNotTakenOver) {
  readPage(canvas, "<CanvasEx NextItemId=\"2147483647\"><Items><Item id=\"1\" "
                   "Type=\"GraphicsPlotItem\"/></Items></CanvasEx>");
  EXPECT_EQ(canvas.addGridData(1), 2);
}

TEST_F(HostileDocument, aGridThatSelectsADataSetThatIsNotThereSelectsTheFirst) {
  load("<Item id=\"1\" Type=\"GraphicsGridDataItem\"><Grid SelectedSet=\"7\"/></Item>"
       "<Item id=\"2\" Type=\"GraphicsIsolineItem\"><Isoline DataSet=\"-1\"/></Item>");
  EXPECT_EQ(canvas.item<GridDataItem>(1)->selectedSet, StartValues);
  EXPECT_EQ(canvas.item<IsolineItem>(2)->dataSet, Drawdowns);
  expectUsable();
}

TEST_F(HostileDocument, aGridWhoseListsDoNotFitIsAGrid) {
  load("<Item id=\"3\" Type=\"GraphicsPlotItem\"><Children>"
       "<Item id=\"5\" Type=\"GraphicsGridDataItem\"><Nodes>0 0 1 0 nan 1 5</Nodes>"
       "<Cells>0 1 2 99 -1 -2147483648 2147483647 99999999999 4 5</Cells><Centres>0.5</Centres>"
       "<Head><Values>1 2 x</Values><Levels><Entry Type=\"double\" Value=\"1.5\"/></Levels>"
       "<Isolines>5 3 44</Isolines></Head></Item></Children></Item>");
  const auto* grid = canvas.item<GridDataItem>(5);
  EXPECT_EQ(grid->mesh.nodes, std::vector<QPointF>({{0, 0}, {1, 0}, {0, 0}}));
  EXPECT_EQ(grid->mesh.cells.size(), 2U);
  EXPECT_TRUE(grid->mesh.centres.empty());
  EXPECT_TRUE(grid->sets[Drawdowns].isolines.empty());
  canvas.redraw(5);
  EXPECT_EQ(canvas.childItems(5).size(), 1);
  expectUsable();
}

TEST_F(HostileDocument, linesThatAreNotTheGridsOwnAreNotItsLines) {
  load("<Item id=\"5\" Type=\"GraphicsGridDataItem\"><Children>"
       "<Item id=\"6\" Type=\"GraphicsIsolineItem\"><Isoline DataSet=\"1\"/></Item>"
       "<Item id=\"7\" Type=\"GraphicsTextItem\"/></Children>"
       "<Head><Isolines>5 6 6 7 8</Isolines></Head>"
       "<Temperature><Isolines>6 8</Isolines></Temperature></Item>"
       "<Item id=\"8\" Type=\"GraphicsIsolineItem\"><Isoline DataSet=\"2\"/></Item>");
  EXPECT_EQ(canvas.item<GridDataItem>(5)->sets[Drawdowns].isolines, std::vector<int>({6}));
  EXPECT_TRUE(canvas.item<GridDataItem>(5)->sets[Temperature].isolines.empty());
  canvas.removeItem(8);
  canvas.redraw(5);
  expectUsable();
}

TEST_F(HostileDocument, listsTogetherHoldNoMoreNumbersThanAllowed) {
  QDomDocument document;
  document.setContent(QByteArray("<a><b>1 2 3</b><c>4 5 6</c><d>7</d></a>"));
  ReadBudget budget;
  budget.numbers = 5;
  const FieldReader fields(document.documentElement(), budget);
  std::vector<double> values;
  fields.child("b").list(values);
  EXPECT_EQ(values, std::vector<double>({1, 2, 3}));
  fields.child("c").list(values);
  EXPECT_EQ(values, std::vector<double>({4, 5}));
  fields.child("d").list(values);
  EXPECT_TRUE(values.empty());
}

TEST_F(HostileDocument, aPictureOfAHundredThousandByAHundredThousandIsNotDecoded) {
  const QByteArray png = pngHeader(100000);
  QBuffer buffer;
  buffer.setData(png);
  ASSERT_TRUE(load(picture(png.toBase64())));
  EXPECT_TRUE(canvas.item<PictureItem>(1)->image.isNull());
  expectUsable();
}

TEST_F(HostileDocument, aPictureOfRubbishIsEmpty) {
  for (const QByteArray& data : {QByteArray("////"), QByteArray("no base64 at all"),
                                 QByteArray("iVBORw0KGgo="), pngHeader(300).toBase64()}) {
    ASSERT_TRUE(load(picture(data)));
    expectUsable();
  }
  EXPECT_TRUE(load(picture("****")));
  EXPECT_TRUE(canvas.item<PictureItem>(1)->image.isNull());
}

TEST_F(HostileDocument, manyPicturesTogetherAskForNoMoreThanOne) {
  QImage image(9000, 9000, QImage::Format_Mono);
  image.fill(0);
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  QString items;
  for (int id = 1; id <= 20; ++id)
    items +=
        Samples::item(id, "GraphicsPixmapItem", "Map", "<Picture>" + png.toBase64() + "</Picture>");
  ASSERT_TRUE(load(items));
  int shown = 0;
  for (int id = 1; id <= 20; ++id)
    shown += canvas.item<PictureItem>(id)->image.isNull() ? 0 : 1;
  EXPECT_EQ(shown, 1);
}

TEST_F(HostileDocument, valuesInsideEachOtherAHundredDeepAreCutOff) {
  load("<Item id=\"1\" Type=\"GraphicsTextItem\"><Properties><Property Number=\"201\" "
       "Type=\"QVariantList\">" +
       QString("<Entry Type=\"QVariantList\">").repeated(100) + QString("</Entry>").repeated(100) +
       "</Property><Property Number=\"-1\" Type=\"int\" Value=\"1\"/>"
       "<Property Number=\"202\" Type=\"QWidget*\" Value=\"1\"/></Properties></Item>");
  EXPECT_EQ(canvas.property(1, 201).toList().size(), 1);
  EXPECT_FALSE(canvas.property(1, 202).isValid());
  expectUsable();
}

TEST_F(HostileDocument, fontsPensAndColoursStayWithinReason) {
  load("<Item id=\"1\" Type=\"GraphicsTextItem\"><Pen Style=\"99\" Width=\"1e300\" "
       "Color=\"no colour\"/><DefaultFont PointSize=\"-5\" Weight=\"1000\"/></Item>"
       "<Item id=\"2\" Type=\"GraphicsTextItem\"><DefaultFont PointSize=\"1e30\"/></Item>");
  const auto* text = canvas.item<TextItem>(1);
  EXPECT_EQ(text->pen.style(), Qt::SolidLine);
  EXPECT_LE(text->pen.widthF(), 1000);
  EXPECT_GT(text->font.pointSizeF(), 0);
  EXPECT_LE(canvas.item<TextItem>(2)->font.pointSizeF(), 500);
  expectUsable();
}

} // namespace
