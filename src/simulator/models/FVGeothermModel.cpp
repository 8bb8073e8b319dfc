#include "simulator/models/FVGeothermModel.h"

#include "simulator/models/SimulatorConstants.h"
#include "simulator/solvers/FVCvodeSolver.h"
#include "simulator/solvers/FVKinsolSolver.h"
#include "simulator/solvers/SolverErrors.h"

#include <cmath>
#include <fstream>
#include <iostream>
#include <ostream>
#include <vector>

FVGeothermModel::FVGeothermModel(double T0, double waterDensity, double waterHeatCapacity,
                                 double viscosity, double startTime, bool closedLoop,
                                 LinearSolver linearSolver)
    : groundwater(viscosity), heat(T0, waterDensity, waterHeatCapacity, closedLoop),
      linearSolver_(linearSolver), time_(startTime) {}

FVGeothermModel::~FVGeothermModel() = default;

void FVGeothermModel::addElement(double volume, const FVMaterial& material, double initialPressure,
                                 double temperature) {
  porosity_ = material.porosity;
  groundwater.addElement(volume, material.porosity, material.compressibility, material.permeability,
                         initialPressure);
  heat.addElement(volume, temperature, material.porosity, material.rockDensity,
                  material.rockHeatCapacity, material.conductivity);
}

void FVGeothermModel::addBoundaryElement(double volume, const FVMaterial& material,
                                         double initialPressure, double temperature) {
  groundwater.addBoundaryElement(volume, material.porosity, material.compressibility,
                                 material.permeability, initialPressure);
  heat.addBoundaryElement(volume, temperature, material.porosity, material.rockDensity,
                          material.rockHeatCapacity, material.conductivity);
}

void FVGeothermModel::addConnection(double d1, double d2, double a, double ax, double ay,
                                    double dispersivity, std::size_t i1, std::size_t i2) {
  groundwater.addConnection(d1, d2, a, ax, ay, i1, i2);
  heat.addConnection(d1, d2, a, ax, ay, 0.0, dispersivity, i1, i2);
}

void FVGeothermModel::addBoundaryConnection(double d1, double d2, double a, double ax, double ay,
                                            double dispersivity, std::size_t i1, std::size_t i2) {
  groundwater.addBoundaryConnection(d1, d2, a, ax, ay, i1, i2);
  heat.addBoundaryConnection(d1, d2, a, ax, ay, 0.0, dispersivity, i1, i2);
}

void FVGeothermModel::addSource(Well* well, std::size_t elementIndex) {
  groundwater.addSource(well, elementIndex);
  heat.addSource(well, elementIndex);
}

void FVGeothermModel::addExchange(std::size_t elementIndex, double H, double area, double factor,
                                  double rockDensity, double rockHeatCapacity, double conductivity,
                                  double L, double T) {
  heat.addExchange(elementIndex, H, area, factor, rockDensity, rockHeatCapacity, conductivity, L,
                   T);
}

void FVGeothermModel::setDemandStep(int k) {
  const bool changed = k != groundwater.demandStep;
  groundwater.demandStep = k;
  if (changed && groundwaterSolver_)
    groundwaterSolver_->restart();
  heat.demandStep = k;
  if (changed && heatSolver_)
    heatSolver_->restart();
}

void FVGeothermModel::solveGroundwater(double t, double relTol, double absTol) {
  if (!groundwaterSolver_)
    groundwaterSolver_ =
        std::make_unique<FVCvodeSolver>(&groundwater, relTol, absTol, time_, linearSolver_);
  groundwaterDone_ = false;
  groundwaterSolver_->advance(t);
  groundwaterDone_ = true;
  groundwater.stepAccepted(t);
}

void FVGeothermModel::solveHeat(double t, bool updateFlows, double relTol, double absTol) {
  if (updateFlows && !groundwaterDone_)
    solveSteadyGroundwater();
  if (!heatSolver_)
    heatSolver_ = std::make_unique<FVCvodeSolver>(&heat, relTol, absTol, time_, linearSolver_);
  if (updateFlows)
    updateHeatFlows();
  heatSolver_->advance(t);
  time_ = t;
}

void FVGeothermModel::updateHeatFlows() {
  constexpr double noticeableDifference = 0.0001; // [K]
  const std::size_t links = groundwater.connections.size();
  std::vector<double> qx(links, 0.0);
  std::vector<double> qy(links, 0.0);
  groundwater.computeDirectionalFlows(qx, qy);
  heat.shortestTravelTime = 0.0;
  for (std::size_t k = 0; k < links; ++k) {
    heat.setFlow(k, groundwater.flow(k), porosity_, qx[k], qy[k]);
    if (heat.temperatureDifference(k) > noticeableDifference) {
      const double travelTime = std::abs(groundwater.travelTime(k));
      if (heat.shortestTravelTime == 0.0 || heat.shortestTravelTime > travelTime)
        heat.shortestTravelTime = travelTime;
    }
  }
  for (std::size_t k = 0; k < groundwater.boundaryConnections.size(); ++k)
    heat.setBoundaryFlow(k, groundwater.boundaryFlow(k), porosity_, 0.0, 0.0);
}

void FVGeothermModel::takeSteadyFlows() {
  for (std::size_t k = 0; k < groundwater.connections.size(); ++k)
    heat.setFlow(k, groundwater.flow(k), porosity_, 0.0, 0.0);
  for (std::size_t k = 0; k < groundwater.boundaryConnections.size(); ++k)
    heat.setBoundaryFlow(k, groundwater.boundaryFlow(k), porosity_, 0.0, 0.0);
}

void FVGeothermModel::solveSteadyGroundwater() {
  try {
    groundwaterDone_ = false;
    FVKinsolSolver(&groundwater, 1e10).solve();
    takeSteadyFlows();
    groundwaterDone_ = true;
    std::ofstream dump("C:/Temp/tvr_connections.dat");
    if (dump)
      writeConnections(dump);
  } catch (const KinsolError& error) {
    std::cout << error.what() << std::endl;
    throw;
  }
}

void FVGeothermModel::stop() {
  groundwater.stopRequested.store(true, std::memory_order_relaxed);
  heat.stopRequested.store(true, std::memory_order_relaxed);
}

bool FVGeothermModel::isStopped() const {
  return groundwater.stopRequested.load(std::memory_order_relaxed) &&
         heat.stopRequested.load(std::memory_order_relaxed);
}

long FVGeothermModel::groundwaterSteps() const {
  return groundwaterSolver_ ? groundwaterSolver_->steps() : 0;
}

long FVGeothermModel::heatSteps() const {
  return heatSolver_ ? heatSolver_->steps() : 0;
}

void FVGeothermModel::writeConnections(std::ostream& stream) const {
  stream << "Connections: " << heat.connections.size() << "\n";
  for (std::size_t k = 0; k < heat.connections.size(); ++k) {
    const FVHeatConnection& link = *heat.connections[k];
    const auto [i1, i2] = heat.connectionIndices[k];
    const double beta =
        std::abs(link.velocity) > smallestNormalDouble ? link.D / link.velocity : 0.0;
    stream << k << ": i1: " << i1 << ", i2: " << i2 << ", d1, " << link.d1 << ", d2, " << link.d2
           << ", a, " << link.a << ", ax, " << link.ax << ", ay, " << link.ay << ", Q_F, "
           << link.Q_F << ", Q_x, " << link.Q_x << ", Q_y, " << link.Q_y << ", beta, " << beta
           << ", D, " << link.D << ", Heatflow cond, " << link.conduction() << ", Heatflow adv, "
           << link.advection() << ", Heatflow disp, " << link.dispersion() << "\n";
  }
}
