#pragma once

#include <string>
#include <utility>

/// Properties of a porous rock. A value type.
struct FVMaterial {
  FVMaterial() = default;
  /// Arguments in the order of the fields.
  FVMaterial(std::string materialName, double n, double density, double heatCapacity,
             double heatConductivity, double k, double kappa)
      : name(std::move(materialName)), porosity(n), rockDensity(density),
        rockHeatCapacity(heatCapacity), conductivity(heatConductivity), permeability(k),
        compressibility(kappa) {}

  std::string name;
  double porosity = 0.0;         ///< share of the pores in the volume [-]
  double rockDensity = 0.0;      ///< density of the solid rock [kg/m3]
  double rockHeatCapacity = 0.0; ///< heat capacity of the solid rock [J/(kg K)]
  double conductivity = 0.0;     ///< heat conductivity of the whole [W/(m K)]
  double permeability = 0.0;     ///< intrinsic permeability [m2]
  double compressibility = 0.0;  ///< of the pore filling [1/Pa]
};
