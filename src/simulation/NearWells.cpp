#include "simulation/NearWells.h"

#include "design/ParameterId.h"
#include "project/RunFrame.h"
#include "store/Manager.h"
#include "tables/TableNumber.h"
#include "tables/WellModel.h"

#include <QPointF>

#include <algorithm>
#include <cmath>

namespace TVR {

using namespace Parameter;

namespace {

constexpr double leastCellWidth = 0.3; // [m]
constexpr double leastDistance = 1.0;  // from which on wells are not near [m]

struct Place {
  int row;
  QPointF inModel;
};

std::vector<Place> placesAlongTheFlow(Data::Manager& store) {
  const WellModel& wells = *store.wellModel();
  const RunFrame frame = runFrameOf(store);
  std::vector<Place> places;
  for (int row = 0; row < wells.rowCount(); ++row) {
    const QPointF inModel =
        frame.inModel({editNumber(wells, row, WellModel::X), editNumber(wells, row, WellModel::Y)});
    if (std::isfinite(inModel.x()) && std::isfinite(inModel.y()))
      places.push_back({row, inModel});
  }
  std::sort(places.begin(), places.end(),
            [](const Place& a, const Place& b) { return a.inModel.x() < b.inModel.x(); });
  return places;
}

} // namespace

// An active dispersivity fixes the cell size, which keeps the grid Peclet number near 2.
double wellCellWidth(const Data::Manager& store) {
  const auto v = [&](int id) { return store.value(id).toDouble(); };
  const double width = std::max({v(WellDiameter), v(MinElementLength), leastCellWidth});
  const double alpha = v(ThermalDispersivity);
  return alpha > 0 && width > alpha ? 2 * alpha : width;
}

// The cell of a well reaches half its width to each side, and up to the next well on an axis of the
// model where that is nearer, unless it stands within the cell of that one.
std::vector<NearWells> nearWells(Data::Manager& store) {
  const std::vector<Place> places = placesAlongTheFlow(store);
  const double reach = 0.5 * wellCellWidth(store);
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

} // namespace TVR
