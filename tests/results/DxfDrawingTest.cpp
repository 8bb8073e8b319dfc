#include "results/DxfDrawing.h"

#include "results/DxfReader.h"
#include "support/TestDirectory.h"

#include <QRegularExpression>

#include <limits>

namespace TVR {
namespace {

QPolygonF polygon(std::initializer_list<QPointF> points) {
  return QVector<QPointF>(points);
}

class DxfDrawingTest : public testing::Test, protected TestDirectory {
protected:
  QString file() const {
    QFile file(path("drawing.dxf"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(drawing.toDxf());
    return file.fileName();
  }
  QStringList entities() const {
    return readByCadLibrary(file()).filter(QRegularExpression("^[A-Z]"));
  }

  DxfDrawing drawing;
};

TEST_F(DxfDrawingTest, anEmptyOneIsADrawingOfRelease12InMetres) {
  const QStringList found = readByCadLibrary(file());
  EXPECT_TRUE(found.contains("version AC1009"));
  EXPECT_TRUE(found.contains("units 6"));
  EXPECT_TRUE(entities().isEmpty());
}

TEST_F(DxfDrawingTest, aLineIsAPolylineOnItsLayer) {
  drawing.addLayer("ISOTHERM_-1_K", Qt::blue);
  drawing.addLine("ISOTHERM_-1_K", polygon({{1, 2}, {3, 4}, {5, 7}}));
  EXPECT_EQ(entities(),
            QStringList{"POLYLINE ISOTHERM_-1_K open 1.0000,2.0000 3.0000,4.0000 5.0000,7.0000"});
  const QString map = readByMapLibrary(file());
  EXPECT_TRUE(map.contains("Layer (String) = ISOTHERM_-1_K")) << map.toStdString();
  EXPECT_TRUE(map.contains("LINESTRING Z (1 2 0,3 4 0,5 7 0)")) << map.toStdString();
}

TEST_F(DxfDrawingTest, aLineThatEndsWhereItBeginsIsClosed) {
  drawing.addLayer("A", Qt::red);
  drawing.addLine("A", polygon({{0, 0}, {1, 0}, {1, 1}, {0, 0}}));
  EXPECT_EQ(entities(), QStringList{"POLYLINE A closed 0.0000,0.0000 1.0000,0.0000 1.0000,1.0000"});
  EXPECT_TRUE(readByMapLibrary(file()).contains("LINESTRING Z (0 0 0,1 0 0,1 1 0,0 0 0)"));
}

TEST_F(DxfDrawingTest, coordinatesOfANationalGridKeepTheirMillimetres) {
  drawing.addLayer("A", Qt::red);
  drawing.addLine("A", polygon({{2681234.5678, 1226701.25}, {-0.0001, 1e-7}}));
  EXPECT_EQ(entities(), QStringList{"POLYLINE A open 2681234.5678,1226701.2500 -0.0001,0.0000"});
}

TEST_F(DxfDrawingTest, pointsThatAreNotFiniteAreLeftOut) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double far = std::numeric_limits<double>::infinity();
  drawing.addLayer("A", Qt::red);
  drawing.addLine("A", polygon({{0, none}, {1, 2}, {far, 0}, {3, 4}}));
  drawing.addLine("A", polygon({{0, none}, {1, 2}}));
  drawing.addPoint("A", {none, 0}, "nowhere");
  EXPECT_EQ(entities(), QStringList{"POLYLINE A open 1.0000,2.0000 3.0000,4.0000"});
}

TEST_F(DxfDrawingTest, aPointHasItsTextBesideIt) {
  drawing.addLayer("WELLS", Qt::blue);
  drawing.addPoint("WELLS", {10, 20}, "Pump");
  EXPECT_EQ(entities(), (QStringList{"POINT WELLS 10.0000,20.0000", "TEXT WELLS Pump"}));
  const QString map = readByMapLibrary(file());
  EXPECT_TRUE(map.contains("POINT Z (10 20 0)")) << map.toStdString();
  EXPECT_TRUE(map.contains("Text (String) = Pump")) << map.toStdString();
}

TEST_F(DxfDrawingTest, textsKeepTheirLettersInBothReaders) {
  const QString name = QString::fromUtf8("Förderbrunnen n° 1 à l'Île");
  drawing.addLayer("A", Qt::red);
  drawing.addPoint("A", {0, 0}, name);
  EXPECT_EQ(entities().value(1), "TEXT A " + name);
  EXPECT_TRUE(readByMapLibrary(file()).contains("Text (String) = " + name));
}

TEST(DxfDrawingText, hasLettersBeyondLatin1ByTheirNumber) {
  EXPECT_EQ(drawingText(QString::fromUtf8("Łódź ü")), "\\U+0141\xF3"
                                                      "d\\U+017A \xFC");
}

TEST_F(DxfDrawingTest, aTextCanNotWriteGroupsOfItsOwn) {
  drawing.addLayer("A", Qt::red);
  drawing.addPoint("A", {0, 0}, "a\n  0\r\nEOF\nb");
  EXPECT_EQ(entities().value(1), "TEXT A a   0  EOF b");
}

TEST_F(DxfDrawingTest, theFirstColourOfALayerHolds) {
  drawing.addLayer("A", Qt::blue);
  drawing.addLayer("A", Qt::red);
  drawing.addLayer("B", QColor(128, 0, 0));
  const QStringList found = readByCadLibrary(file());
  EXPECT_TRUE(found.contains("layer A 5")) << found.join('\n').toStdString();
  EXPECT_TRUE(found.contains("layer B 14")) << found.join('\n').toStdString();
}

TEST_F(DxfDrawingTest, onlyEntitiesOfRelease12AreUsed) {
  drawing.addLayer("A", Qt::red);
  drawing.addLine("A", polygon({{0, 0}, {1, 1}}));
  const QByteArray text = drawing.toDxf();
  EXPECT_TRUE(text.contains("\nPOLYLINE\n8\nA\n66\n1\n")) << "vertices follow";
  EXPECT_FALSE(text.contains("LWPOLYLINE"));
  EXPECT_FALSE(text.contains("AcDb"));
}

TEST_F(DxfDrawingTest, itOpensWithAllThatIsDrawnInView) {
  drawing.addLayer("A", Qt::red);
  drawing.addLine("A", polygon({{1000, 2000}, {1100, 2040}}));
  drawing.addPoint("A", {1050, 1900}, "");
  EXPECT_TRUE(drawing.toDxf().contains("$EXTMIN\n10\n1000.0000\n20\n1900.0000\n"));
  EXPECT_TRUE(drawing.toDxf().contains("$EXTMAX\n10\n1100.0000\n20\n2040.0000\n"));
  EXPECT_TRUE(drawing.toDxf().contains("\n12\n1050.0000\n22\n1970.0000\n")) << "centre of the view";
}

TEST(DxfLayerName, tellsKindLevelAndUnit) {
  EXPECT_EQ(layerName("ISOTHERM", -0.5, "K"), "ISOTHERM_-0_5_K");
  EXPECT_EQ(layerName("ISOHYPSE", 12, "m"), "ISOHYPSE_12_M");
  EXPECT_EQ(layerName("ISOHYPSE", 0.12, "M"), "ISOHYPSE_0_12_M");
}

TEST(DxfLayerName, hasOnlyWhatRelease12Takes) {
  const QRegularExpression allowed("^[A-Z0-9_-]{1,31}$");
  for (const double level :
       {1e300, -1.23456e-300, -123456.0, std::numeric_limits<double>::infinity()})
    EXPECT_TRUE(allowed.match(layerName("ISOHYPSE", level, "M")).hasMatch()) << level;
}

TEST(DxfColour, isTheNearestOfThePalette) {
  EXPECT_EQ(colourIndex(Qt::red), 1);
  EXPECT_EQ(colourIndex(Qt::yellow), 2);
  EXPECT_EQ(colourIndex(Qt::green), 3);
  EXPECT_EQ(colourIndex(Qt::cyan), 4);
  EXPECT_EQ(colourIndex(Qt::blue), 5);
  EXPECT_EQ(colourIndex(Qt::magenta), 6);
  EXPECT_EQ(colourIndex(Qt::black), 7);
  EXPECT_EQ(colourIndex(Qt::white), 7);
  EXPECT_EQ(colourIndex(QColor(255, 127, 0)), 30);
  EXPECT_EQ(colourIndex(QColor(0, 127, 0)), 94);
  EXPECT_EQ(colourIndex(QColor(254, 1, 2)), 1);
}

} // namespace
} // namespace TVR
