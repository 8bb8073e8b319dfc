#include "page/ItemProperties.h"

#include "page/ImageReading.h"

#include <QPixmap>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <type_traits>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

bool isFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The value as a `Value`; nothing if it is none.
template <typename Value>
std::optional<Value> valueAs(const QVariant& value) {
  bool isNumber = true;
  if constexpr (std::is_same_v<Value, bool>) {
    return value.canConvert<bool>() ? std::optional(value.toBool()) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, int>) {
    const int number = value.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, double>) {
    const double number = value.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QString>) {
    return value.canConvert<QString>() ? std::optional(value.toString()) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QPointF>) {
    const QPointF point = value.toPointF();
    return value.canConvert<QPointF>() && isFinite(point) ? std::optional(point) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QSizeF>) {
    const QSizeF size = value.toSizeF();
    const bool fits = value.canConvert<QSizeF>() && size.width() >= 0 && size.height() >= 0 &&
                      std::isfinite(size.width()) && std::isfinite(size.height());
    return fits ? std::optional(size) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QColor>) {
    if (value.userType() == QMetaType::QColor)
      return value.value<QColor>();
    const int global = value.toInt(&isNumber);
    if (isNumber && global >= Qt::color0 && global <= Qt::transparent)
      return QColor(static_cast<Qt::GlobalColor>(global));
    return std::nullopt;
  } else {
    static_assert(std::is_same_v<Value, QBrush>);
    if (value.userType() == QMetaType::QBrush)
      return value.value<QBrush>();
    if (value.userType() == QMetaType::QColor ||
        value.userType() == qMetaTypeId<Qt::GlobalColor>()) {
      const std::optional<QColor> colour = valueAs<QColor>(value);
      return colour ? std::optional(QBrush(*colour)) : std::nullopt;
    }
    const int style = value.toInt(&isNumber);
    if (isNumber && style >= Qt::NoBrush && style <= Qt::DiagCrossPattern)
      return QBrush(static_cast<Qt::BrushStyle>(style));
    return std::nullopt;
  }
}

std::optional<Qt::PenStyle> penStyle(const QVariant& value) {
  const std::optional<int> style = valueAs<int>(value);
  if (!style || *style < Qt::NoPen || *style > Qt::DashDotDotLine)
    return std::nullopt;
  return static_cast<Qt::PenStyle>(*style);
}

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

std::optional<int> gridCount(const QVariant& value) {
  const std::optional<int> count = valueAs<int>(value);
  return count && *count >= 0 && *count <= maximumGridCount ? count : std::nullopt;
}

/// One property of one kind of item. A row of every item has the kind `nullopt`; a row without
/// `get` writes a single entry of an array and gives nothing back.
struct Row {
  int number;
  std::optional<ItemKind> kind;
  QVariant (*get)(const Item&);
  bool (*set)(Item&, const QVariant&);
};

template <typename Kind>
constexpr std::optional<ItemKind> kindOf() {
  if constexpr (std::is_same_v<Kind, TextItem>)
    return ItemKind::Text;
  else if constexpr (std::is_same_v<Kind, PlotItem>)
    return ItemKind::Plot;
  else if constexpr (std::is_same_v<Kind, LegendItem>)
    return ItemKind::Legend;
  else if constexpr (std::is_same_v<Kind, PictureItem>)
    return ItemKind::Picture;
  else if constexpr (std::is_same_v<Kind, CurveItem>)
    return ItemKind::Curve;
  else if constexpr (std::is_same_v<Kind, GridDataItem>)
    return ItemKind::GridData;
  else if constexpr (std::is_same_v<Kind, IsolineItem>)
    return ItemKind::Isoline;
  else
    return std::nullopt;
}

/// A row made of two functions of the item struct: `get(const Kind&)` gives the value, and
/// `set(Kind&, const QVariant&)` writes it and says whether it fits.
template <typename Kind, typename Get, typename Set>
constexpr Row row(int number, Get, Set) {
  static_assert(std::is_empty_v<Get> && std::is_empty_v<Set>);
  return {number, kindOf<Kind>(),
          [](const Item& item) { return QVariant(Get{}(static_cast<const Kind&>(item))); },
          [](Item& item, const QVariant& value) { return Set{}(static_cast<Kind&>(item), value); }};
}

/// A row that only writes.
template <typename Kind, typename Set>
constexpr Row entryRow(int number, Set) {
  static_assert(std::is_empty_v<Set>);
  return {number, kindOf<Kind>(), nullptr,
          [](Item& item, const QVariant& value) { return Set{}(static_cast<Kind&>(item), value); }};
}

template <auto Path>
struct PathOf;
template <typename Kind, typename Value, Value Kind::*Member>
struct PathOf<Member> {
  using Owner = Kind;
  using Type = Value;
};

/// A row whose value is a member of the item struct, as the type of the member says.
template <typename Kind, auto Member>
constexpr Row field(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<Kind>(
      number, [](const Kind& item) { return QVariant::fromValue(item.*Member); },
      [](Kind& item, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          item.*Member = *read;
        return read.has_value();
      });
}

