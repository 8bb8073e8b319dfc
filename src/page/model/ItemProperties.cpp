#include "page/model/ItemProperties.h"

#include "contour/FinitePoints.h"
#include "disk/PictureReading.h"
#include "page/model/GridProperties.h"
#include "page/model/PropertyRows.h"

#include <QPixmap>

#include <array>
#include <set>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

bool setPen(QPen& pen, const QVariant& value) {
  if (value.userType() == QMetaType::QPen) {
    pen = value.value<QPen>();
    return true;
  }
  const std::optional<Qt::PenStyle> style = penStyle(value);
  if (style)
    pen.setStyle(*style);
  return style.has_value();
}

bool setCurvePoints(CurveItem& curve, const QVariant& value) {
  if (!value.canConvert<QPolygonF>())
    return false;
  curve.points = Contour::finitePoints(value.value<QPolygonF>());
  return true;
}

/// A line whose pieces would no longer match is refused as a whole.
bool setLinePoints(IsolineItem& isoline, const QVariant& value) {
  const QPolygonF points = value.value<QPolygonF>();
  if (!value.canConvert<QPolygonF>() || Contour::finitePoints(points).size() != points.size())
    return false;
  isoline.line.points = points;
  return true;
}

QVariantList breaks(const IsolineItem& isoline) {
  QVariantList list;
  for (const int index : isoline.line.breaks)
    list.append(index);
  return list;
}

bool setBreaks(IsolineItem& isoline, const QVariant& value) {
  if (!value.canConvert<QVariantList>())
    return false;
  QVector<int> indices;
  for (const QVariant& entry : value.toList()) {
    const std::optional<int> index = valueAs<int>(entry);
    if (!index || *index < 0 || (!indices.isEmpty() && *index < indices.last()))
      return false;
    indices.append(*index);
  }
  isoline.line.breaks = indices;
  return true;
}

bool setPixmap(PictureItem& picture, const QVariant& value) {
  if (value.userType() == QMetaType::QImage)
    picture.image = value.value<QImage>();
  else if (value.userType() == QMetaType::QPixmap)
    picture.image = value.value<QPixmap>().toImage();
  else
    return false;
  return true;
}

/// The picture shows its file: one that can't be read shows nothing, not the former picture.
bool setPictureFile(PictureItem& picture, const QVariant& value) {
  picture.file = value.toString();
  picture.image = readImage(picture.file);
  return true;
}

bool setSymbol(CurveItem& curve, const QVariant& value) {
  const QVariantMap map = value.toMap();
  const std::optional<QSizeF> size =
      valueAs<QSizeF>(QSizeF(map.value("Width", curve.symbolSize.width()).toDouble(),
                             map.value("Height", curve.symbolSize.height()).toDouble()));
  const std::optional<int> type = valueAs<int>(map.value("Type", curve.symbol));
  if (map.isEmpty() || !size || !type || *type < CurveItem::NoSymbol ||
      *type >= CurveItem::SymbolCount)
    return false;
  curve.symbolSize = *size;
  curve.symbol = *type;
  return true;
}

QVariantList marks(const CurveItem& curve) {
  QVariantList list;
  for (const CurveItem::Mark& mark : curve.marks)
    list.append(QVariantMap{{"Text", mark.text}, {"Symbol", mark.symbol}, {"Legend", mark.legend}});
  return list;
}

bool setMarks(CurveItem& curve, const QVariant& value) {
  if (!value.canConvert<QVariantList>())
    return false;
  std::vector<CurveItem::Mark> marks;
  for (const QVariant& entry : value.toList()) {
    const QVariantMap map = entry.toMap();
    const int symbol = map.value("Symbol").toInt();
    if (symbol < CurveItem::NoSymbol || symbol >= CurveItem::SymbolCount)
      return false;
    marks.push_back({map.value("Text").toString(), symbol, map.value("Legend").toString()});
  }
  curve.marks = std::move(marks);
  return true;
}

bool setGridPen(PlotItem& plot, const QVariant& value) {
  const QVariantMap map = value.toMap();
  if (map.value("QPen").userType() == QMetaType::QPen)
    plot.gridPen = map["QPen"].value<QPen>();
  const std::optional<double> width = valueAs<double>(map.value("WidthMM"));
  if (width && *width >= 0)
    plot.gridPen.setWidthF(*width);
  return map.contains("QPen") || map.contains("WidthMM");
}

/// An index from 0 to below `count`.
template <int count>
bool setIndex(int& index, const QVariant& value) {
  const std::optional<int> read = valueAs<int>(value);
  if (!read || *read < 0 || *read >= count)
    return false;
  index = *read;
  return true;
}

bool setAtLeastOne(int& number, const QVariant& value) {
  const std::optional<int> read = valueAs<int>(value);
  if (!read || *read < 1)
    return false;
  number = *read;
  return true;
}

