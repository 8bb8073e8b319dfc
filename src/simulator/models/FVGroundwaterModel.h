#pragma once

#include "simulator/balance/FVConnection.h"
#include "simulator/balance/FVElement.h"
#include "simulator/balance/FVModel.h"
#include "simulator/balance/FVSource.h"
#include "simulator/balance/FlatBalance.h"

#include <cstddef>
#include <vector>

/// A cell of the groundwater balance. Its state is a pressure difference, not a head.
class FVGroundwaterElement final : public FVElement {
public:
  /// volume [m3], porosity [-], compressibility [1/Pa], permeability k [m2], viscosity mu [Pa s],
  /// initial pressure p0 [Pa].
  FVGroundwaterElement(double volume, double porosity, double compressibility, double k, double mu,
                       double p0);

  void setPressure(const double* y) { pressure = y[0]; }
  void getState(double* y) const { y[0] = pressure; }
  /// Change since the construction [Pa].
  double pressureChange() const { return pressure - initialPressure; }
  /// Turns the sum of flows [m3/s] into a rate of change of pressure [Pa/s].
  void scaleDerivative(double* dydt) const override { dydt[0] /= storage; }
  /// What a sum of flows [m3/s] is divided by to give the rate of change [m3/Pa].
  double stateCapacity() const { return storage; }

  double permeability;    ///< intrinsic permeability [m2]
  double viscosity;       ///< dynamic viscosity of the water [Pa s]
  double pressure;        ///< state [Pa]
  double initialPressure; ///< [Pa]
  double storage;         ///< volume * porosity * compressibility [m3/Pa]
  double flowX = 0.0;     ///< sum of x flows, weighted with the area of the face [m5/s]
  double flowY = 0.0;     ///< sum of y flows, weighted with the area of the face [m5/s]
  double weightX = 0.0;   ///< sum of the weights of flowX [m2]
  double weightY = 0.0;   ///< sum of the weights of flowY [m2]
};

/// A link of the groundwater balance after Darcy's law. Permeability and viscosity of the link
/// are arithmetic means, each element weighted with its own distance to the face; the
/// coefficient is fixed at construction.
class FVGroundwaterConnection final : public FVConnection<FVGroundwaterElement> {
public:
  /// Arguments as in FVConnection.
  FVGroundwaterConnection(double toFace, double fromFace, double area, double areaX, double areaY,
                          FVGroundwaterElement* first, FVGroundwaterElement* second);

  /// Volume flow [m3/s]; negative when water moves from the first to the second element.
  double flow() const { return (e1->pressure - e2->pressure) * coefficient; }
  void flux(std::vector<double>& out, int /*demandStep*/) const override { out[0] = flow(); }
  /// The flow as a function of the two pressures.
  LinkFactors factors() const { return {coefficient, 0.0, 0.0}; }

  double coefficient; ///< -(mean permeability * a / mean viscosity / (d1 + d2)) [m3/(s Pa)]
};

/// A well as a source of water.
class FVGroundwaterSource final : public FVSource<FVGroundwaterElement> {
public:
  using FVSource::FVSource;

  double rate(int demandStep) const override { return well->rate(demandStep); }
  /// Water balance knows no temperature: always 0.
  double temperature(int /*demandStep*/) const override { return 0.0; }
  void flux(std::vector<double>& out, int demandStep, double /*inflowValue*/) const override {
    out[0] = well->rate(demandStep);
  }
  /// The flow as a function of pressure and inflow value, which it does not depend on.
  FlatBalance::WellFactors factors(int demandStep) const {
    return {0.0, 0.0, 0.0, well->rate(demandStep)};
  }
};

/// Transient groundwater flow in one horizontal layer of fixed thickness:
/// storage * dp/dt = sum of the flows over the links of a cell + rates of its wells.
class FVGroundwaterModel final
    : public FVModel<FVGroundwaterElement, FVGroundwaterConnection, FVGroundwaterSource> {
public:
  /// `viscosity`: dynamic viscosity of the water [Pa s], given to all elements added later.
  explicit FVGroundwaterModel(double viscosity);

  /// volume [m3], porosity [-], compressibility [1/Pa], permeability [m2], initial pressure [Pa].
  void addElement(double volume, double porosity, double compressibility, double permeability,
                  double initialPressure);
  /// As addElement, for a cell whose pressure stays as given.
  void addBoundaryElement(double volume, double porosity, double compressibility,
                          double permeability, double initialPressure);
  /// Lengths and areas as in FVConnection; i1 and i2 count in `elements`. Throws
  /// std::out_of_range.
  void addConnection(double d1, double d2, double a, double ax, double ay, std::size_t i1,
                     std::size_t i2);
  /// i1 counts in `elements`, i2 in `boundaryElements`. Throws std::out_of_range.
  void addBoundaryConnection(double d1, double d2, double a, double ax, double ay, std::size_t i1,
                             std::size_t i2);
  /// The well is not owned and outlives the model. Throws std::out_of_range.
  void addSource(Well* well, std::size_t elementIndex);

  /// Flow of `connections[k]` [m3/s], with the sign of FVGroundwaterConnection::flow. This and
  /// the operations that follow throw std::out_of_range.
  double flow(std::size_t k) const { return connections.at(k)->flow(); }
  /// Flow of `boundaryConnections[k]` [m3/s].
  double boundaryFlow(std::size_t k) const { return boundaryConnections.at(k)->flow(); }
  /// Time that the flow of `connections[k]` takes to fill the link's volume [s], with the sign of
  /// the flow; infinite without flow.
  double travelTime(std::size_t k) const;
  /// Pressure change of `elements[i]` since the construction [Pa].
  double pressureChange(std::size_t i) const { return elements.at(i)->pressureChange(); }

  /// Resolves the link flows into an x and a y volume flow for each link [m3/s], by means over the
  /// faces of its two elements weighted with the face areas. Both vectors hold one entry per
  /// entry of `connections`. An element without x (or y) links makes qx (or qy) of its links
  /// not-a-number; boundary links count as x links here. Throws std::out_of_range if qx or qy is
  /// shorter.
  void computeDirectionalFlows(std::vector<double>& qx, std::vector<double>& qy);

  void stepAccepted(double t) override { lastStepTime = t; }

private:
  double viscosity_;
};
