#include "page/model/ItemProperties.h"

#include "page/PageSamples.h"

#include <QPixmap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

QVariantMap mapOf(const Item& item, int number) {
  return itemProperty(item, number).toMap();
}

TEST(ItemProperties, aPropertyThatAKindHasNoFieldForIsKept) {
  TextItem text(1);
  EXPECT_FALSE(itemProperty(text, TextAnchor).isValid());
  EXPECT_TRUE(setItemProperty(text, TextAnchor, 0));
  EXPECT_EQ(itemProperty(text, TextAnchor), QVariant(0));
  EXPECT_TRUE(setItemProperty(text, Levels, QVariantList{1.0}));
  EXPECT_EQ(itemProperty(text, Levels).toList().size(), 1);
}

TEST(ItemProperties, aNumberThatNobodyKnowsIsKept) {
  TextItem text(1);
  for (const int number : {-1, 0, 255, 256, 100000}) {
    EXPECT_TRUE(setItemProperty(text, number, "value"));
    EXPECT_EQ(itemProperty(text, number), QVariant("value"));
  }
}

TEST(ItemProperties, theFrameIsRemovedByThePenStyleInAnyForm) {
  for (const QVariant& value :
       {QVariant::fromValue(Qt::NoPen), QVariant(0), QVariant(QPen(Qt::NoPen))}) {
    TextItem text(1);
    ASSERT_NE(text.pen.style(), Qt::NoPen);
    EXPECT_TRUE(setItemProperty(text, FramePen, value));
    EXPECT_EQ(text.pen.style(), Qt::NoPen);
  }
}

TEST(ItemProperties, aPenStyleLeavesColourAndWidthOfThePen) {
  PictureItem picture(1);
  picture.pen = QPen(Qt::red, 0.7);
  setItemProperty(picture, FramePen, QVariant::fromValue(Qt::NoPen));
  EXPECT_EQ(picture.pen.color(), QColor(Qt::red));
  EXPECT_EQ(picture.pen.widthF(), 0.7);
}

TEST(ItemProperties, aBrushComesAsBrushStyleOrColour) {
  CurveItem curve(1);
  setItemProperty(curve, Brush, QBrush(Qt::blue));
  EXPECT_EQ(curve.brush, QBrush(Qt::blue));
  setItemProperty(curve, Brush, QVariant::fromValue(Qt::NoBrush));
  EXPECT_EQ(curve.brush.style(), Qt::NoBrush);
  setItemProperty(curve, Brush, QColor(Qt::red));
  EXPECT_EQ(curve.brush, QBrush(Qt::red));
  setItemProperty(curve, Brush, QVariant::fromValue(Qt::blue));
  EXPECT_EQ(curve.brush, QBrush(QColor(Qt::blue)));
}

TEST(ItemProperties, aSizeComesInWholeOrBrokenNumbers) {
  PictureItem picture(1);
  setItemProperty(picture, Size, QSize(3, 4));
  EXPECT_EQ(itemProperty(picture, Size).toSizeF(), QSizeF(3, 4));
  setItemProperty(picture, Size, QSizeF(3.5, 4.5));
  EXPECT_EQ(itemProperty(picture, Size).toSizeF(), QSizeF(3.5, 4.5));
}

TEST(ItemProperties, aSizeBelowZeroIsRefused) {
  PictureItem picture(1);
  picture.size = {3, 4};
  EXPECT_FALSE(setItemProperty(picture, Size, QSizeF(-1, 4)));
  EXPECT_EQ(picture.size, QSizeF(3, 4));
}

TEST(ItemProperties, aColourComesAsColourOrByTheNumberOfAGlobalOne) {
  GridDataItem grid(1);
  setItemProperty(grid, MeshColour, QColor(1, 2, 3));
  EXPECT_EQ(grid.meshColour, QColor(1, 2, 3));
  setItemProperty(grid, MeshColour, QVariant::fromValue(Qt::darkRed));
  EXPECT_EQ(grid.meshColour, QColor(Qt::darkRed));
  setItemProperty(grid, MeshColour, static_cast<int>(Qt::blue));
  EXPECT_EQ(grid.meshColour, QColor(Qt::blue));
  EXPECT_FALSE(setItemProperty(grid, MeshColour, 9999));
}

TEST(ItemProperties, anIsothermAboveFiveKelvinGetsAnInvalidColourAndNoHarm) {
  IsolineItem isoline(1);
  EXPECT_TRUE(setItemProperty(isoline, LineColour, QColor(-40, 0, 0, 255)));
  EXPECT_FALSE(itemProperty(isoline, LineColour).value<QColor>().isValid());
}

