#include "study/page/PlumeBands.h"

#include "contour/IsolineTracing.h"

#include <algorithm>

namespace TVR::Study {

namespace {

/// The map with cells around it that the plume never reaches: there its lines close.
ProbabilityMap withRim(const ProbabilityMap& map) {
  const Raster& inner = map.raster;
  ProbabilityMap result = map;
  result.raster = {inner.left - inner.cell, inner.bottom - inner.cell, inner.cell,
                   inner.columns + 2, inner.rows + 2};
  result.values.assign(static_cast<std::size_t>(result.raster.size()), 0);
  for (int row = 0; row < inner.rows; ++row)
    std::copy_n(map.values.begin() + row * inner.columns, inner.columns,
                result.values.begin() + (row + 1) * result.raster.columns + 1);
  return result;
}

QPointF keptWithin(const QPointF& point, const Raster& raster) {
  return {std::clamp(point.x(), raster.left, raster.left + raster.columns * raster.cell),
          std::clamp(point.y(), raster.bottom, raster.bottom + raster.rows * raster.cell)};
}

} // namespace

std::vector<QPolygonF> ringsOf(const ProbabilityMap& map, double probability) {
  constexpr int fewestPoints = 4; // of a ring, its first one twice
  const ProbabilityMap closed = withRim(map);
  std::vector<QPolygonF> rings;
  const Contour::Isoline line =
      Contour::traceIsoline(meshOf(closed.raster), closed.values, probability);
  for (QVector<QPointF>& piece : Contour::pieces(line)) {
    for (QPointF& point : piece)
      point = keptWithin(point, map.raster);
    if (piece.size() >= fewestPoints && piece.first() == piece.last())
      rings.emplace_back(piece);
  }
  return rings;
}

std::vector<PlumeBand> plumeBands(const std::vector<ProbabilityMap>& maps) {
  std::vector<PlumeBand> bands;
  for (const ProbabilityMap& map : maps)
    for (const auto& [name, probability] : bandProbabilities)
      if (std::vector<QPolygonF> rings = ringsOf(map, probability); !rings.empty())
        bands.push_back({name, probability, map.level, map.time, std::move(rings)});
  return bands;
}

} // namespace TVR::Study
