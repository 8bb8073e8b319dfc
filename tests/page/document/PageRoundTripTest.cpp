#include "page/PageSamples.h"
#include "page/document/PageDocument.h"
#include "page/model/ItemProperties.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

QPixmap chequered() {
  QImage image(5, 3, QImage::Format_ARGB32);
  for (int x = 0; x < 5; ++x)
    for (int y = 0; y < 3; ++y)
      image.setPixelColor(x, y, QColor(40 * x, 80 * y, 7, 255 - 20 * x));
  return QPixmap::fromImage(image);
}

/// A value for each property, other than the one that a new item has.
const std::map<int, QVariant>& otherValues() {
  static const std::map<int, QVariant> values = {
      {Name, "Carte <b>\"d'été\"</b> & more"},
      {Title, "Grille"},
      {Brush, QBrush(QColor(10, 20, 30, 40), Qt::Dense3Pattern)},
      {FramePen, QPen(QColor(1, 2, 3), 0.37, Qt::DashDotLine, Qt::RoundCap, Qt::MiterJoin)},
      {LineColour, QColor(200, 100, 50)},
      {LineStyle, 2},
      {InMapCoordinates, true},
      {InLegend, false},
      {Position, QPointF(12.34, -0.1)},
      {Visible, false},
      {Size, QSizeF(33.3, 44.7)},
      {MarginTop, 1.1},
      {MarginLeft, 2.2},
      {MarginRight, 3.3},
      {MarginBottom, 4.4},
      {TextRotation, 90.0},
      {GridPen, QVariantMap{{"QPen", QPen(Qt::red, 0.2, Qt::DotLine)}, {"WidthMM", 0.3}}},
      {ClipsChildren, false},
      {LegendText, QVariantMap{{"Text", "Légende\n2"}, {"Font", QFont("Arial", 13, QFont::Bold)}}},
      {UniformScale, true},
      {XAutoScale, false},
      {YAutoScale, false},
      {XWholeTicks, true},
      {YWholeTicks, true},
      {XMinimum, 680123.456789},
      {XMaximum, 680999.1},
      {XNumberFormat, "%2f"},
      {YMinimum, -0.1},
      {YMaximum, 1e-7},
      {YNumberFormat, "%3f"},
      {CurveStyle, 4},
      {Symbol, QVariantMap{{"Width", 25.0}, {"Height", 20.5}, {"Type", 2}}},
      {Points, Samples::line({{0.1, 0.2}, {680123.4567890123, -3}, {5, 6}, {7, 8}})},
      {Breaks, QVariantList{2, 4}},
      {ShownLevel, 2.5},
      {LabelDensity, 7},
      {LabelsVisible, false},
      {Html, "<b>100 %</b>\n <i>\t&eacute;</i> "},
      {TextColour, QColor(255, 170, 0, 128)},
      {TextMargin, 0.1},
      {WrapsText, false},
      {Pixmap, chequered()},
      {PictureFile, "/nonexistent/carte d'été.png"},
      {LegendColumns, 3},
      {Levels, QVariantList{1.5, "2.50", "high"}},
      {ElementKind, "element"},
      {Level, 3.25},
      {ShowsMesh, true},
      {ShowsNodes, true},
      {Values, QVariantList{0.1, 1e300, -2.5, 4.0, 5.0, 6.0}},
      {SetTitle, "Temperature"},
      {SetLevelsByRange, true},
      {ColourScaleEntry, QVariantList{0, -1.5, QColor(Qt::blue)}},
      {MeshColour, QColor(9, 8, 7)},
      {XAxisHidden, true},
      {YAxisOnRight, true},
      {PointMarks,
       QVariantList{QVariantMap{{"Text", "Puits <1>"}, {"Symbol", 6}, {"Legend", "Pompage"}}}},
  };
  return values;
}

/// The properties that are written with the mesh, or follow from others.
bool comesWithTheMesh(int number) {
  for (const int one :
       {IsolineIds, ValueCount, SelectedSet, Value, NodeCount, Node, CellCount, CellShape, Cell})
    if (one == number)
      return true;
  return false;
}