TEST(ItemProperties, aDashedLineIsStyleTwo) {
  IsolineItem isoline(1);
  EXPECT_TRUE(setItemProperty(isoline, LineStyle, 2));
  EXPECT_EQ(isoline.pen.style(), Qt::DashLine);
  EXPECT_EQ(itemProperty(isoline, LineStyle), QVariant(2));
  EXPECT_FALSE(setItemProperty(isoline, LineStyle, 77));
}

TEST(ItemProperties, aCurveThatIsNotVisibleKeepsItsSymbols) {
  CurveItem curve(1);
  setItemProperty(curve, Symbol, QVariantMap{{"Width", 25.0}, {"Height", 25.0}, {"Type", 2}});
  setItemProperty(curve, Visible, false);
  EXPECT_FALSE(curve.visible);
  EXPECT_EQ(curve.symbol, CurveItem::Circle);
  EXPECT_EQ(curve.symbolSize, QSizeF(25, 25));
}

TEST(ItemProperties, aSymbolMapIsReadChangedAndWrittenBack) {
  CurveItem curve(1);
  setItemProperty(curve, Symbol, QVariantMap{{"Width", 10.0}, {"Height", 12.0}, {"Type", 3}});
  QVariantMap symbol = mapOf(curve, Symbol);
  symbol["Width"] = 25.0;
  EXPECT_TRUE(setItemProperty(curve, Symbol, symbol));
  EXPECT_EQ(curve.symbolSize, QSizeF(25, 12));
  EXPECT_EQ(curve.symbol, 3);
}

TEST(ItemProperties, aSymbolThatNobodyCanDrawIsRefused) {
  CurveItem curve(1);
  EXPECT_FALSE(setItemProperty(curve, Symbol, QVariantMap{{"Type", 99}}));
  EXPECT_FALSE(setItemProperty(curve, Symbol, QVariantMap{{"Width", -1.0}}));
  EXPECT_FALSE(setItemProperty(curve, Symbol, QVariantMap()));
  EXPECT_EQ(curve.symbol, CurveItem::NoSymbol);
}

TEST(ItemProperties, pointsAreMarkedOneByOne) {
  CurveItem curve(1);
  const QVariantList marks{
      QVariantMap{{"Text", "Pump"}, {"Symbol", 6}, {"Legend", "Withdrawal wells"}},
      QVariantMap{{"Text", "Idle"}, {"Symbol", 0}, {"Legend", ""}}};
  EXPECT_TRUE(setItemProperty(curve, PointMarks, marks));
  EXPECT_EQ(itemProperty(curve, PointMarks), QVariant(marks));
  EXPECT_EQ(curve.marks[0].text, "Pump");
  EXPECT_EQ(curve.symbolOf(0), CurveItem::WithdrawalWell);
}

TEST(ItemProperties, marksThatNobodyCanDrawAreRefused) {
  CurveItem curve(1);
  for (const QVariant& marks :
       {QVariant("text"), QVariant(QVariantList{QVariantMap{{"Symbol", 99}}}),
        QVariant(QVariantList{QVariantMap{{"Symbol", -1}}})})
    EXPECT_FALSE(setItemProperty(curve, PointMarks, marks));
  EXPECT_TRUE(curve.marks.empty());
}

TEST(ItemProperties, theGridPenIsAMapWithAWidthOfItsOwn) {
  PlotItem plot(1);
  EXPECT_TRUE(
      setItemProperty(plot, GridPen, QVariantMap{{"QPen", QPen(Qt::NoPen)}, {"WidthMM", 0.0}}));
  EXPECT_EQ(plot.gridPen.style(), Qt::NoPen);
  EXPECT_EQ(mapOf(plot, GridPen)["WidthMM"].toDouble(), 0.0);
  EXPECT_EQ(mapOf(plot, GridPen)["QPen"].value<QPen>().style(), Qt::NoPen);
}

TEST(ItemProperties, aLegendTextIsReadChangedAndWrittenBack) {
  IsolineItem isoline(1);
  QVariantMap legend = mapOf(isoline, LegendText);
  legend["Text"] = "Isotherm (3K)";
  legend["Font"] = QFont("Arial", 11);
  EXPECT_TRUE(setItemProperty(isoline, LegendText, legend));
  EXPECT_EQ(isoline.legendText, "Isotherm (3K)");
  EXPECT_EQ(isoline.legendFont.pointSize(), 11);
}

