#include "results/ResultGrid.h"

#include "messages/PluginText.h"
#include "project/RunFrame.h"
#include "results/CellsOnMap.h"
#include "results/Isolines.h"
#include "simulator/mesh/FVMesh.h"

#include <QColor>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

constexpr double valueAtStart = 100;

QVariantList asList(const std::vector<double>& values) {
  QVariantList list;
  list.reserve(static_cast<int>(values.size()));
  for (const double value : values)
    list.append(value);
  return list;
}

} // namespace

QPolygonF placesOfChange(const std::vector<double>& values, const std::vector<QPointF>& places) {
  constexpr double leastShare = 0.25;
  double largest = 0;
  for (const double value : values)
    largest = std::max(largest, std::abs(value));
  QPolygonF changed;
  if (!(largest > leastChange))
    return changed;
  const double least = std::max(leastChange, leastShare * largest);
  for (std::size_t i = 0; i < std::min(values.size(), places.size()); ++i)
    if (std::abs(values[i]) >= least)
      changed << places[i];
  return changed;
}

ResultGrid::ResultGrid(const PageAccess& page) : page_(page), grid_(page.items.results) {}

void ResultGrid::set(int property, const QVariant& value) {
  page_.window->setItemProperty(grid_, property, value);
}

int ResultGrid::addItem() {
  grid_ = page_.window->addGridData(page_.items.mapView, 0);
  set(Name, PluginText::tr("Simulation results"));
  set(InLegend, false);
  return grid_;
}

/// How the grid is shown, with the drawdown selected.
void ResultGrid::dress() {
  set(SelectedSet, static_cast<int>(Drawdowns));
  set(Title, QString());
  set(InLegend, true);
  set(ShowsNodes, false);
  set(ShowsMesh, false);
  set(MeshColour, QColor(Qt::darkGray));
  set(ElementKind, "element");
}

void ResultGrid::takeMesh(const FVMesh& mesh, const RunFrame& frame) {
  if (!page_.window || page_.items.mapView == 0)
    return;
  const PageLock lock(page_.mutex, -1);
  page_.window->setCurrentItem(0);
  if (grid_ != 0)
    page_.items.results = 0; // nobody else works on it meanwhile
  else if (page_.items.mapView < 1)
    return;
  else
    addItem();
  {
    const PageUpdate update(*page_.window);
    const int cells = mesh.nx * mesh.ny;
    set(NodeCount, (mesh.nx + 1) * (mesh.ny + 1));
    set(CellShape, QSize(cells, 4));
    set(CellCount, cells);
    set(ValueCount, cells);
    writeCells(mesh, frame);
    set(ColourScaleEntry, QVariantList{0, -1.0, QColor(Qt::blue)});
    dress();
  }
  page_.window->redrawItem(grid_);
  page_.items.results = grid_;
}

/// Nodes and cells row by row. A cell brings the node of its lower left corner; the last one of a
/// row the node of its lower right corner too, and the last row those of the upper edge.
void ResultGrid::writeCells(const FVMesh& mesh, const RunFrame& frame) {
  const Contour::GridMesh grid = cellsOnMap(mesh, frame);
  int node = 0;
  const auto writeNode = [&] {
    set(Node, QVariantList{node, grid.nodes[node].x(), grid.nodes[node].y()});
    ++node;
  };
  const auto writeValue = [&](int dataSet, int cell, double value) {
    set(SelectedSet, dataSet);
    set(Value, QVariantList{cell, grid.centres[cell].x(), grid.centres[cell].y(), value});
  };
  const int cells = static_cast<int>(grid.cells.size());
  for (int cell = 0; cell < cells; ++cell) {
    writeNode();
    const auto& [lowerLeft, lowerRight, upperRight, upperLeft] = grid.cells[cell];
    set(Cell, QVariantList{cell, lowerLeft, lowerRight, upperRight, upperLeft});
    writeValue(StartValues, cell, valueAtStart);
    writeValue(Drawdowns, cell, 0.0);
    writeValue(Temperature, cell, 0.0);
    if ((cell + 1) % mesh.nx == 0)
      writeNode();
  }
  while (node < static_cast<int>(grid.nodes.size()))
    writeNode();
}

void ResultGrid::showValues(int dataSet, const std::vector<double>& values) {
  if (!page_.showsPage() || values.empty() || grid_ < 1)
    return;
  const PageLock lock(page_.mutex, 0);
  if (!lock)
    return;
  set(SelectedSet, dataSet);
  set(Values, asList(values));
}

void ResultGrid::fill(const std::vector<double>& drawdowns,
                      const std::vector<double>& temperatures) {
  if (!page_.window)
    return;
  if (grid_ == 0 && page_.items.mapView > 0)
    page_.items.results = addItem();
  if (grid_ <= 0)
    return;
  set(SelectedSet, static_cast<int>(Drawdowns));
  set(Values, asList(drawdowns));
  set(SetTitle, PluginText::tr("Head"));
  set(SetLevelsByRange, false);
  set(SelectedSet, static_cast<int>(Temperature));
  set(Values, asList(temperatures));
  set(SetTitle, PluginText::tr("Temperature"));
  dress();
}

std::vector<double> ResultGrid::values() const {
  std::vector<double> result;
  if (page_.window && grid_ > 0)
    for (const QVariant& value : page_.window->itemProperty(grid_, Values).toList())
      result.push_back(value.toDouble());
  return result;
}

void ResultGrid::chooseIsohypses(const std::vector<double>& drawdowns) {
  const QStringList levels = isohypseLevels(drawdowns);
  if (!page_.window || grid_ <= 0 || levels.isEmpty())
    return;
  QVariantList list;
  for (const QString& level : levels)
    list.append(level);
  set(SelectedSet, static_cast<int>(Drawdowns));
  set(Levels, list);
}

} // namespace TVR