class PageRoundTrip : public testing::Test {
protected:
  PageRoundTrip() {
    readPage(canvas, Samples::smallPage());
    const int curve = canvas.addCurve(Samples::map, {}, true);
    const int picture = canvas.addPicture(Samples::map, {1, 2}, {3, 4});
    const int grid = Samples::addGrid(canvas, 3, 2);
    canvas.setProperty(grid, Levels, QVariantList{1.0});
    ids = {Samples::map, Samples::summary, Samples::legend, Samples::logo, curve, picture, grid};
    ids.push_back(canvas.childItems(grid).front());
  }

  /// Sets every property on every item, the pixmap after the file that replaces it. Of pixels only
  /// pictures are kept.
  void setEverything() {
    for (const int id : ids)
      for (const auto& [number, value] : otherValues())
        if (number != Pixmap)
          canvas.setProperty(id, number, value);
    for (const int id : ids)
      if (canvas.item<PictureItem>(id))
        canvas.setProperty(id, Pixmap, otherValues().at(Pixmap));
  }

  static bool isSame(const QVariant& one, const QVariant& other) {
    if (one.userType() == QMetaType::QPixmap)
      return one.value<QPixmap>().toImage().convertToFormat(QImage::Format_ARGB32) ==
             other.value<QPixmap>().toImage().convertToFormat(QImage::Format_ARGB32);
    return one.userType() == other.userType() && one == other;
  }

  Canvas canvas;
  std::vector<int> ids;
};

TEST_F(PageRoundTrip, isTestedWithAValueForEveryPropertyOfTheTable) {
  for (const int number : knownProperties())
    EXPECT_TRUE(comesWithTheMesh(number) || otherValues().count(number)) << number;
}

TEST_F(PageRoundTrip, isTestedWithValuesThatNewItemsDoNotHave) {
  std::map<int, bool> differs;
  for (const int id : ids)
    for (const auto& [number, value] : otherValues())
      differs[number] = differs[number] || !isSame(canvas.property(id, number), value);
  for (const auto& [number, isOther] : differs)
    EXPECT_TRUE(isOther) << number;
}

TEST_F(PageRoundTrip, bringsBackEveryPropertyOfEveryItem) {
  setEverything();
  Canvas again;
  ASSERT_TRUE(readPage(again, writePage(canvas)));
  for (const int id : ids)
    for (const int number : knownProperties())
      if (!isSame(canvas.property(id, number), again.property(id, number)))
        ADD_FAILURE() << "property " << number << " of item " << id << " came back as "
                      << again.property(id, number).toString().toStdString();
}

TEST_F(PageRoundTrip, writesTheSameBytesTheSecondTime) {
  setEverything();
  const QByteArray first = writePage(canvas);
  Canvas again;
  readPage(again, first);
  EXPECT_EQ(writePage(again).toStdString(), first.toStdString());
}

TEST_F(PageRoundTrip, writesTheSameBytesOverAndOver) {
  setEverything();
  EXPECT_EQ(writePage(canvas).toStdString(), writePage(canvas).toStdString());
}

TEST_F(PageRoundTrip, survivesADomDocumentInBetween) {
  setEverything();
  QDomDocument project;
  ASSERT_TRUE(project.setContent(writePage(canvas)));
  Canvas again;
  ASSERT_TRUE(readPage(again, project.toByteArray(1)));
  for (const int id : ids)
    for (const int number : {Name, Html, LegendText, Points, Values, PictureFile, Symbol})
      EXPECT_TRUE(isSame(canvas.property(id, number), again.property(id, number)))
          << "property " << number << " of item " << id;
}

TEST_F(PageRoundTrip, bringsBackTheMeshWithAllDataSets) {
  const int grid = ids[6];
  canvas.setProperty(grid, SelectedSet, Temperature);
  canvas.setProperty(grid, Values, QVariantList{1.0, std::nan(""), 3.0, 0.0, 0.0, 0.0});
  Canvas again;
  readPage(again, writePage(canvas));
  const auto* before = canvas.item<GridDataItem>(grid);
  const auto* after = again.item<GridDataItem>(grid);
  EXPECT_EQ(after->mesh.nodes, before->mesh.nodes);
  EXPECT_EQ(after->mesh.cells, before->mesh.cells);
  EXPECT_EQ(after->mesh.centres, before->mesh.centres);
  EXPECT_EQ(after->sets[StartValues].values, before->sets[StartValues].values);
  EXPECT_EQ(after->sets[Drawdowns].values, before->sets[Drawdowns].values);
  EXPECT_EQ(after->sets[Temperature].values[0], 1.0);
  EXPECT_TRUE(std::isnan(after->sets[Temperature].values[1]));
  EXPECT_EQ(after->selectedSet, Temperature);
}

