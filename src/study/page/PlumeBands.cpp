#include "study/page/PlumeBands.h"

#include "contour/IsolineTracing.h"

#include <algorithm>
#include <cmath>

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

/// Twice the area of a ring; above 0 if it goes anticlockwise.
double twiceArea(const QVector<QPointF>& ring) {
  double area = 0;
  for (int i = 1; i < ring.size(); ++i) {
    const QPointF one = ring[i - 1] - ring[0];
    const QPointF other = ring[i] - ring[0];
    area += one.x() * other.y() - other.x() * one.y();
  }
  return area;
}

QPointF keptWithin(const QPointF& point, const Raster& raster) {
  return {std::clamp(point.x(), raster.left, raster.left + raster.columns * raster.cell),
          std::clamp(point.y(), raster.bottom, raster.bottom + raster.rows * raster.cell)};
}

} // namespace

std::vector<QPolygonF> ringsOf(const ProbabilityMap& map, double probability) {
  // Counts divided by runs often are the probability itself. A line through the centres of such
  // cells would touch itself there; this one goes around them.
  constexpr double below = 1e-8;
  constexpr double leastArea = 1e-3; // of a cell: a speck around one of them
  const ProbabilityMap closed = withRim(map);
  std::vector<QPolygonF> rings;
  const Contour::Isoline line =
      Contour::traceIsoline(meshOf(closed.raster), closed.values, probability - below);
  for (QVector<QPointF>& piece : Contour::pieces(line)) {
    for (QPointF& point : piece)
      point = keptWithin(point, map.raster);
    const bool isClosed = piece.first() == piece.last();
    if (isClosed && std::abs(twiceArea(piece)) / 2 > leastArea * map.raster.cell * map.raster.cell)
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