TEST(ItemProperties, aLegendTextAloneLeavesTheFont) {
  PlotItem plot(1);
  const QFont font = plot.legendFont;
  setItemProperty(plot, LegendText, QVariantMap{{"Text", "Legend"}});
  EXPECT_EQ(plot.legendText, "Legend");
  EXPECT_EQ(plot.legendFont, font);
}

TEST(ItemProperties, marginsAreTopLeftRightBottom) {
  PlotItem plot(1);
  for (int side = 0; side < 4; ++side)
    setItemProperty(plot, MarginTop + side, 1.0 + side);
  EXPECT_EQ(plot.margins, QMarginsF(2, 1, 3, 4)); // left, top, right, bottom
}

TEST(ItemProperties, axesAreSetByTheirNumbers) {
  PlotItem plot(1);
  setItemProperty(plot, XMinimum, 1);
  setItemProperty(plot, XMaximum, 2.5);
  setItemProperty(plot, YMinimum, 3);
  setItemProperty(plot, YMaximum, 4);
  setItemProperty(plot, XWholeTicks, 1);
  setItemProperty(plot, XAxisHidden, 1);
  setItemProperty(plot, YAxisOnRight, 1);
  EXPECT_EQ(plot.x.minimum, 1);
  EXPECT_EQ(plot.x.maximum, 2.5);
  EXPECT_EQ(plot.y.minimum, 3);
  EXPECT_EQ(plot.y.maximum, 4);
  EXPECT_TRUE(plot.x.wholeTicks && !plot.y.wholeTicks);
  EXPECT_TRUE(plot.x.hidden && !plot.y.hidden);
  EXPECT_TRUE(plot.y.opposite && !plot.x.opposite);
}

TEST(ItemProperties, aNumberThatIsNotFiniteIsRefused) {
  PlotItem plot(1);
  for (const double value : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_FALSE(setItemProperty(plot, XMaximum, value));
    EXPECT_FALSE(setItemProperty(plot, Position, QPointF(0, value)));
    EXPECT_FALSE(setItemProperty(plot, Size, QSizeF(value, 1)));
  }
  EXPECT_EQ(plot.x.maximum, 1);
}

TEST(ItemProperties, aLineWithPointsThatAreNotFiniteIsRefused) {
  IsolineItem isoline(1);
  EXPECT_FALSE(setItemProperty(isoline, Points, Samples::line({{0, 0}, {std::nan(""), 0}})));
  EXPECT_TRUE(isoline.line.points.isEmpty());
}

TEST(ItemProperties, breaksAreAscendingIndices) {
  IsolineItem isoline(1);
  EXPECT_TRUE(setItemProperty(isoline, Breaks, QVariantList{2, 5}));
  EXPECT_EQ(itemProperty(isoline, Breaks).toList(), QVariantList({2, 5}));
  EXPECT_FALSE(setItemProperty(isoline, Breaks, QVariantList{5, 2}));
  EXPECT_FALSE(setItemProperty(isoline, Breaks, QVariantList{-1}));
}

TEST(ItemProperties, aLineShowsItsLevelUnlessAnotherIsGiven) {
  IsolineItem isoline(1);
  setItemProperty(isoline, Level, 1.5);
  EXPECT_EQ(itemProperty(isoline, ShownLevel), QVariant(1.5));
  setItemProperty(isoline, ShownLevel, 2.0);
  EXPECT_EQ(itemProperty(isoline, ShownLevel), QVariant(2.0));
}

TEST(ItemProperties, valuesMayBeMissingButNotTooMany) {
  GridDataItem grid(1);
  EXPECT_TRUE(setItemProperty(grid, Values, QVariantList{1.0, std::nan(""), "3.5"}));
  ASSERT_EQ(grid.sets[StartValues].values.size(), 3U);
  EXPECT_TRUE(std::isnan(grid.sets[StartValues].values[1]));
  EXPECT_EQ(grid.sets[StartValues].values[2], 3.5);
}

TEST(ItemProperties, aDataSetThatDoesNotExistIsNotSelected) {
  GridDataItem grid(1);
  for (const QVariant& set : {QVariant(-1), QVariant(3), QVariant("head")})
    EXPECT_FALSE(setItemProperty(grid, SelectedSet, set));
  EXPECT_EQ(grid.selectedSet, StartValues);
}

