#pragma once

#include <QPointF>

#include <cmath>
#include <numbers>

/// What the front of injected water depends on.
struct Ground {
  double conductivity;  ///< hydraulic [m/s]
  double gradient;      ///< [m/100m]
  double direction;     ///< of the regional flow, clockwise from north [degrees]
  double thickness;     ///< [m]
  double porosity;      ///< [-]
  double rockCapacity;  ///< heat capacity of the rock by volume [J/(m3 K)]
  double waterCapacity; ///< heat capacity of the water by volume [J/(m3 K)]
};

/// The thermal front of a well at the origin that injects into uniform flow, without conduction:
/// `exp(X - T) = cos Y + X sin Y / Y`, where X along and Y across the flow are lengths times
/// 2 pi H q / Q, and T is 2 pi H q² cw t / (Q C): Q rate, q regional flow, H thickness, cw and C
/// heat capacities of the water and of the aquifer (Bear and Jacobs 1965, "On the movement of water
/// bodies injected into aquifers", of heat rather than of a tracer).
class InjectionFront {
public:
  /// Rate in m3/s, time in s.
  InjectionFront(const Ground& ground, double rate, double time) {
    const double flow = ground.conductivity * ground.gradient / 100;
    const double aquiferCapacity =
        (1 - ground.porosity) * ground.rockCapacity + ground.porosity * ground.waterCapacity;
    const double angle = ground.direction * std::numbers::pi / 180;
    scale_ = 2 * std::numbers::pi * ground.thickness * flow / rate;
    time_ = scale_ * flow * ground.waterCapacity / aquiferCapacity * time;
    along_ = {std::sin(angle), std::cos(angle)};
  }

  /// Whether the front has passed a place on the map [m].
  bool hasPassed(const QPointF& place) const {
    const double x = scale_ * QPointF::dotProduct(place, along_);
    const double y = scale_ * std::abs(place.x() * along_.y() - place.y() * along_.x());
    if (y >= std::numbers::pi) // beyond the widest streamline of injected water
      return false;
    const double streams = std::cos(y) + x * (y > 0 ? std::sin(y) / y : 1);
    return streams > 0 && x - std::log(streams) <= time_;
  }

private:
  double scale_;  ///< of lengths [1/m]
  double time_;   ///< [-]
  QPointF along_; ///< direction of the flow on the map
};
