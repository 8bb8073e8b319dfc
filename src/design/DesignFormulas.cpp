#include "design/DesignFormulas.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVR {

namespace {

constexpr double referenceDegreeDays = 3587.0;
constexpr double boilerEfficiency = 0.85;
constexpr double energyOfGas = 9.6;  // [kWh/m³]
constexpr double energyOfOil = 10.7; // [kWh/l]
constexpr double hoursPerYear = 8760.0;
constexpr double daysPerYear = 365.0;
constexpr double sichardtReach = 3000.0;
constexpr double sichardtCapacity = 2.0 / 15.0;
constexpr double designDrawdownShare = 0.15;
constexpr double drawdownLimitShare = 0.9;
constexpr double greatestWellCount = 1000.0;

struct Direction {
  double sine;
  double cosine;
};

// A right angle in radians is rounded, so that its cosine is not 0 but some 1e-16.
Direction directionOf(double degrees, double pi) {
  constexpr Direction quarters[]{{0.0, 1.0}, {1.0, 0.0}, {0.0, -1.0}, {-1.0, 0.0}};
  int quarter = 0;
  if (std::remquo(degrees, 90.0, &quarter) == 0.0)
    return quarters[static_cast<unsigned>(quarter) % 4];
  const double a = 2.0 * degrees * pi / 360.0;
  return {std::sin(a), std::cos(a)};
}

} // namespace

struct DesignFormulas::Aquifer {
  bool unconfined;
  double h;
  double kf;

  double half() const { return h * 0.5; }
  double limit() const { return h * drawdownLimitShare; }
  /// Drawdown that no longer leaves the well enough water.
  bool isTooDeep(double s) const { return unconfined ? s > half() : s > limit(); }
};

struct DesignFormulas::Well {
  double& n;
  double& flow;
  double& s;
  double& radiusOfInfluence;
  double& filterDiameter;
  double& r;
};

DesignFormulas::DesignFormulas(FilterDiameterLookup filterDiameters)
    : startRadius(0.25), heatCapacityWater(4186.0), pi(4.0 * std::atan(1.0)),
      filterDiameters_(std::move(filterDiameters)) {}

double DesignFormulas::thickness(double table, double base) const {
  return base - table;
}

double DesignFormulas::filterLength(double thickness) const {
  return 0.85 * thickness;
}

double DesignFormulas::designDrawdown(double h) const {
  return designDrawdownShare * h;
}

double DesignFormulas::reach(double s, double kf) const {
  return sichardtReach * s * std::sqrt(kf);
}

double DesignFormulas::wellRadius(double filterDiameter) const {
  return filterDiameter * 1.25 / 1000.0;
}

double DesignFormulas::wellCapacity(double r, double length, double kf) const {
  return std::sqrt(kf) * (pi * sichardtCapacity * r * length);
}

double DesignFormulas::wellCount(double totalFlow, double flow) const {
  return std::trunc(totalFlow / flow) + 1.0;
}

double DesignFormulas::flowPerWell(double totalFlow, double wells) const {
  return totalFlow / wells;
}

double DesignFormulas::darcyVelocity(double kf, double gradient) const {
  return kf * gradient / 100.0;
}

double DesignFormulas::geometricMean(double a, double b) const {
  return std::sqrt(a * b);
}

double DesignFormulas::safeRatio(double a, double b) const {
  return b == 0.0 ? 0.0 : a / b;
}

double DesignFormulas::inchToMillimetre(double a) const {
  return a * 25.4;
}

double DesignFormulas::demandFromBuilding(double specificDemand, double area,
                                          double degreeDays) const {
  return specificDemand * area * (degreeDays / referenceDegreeDays);
}

double DesignFormulas::demandFromGas(double consumption) const {
  return consumption * energyOfGas / boilerEfficiency;
}

double DesignFormulas::demandFromOil(double consumption) const {
  return consumption * energyOfOil / boilerEfficiency;
}

double DesignFormulas::heatPumpShare(double cop) const {
  return 1.0 - 1.0 / cop;
}

double DesignFormulas::netDemand(double heatingDemand, double coolingDemand, double cop) const {
  if (heatingDemand == 0.0)
    return coolingDemand;
  const double drawn = heatPumpShare(cop) * heatingDemand;
  return coolingDemand == 0.0 ? drawn : std::abs(coolingDemand - drawn);
}

