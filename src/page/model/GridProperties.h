#pragma once

#include <QVariant>

/// The arrays of a grid item as its properties write and read them. A setter gives false, and
/// changes nothing, if the value does not fit: a count that is negative or above
/// `maximumGridCount`, an index without entry, a place that is not finite. What concerns values or
/// levels is about the selected data set; sets whose lines no longer fit are marked.
namespace TVR::Page {

struct GridDataItem;

/// The most entries that an array of a grid item takes; a property that asks for more is refused.
constexpr int maximumGridCount = 4'000'000;

/// A list of index, x, y [map units].
bool setNode(GridDataItem& grid, const QVariant& value);
/// A list of index and four node indices.
bool setCell(GridDataItem& grid, const QVariant& value);
/// A list of index, x, y and value.
bool setValue(GridDataItem& grid, const QVariant& value);
bool setValues(GridDataItem& grid, const QVariant& value);
/// All data sets lie over the same mesh, so the count is that of each of them.
bool setValueCount(GridDataItem& grid, const QVariant& value);
bool setNodeCount(GridDataItem& grid, const QVariant& value);
bool setCellCount(GridDataItem& grid, const QVariant& value);
bool setLevels(GridDataItem& grid, const QVariant& value);
/// A list of index, value and colour; an index behind the last entry appends.
bool setScaleEntry(GridDataItem& grid, const QVariant& value);

QVariantList values(const GridDataItem& grid);
QVariantList isolineIds(const GridDataItem& grid);
QVariantList colourScale(const GridDataItem& grid);

} // namespace TVR::Page
