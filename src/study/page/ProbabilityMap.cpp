#include "study/page/ProbabilityMap.h"

#include "study/plan/ResultLayout.h"
#include "study/work/Exceedance.h"

#include <algorithm>

namespace TVR::Study {

double ProbabilityMap::greatest() const {
  return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
}

std::vector<ProbabilityMap> probabilityMaps(const ResultLayout& layout,
                                            const ExceedanceCounts& counts, std::uint64_t runs) {
  std::vector<ProbabilityMap> maps;
  if (runs == 0)
    return maps;
  for (std::size_t i = 0; i < counts.maps.size(); ++i) {
    ProbabilityMap map{layout.levels[i % layout.levels.size()],
                       layout.times[i / layout.levels.size()],
                       layout.raster,
                       {}};
    for (const std::uint32_t count : counts.maps[i])
      map.values.push_back(static_cast<double>(count) / static_cast<double>(runs));
    maps.push_back(std::move(map));
  }
  return maps;
}

Contour::GridMesh meshOf(const Raster& raster) {
  Contour::GridMesh mesh;
  for (int row = 0; row <= raster.rows; ++row)
    for (int column = 0; column <= raster.columns; ++column)
      mesh.nodes.emplace_back(raster.left + column * raster.cell,
                              raster.bottom + row * raster.cell);
  const int nodes = raster.columns + 1; // of a row
  for (int row = 0; row < raster.rows; ++row)
    for (int column = 0; column < raster.columns; ++column) {
      const int node = row * nodes + column;
      mesh.cells.push_back({node, node + 1, node + nodes + 1, node + nodes});
      mesh.centres.push_back(raster.centre(column, row));
    }
  return mesh;
}

} // namespace TVR::Study
