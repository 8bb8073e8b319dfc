#pragma once

#include <functional>
#include <span>

namespace TVR {

/// A point of the map in metres.
struct PlanePoint {
  double x = 0.0;
  double y = 0.0;
};

/// Closed formulas that dimension a thermal use of groundwater: energy, flow rates, drawdown,
/// distances, number of wells and filter. Units are SI unless a declaration says otherwise; energy
/// is in kWh/a and power in kW. Arguments are not tested beyond what is stated: a zero temperature
/// change or a zero conductivity gives an infinity or not-a-number, which the caller gets as it is.
/// Where a flow must not be reduced by the heat pump, pass `withoutHeatPump` as `cop`.
class DesignFormulas {
public:
  /// Diameter [mm] in row `row`, from 1 to 9, of the table of filters.
  using FilterDiameterLookup = std::function<double(int row)>;

  /// Number of rows that `designWells` walks in the table of filters.
  static constexpr int filterRows = 9;
  /// Coefficient of performance that leaves a flow unreduced, to one part in a million.
  static constexpr double withoutHeatPump = 1000000.0;

  /// `filterDiameters` is asked by `designWells` only; without it every diameter is 0.
  explicit DesignFormulas(FilterDiameterLookup filterDiameters = {});

  /// Well radius [m] with which the first estimate of a well starts.
  const double startRadius;
  /// Volumetric heat capacity of water [kJ/(m³·K)]: power in kW and a temperature change in K give
  /// a flow in m³/s.
  const double heatCapacityWater;
  const double pi;

  // Simple relations

  /// Water-filled thickness [m] from the depths below ground of water table and aquifer base [m].
  double thickness(double table, double base) const;
  /// Length of the filter [m] for an aquifer of `thickness` [m].
  double filterLength(double thickness) const;
  /// Drawdown [m] that a first estimate allows in an aquifer of thickness `h` [m].
  double designDrawdown(double h) const;
  /// Radius of influence [m] of a well with drawdown `s` [m] (Sichardt, 1928).
  double reach(double s, double kf) const;
  /// Radius of the bore [m] around a filter of `filterDiameter` [mm].
  double wellRadius(double filterDiameter) const;
  /// Rate [m³/s] that a well of radius `r` [m] and wetted length `length` [m] can take in without
  /// washing out fines (Sichardt, 1928).
  double wellCapacity(double r, double length, double kf) const;
  /// Number of wells for a total rate `totalFlow` at `flow` each: one more than the truncated
  /// ratio, even for an exact one. Not a finite number if `flow` is 0.
  double wellCount(double totalFlow, double flow) const;
  double flowPerWell(double totalFlow, double wells) const;
  /// Darcy velocity [m/s]; `gradient` in m/100m (Darcy, 1856).
  double darcyVelocity(double kf, double gradient) const;
  double geometricMean(double a, double b) const;
  /// `a` / `b`, or 0 if `b` is 0.
  double safeRatio(double a, double b) const;
  double inchToMillimetre(double a) const;

  // Energy and flow

  /// Heat demand [kWh/a] of a building with `specificDemand` [kWh/(m²·a)], heated floor `area` [m²]
  /// and the heating degree days [K·d/a] of its place.
  double demandFromBuilding(double specificDemand, double area, double degreeDays) const;
  /// Heat demand [kWh/a] from a gas consumption [m³/a].
  double demandFromGas(double consumption) const;
  /// Heat demand [kWh/a] from a fuel oil consumption [l/a].
  double demandFromOil(double consumption) const;
  /// Energy [kWh/a] that the groundwater exchanges in balance over the year; never negative for
  /// demands that are not negative and a `cop` of at least 1.
  double netDemand(double heatingDemand, double coolingDemand, double cop) const;
  /// Temperature change [K] of the use that governs: heating if the heat it draws exceeds the
  /// cooling demand, else cooling.
  double effectiveTemperatureChange(double heatingDemand, double coolingDemand,
                                    double heatingChange, double coolingChange, double cop) const;
  /// Power [kW] of the use that governs, as seen by the groundwater.
  double designPower(double heatingPower, double coolingPower, double cop) const;
  /// Demand [kWh/a] of a year that consisted of heating period only; `demand` itself if the `days`
  /// of the period are not above 0.
  double heatingPeriodDemand(double demand, double days) const;
  /// Flow [m³/s] that carries `power` [kW] at a `temperatureChange` [K].
  double peakFlowRate(double cop, double power, double temperatureChange) const;
  /// Mean flow [m³/s] over a year that carries `energy` [kWh/a] at a `temperatureChange` [K].
  double meanFlowRate(double cop, double energy, double temperatureChange) const;