constexpr auto rows = std::to_array<Row>({
    field<Item, &Item::name>(Name),
    field<GridDataItem, &GridDataItem::title>(Title),
    field<Item, &Item::brush>(Brush),
    row<Item>(
        FramePen, [](const Item& item) { return item.pen; },
        [](Item& item, const QVariant& value) { return setPen(item.pen, value); }),
    lineColour<CurveItem>(LineColour),
    lineColour<IsolineItem>(LineColour),
    lineStyle<CurveItem>(LineStyle),
    lineStyle<IsolineItem>(LineStyle),
    field<PictureItem, &PictureItem::inMapCoordinates>(InMapCoordinates),
    field<CurveItem, &CurveItem::inLegend>(InLegend),
    field<IsolineItem, &IsolineItem::inLegend>(InLegend),
    field<GridDataItem, &GridDataItem::inLegend>(InLegend),
    field<Item, &Item::position>(Position),
    field<Item, &Item::visible>(Visible),
    field<Item, &Item::size>(Size),
    margin<&QMarginsF::top, &QMarginsF::setTop>(MarginTop),
    margin<&QMarginsF::left, &QMarginsF::setLeft>(MarginLeft),
    margin<&QMarginsF::right, &QMarginsF::setRight>(MarginRight),
    margin<&QMarginsF::bottom, &QMarginsF::setBottom>(MarginBottom),
    field<TextItem, &TextItem::rotation>(TextRotation),
    row<PlotItem>(
        GridPen,
        [](const PlotItem& plot) {
          return QVariantMap{{"QPen", plot.gridPen}, {"WidthMM", plot.gridPen.widthF()}};
        },
        [](PlotItem& plot, const QVariant& value) { return setGridPen(plot, value); }),
    field<PlotItem, &PlotItem::clipsChildren>(ClipsChildren),
    legendText<PlotItem>(LegendText),
    legendText<IsolineItem>(LegendText),
    field<PlotItem, &PlotItem::uniformScale>(UniformScale),
    axis<&PlotItem::x, &Axis::automatic>(XAutoScale),
    axis<&PlotItem::y, &Axis::automatic>(YAutoScale),
    axis<&PlotItem::x, &Axis::wholeTicks>(XWholeTicks),
    axis<&PlotItem::y, &Axis::wholeTicks>(YWholeTicks),
    axis<&PlotItem::x, &Axis::minimum>(XMinimum),
    axis<&PlotItem::x, &Axis::maximum>(XMaximum),
    axis<&PlotItem::x, &Axis::numberFormat>(XNumberFormat),
    axis<&PlotItem::y, &Axis::minimum>(YMinimum),
    axis<&PlotItem::y, &Axis::maximum>(YMaximum),
    axis<&PlotItem::y, &Axis::numberFormat>(YNumberFormat),
    field<CurveItem, &CurveItem::style>(CurveStyle),
    row<CurveItem>(
        Symbol,
        [](const CurveItem& curve) {
          return QVariantMap{{"Width", curve.symbolSize.width()},
                             {"Height", curve.symbolSize.height()},
                             {"Type", curve.symbol}};
        },
        [](CurveItem& curve, const QVariant& value) { return setSymbol(curve, value); }),
    row<CurveItem>(
        Points, [](const CurveItem& curve) { return curve.points; },
        [](CurveItem& curve, const QVariant& value) { return setCurvePoints(curve, value); }),
    row<IsolineItem>(
        Points, [](const IsolineItem& isoline) { return QPolygonF(isoline.line.points); },
        [](IsolineItem& isoline, const QVariant& value) { return setLinePoints(isoline, value); }),
    row<IsolineItem>(
        Breaks, [](const IsolineItem& isoline) { return breaks(isoline); },
        [](IsolineItem& isoline, const QVariant& value) { return setBreaks(isoline, value); }),
    row<IsolineItem>(
        ShownLevel,
        [](const IsolineItem& isoline) { return isoline.shownLevel.value_or(isoline.line.level); },
        [](IsolineItem& isoline, const QVariant& value) {
          const std::optional<double> level = valueAs<double>(value);
          if (level)
            isoline.shownLevel = level;
          return level.has_value();
        }),
    row<IsolineItem>(
        LabelDensity, [](const IsolineItem& isoline) { return isoline.labelDensity; },
        [](IsolineItem& isoline, const QVariant& value) {
          return setAtLeastOne(isoline.labelDensity, value);
        }),
    field<IsolineItem, &IsolineItem::labelsVisible>(LabelsVisible),
    field<TextItem, &TextItem::html>(Html),
    field<TextItem, &TextItem::colour>(TextColour),
    centimetres<TextItem, &TextItem::margin>(TextMargin),
    centimetres<LegendItem, &LegendItem::margin>(TextMargin),
    field<TextItem, &TextItem::wraps>(WrapsText),
    row<PictureItem>(
        Pixmap, [](const PictureItem& picture) { return QPixmap::fromImage(picture.image); },
        [](PictureItem& picture, const QVariant& value) { return setPixmap(picture, value); }),
    row<PictureItem>(
        PictureFile, [](const PictureItem& picture) { return picture.file; },
        [](PictureItem& picture, const QVariant& value) { return setPictureFile(picture, value); }),
    row<LegendItem>(
        LegendColumns, [](const LegendItem& legend) { return legend.columns; },
        [](LegendItem& legend, const QVariant& value) {
          return setAtLeastOne(legend.columns, value);
        }),
    row<GridDataItem>(
        Levels, [](const GridDataItem& grid) { return grid.sets[grid.selectedSet].levels; },
        [](GridDataItem& grid, const QVariant& value) { return setLevels(grid, value); }),
    row<GridDataItem>(
        IsolineIds, [](const GridDataItem& grid) { return isolineIds(grid); },
        [](GridDataItem&, const QVariant&) { return false; }),
    field<GridDataItem, &GridDataItem::elementKind>(ElementKind),
    row<IsolineItem>(
        Level, [](const IsolineItem& isoline) { return isoline.line.level; },
        [](IsolineItem& isoline, const QVariant& value) {
          const std::optional<double> level = valueAs<double>(value);
          if (level)
            isoline.line.level = *level;
          return level.has_value();
        }),
    field<GridDataItem, &GridDataItem::showsMesh>(ShowsMesh),
    field<GridDataItem, &GridDataItem::showsNodes>(ShowsNodes),
    row<GridDataItem>(
        ValueCount,
        [](const GridDataItem& grid) {
          return static_cast<int>(grid.sets[grid.selectedSet].values.size());
        },
        [](GridDataItem& grid, const QVariant& value) { return setValueCount(grid, value); }),
    row<GridDataItem>(
        SelectedSet, [](const GridDataItem& grid) { return grid.selectedSet; },
        [](GridDataItem& grid, const QVariant& value) {
          return setIndex<DataSetCount>(grid.selectedSet, value);
        }),
    row<GridDataItem>(
        Values, [](const GridDataItem& grid) { return values(grid); },
        [](GridDataItem& grid, const QVariant& value) { return setValues(grid, value); }),
    entryRow<GridDataItem>(
        Value, [](GridDataItem& grid, const QVariant& value) { return setValue(grid, value); }),
    setField<&GridDataItem::DataSet::title>(SetTitle),
    setField<&GridDataItem::DataSet::levelsByRange>(SetLevelsByRange),
    row<GridDataItem>(
        NodeCount,
        [](const GridDataItem& grid) { return static_cast<int>(grid.mesh.nodes.size()); },
        [](GridDataItem& grid, const QVariant& value) { return setNodeCount(grid, value); }),
    entryRow<GridDataItem>(
        Node, [](GridDataItem& grid, const QVariant& value) { return setNode(grid, value); }),
    row<GridDataItem>(
        CellCount,
        [](const GridDataItem& grid) { return static_cast<int>(grid.mesh.cells.size()); },
        [](GridDataItem& grid, const QVariant& value) { return setCellCount(grid, value); }),
    row<GridDataItem>(
        CellShape,
        [](const GridDataItem& grid) { return QSize(static_cast<int>(grid.mesh.cells.size()), 4); },
        [](GridDataItem& grid, const QVariant& value) {
          return value.toSize().height() == 4 && setCellCount(grid, value.toSize().width());
        }),
    entryRow<GridDataItem>(
        Cell, [](GridDataItem& grid, const QVariant& value) { return setCell(grid, value); }),
    row<GridDataItem>(
        ColourScaleEntry, [](const GridDataItem& grid) { return colourScale(grid); },
        [](GridDataItem& grid, const QVariant& value) { return setScaleEntry(grid, value); }),
    field<GridDataItem, &GridDataItem::meshColour>(MeshColour),
    axis<&PlotItem::x, &Axis::hidden>(XAxisHidden),
    axis<&PlotItem::y, &Axis::opposite>(YAxisOnRight),
    row<CurveItem>(
        PointMarks, [](const CurveItem& curve) { return marks(curve); },
        [](CurveItem& curve, const QVariant& value) { return setMarks(curve, value); }),
});

