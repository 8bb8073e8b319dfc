#pragma once

#include "simulator/SiteFixtures.h"
#include "simulator/mesh/FVMesh.h"
#include "simulator/models/FVGeothermSite.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Verification {

using SiteFixtures::day;
using SiteFixtures::viscosity;
inline constexpr double year = 365.25 * day;   // [s]
inline constexpr double aquiferThickness = 10; // [m]

/// Heat capacity of the water [J/(m3 K)].
inline constexpr double waterCapacity =
    SiteFixtures::waterDensity * SiteFixtures::waterHeatCapacity;

/// What the cases vary about a site.
struct Setup {
  FVMaterial aquifer = SiteFixtures::gravel();
  double gradient = 0.0;     // [Pa/m]
  double temperature = 10.0; // [deg C]
  double dispersivity = 0.0; // [m]
  double exchangeFactor = 0.0;
  FVMaterial surrounding = SiteFixtures::clay();
  double exchangeLength = 10.0; // [m]
  bool closedLoop = false;
  double waterHeatCapacity = SiteFixtures::waterHeatCapacity; // [J/(kg K)]
};

/// The gravel of the fixtures with another heat conductivity [W/(m K)].
inline FVMaterial gravelConducting(double conductivity) {
  FVMaterial material = SiteFixtures::gravel();
  material.conductivity = conductivity;
  return material;
}

/// Heat capacity of rock and pore water together [J/(m3 K)].
inline double bulkCapacity(const FVMaterial& rock) {
  return (1.0 - rock.porosity) * rock.rockDensity * rock.rockHeatCapacity +
         rock.porosity * waterCapacity;
}

inline std::unique_ptr<FVGeothermSite> makeSite(const FVMesh& mesh, std::vector<Well> wells,
                                                const Setup& setup) {
  std::vector<Well*> pointers;
  for (Well& well : wells)
    pointers.push_back(&well);
  return std::make_unique<FVGeothermSite>(
      std::make_unique<FVMesh>(mesh), setup.aquifer, setup.gradient, pointers, setup.temperature,
      SiteFixtures::waterDensity, setup.waterHeatCapacity, viscosity, setup.dispersivity, 0.0,
      setup.exchangeFactor, setup.surrounding, setup.exchangeLength, setup.closedLoop);
}

/// `count` cells of equal width that cover start .. start + length [m].
inline FVGridLine evenLine(double start, double length, int count) {
  return SiteFixtures::lineOf(std::vector<double>(static_cast<std::size_t>(count), length / count),
                              start);
}

} // namespace Verification