  // Geometry of the well field

  /// Length [m] of the thermal plume along the flow after `time` [s]: the larger of the way of the
  /// retarded temperature front, raised by 10 %, and the radius of the injected volume. `velocity`
  /// [m/s] is the groundwater's, `porosity` a fraction, densities in kg/m³, capacities in J/(kg·K).
  double aMin(double flow, double time, double b, double velocity, double porosity,
              double densityWater, double densityRock, double capacityWater,
              double capacityRock) const;
  /// Width [m] of the influenced strip: the larger of the radius of the volume moved in `time` [s]
  /// and the radius of influence.
  double bMin(double flow, double time, double b, double radiusOfInfluence) const;
  /// Distance [m] between withdrawal and injection that avoids a thermal short circuit.
  double dMin(double halfOfWells, double flow, double time, double b, double velocity) const;

  // Drawdown

  /// Steady drawdown [m] at radius `r` [m] of a well with rate `flow` in a confined aquifer (Thiem,
  /// 1906); 0 if the radius of influence is not above 0, and `b` where the formula turns negative.
  double drawdownSingleWell(double flow, double r, double radiusOfInfluence, double kf,
                            double b) const;
  /// The same at one of `wells` equal wells at `distance` [m] from each other; 0 unless both the
  /// radius of influence and the distance are above 0.
  double drawdownSuperposed(double flow, double r, double radiusOfInfluence, double kf, double b,
                            double distance, double wells) const;
  /// Correction of a confined drawdown `s` [m] to an unconfined aquifer of thickness `h` [m]
  /// (Dupuit, 1863); `h` if `s` is above half of it.
  double unconfinedDrawdown(double h, double s) const;

  // Plane geometry

  /// Turns the point clockwise by `angle` [degrees] around the origin. `angle` is not changed.
  /// Multiples of a right angle are exact: points in line with an axis stay in line.
  void rotatePoint(double& x, double& y, double& angle, double originX, double originY) const;
  /// Mean of the points; not-a-number for a polygon without points.
  PlanePoint centroid(std::span<const PlanePoint> polygon) const;

  // Search for a construction

  /// Looks for the number of wells `n` and the filter with which drawdown and rate stay below their
  /// limits. `n` and the rate of one well `flow` come prepared by the caller; `n` is only raised.
  /// Gives also the drawdown `s` [m], radius of influence [m], filter diameter [mm] and well radius
  /// `r` [m]; the filter length stays as it is. A filter whose drawdown in an unconfined aquifer
  /// exceeds half of `h` gives not-a-number as `s`, which passes the tests as if the filter held.
  /// False if `n` reaches 999 first; the arguments then hold the last try.
  bool designWells(bool unconfined, double h, double kf, double totalFlow, double& n, double& flow,
                   double& s, double& radiusOfInfluence, double& filterDiameter,
                   double& filterLength, double& r) const;
  /// Whether `n` wells with the given filter, at `distance` [m] from each other, carry the rate.
  /// Where they do not, the reference arguments are those of a design that starts from them.
  bool checkWells(bool unconfined, double h, double kf, double totalFlow, double distance,
                  double& n, double& flow, double& s, double& radiusOfInfluence,
                  double& filterDiameter, double& filterLength, double& r) const;

private:
  struct Aquifer;
  struct Well;

  double heatPumpShare(double cop) const;
  double drawdownOf(const Aquifer& aquifer, const Well& well) const;
  bool searchWellCount(const Aquifer& aquifer, double totalFlow, Well& well) const;
  int searchFilter(const Aquifer& aquifer, Well& well) const;

  FilterDiameterLookup filterDiameters_;
};

} // namespace TVR