/// The same for a member of one of the plot's axes.
template <Axis PlotItem::*Which, auto Member>
constexpr Row axis(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<PlotItem>(
      number, [](const PlotItem& plot) { return QVariant::fromValue(plot.*Which.*Member); },
      [](PlotItem& plot, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          plot.*Which.*Member = *read;
        return read.has_value();
      });
}

/// The same for a member of the grid's selected data set.
template <auto Member>
constexpr Row setField(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<GridDataItem>(
      number,
      [](const GridDataItem& grid) {
        return QVariant::fromValue(grid.sets[grid.selectedSet].*Member);
      },
      [](GridDataItem& grid, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          grid.sets[grid.selectedSet].*Member = *read;
        return read.has_value();
      });
}

template <auto Get, auto Set>
constexpr Row margin(int number) {
  return row<PlotItem>(
      number, [](const PlotItem& plot) { return (plot.margins.*Get)(); },
      [](PlotItem& plot, const QVariant& value) {
        const std::optional<double> length = valueAs<double>(value);
        if (length)
          (plot.margins.*Set)(*length);
        return length.has_value();
      });
}

template <typename Kind>
constexpr Row lineColour() {
  return row<Kind>(
      LineColour, [](const Kind& item) { return item.pen.color(); },
      [](Kind& item, const QVariant& value) {
        const std::optional<QColor> colour = valueAs<QColor>(value);
        if (colour)
          item.pen.setColor(*colour);
        return colour.has_value();
      });
}

template <typename Kind>
constexpr Row lineStyle() {
  return row<Kind>(
      LineStyle, [](const Kind& item) { return static_cast<int>(item.pen.style()); },
      [](Kind& item, const QVariant& value) {
        const std::optional<Qt::PenStyle> style = penStyle(value);
        if (style)
          item.pen.setStyle(*style);
        return style.has_value();
      });
}

template <typename Kind>
constexpr Row legendText() {
  return row<Kind>(
      LegendText,
      [](const Kind& item) {
        return QVariantMap{{"Text", item.legendText}, {"Font", item.legendFont}};
      },
      [](Kind& item, const QVariant& value) {
        const QVariantMap map = value.toMap();
        if (map.contains("Text"))
          item.legendText = map["Text"].toString();
        if (map.value("Font").userType() == QMetaType::QFont)
          item.legendFont = map["Font"].value<QFont>();
        return map.contains("Text") || map.contains("Font");
      });
}

/// The lines no longer fit the mesh.
void meshChanged(GridDataItem& grid) {
  for (GridDataItem::DataSet& set : grid.sets)
    set.linesAreStale = true;
}

/// `list[0]` as an index below `count`; nothing if the list is shorter than `length`.
std::optional<size_t> entryIndex(const QVariantList& list, int length, size_t count) {
  if (list.size() < length)
    return std::nullopt;
  const std::optional<int> index = valueAs<int>(list[0]);
  if (!index || *index < 0 || static_cast<size_t>(*index) >= count)
    return std::nullopt;
  return static_cast<size_t>(*index);
}

bool setNode(GridDataItem& grid, const QVariant& value) {
  const QVariantList list = value.toList();
  const std::optional<size_t> index = entryIndex(list, 3, grid.mesh.nodes.size());
  const QPointF node = index ? QPointF(list[1].toDouble(), list[2].toDouble()) : QPointF();
  if (!index || !isFinite(node))
    return false;
  grid.mesh.nodes[*index] = node;
  meshChanged(grid);
  return true;
}

bool setCell(GridDataItem& grid, const QVariant& value) {
  const QVariantList list = value.toList();
  const std::optional<size_t> index = entryIndex(list, 5, grid.mesh.cells.size());
  if (!index)
    return false;
  grid.mesh.cells[*index] = {list[1].toInt(), list[2].toInt(), list[3].toInt(), list[4].toInt()};
  meshChanged(grid);
  return true;
}

bool setValue(GridDataItem& grid, const QVariant& value) {
  const QVariantList list = value.toList();
  GridDataItem::DataSet& set = grid.sets[grid.selectedSet];
  const size_t count = std::min(grid.mesh.centres.size(), set.values.size());
  const std::optional<size_t> index = entryIndex(list, 4, count);
  const QPointF centre = index ? QPointF(list[1].toDouble(), list[2].toDouble()) : QPointF();
  if (!index || !isFinite(centre))
    return false;
  grid.mesh.centres[*index] = centre;
  set.values[*index] = list[3].toDouble();
  meshChanged(grid);
  return true;
}

QVariantList values(const GridDataItem& grid) {
  QVariantList list;
  const std::vector<double>& values = grid.sets[grid.selectedSet].values;
  list.reserve(static_cast<int>(values.size()));
  for (const double value : values)
    list.append(value);
  return list;
}

bool setValues(GridDataItem& grid, const QVariant& value) {
  if (!value.canConvert<QVariantList>())
    return false;
  const QVariantList list = value.toList();
  if (list.size() > maximumGridCount)
    return false;
  GridDataItem::DataSet& set = grid.sets[grid.selectedSet];
  set.values.resize(static_cast<size_t>(list.size()));
  std::transform(list.begin(), list.end(), set.values.begin(),
                 [](const QVariant& entry) { return entry.toDouble(); });
  set.linesAreStale = true;
  return true;
}

