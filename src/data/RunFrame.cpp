#include "data/ModelRotation.h"

#include "data/Manager.h"
#include "design/DesignFormulas.h"

namespace TVR {

namespace {

/// A gradient [m/100m] below this counts as no regional flow.
constexpr double leastGradient = 2.2250738585072014e-307;

} // namespace

bool hasRegionalFlow(const Data::Manager& store) {
  return !(store.value(Parameter::GroundwaterGradient).toDouble() < leastGradient);
}

double angleOntoMap(const Data::Manager& store) {
  return hasRegionalFlow(store) ? store.value(Parameter::GroundwaterFlowDirection).toDouble() - 90
                                : 0.0;
}

QPointF turned(const QPointF& point, double angle, const QPointF& origin) {
  double x = point.x();
  double y = point.y();
  DesignFormulas().rotatePoint(x, y, angle, origin.x(), origin.y());
  return {x, y};
}

} // namespace TVR