double DesignFormulas::effectiveTemperatureChange(double heatingDemand, double coolingDemand,
                                                  double heatingChange, double coolingChange,
                                                  double cop) const {
  const bool heatingGoverns =
      heatingChange > 0.0 && heatPumpShare(cop) * heatingDemand > coolingDemand;
  return heatingGoverns ? heatingChange : coolingChange;
}

double DesignFormulas::designPower(double heatingPower, double coolingPower, double cop) const {
  const double drawn = heatPumpShare(cop) * heatingPower;
  return heatingPower > 0.0 && drawn > coolingPower ? drawn : coolingPower;
}

double DesignFormulas::heatingPeriodDemand(double demand, double days) const {
  return days > 0.0 ? demand * daysPerYear / days : demand;
}

double DesignFormulas::peakFlowRate(double cop, double power, double temperatureChange) const {
  return heatPumpShare(cop) * power / (temperatureChange * heatCapacityWater);
}

double DesignFormulas::meanFlowRate(double cop, double energy, double temperatureChange) const {
  return heatPumpShare(cop) * energy / hoursPerYear / (temperatureChange * heatCapacityWater);
}

double DesignFormulas::aMin(double flow, double time, double b, double velocity, double porosity,
                            double densityWater, double densityRock, double capacityWater,
                            double capacityRock) const {
  const double bulkCapacity =
      (1.0 - porosity) * densityRock * capacityRock + porosity * densityWater * capacityWater;
  const double frontWay = (densityWater * capacityWater * (velocity * 1.1)) / bulkCapacity * time;
  const double injectedRadius = 2.0 * std::sqrt(3.0 * flow * time / (2.0 * pi * b));
  return std::max(frontWay, injectedRadius);
}

double DesignFormulas::bMin(double flow, double time, double b, double radiusOfInfluence) const {
  return std::max(std::sqrt(2.0 * flow * time / (b * pi)), radiusOfInfluence);
}

double DesignFormulas::dMin(double halfOfWells, double flow, double time, double b,
                            double velocity) const {
  return std::min(2.0 * std::sqrt(3.0 * halfOfWells * flow * time / (2.0 * pi * b)),
                  2.0 * halfOfWells * flow / (pi * velocity * b));
}

double DesignFormulas::drawdownSingleWell(double flow, double r, double radiusOfInfluence,
                                          double kf, double b) const {
  if (!(radiusOfInfluence > 0.0))
    return 0.0;
  const double s = std::log(r / radiusOfInfluence) * (-flow / (2.0 * pi * kf * b));
  return s < 0.0 ? b : s;
}

double DesignFormulas::drawdownSuperposed(double flow, double r, double radiusOfInfluence,
                                          double kf, double b, double distance,
                                          double wells) const {
  if (!(radiusOfInfluence > 0.0 && distance > 0.0))
    return 0.0;
  const double logarithms =
      std::log(distance / radiusOfInfluence) * (wells - 1.0) + std::log(r / radiusOfInfluence);
  const double s = logarithms * (-flow / (2.0 * pi * kf * b));
  return s < 0.0 ? b : s;
}

double DesignFormulas::unconfinedDrawdown(double h, double s) const {
  return s > h * 0.5 ? h : (1.0 - std::sqrt(1.0 - 2.0 * s / h)) * h;
}

void DesignFormulas::rotatePoint(double& x, double& y, double& angle, double originX,
                                 double originY) const {
  if (angle == 0.0)
    return;
  const Direction direction = directionOf(angle, pi);
  const double dx = x - originX;
  const double dy = y - originY;
  x = direction.sine * dy + direction.cosine * dx + originX;
  y = direction.cosine * dy - direction.sine * dx + originY;
}

PlanePoint DesignFormulas::centroid(std::span<const PlanePoint> polygon) const {
  PlanePoint sum;
  for (const PlanePoint& point : polygon) {
    sum.x += point.x;
    sum.y += point.y;
  }
  const auto count = static_cast<double>(polygon.size());
  return {sum.x / count, sum.y / count};
}

double DesignFormulas::drawdownOf(const Aquifer& aquifer, const Well& well) const {
  return drawdownSingleWell(well.flow, well.r, well.radiusOfInfluence, aquifer.kf, aquifer.h);
}

