#pragma once

#include "simulator/mesh/FVMesh.h"
#include "simulator/models/FVGeothermSite.h"

#include <memory>
#include <utility>
#include <vector>

/// Materials, meshes and sites that several tests share.
namespace SiteFixtures {

inline constexpr double day = 86400.0;              // [s]
inline constexpr double waterDensity = 1000.0;      // [kg/m3]
inline constexpr double waterHeatCapacity = 4187.0; // [J/(kg K)]
inline constexpr double viscosity = 1.3e-3;         // [Pa s]

inline FVMaterial gravel() {
  return {"gravel", 0.2, 2650.0, 840.0, 2.4, 1e-10, 1e-8};
}

inline FVMaterial clay() {
  return {"clay", 0.1, 2700.0, 900.0, 1.5, 1e-14, 1e-9};
}

inline FVGridLine lineOf(const std::vector<double>& widths, double start = 0.0) {
  FVGridLine line;
  for (const double width : widths) {
    line.append(start, width);
    start += width;
  }
  return line;
}

inline FVMesh gradedMesh() {
  return FVMesh(lineOf({8.0, 4.0, 2.0, 1.0, 2.0, 4.0, 8.0}), lineOf({4.0, 2.0, 1.0, 2.0, 4.0}),
                10.0);
}

struct SiteOptions {
  double gradient = -20.0;   // [Pa/m]
  double temperature = 10.0; // [deg C]
  double dispersivity = 0.0; // [m]
  double exchangeFactor = 0.0;
  FVMaterial surrounding = clay();
  double exchangeLength = 10.0; // [m]
  bool closedLoop = true;
  double startTime = 0.0; // [s]
  LinearSolver linearSolver = LinearSolver::Structured;
};

inline std::unique_ptr<FVGeothermSite> makeSite(const FVMesh& mesh, std::vector<Well> wells,
                                                const SiteOptions& options = {}) {
  std::vector<Well*> pointers;
  for (Well& well : wells)
    pointers.push_back(&well);
  return std::make_unique<FVGeothermSite>(
      std::make_unique<FVMesh>(mesh), gravel(), options.gradient, pointers, options.temperature,
      waterDensity, waterHeatCapacity, viscosity, options.dispersivity, options.startTime,
      options.exchangeFactor, options.surrounding, options.exchangeLength, options.closedLoop,
      options.linearSolver);
}

} // namespace SiteFixtures
