#include "page/model/GridProperties.h"

#include "contour/FinitePoints.h"
#include "page/model/Items.h"
#include "page/model/PropertyValues.h"

#include <algorithm>
#include <optional>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

std::optional<int> gridCount(const QVariant& value) {
  const std::optional<int> count = valueAs<int>(value);
  return count && *count >= 0 && *count <= maximumGridCount ? count : std::nullopt;
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

} // namespace

bool setNode(GridDataItem& grid, const QVariant& value) {
  const QVariantList list = value.toList();
  const std::optional<size_t> index = entryIndex(list, 3, grid.mesh.nodes.size());
  const QPointF node = index ? QPointF(list[1].toDouble(), list[2].toDouble()) : QPointF();
  if (!index || !Contour::isFinite(node))
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
  if (!index || !Contour::isFinite(centre))
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

/// Sets the number of the entries of the mesh that are given.
template <typename Entries>
bool setCount(GridDataItem& grid, Entries& entries, const QVariant& value) {
  const std::optional<int> count = gridCount(value);
  if (!count)
    return false;
  entries.resize(static_cast<size_t>(*count));
  meshChanged(grid);
  return true;
}

bool setValueCount(GridDataItem& grid, const QVariant& value) {
  if (!setCount(grid, grid.mesh.centres, value))
    return false;
  for (GridDataItem::DataSet& set : grid.sets)
    set.values.resize(grid.mesh.centres.size());
  return true;
}

bool setNodeCount(GridDataItem& grid, const QVariant& value) {
  return setCount(grid, grid.mesh.nodes, value);
}

bool setCellCount(GridDataItem& grid, const QVariant& value) {
  return setCount(grid, grid.mesh.cells, value);
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
  for (const ColourScale::Entry& entry : grid.colourScale)
    entries.append(QVariant(QVariantList{entries.size(), entry.value, entry.colour}));
  return entries;
}

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

} // namespace TVR::Page
