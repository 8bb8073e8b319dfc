#pragma once

#include "page/model/Items.h"

#include <memory>
#include <vector>

namespace TVR::Page::Sample {

/// A graded mesh of `columns` by `rows` cells around the two wells, turned by 20 degrees, with a
/// plume of temperature change downstream of the injection well and the drawdowns of the pair.
void fillGrid(GridDataItem& grid, int columns, int rows);

/// The map view of the A4 page at 1:`scale` with the grid, ten isohypses, three isotherms and two
/// wells. `picture` adds a background map.
std::unique_ptr<PlotItem> mapView(int columns, int rows, double scale, bool picture);

/// The two plots of the demand that lie on top of each other.
std::unique_ptr<PlotItem> ratePlot();
std::unique_ptr<PlotItem> temperaturePlot();

/// A summary of `rows` rows.
QString summaryTable(int rows);

/// All twelve items of the A4 page, 297 mm by 210 mm.
std::vector<std::unique_ptr<Item>> page(int columns, int rows, double scale, bool picture);

} // namespace TVR::Page::Sample
