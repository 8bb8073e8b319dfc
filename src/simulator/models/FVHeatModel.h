#pragma once

#include "simulator/balance/FVConnection.h"
#include "simulator/balance/FVElement.h"
#include "simulator/balance/FVModel.h"
#include "simulator/balance/FVSource.h"
#include "simulator/balance/FlatBalance.h"

#include <cstddef>
#include <memory>
#include <vector>

/// A cell of the heat balance. Its state is the temperature of water and rock [deg C].
class FVHeatElement final : public FVElement {
public:
  /// volume [m3], initial temperature T [deg C], porosity n [-], densities [kg/m3], heat
  /// capacities [J/(kg K)], conductivity lambda [W/(m K)].
  FVHeatElement(double cellVolume, double T, double n, double densityOfRock,
                double heatCapacityOfRock, double waterDensity, double waterHeatCapacity,
                double lambda);

  void getState(double* y) const { y[0] = temperature; }
  void setState(const double* y) { temperature = y[0]; }
  void initDerivative(double* dydt, double /*t*/, double /*tFlow*/) const { dydt[0] = 0.0; }
  /// Turns the sum of heat flows [W] into a rate of change of temperature [K/s].
  void scaleDerivative(double* dydt) const override { dydt[0] /= stateCapacity(); }
  /// What a sum of heat flows [W] is divided by to give the rate of change [J/K].
  double stateCapacity() const { return capacity * volume; }
  void stepAccepted(double /*t*/) {}

  /// Heat content of the water [J/m3], reckoned from 0 deg C.
  double enthalpy() const { return waterCapacity * temperature; }
  /// Heat content of the cell [J], reckoned from a reference temperature [deg C].
  double energy(double reference) const { return capacity * volume * (temperature - reference); }

  double volume;           ///< [m3]
  double temperature;      ///< state [deg C]
  double conductivity;     ///< [W/(m K)]
  double waterCapacity;    ///< density * heat capacity of the water [J/(m3 K)]
  double capacity;         ///< of rock and pore water together [J/(m3 K)]
  double rockDensity;      ///< [kg/m3]
  double rockHeatCapacity; ///< [J/(kg K)]
};

/// A link of the heat balance: conduction, first-order upwind advection and dispersion. All
/// three heat flows [W] are positive into the first element.
class FVHeatConnection final : public FVConnection<FVHeatElement> {
public:
  /// Lengths and areas as in FVConnection; volume flow Q [m3/s] with the sign of the groundwater
  /// link; longitudinal dispersivity alpha [m], 0 switches dispersion off.
  FVHeatConnection(double toFace, double fromFace, double area, double areaX, double areaY,
                   double Q, double alpha, FVHeatElement* first, FVHeatElement* second);

  /// Sets the flow Q and its directional parts qx and qy [m3/s] and the porosity n [-], and derives
  /// upwind element, pore velocity and dispersion coefficient from them. The coefficient follows
  /// the dispersion tensor of an isotropic medium (Scheidegger, 1961) with a transverse
  /// dispersivity of one tenth of the longitudinal one, reduced to a scalar by the direction of
  /// the face.
  void setFlow(double Q, double n, double qx, double qy);

  /// The three parts of the heat flow [W].
  double conduction() const { return (e1->temperature - e2->temperature) * coefficient; }
  double advection() const {
    if (Q_F == 0.0)
      return 0.0;
    if (upwind)
      return upwind->enthalpy() * Q_F;
    return (e2->enthalpy() + e1->enthalpy()) * Q_F * 0.5;
  }
  double dispersion() const {
    if (dispersivity == 0.0)
      return 0.0;
    return -(a / (d1 + d2) * D * (e1->enthalpy() - e2->enthalpy()));
  }
  void flux(std::vector<double>& out, int /*demandStep*/) const override {
    out[0] = conduction() + advection() + dispersion();
  }
  /// The heat flow as a function of the two temperatures, for the flow as it is set now.
  LinkFactors factors() const;

  double coefficient;                    ///< -(a / (d1 + d2) * mean conductivity) [W/K]
  double Q_F;                            ///< volume flow [m3/s]; negative leaves the first element
  double dispersivity;                   ///< longitudinal [m]
  double Q_x = 0.0;                      ///< volume flow in x [m3/s]
  double Q_y = 0.0;                      ///< volume flow in y [m3/s]
  double D = 0.0;                        ///< dispersion coefficient [m2/s]
  double porosity = 0.0;                 ///< as last set [-]
  double velocity = 0.0;                 ///< magnitude of the pore velocity [m/s]
  const FVHeatElement* upwind = nullptr; ///< the element that the flow leaves, null without flow

private:
  void chooseUpwind();
};

