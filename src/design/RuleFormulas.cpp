#include "design/RuleFormulas.h"

#include "design/ParameterId.h"

#include <algorithm>

namespace TVR {

using namespace Parameter;

namespace {

// Symbols that recur

constexpr FormulaSymbol flow{"Q", MeanFlowRate};
constexpr FormulaSymbol peakFlow{"Q", MaximumFlowRate};
constexpr FormulaSymbol time{"t", SimulationTime};
constexpr FormulaSymbol thickness{"H", AquiferThickness};
constexpr FormulaSymbol conductivity{"k_f", HydraulicConductivityUsed};
constexpr FormulaSymbol gradient{"I", GroundwaterGradient};
constexpr FormulaSymbol velocity{"v", GroundwaterVelocity};
constexpr FormulaSymbol wells{"n", NumberOfWells};
constexpr FormulaSymbol cop{"COP", SystemCop};
constexpr FormulaSymbol demand{"E", EnergyDemand};
constexpr FormulaSymbol periodDemand{"E", HeatingPeriodDemand};
constexpr FormulaSymbol power{"P", Power};
constexpr FormulaSymbol change{"ΔT", UsedTemperatureChange};
constexpr FormulaSymbol heating{"E_h", HeatingDemand};
constexpr FormulaSymbol cooling{"E_c", CoolingDemand};
constexpr FormulaSymbol waterDensity{"ρ_w", DensityWater};
constexpr FormulaSymbol rockDensity{"ρ_s", DensityAquifer};
constexpr FormulaSymbol waterCapacity{"c_w", HeatCapacityWater};
constexpr FormulaSymbol rockCapacity{"c_s", HeatCapacityStone};

// Texts that recur

constexpr auto copied = "X";
constexpr auto search = "";
constexpr auto plumeLength = "max(ρ_w · c_w · v · 1.1 · t / ((1 − p) · ρ_s · c_s + p · ρ_w · c_w), "
                             "2 · √(3 · Q · t / (2 · π · H)))";
constexpr auto meanFlow = "(1 − 1 / COP) · E / 8760 / (ΔT · 4186)";
constexpr auto meanFlowWithoutPump = "0.999999 · E / 8760 / (ΔT · 4186)";

// Sources

constexpr auto none = "";
constexpr auto sichardt = "Sichardt (1928)";
constexpr auto darcy = "Darcy (1856)";
constexpr auto wellSearch = "Thiem (1906), Dupuit (1863), Sichardt (1928)";

constexpr auto formulas = std::to_array<RuleFormula>({
    {ProvidedWellConfigurationOk,
     search,
     wellSearch,
     {{peakFlow,
       thickness,
       conductivity,
       {"n", NumberOfWellsProvided},
       {"d", FilterDiameterProvided},
       {"h", FilterLengthProvided},
       {"D", DistanceBetweenWells}}}},
    {EffectivePorosity, "p / 100", none, {{{"p", MaterialPorosity}}}},
    {EffectivePorosity, copied, none, {{{"X", AquiferPorosity}}}},
    {AMin,
     plumeLength,
     none,
     {{flow,
       time,
       thickness,
       velocity,
       {"p", EffectivePorosity},
       waterDensity,
       rockDensity,
       waterCapacity,
       rockCapacity}}},
    {AMin,
     plumeLength,
     none,
     {{flow,
       time,
       thickness,
       velocity,
       {"p", AquiferPorosity},
       waterDensity,
       rockDensity,
       waterCapacity,
       rockCapacity}}},
    {BMin,
     "max(√(2 · Q · t / (π · H)), R)",
     none,
     {{flow, time, thickness, {"R", RadiusOfInfluence}}}},
    {RadiusOfInfluence, "3000 · H · √k_f", sichardt, {{thickness, conductivity}}},
    {RadiusOfInfluence, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {DMin,
     "min(2 · √(3 · (n / 2) · Q · t / (2 · π · H)), n · Q / (π · v · H))",
     none,
     {{wells, flow, time, thickness, velocity}}},
    {PeakLoadDuration, copied, none, {{{"X", PeakLoadDurationCold}}}},
    {EnergyDemand, "|E_c − (1 − 1 / COP) · E_h|", none, {{heating, cooling, cop}}},
    {EnergyDemand,
     "q · A · G / 3587",
     none,
     {{{"q", SpecificHeatDemand}, {"A", HeatedFootSpace}, {"G", HeatingDegreeDays}}}},
    {EnergyDemand, "V · 9.6 / 0.85", none, {{{"V", GasDemand}}}},
    {EnergyDemand, "V · 10.7 / 0.85", none, {{{"V", OilDemand}}}},
    {FilterDiameter, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {FilterLength, "0.85 · H", none, {{thickness}}},
    {HydraulicConductivity,
     "√(k_max · k_min)",
     none,
     {{{"k_max", HydraulicConductivityMax}, {"k_min", HydraulicConductivityMin}}}},
    {NumberOfWells, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {Power,
     "max(P_c, (1 − 1 / COP) · P_h)",
     none,
     {{{"P_h", HeatingPower}, {"P_c", CoolingPower}, cop}}},
    {Power, "E / t_p", none, {{demand, {"t_p", PeakLoadDuration}}}},
    {SpecificHeatDemand, "q + q_w", none, {{{"q", SpecificHeatDemand}, {"q_w", HotWaterDemand}}}},
    {HeatingPeriodDemand, "E · 365 / d", none, {{demand, {"d", HeatingPeriod}}}},
    {WellRadius, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {Drawdown, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {MeanFlowRate, meanFlow, none, {{demand, change, cop}}},
    {MeanFlowRate, meanFlowWithoutPump, none, {{demand, change}}},
    {GroundwaterVelocity, "k_f · I / 100", darcy, {{{"k_f", HydraulicConductivity}, gradient}}},
    {GroundwaterVelocity, "k_f · I / 100", darcy, {{conductivity, gradient}}},
    {MeanFlowRateHeatingPeriod, meanFlow, none, {{periodDemand, change, cop}}},
    {MeanFlowRateHeatingPeriod, meanFlowWithoutPump, none, {{periodDemand, change}}},
    {MaximumFlowRate, "(1 − 1 / COP) · P / (ΔT · 4186)", none, {{power, change, cop}}},
    {MaximumFlowRate, "0.999999 · P / (ΔT · 4186)", none, {{power, change}}},
    {MaximumFlowRateOfOneWell, search, wellSearch, {{peakFlow, thickness, conductivity}}},
    {AquiferPorosity, copied, none, {{{"X", EffectivePorosity}}}},
    {CoolingPower, "⌊E_c / t_c⌋", none, {{cooling, {"t_c", CoolingPeakLoadDuration}}}},
    {HeatingDemand, copied, none, {{{"X", EnergyDemand}}}},
    {HeatingPower, copied, none, {{{"X", Power}}}},
    {HeatingPower, "⌊E_h / t_h⌋", none, {{heating, {"t_h", HeatingPeakLoadDuration}}}},
    {HeatingTemperatureChange, copied, none, {{{"X", UsedTemperatureChange}}}},
    {HydraulicConductivityUsed, copied, none, {{{"X", HydraulicConductivity}}}},
    {NumberOfWellsProvided, copied, none, {{{"X", NumberOfWells}}}},
    {UsedTemperatureChange,
     "ΔT_h > 0 ∧ (1 − 1 / COP) · E_h > E_c ? ΔT_h : ΔT_c",
     none,
     {{{"ΔT_h", HeatingTemperatureChange},
       {"ΔT_c", CoolingTemperatureChange},
       heating,
       cooling,
       cop}}},
    {WellDepth, copied, none, {{{"X", AquiferThickness}}}},
});

static_assert(std::ranges::is_sorted(formulas, {}, &RuleFormula::result));

} // namespace

std::span<const FormulaSymbol> RuleFormula::operands() const {
  const auto end = std::ranges::find(symbols, nullptr, &FormulaSymbol::symbol);
  return {symbols.begin(), end};
}

std::span<const RuleFormula> ruleFormulas() {
  return formulas;
}

std::span<const RuleFormula> formulasOf(int result) {
  const auto found = std::ranges::equal_range(formulas, result, {}, &RuleFormula::result);
  return {found.begin(), found.end()};
}

} // namespace TVR
