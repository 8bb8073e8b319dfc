#include "project/NearWells.h"

#include "design/ParameterId.h"
#include "project/ProjectReader.h"
#include "project/RunFrame.h"

#include <QPointF>

#include <algorithm>
#include <cmath>

namespace TVR {

namespace {

constexpr double leastDistance = 1.0;  // from which on wells are not near [m]
constexpr double leastCellWidth = 0.3; // [m]

struct Place {
  int row;
  QPointF inModel;
};

std::vector<Place> placesAlongTheFlow(const ProjectReader& project) {
  const WellReader wells = project.wells();
  const RunFrame frame = runFrameOf(project);
  std::vector<Place> places;
  for (int row = 0; row < wells.count(); ++row) {
    const QPointF inModel = frame.inModel(wells.place(row));
    if (std::isfinite(inModel.x()) && std::isfinite(inModel.y()))
      places.push_back({row, inModel});
  }
  std::sort(places.begin(), places.end(),
            [](const Place& a, const Place& b) { return a.inModel.x() < b.inModel.x(); });
  return places;
}

} // namespace

// The cell of a well reaches half its width to each side, and up to the next well on an axis of the
// model where that is nearer, unless it stands within the cell of that one.
std::vector<NearWells> nearWells(const ProjectReader& project) {
  const std::vector<Place> places = placesAlongTheFlow(project);
  const double reach = 0.5 * wellCellWidth(project);
  const double farthest = std::max(leastDistance, std::sqrt(2.0) * reach);
  std::vector<NearWells> pairs;
  for (auto one = places.begin(); one != places.end(); ++one)
    for (auto other = one + 1; other != places.end(); ++other) {
      const QPointF between = other->inModel - one->inModel;
      if (between.x() > farthest)
        break;
      const double distance = std::hypot(between.x(), between.y());
      const bool shareACell = between.x() <= reach && std::abs(between.y()) <= reach;
      if (distance > 0 && (shareACell || distance < leastDistance))
        pairs.push_back(
            {std::min(one->row, other->row), std::max(one->row, other->row), distance, shareACell});
    }
  return pairs;
}

// An active dispersivity fixes the cell size, which keeps the grid Peclet number near 2.
double wellCellWidth(const ProjectReader& project) {
  const double width = std::max({project.number(Parameter::WellDiameter),
                                 project.number(Parameter::MinElementLength), leastCellWidth});
  const double alpha = project.number(Parameter::ThermalDispersivity);
  return alpha > 0 && width > alpha ? 2 * alpha : width;
}

} // namespace TVR