/// A well as a source of heat. Production takes water of the cell's temperature; injection brings
/// water of the inflow value plus the well's temperature change.
class FVHeatSource final : public FVSource<FVHeatElement> {
public:
  using FVSource::FVSource;

  double rate(int demandStep) const override { return well->rate(demandStep); }
  double temperature(int /*demandStep*/) const override { return element->temperature; }
  /// Heat flow into the cell [W]; `inflowValue` [deg C].
  void flux(std::vector<double>& out, int demandStep, double inflowValue) const override;
  /// The heat flow as a function of the cell's temperature and the inflow value.
  FlatBalance::WellFactors factors(int demandStep) const;
  /// Appends the cell's temperature at time t [s] to the history of the well.
  void record(double t) { well->record(t, element->temperature); }
};

/// Transient heat transport in the aquifer with given water flows:
/// capacity * volume * dT/dt = heat flows over the links of a cell + heat of its wells.
/// Water is injected at T0, or in a closed loop at the mixed temperature of the produced water,
/// plus the temperature change of the well.
class FVHeatModel final : public FVModel<FVHeatElement, FVHeatConnection, FVHeatSource> {
public:
  /// T0: reference temperature [deg C]; water density [kg/m3]; water heat capacity [J/(kg K)].
  FVHeatModel(double T0, double waterDensity, double waterHeatCapacity, bool isClosedLoop);

  /// volume [m3], temperature T [deg C], porosity [-], rock density [kg/m3], rock heat capacity
  /// [J/(kg K)], conductivity [W/(m K)].
  void addElement(double volume, double T, double porosity, double rockDensity,
                  double rockHeatCapacity, double conductivity);
  /// As addElement, for a cell whose temperature stays as given.
  void addBoundaryElement(double volume, double T, double porosity, double rockDensity,
                          double rockHeatCapacity, double conductivity);
  /// Arguments as in FVHeatConnection; i1 and i2 count in `elements`. Throws std::out_of_range.
  void addConnection(double d1, double d2, double a, double ax, double ay, double Q_F,
                     double dispersivity, std::size_t i1, std::size_t i2);
  /// i1 counts in `elements`, i2 in `boundaryElements`. Throws std::out_of_range.
  void addBoundaryConnection(double d1, double d2, double a, double ax, double ay, double Q_F,
                             double dispersivity, std::size_t i1, std::size_t i2);
  /// The well is not owned and outlives the model. Throws std::out_of_range.
  void addSource(Well* well, std::size_t elementIndex);
  /// Puts a chain of five cells of rock on an aquifer cell, which stands for the rock above and
  /// below; its outer end is closed. The link of cell and chain stays outside the band.
  /// H: thickness of the aquifer [m]; area: of the cell [m2]; factor: multiplies the area [-];
  /// L: reference length, the thickness of the outermost layer [m]; T: initial temperature
  /// [deg C]; rock values as in addElement. Throws std::out_of_range.
  void addExchange(std::size_t elementIndex, double H, double area, double factor,
                   double rockDensity, double rockHeatCapacity, double conductivity, double L,
                   double T);

  /// Hands the groundwater flow to `connections[k]`, see FVHeatConnection::setFlow. This and the
  /// operations that follow throw std::out_of_range.
  void setFlow(std::size_t k, double Q, double porosity, double qx, double qy);
  /// Hands the groundwater flow to `boundaryConnections[k]`.
  void setBoundaryFlow(std::size_t k, double Q, double porosity, double qx, double qy);

  double temperature(std::size_t i) const { return elements.at(i)->temperature; } ///< [deg C]
  /// Heat content of an element [J], reckoned from a reference temperature [deg C].
  double energy(std::size_t i, double reference) const { return elements.at(i)->energy(reference); }
  /// Magnitude of the temperature difference over `connections[k]` [K].
  double temperatureDifference(std::size_t k) const;

  /// Adds one entry to the history of each well.
  void stepAccepted(double t) override;

private:
  std::unique_ptr<FVHeatElement> makeElement(double volume, double T, double porosity,
                                             double rockDensity, double rockHeatCapacity,
                                             double conductivity) const;
  void connect(double d1, double d2, double a, double ax, double ay, double Q_F,
               double dispersivity, std::size_t i1, std::size_t i2, bool insideBand);

  double waterDensity_;
  double waterHeatCapacity_;
};
