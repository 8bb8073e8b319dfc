#pragma once

#include <QPointF>

namespace TVR {

namespace Data {
class Manager;
}

/// Whether groundwater flows through the region: its gradient is not below the least that counts.
bool hasRegionalFlow(const Data::Manager& store);

/// The angle [degrees] by which a point of the model, in which the regional flow runs along +x, is
/// turned onto the map; 0 without a regional flow. Its negative turns the map into the model.
double angleOntoMap(const Data::Manager& store);

/// The point turned around `origin` by `angle` [degrees], clockwise; untouched at exactly 0.
QPointF turned(const QPointF& point, double angle, const QPointF& origin);

} // namespace TVR
