#include "project/RunFrame.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "project/ProjectReader.h"

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

RunFrame runFrameOf(const ProjectReader& project) {
  std::vector<PlanePoint> wells;
  for (const QPointF& position : project.enteredWells().positions)
    wells.push_back({position.x(), position.y()});
  const PlanePoint centre = DesignFormulas().centroid(wells);
  RunFrame frame;
  frame.origin = {centre.x, centre.y};
  frame.flowDirection = project.number(GroundwaterFlowDirection);
  frame.hasRegionalFlow = !(project.number(GroundwaterGradient) < leastGradient);
  return frame;
}

} // namespace TVR
