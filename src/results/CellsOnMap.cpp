#include "results/CellsOnMap.h"

#include "project/RunFrame.h"
#include "simulator/mesh/FVMesh.h"

namespace TVR {

namespace {

/// Where the cells of a line begin, and where the last one ends.
std::vector<double> ends(const FVGridLine& line, int cells) {
  std::vector<double> places;
  for (int i = 0; i < cells; ++i)
    places.push_back(line.start(i));
  if (cells > 0)
    places.push_back(line.start(cells - 1) + line.width(cells - 1));
  return places;
}

} // namespace

Contour::GridMesh cellsOnMap(const FVMesh& mesh, const RunFrame& frame) {
  Contour::GridMesh grid;
  const std::vector<double> columns = ends(mesh.xLine, mesh.nx);
  for (const double y : ends(mesh.yLine, mesh.ny))
    for (const double x : columns)
      grid.nodes.push_back(frame.onMap({x, y}));
  for (int j = 0; j < mesh.ny; ++j)
    for (int i = 0; i < mesh.nx; ++i) {
      const int corner = j * (mesh.nx + 1) + i;
      grid.cells.push_back({corner, corner + 1, corner + mesh.nx + 2, corner + mesh.nx + 1});
      const FVMeshElement& element = mesh.elements[grid.centres.size()];
      grid.centres.push_back(frame.onMap({element.x, element.y}));
    }
  return grid;
}

} // namespace TVR