TEST_F(PageRoundTrip, bringsBackTheLinesWithTheirIds) {
  const int grid = ids[6];
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_EQ(again.childItems(grid), canvas.childItems(grid));
  EXPECT_EQ(again.property(grid, IsolineIds), canvas.property(grid, IsolineIds));
  const int line = ids[7];
  EXPECT_EQ(again.property(line, Points), canvas.property(line, Points));
  EXPECT_FALSE(again.property(line, Points).value<QPolygonF>().isEmpty());
}

TEST_F(PageRoundTrip, goesOnTracingTheLinesThatItBroughtBack) {
  Canvas again;
  readPage(again, writePage(canvas));
  again.setProperty(ids[6], Levels, QVariantList{2.0});
  EXPECT_EQ(again.childItems(ids[6]), QList<int>({ids[7]}));
  EXPECT_NEAR(again.property(ids[7], Points).value<QPolygonF>()[0].x(), 2.0, 1e-9);
}

TEST_F(PageRoundTrip, keepsTextsThatXmlReadersWouldChange) {
  for (const QString text :
       {" ", "\n\t ", "a\r\nb", "\rx", " x ", "]]>", "\x01\x02z\xef\xbf\xbf"}) {
    canvas.setProperty(Samples::summary, Html, text);
    canvas.setProperty(Samples::summary, Name, text);
    Canvas again;
    ASSERT_TRUE(readPage(again, writePage(canvas)));
    QString expected = text;
    expected.remove(QChar(1)).remove(QChar(2)).remove(QChar(0xffff));
    EXPECT_EQ(again.property(Samples::summary, Html).toString(), expected);
    EXPECT_EQ(again.property(Samples::summary, Name).toString(), expected);
  }
}

TEST_F(PageRoundTrip, canBeReadAgainWhateverAnImportedItemBrings) {
  QDomDocument other;
  QDomElement item = other.createElement("Item");
  item.setAttribute("Type", "GraphicsGridDataItem");
  item.setAttribute("Unknown", "a\x01");
  item.appendChild(other.createElement("Unknown")).appendChild(other.createTextNode("b\x02"));
  const int grid = importItem(canvas, Samples::map, item);
  ASSERT_GT(grid, 0);
  Canvas again;
  EXPECT_TRUE(readPage(again, writePage(canvas)));
  EXPECT_NE(again.item(grid), nullptr);
}

TEST_F(PageRoundTrip, keepsAnInvalidColour) {
  canvas.setProperty(ids[7], LineColour, QColor());
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_FALSE(again.property(ids[7], LineColour).value<QColor>().isValid());
}

TEST_F(PageRoundTrip, keepsTheNumberOfTheNextItem) {
  const int removed = canvas.addGridData(Samples::map);
  canvas.removeItem(removed);
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_EQ(again.addGridData(Samples::map), removed + 1);
}

TEST_F(PageRoundTrip, keepsTheOrderOfItems) {
  canvas.moveToBackground(ids[5]);
  canvas.moveToBackground(Samples::logo);
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_EQ(again.childItems(Samples::map), canvas.childItems(Samples::map));
  EXPECT_EQ(again.items().front()->id, Samples::logo);
}

TEST_F(PageRoundTrip, writesAPageThatWasNeverRead) {
  Canvas fresh;
  Canvas again;
  ASSERT_TRUE(readPage(again, writePage(fresh)));
  EXPECT_EQ(again.paperSize(), fresh.paperSize());
  EXPECT_EQ(again.background(), fresh.background());
  EXPECT_EQ(writePage(again).toStdString(), writePage(fresh).toStdString());
}

} // namespace
