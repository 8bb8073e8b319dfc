#include "quantities/MeshRefinement.h"

#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"

#include <algorithm>
#include <set>

namespace TVR::Quantities {

namespace {

using WellCells = std::set<std::size_t>;
using Wells = std::vector<std::unique_ptr<Well>>;

/// A sliver, as it stands between wells whose coordinates differ by rounding, stays one cell: the
/// integrators would not get through halves of it.
bool isSliver(const FVGridLine& line, std::size_t cell, const WellCells& wellCells) {
  constexpr double share = 1e-3;
  return std::any_of(wellCells.begin(), wellCells.end(), [&](std::size_t wellCell) {
    return line.width(cell) < share * line.width(wellCell);
  });
}

FVGridLine halved(const FVGridLine& line, const WellCells& wellCells) {
  FVGridLine result;
  for (std::size_t i = 0; i < line.count(); ++i) {
    if (wellCells.contains(i) || isSliver(line, i, wellCells)) {
      result.append(line.start(i), line.width(i));
    } else {
      result.append(line.start(i), line.halfWidth(i));
      result.append(line.centre(i), line.halfWidth(i));
    }
  }
  return result;
}

/// Neighbours are joined two by two; where one is left over between wells it stays as it is.
FVGridLine doubled(const FVGridLine& line, const WellCells& wellCells) {
  FVGridLine result;
  for (std::size_t i = 0; i < line.count(); ++i) {
    result.append(line.start(i), line.width(i));
    const bool isJoined =
        i + 1 < line.count() && !wellCells.contains(i) && !wellCells.contains(i + 1);
    if (isJoined) {
      result.setLastWidth(line.width(i) + line.width(i + 1));
      ++i;
    }
  }
  return result;
}

WellCells cellsOfWells(const FVGridLine& line, const Wells& wells,
                       double (Well::*coordinate)() const) {
  WellCells cells;
  for (const auto& well : wells)
    if (const int cell = line.find(((*well).*coordinate)()); cell >= 0)
      cells.insert(static_cast<std::size_t>(cell));
  return cells;
}

FVMesh changed(const FVMesh& mesh, const Wells& wells,
               FVGridLine (*change)(const FVGridLine&, const WellCells&)) {
  return {change(mesh.xLine, cellsOfWells(mesh.xLine, wells, &Well::x)),
          change(mesh.yLine, cellsOfWells(mesh.yLine, wells, &Well::y)), mesh.H};
}

} // namespace

FVMesh refined(const FVMesh& mesh, const Wells& wells) {
  return changed(mesh, wells, halved);
}

FVMesh coarsened(const FVMesh& mesh, const Wells& wells) {
  return changed(mesh, wells, doubled);
}

} // namespace TVR::Quantities