/// All data sets lie over the same mesh, so the count is that of each of them.
bool setValueCount(GridDataItem& grid, const QVariant& value) {
  const std::optional<int> count = gridCount(value);
  if (!count)
    return false;
  grid.mesh.centres.resize(static_cast<size_t>(*count));
  for (GridDataItem::DataSet& set : grid.sets)
    set.values.resize(static_cast<size_t>(*count));
  meshChanged(grid);
  return true;
}

bool setNodeCount(GridDataItem& grid, const QVariant& value) {
  const std::optional<int> count = gridCount(value);
  if (!count)
    return false;
  grid.mesh.nodes.resize(static_cast<size_t>(*count));
  meshChanged(grid);
  return true;
}

bool setCellCount(GridDataItem& grid, const QVariant& value) {
  const std::optional<int> count = gridCount(value);
  if (!count)
    return false;
  grid.mesh.cells.resize(static_cast<size_t>(*count));
  meshChanged(grid);
  return true;
}

bool setLevels(GridDataItem& grid, const QVariant& value) {
  if (!value.canConvert<QVariantList>())
    return false;
  GridDataItem::DataSet& set = grid.sets[grid.selectedSet];
  const QVariantList levels = value.toList();
  if (levels != set.levels)
    set.linesAreStale = true;
  set.levels = levels;
  return true;
}

QVariantList isolineIds(const GridDataItem& grid) {
  QVariantList ids;
  for (const int id : grid.sets[grid.selectedSet].isolines)
    ids.append(id);
  return ids;
}

QVariantList colourScale(const GridDataItem& grid) {
  QVariantList entries;
  for (const GridDataItem::ScaleEntry& entry : grid.colourScale)
    entries.append(QVariant(QVariantList{entries.size(), entry.value, entry.colour}));
  return entries;
}

/// An index behind the last entry appends.
bool setScaleEntry(GridDataItem& grid, const QVariant& value) {
  const QVariantList list = value.toList();
  constexpr size_t mostEntries = 256;
  const size_t count = std::min(grid.colourScale.size() + 1, mostEntries);
  const std::optional<size_t> index = entryIndex(list, 3, count);
  const std::optional<double> place = index ? valueAs<double>(list[1]) : std::nullopt;
  const std::optional<QColor> colour = index ? valueAs<QColor>(list[2]) : std::nullopt;
  if (!place || !colour)
    return false;
  if (*index == grid.colourScale.size())
    grid.colourScale.push_back({*place, *colour});
  else
    grid.colourScale[*index] = {*place, *colour};
  return true;
}

bool setCurvePoints(CurveItem& curve, const QVariant& value) {
  if (!value.canConvert<QPolygonF>())
    return false;
  curve.points = finitePoints(value.value<QPolygonF>());
  return true;
}

/// A line whose pieces would no longer match is refused as a whole.
bool setLinePoints(IsolineItem& isoline, const QVariant& value) {
  const QPolygonF points = value.value<QPolygonF>();
  if (!value.canConvert<QPolygonF>() || finitePoints(points).size() != points.size())
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
  if (map.isEmpty() || !size || !type || *type < CurveItem::NoSymbol || *type > CurveItem::Cross)
    return false;
  curve.symbolSize = *size;
  curve.symbol = *type;
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

const auto rows = std::to_array<Row>({
    field<Item, &Item::name>(Name),
    field<GridDataItem, &GridDataItem::title>(Title),
    field<Item, &Item::brush>(Brush),
    row<Item>(
        FramePen, [](const Item& item) { return item.pen; },
        [](Item& item, const QVariant& value) { return setPen(item.pen, value); }),
    lineColour<CurveItem>(),
    lineColour<IsolineItem>(),
    lineStyle<CurveItem>(),
    lineStyle<IsolineItem>(),
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
    legendText<PlotItem>(),
    legendText<IsolineItem>(),
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
        Points, [](const IsolineItem& isoline) { return isoline.line.points; },
        [](IsolineItem& isoline, const QVariant& value) { return setLinePoints(isoline, value); }),
    row<IsolineItem>(
        Breaks, [](const IsolineItem& isoline) { return breaks(isoline); },
        [](IsolineItem& isoline, const QVariant& value) { return setBreaks(isoline, value); }),
    row<IsolineItem>(
        ShownLevel,
        [](const IsolineItem& isoline) { return isoline.shownLevel.value_or(isoline.level); },
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
    field<TextItem, &TextItem::margin>(TextMargin),
    field<LegendItem, &LegendItem::margin>(TextMargin),
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
    field<IsolineItem, &IsolineItem::level>(Level),
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

QPolygonF finitePoints(const QPolygonF& points) {
  if (std::all_of(points.begin(), points.end(), isFinite))
    return points;
  QPolygonF finite;
  std::copy_if(points.begin(), points.end(), std::back_inserter(finite), isFinite);
  return finite;
}

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