bool DesignFormulas::searchWellCount(const Aquifer& aquifer, double totalFlow, Well& well) const {
  do {
    well.r = startRadius;
    well.s = drawdownOf(aquifer, well);
    if (aquifer.unconfined) {
      well.s = unconfinedDrawdown(aquifer.h, well.s);
      if (well.s < aquifer.half())
        return true;
    } else if (!aquifer.isTooDeep(well.s)) {
      return true;
    }
    well.n += 1.0;
    well.flow = totalFlow / well.n;
  } while (well.n < greatestWellCount);
  return false;
}

/// Row that failed, from 1, or the number of rows plus 1 if all of them hold. A failure in a later
/// row than the first leaves the values of the row before it.
int DesignFormulas::searchFilter(const Aquifer& aquifer, Well& well) const {
  double goodDiameter = 0.0;
  double goodDrawdown = 0.0;
  double goodRadius = 0.0;
  for (int row = 1; row <= filterRows; ++row) {
    well.filterDiameter = filterDiameters_ ? filterDiameters_(row) : 0.0;
    well.r = wellRadius(well.filterDiameter);
    well.s = drawdownOf(aquifer, well);
    // The bare formula on purpose: above half of the thickness it yields not-a-number, which fails
    // neither test below.
    if (aquifer.unconfined)
      well.s = (1.0 - std::sqrt(1.0 - 2.0 * well.s / aquifer.h)) * aquifer.h;

    const double capacity = wellCapacity(well.r, aquifer.h - well.s, aquifer.kf);
    if (well.flow > capacity || aquifer.isTooDeep(well.s)) {
      if (row > 1) {
        well.filterDiameter = goodDiameter;
        well.s = goodDrawdown;
        well.r = goodRadius;
      }
      return row;
    }
    goodDiameter = well.filterDiameter;
    goodDrawdown = well.s;
    goodRadius = well.r;
  }
  return filterRows + 1;
}

bool DesignFormulas::designWells(bool unconfined, double h, double kf, double totalFlow, double& n,
                                 double& flow, double& s, double& radiusOfInfluence,
                                 double& filterDiameter, double& /*filterLength*/,
                                 double& r) const {
  const Aquifer aquifer{unconfined, h, kf};
  Well well{n, flow, s, radiusOfInfluence, filterDiameter, r};
  bool found = false;
  while (n < greatestWellCount - 1.0) {
    radiusOfInfluence = reach(designDrawdown(h), kf);
    found = searchWellCount(aquifer, totalFlow, well);
    flow = flowPerWell(totalFlow, n);
    const int failedRow = searchFilter(aquifer, well);
    if (failedRow <= filterRows) {
      radiusOfInfluence = reach(s, kf);
      return true;
    }
    if (found)
      return true;
  }
  return found;
}

bool DesignFormulas::checkWells(bool unconfined, double h, double kf, double totalFlow,
                                double distance, double& n, double& flow, double& s,
                                double& radiusOfInfluence, double& filterDiameter,
                                double& filterLength, double& r) const {
  const Aquifer aquifer{unconfined, h, kf};
  radiusOfInfluence = reach(designDrawdown(h), kf);
  r = wellRadius(filterDiameter);
  if (!(n >= 1.0))
    return false;

  const bool oneWell = n < 2.0;
  flow = oneWell ? totalFlow : flowPerWell(totalFlow, n);
  if (!oneWell && radiusOfInfluence > distance)
    s = drawdownSuperposed(flow, r, radiusOfInfluence, kf, h, distance, n);
  else
    s = drawdownSingleWell(flow, r, radiusOfInfluence, kf, h);

  const auto design = [&] {
    designWells(unconfined, h, kf, totalFlow, n, flow, s, radiusOfInfluence, filterDiameter,
                filterLength, r);
  };
  if (unconfined)
    s = unconfinedDrawdown(h, s);
  if (unconfined ? s >= aquifer.half() : aquifer.isTooDeep(s)) {
    design();
    return false;
  }
  if (wellCapacity(r, h - s, kf) > flow && s < aquifer.limit())
    return true;

  const double givenDiameter = filterDiameter;
  design();
  return !oneWell && filterDiameter >= givenDiameter;
}

} // namespace TVR