constexpr int kindCount = static_cast<int>(ItemKind::Other) + 1;
constexpr int numberLimit = 256;

/// Meshes are written entry by entry, so a row is found by two indices and not by a search.
const Row* findRow(ItemKind kind, int number) {
  static const auto index = [] {
    std::array<std::array<const Row*, numberLimit>, kindCount> table{};
    for (const Row& row : rows)
      for (int column = 0; column < kindCount; ++column)
        if (!row.kind || static_cast<int>(*row.kind) == column)
          table[column][row.number] = &row;
    return table;
  }();
  return number >= 0 && number < numberLimit ? index[static_cast<int>(kind)][number] : nullptr;
}

} // namespace

QVariant itemProperty(const Item& item, int number) {
  if (const Row* row = findRow(item.kind, number))
    return row->get ? row->get(item) : QVariant();
  return item.otherProperties.value(number);
}

bool setItemProperty(Item& item, int number, const QVariant& value) {
  if (const Row* row = findRow(item.kind, number))
    return row->set(item, value);
  item.otherProperties[number] = value;
  return true;
}

bool isReadable(ItemKind kind, int number) {
  const Row* row = findRow(kind, number);
  return !row || row->get;
}

std::vector<int> knownProperties() {
  std::set<int> numbers;
  for (const Row& row : rows)
    numbers.insert(row.number);
  return {numbers.begin(), numbers.end()};
}

} // namespace TVR::Page
