#include "design/DesignFormulas.h"
#include "design/MapTarget.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>

namespace TVR {
namespace {

using namespace Parameter;

/// Rows of an SQL file of the folder database/ whose lines read "(number, ..., number, ...)": the
/// row's id and the first number that follows it.
std::map<int, double> numbersOf(const std::string& file) {
  std::ifstream input(std::string(TEVRANE_DATABASE_SOURCES "/") + file);
  std::map<int, double> numbers;
  for (std::string line; std::getline(input, line);) {
    std::size_t value = line.find(", ");
    if (!line.starts_with('(') || value == std::string::npos)
      continue;
    if (line[value + 2] == '\'')
      value = line.find("', ", value) + 1;
    if (line[value + 2] != '\'')
      numbers[std::stoi(line.substr(1))] = std::stod(line.substr(value + 2));
  }
  return numbers;
}

/// The project of a new installation.
class DefaultProject : public testing::Test {
protected:
  DefaultProject() : defaults(numbersOf("Parameter.sql")) {
    target.numbers = defaults;
    for (const auto& [row, diameter] : numbersOf("Filterdurchmesser.sql"))
      target.filterDiameters.push_back(diameter);
  }

  void expectAllAsStored(int trigger) {
    ASSERT_GT(target.written.size(), 1U) << trigger;
    for (const int id : target.written) {
      const double stored = defaults.at(id);
      EXPECT_NEAR(target.storedNumber(id), stored, 1e-9 * std::abs(stored))
          << id << " after " << trigger;
    }
  }

  MapTarget target;
  const std::map<int, double> defaults;
};

TEST_F(DefaultProject, holdsTheNumbersOfTheDatabase) {
  EXPECT_EQ(defaults.size(), 146U);
  EXPECT_EQ(target.filterDiameters.size(), 9U);
  EXPECT_EQ(defaults.at(CoolingDemand), 30000.0);
  EXPECT_EQ(defaults.at(SimulationTime), 946728000.0);
}

TEST_F(DefaultProject, isLeftAsItIsByEveryInputOfTheDemand) {
  for (const int id : {CoolingDemand, CoolingPower, CoolingTemperatureChange, HeatingDemand,
                       HeatingPower, HeatingTemperatureChange, CoolingPeakLoadDuration,
                       HeatingPeakLoadDuration, SystemCop, UsedTemperatureChange, CoolingOnly}) {
    target.written.clear();
    target.write(id, defaults.at(id));
    expectAllAsStored(id);
  }
}

TEST_F(DefaultProject, isLeftAsItIsByEveryInputOfTheAquifer) {
  for (const int id : {AquiferThickness, AquiferBasis, GroundwaterTable, GroundwaterGradient,
                       HydraulicConductivity, HydraulicConductivityUsed, EffectivePorosity,
                       AquiferPorosity, RadiusOfInfluence, SimulationTime, MeanFlowRate}) {
    target.written.clear();
    target.write(id, defaults.at(id));
    expectAllAsStored(id);
  }
}

TEST_F(DefaultProject, passesTheCheckOfItsConstruction) {
  target.numbers[ProvidedWellConfigurationOk] = 0.0;
  target.write(NumberOfWells, defaults.at(NumberOfWells));
  expectAllAsStored(NumberOfWells);
  EXPECT_TRUE(target.flag(ProvidedWellConfigurationOk));
}

TEST_F(DefaultProject, hasTheConstructionOfItsDesign) {
  target.numbers[CalculateWellConstruction] = 1.0;
  target.nested = false;
  target.written = {CalculateWellConstruction};
  recalculateWellDesign(target);
  // The rules give the reach of the whole thickness once the aquifer is written, the design that of
  // its drawdown; the former is stored.
  EXPECT_NEAR(target.number(RadiusOfInfluence), 0.15 * defaults.at(RadiusOfInfluence), 1e-9);
  target.numbers[RadiusOfInfluence] = defaults.at(RadiusOfInfluence);
  target.numbers[CalculateWellConstruction] = defaults.at(CalculateWellConstruction);
  expectAllAsStored(CalculateWellConstruction);
}

TEST_F(DefaultProject, hasAConductivityBetweenItsLimits) {
  EXPECT_DOUBLE_EQ(DesignFormulas().geometricMean(defaults.at(HydraulicConductivityMin),
                                                  defaults.at(HydraulicConductivityMax)),
                   defaults.at(HydraulicConductivity));
}

} // namespace
} // namespace TVR