TEST(ItemProperties, titlesBelongToTheSelectedDataSet) {
  GridDataItem grid(1);
  setItemProperty(grid, SelectedSet, Temperature);
  setItemProperty(grid, SetTitle, "Temperature");
  setItemProperty(grid, SelectedSet, Drawdowns);
  EXPECT_EQ(itemProperty(grid, SetTitle).toString(), "");
  EXPECT_EQ(grid.sets[Temperature].title, "Temperature");
}

TEST(ItemProperties, theColourScaleGrowsEntryByEntry) {
  GridDataItem grid(1);
  EXPECT_TRUE(setItemProperty(grid, ColourScaleEntry, QVariantList{0, -1.0, QColor(Qt::blue)}));
  EXPECT_TRUE(setItemProperty(grid, ColourScaleEntry, QVariantList{1, 3.0, QColor(Qt::red)}));
  EXPECT_TRUE(setItemProperty(grid, ColourScaleEntry, QVariantList{0, -2.0, QColor(Qt::green)}));
  EXPECT_FALSE(setItemProperty(grid, ColourScaleEntry, QVariantList{7, 0.0, QColor(Qt::red)}));
  ASSERT_EQ(grid.colourScale.size(), 2U);
  EXPECT_EQ(grid.colourScale[0].value, -2.0);
  EXPECT_EQ(grid.colourScale[0].colour, QColor(Qt::green));
}

TEST(ItemProperties, theIdsOfLinesAreReadOnly) {
  GridDataItem grid(1);
  EXPECT_FALSE(setItemProperty(grid, IsolineIds, QVariantList{5}));
  EXPECT_TRUE(grid.sets[StartValues].isolines.empty());
}

TEST(ItemProperties, aPixmapIsThePicture) {
  QPixmap pixmap(3, 2);
  pixmap.fill(Qt::red);
  PictureItem picture(1);
  EXPECT_TRUE(setItemProperty(picture, Pixmap, pixmap));
  EXPECT_EQ(picture.image.size(), QSize(3, 2));
  EXPECT_EQ(itemProperty(picture, Pixmap).value<QPixmap>().toImage().pixelColor(1, 1),
            QColor(Qt::red));
  EXPECT_FALSE(setItemProperty(picture, Pixmap, "logo.png"));
}

TEST(ItemProperties, aPictureFileIsShown) {
  const QTemporaryDir directory;
  const QString file = directory.filePath("map.png");
  QImage image(4, 5, QImage::Format_RGB32);
  image.fill(Qt::green);
  ASSERT_TRUE(image.save(file));
  PictureItem picture(1);
  EXPECT_TRUE(setItemProperty(picture, PictureFile, file));
  EXPECT_EQ(itemProperty(picture, PictureFile).toString(), file);
  EXPECT_EQ(picture.image.size(), QSize(4, 5));
}

TEST(ItemProperties, aPictureFileThatCannotBeReadShowsNothing) {
  PictureItem picture(1);
  picture.image = QImage(4, 5, QImage::Format_RGB32);
  EXPECT_TRUE(setItemProperty(picture, PictureFile, "/nonexistent/map.png"));
  EXPECT_TRUE(picture.image.isNull());
  EXPECT_EQ(picture.file, "/nonexistent/map.png");
}

TEST(ItemProperties, columnsAndLabelDensityAreAtLeastOne) {
  LegendItem legend(1);
  IsolineItem isoline(2);
  EXPECT_FALSE(setItemProperty(legend, LegendColumns, 0));
  EXPECT_FALSE(setItemProperty(isoline, LabelDensity, -3));
  EXPECT_TRUE(setItemProperty(legend, LegendColumns, 2));
  EXPECT_EQ(legend.columns, 2);
}

TEST(ItemProperties, theTableHoldsEveryNumberThatTheResultPageUses) {
  const std::vector<int> known = knownProperties();
  for (const int number :
       {2,   4,   5,   6,   10,  11,  13,  17,  22,  26,  29,  33,  34,  35,  36,  37,  44,
        46,  47,  50,  51,  52,  69,  70,  78,  79,  82,  83,  84,  87,  103, 105, 106, 107,
        108, 111, 116, 118, 120, 127, 129, 130, 131, 136, 140, 141, 142, 143, 144, 145, 150,
        151, 152, 153, 154, 155, 156, 158, 160, 164, 166, 170, 172, 178, 181})
    EXPECT_TRUE(std::binary_search(known.begin(), known.end(), number)) << number;
}

} // namespace
