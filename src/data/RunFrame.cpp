#include "data/RunFrame.h"

#include "data/Manager.h"
#include "design/DesignFormulas.h"

#include <vector>

namespace TVR {

using namespace Parameter;

namespace {

/// A gradient [m/100m] below this counts as no regional flow.
constexpr double leastGradient = 2.2250738585072014e-307;

/// The point turned clockwise by `angle` [degrees]; untouched at exactly 0.
QPointF turned(const QPointF& point, double angle, const QPointF& origin) {
  double x = point.x();
  double y = point.y();
  DesignFormulas().rotatePoint(x, y, angle, origin.x(), origin.y());
  return {x, y};
}

} // namespace

QPointF RunFrame::onMap(const QPointF& inModel) const {
  return turned(inModel, angleOntoMap(), origin);
}

QPointF RunFrame::inModel(const QPointF& onMap) const {
  return turned(onMap, -angleOntoMap(), origin);
}

RunFrame runFrameOf(const Data::Manager& store) {
  std::vector<PlanePoint> wells;
  for (const QPointF& position : store.wellPositions())
    wells.push_back({position.x(), position.y()});
  const PlanePoint centre = DesignFormulas().centroid(wells);
  RunFrame frame;
  frame.origin = {centre.x, centre.y};
  frame.flowDirection = store.value(GroundwaterFlowDirection).toDouble();
  frame.hasRegionalFlow = !(store.value(GroundwaterGradient).toDouble() < leastGradient);
  return frame;
}

} // namespace TVR
