#include "quantities/PlumeExtent.h"

#include "contour/GridMesh.h"
#include "contour/IsolineTracing.h"
#include "simulator/mesh/FVMesh.h"

#include <QPolygonF>

namespace TVR::Quantities {

namespace {

/// The edges of the cells of an axis, one more than there are cells.
std::vector<double> edges(const FVGridLine& line) {
  std::vector<double> result;
  for (std::size_t i = 0; i < line.count(); ++i)
    result.push_back(line.start(i));
  result.push_back(line.start(line.count() - 1) + line.width(line.count() - 1));
  return result;
}

Contour::GridMesh gridOf(const FVMesh& mesh) {
  Contour::GridMesh grid;
  for (const double y : edges(mesh.yLine))
    for (const double x : edges(mesh.xLine))
      grid.nodes.emplace_back(x, y);
  const int nodesOfRow = mesh.nx + 1;
  for (int row = 0; row < mesh.ny; ++row)
    for (int column = 0; column < mesh.nx; ++column) {
      const int node = row * nodesOfRow + column;
      grid.cells.push_back({node, node + 1, node + nodesOfRow + 1, node + nodesOfRow});
    }
  for (const FVMeshElement& element : mesh.elements)
    grid.centres.emplace_back(element.x, element.y);
  return grid;
}

} // namespace

PlumeExtent plumeExtent(const FVMesh& mesh, const std::vector<double>& temperatureChanges,
                        double level) {
  return plumeExtents(mesh, temperatureChanges, {level}).front();
}

std::vector<PlumeExtent> plumeExtents(const FVMesh& mesh,
                                      const std::vector<double>& temperatureChanges,
                                      const std::vector<double>& levels) {
  std::vector<PlumeExtent> extents;
  for (const Contour::Isoline& line :
       Contour::traceIsolines(gridOf(mesh), temperatureChanges, levels)) {
    const QRectF box = QPolygonF(line.points).boundingRect();
    extents.push_back({box.width(), box.height()});
  }
  return extents;
}

} // namespace TVR::Quantities
