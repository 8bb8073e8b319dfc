#pragma once

#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"
#include "simulator/models/FVGeothermModel.h"
#include "simulator/models/FVMaterial.h"

#include <cstddef>
#include <memory>
#include <vector>

/// The coupled model of a site, built from a mesh, two rocks and a list of wells. It is complete
/// after construction; only its state changes then.
class FVGeothermSite final : public FVGeothermModel {
public:
  /// @param mesh taken over; all wells must lie inside, else "rangerror" (const char*) is thrown
  /// @param gradient pressure gradient of the regional flow along +x [Pa/m], negative for a flow
  ///        along +x
  /// @param wells are copied
  /// @param T0 initial and reference temperature [deg C]
  /// @param waterDensity [kg/m3]
  /// @param waterHeatCapacity [J/(kg K)]
  /// @param viscosity of the water [Pa s]
  /// @param dispersivity longitudinal [m]
  /// @param startTime [s]
  /// @param exchangeFactor multiplies the area of the exchange with the rock around; above 0 each
  ///        cell without a well gets a chain, see FVHeatModel::addExchange
  /// @param surrounding rock of the chains; the name "undefined" stands for the aquifer's
  /// @param exchangeLength reference length of the chains [m]
  /// @param closedLoop injected water takes the mixed temperature of the produced water
  /// @param linearSolver of both integrators
  FVGeothermSite(std::unique_ptr<FVMesh> mesh, const FVMaterial& aquifer, double gradient,
                 const std::vector<Well*>& wells, double T0, double waterDensity,
                 double waterHeatCapacity, double viscosity, double dispersivity, double startTime,
                 double exchangeFactor, const FVMaterial& surrounding, double exchangeLength,
                 bool closedLoop, LinearSolver linearSolver = LinearSolver::Structured);

  /// The site's own wells with their histories, in the order given; they live as long as the site.
  std::vector<Well*> wells() const;
  const FVMesh& mesh() const { return *mesh_; }
  const FVMaterial& aquifer() const { return aquifer_; }
  /// The rock of the exchange chains, after "undefined" was replaced.
  const FVMaterial& surrounding() const { return surrounding_; }
  double gradient() const { return gradient_; } ///< [Pa/m]

private:
  void addCells();
  void addLinks(double dispersivity);
  std::vector<std::size_t> addWells();
  void addExchangeChains(const std::vector<std::size_t>& wellElements, double factor,
                         double length);

  std::unique_ptr<FVMesh> mesh_;
  double gradient_;
  FVMaterial aquifer_;
  FVMaterial surrounding_;
  std::vector<std::unique_ptr<Well>> wells_;
  double T0_;
};
