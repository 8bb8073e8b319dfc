#pragma once

#include "design/DesignFormulas.h"
#include "design/MapTarget.h"
#include "design/ParameterId.h"

#include <gtest/gtest.h>

namespace TVR::Rules {

using namespace Parameter;

inline const DesignFormulas formulas;

/// A project in which every input has a value of its own, so that a rule that reads the wrong one
/// shows. Only the rule of the written id runs; what it writes is logged.
class RuleTest : public testing::Test {
protected:
  RuleTest() {
    target.nested = false;
    target.numbers = {{EnergyDemandType, 0.0},
                      {HeatingDemand, 20000.0},
                      {CoolingDemand, 3000.0},
                      {HeatingPower, 11.0},
                      {CoolingPower, 5.0},
                      {HeatingTemperatureChange, 4.0},
                      {CoolingTemperatureChange, 2.5},
                      {SystemCop, 4.5},
                      {EnergyDemand, 14000.0},
                      {UsedTemperatureChange, 3.5},
                      {Power, 7.0},
                      {HeatingPeriod, 200.0},
                      {HeatingPeriodDemand, 25000.0},
                      {PeakLoadDuration, 1900.0},
                      {PeakLoadDurationCold, 1700.0},
                      {SpecificHeatDemand, 288.0},
                      {HotWaterDemand, 50.0},
                      {HeatedFootSpace, 140.0},
                      {HeatingDegreeDays, 3400.0},
                      {MeanFlowRate, 6e-4},
                      {MeanFlowRateHeatingPeriod, 9e-4},
                      {MaximumFlowRate, 2e-3},
                      {RadiusOfInfluence, 20.0},
                      {SimulationTime, 3.15576e7},
                      {GroundwaterVelocity, 2e-6},
                      {GroundwaterGradient, 0.3},
                      {HydraulicConductivity, 1e-3},
                      {HydraulicConductivityUsed, 2e-3},
                      {HydraulicConductivityMin, 1e-4},
                      {HydraulicConductivityMax, 1e-2},
                      {MaterialPorosity, 18.0},
                      {EffectivePorosity, 0.2},
                      {AquiferPorosity, 0.3},
                      {AquiferThickness, 10.0},
                      {AquiferBasis, 21.0},
                      {GroundwaterTable, 4.0},
                      {DensityWater, 999.0},
                      {DensityAquifer, 2300.0},
                      {DensityStone, 1.0},
                      {DensitySurrounding, 2.0},
                      {HeatCapacityWater, 4200.0},
                      {HeatCapacityStone, 850.0},
                      {NumberOfWells, 6.0},
                      {NumberOfWellsProvided, 1.0},
                      {FilterDiameterProvided, 300.0},
                      {FilterLengthProvided, 8.0},
                      {WellDepth, 30.0}};
  }

  double v(int id) const { return target.number(id); }
  void balanced() { target.numbers[EnergyDemandType] = 2.0; }
  void unconfined() { target.numbers[AquiferUnconfined] = 1.0; }
  void designing() {
    target.numbers[CalculateWellConstruction] = 1.0;
    target.filterDiameters.assign(9, 300.0);
  }
  /// Ids that the rule of `id` writes after `id` is given `value`.
  Ids after(int id, double value) {
    target.write(id, value);
    return {target.written.begin() + 1, target.written.end()};
  }
  /// Everything that the rule of `id` does after `id` is given `value`, in order.
  Events logAfter(int id, double value) {
    target.write(id, value);
    return {target.log.begin() + 1, target.log.end()};
  }
  Ids again(int id) { return after(id, target.storedNumber(id)); }

  double expectedAMin(double thickness, double porosity) const {
    return formulas.aMin(v(MeanFlowRate), v(SimulationTime), thickness, v(GroundwaterVelocity),
                         porosity, 999.0, 2300.0, 4200.0, 850.0);
  }
  double expectedBMin(double thickness) const {
    return formulas.bMin(v(MeanFlowRate), v(SimulationTime), thickness, v(RadiusOfInfluence));
  }
  double expectedDMin(double thickness) const {
    return formulas.dMin(3.0, v(MeanFlowRate), v(SimulationTime), thickness,
                         v(GroundwaterVelocity));
  }
  void expectDistances(double thickness, double porosity) const {
    EXPECT_EQ(v(BMin), expectedBMin(thickness));
    EXPECT_EQ(v(AMin), expectedAMin(thickness, porosity));
    EXPECT_EQ(v(DMin), expectedDMin(thickness));
  }
  void expectFlows(double cop) const {
    EXPECT_EQ(v(MeanFlowRate), formulas.meanFlowRate(cop, v(EnergyDemand), 3.5));
    EXPECT_EQ(v(MeanFlowRateHeatingPeriod), formulas.meanFlowRate(cop, 25000.0, 3.5));
    EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(cop, v(Power), 3.5));
  }

  MapTarget target;
};

} // namespace TVR::Rules
