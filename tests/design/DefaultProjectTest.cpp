#include "design/DesignFormulas.h"
#include "design/MapTarget.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace TVR {
namespace {

using namespace Parameter;

/// Rows of an SQL file of the folder database/ whose lines read "(number, ...": by the row's id the
/// numbers that follow it, in their order. Texts are passed over.
std::map<int, std::vector<double>> rowsOf(const std::string& file) {
  std::ifstream input(std::string(TEVRANE_DATABASE_SOURCES "/") + file);
  std::map<int, std::vector<double>> rows;
  for (std::string line; std::getline(input, line);) {
    if (!line.starts_with('('))
      continue;
    std::vector<double>& row = rows[std::stoi(line.substr(1))];
    std::istringstream cells(line.substr(0, line.find(')')));
    cells.ignore(line.size(), ',');
    for (std::string cell; std::getline(cells, cell, ',');)
      if (cell.find('\'') == std::string::npos)
        row.push_back(std::stod(cell));
  }
  return rows;
}

/// The first number of each row, by its id.
std::map<int, double> numbersOf(const std::string& file) {
  std::map<int, double> numbers;
  for (const auto& [id, row] : rowsOf(file))
    if (!row.empty())
      numbers[id] = row.front();
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
  EXPECT_EQ(defaults.at(EnergyDemand), 30000.0);
  EXPECT_EQ(defaults.at(SimulationTime), 946728000.0);
}

TEST_F(DefaultProject, designsAPairOfWellsForAHeatingThatIsReplaced) {
  EXPECT_EQ(defaults.at(EnergyDemandType), 0.0);
  EXPECT_EQ(defaults.at(CalculateWellConstruction), 1.0);
  EXPECT_EQ(defaults.at(NumberOfWells), 2.0);
  EXPECT_EQ(defaults.at(NumberOfWellsProvided), 2.0);
}

TEST_F(DefaultProject, isLeftAsItIsByEveryInputOfTheDemand) {
  for (const int id : {EnergyDemand, HeatingPeriod, PeakLoadDuration, Power, HeatedFootSpace,
                       HeatingDegreeDays, SystemCop, UsedTemperatureChange}) {
    target.written.clear();
    target.write(id, defaults.at(id));
    expectAllAsStored(id);
  }
  for (const int mirrored : {HeatingDemand, HeatingPower, HeatingTemperatureChange})
    EXPECT_DOUBLE_EQ(target.number(mirrored), defaults.at(mirrored)) << mirrored;
}

TEST_F(DefaultProject, hasTheFiguresOfItsTypeOfBuilding) {
  const auto row = rowsOf("Benutzungsstunden.sql").at(static_cast<int>(defaults.at(BuildingType)));
  const std::vector<int> columns{PeakLoadDurationWarm, PeakLoadDurationCold, SpecificHeatDemand,
                                 HotWaterDemand};
  for (std::size_t i = 0; i < columns.size(); ++i)
    EXPECT_EQ(defaults.at(columns[i]), row[i + 1]) << columns[i]; // behind the name
  EXPECT_EQ(defaults.at(PeakLoadDuration), defaults.at(PeakLoadDurationCold));
}

TEST_F(DefaultProject, isLeftAsItIsByThePageOfAConfinedAquifer) {
  for (const int id : {GroundwaterGradient, AquiferUnconfined, AquiferThickness,
                       UseProvidedAquiferProperties, HydraulicConductivity, EffectivePorosity})
    target.write(id, defaults.at(id));
  expectAllAsStored(EffectivePorosity);
}

TEST_F(DefaultProject, hasTheSameThicknessAsAnUnconfinedAquifer) {
  target.numbers[AquiferUnconfined] = 1.0;
  EXPECT_EQ(aquiferThickness(target), defaults.at(AquiferThickness));
}

TEST_F(DefaultProject, isLeftAsItIsByTimeFlowAndReach) {
  for (const int id : {RadiusOfInfluence, SimulationTime, MeanFlowRate, GroundwaterVelocity}) {
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
  target.written = {CalculateWellConstruction};
  recalculateWellDesign(target);
  expectAllAsStored(CalculateWellConstruction);
}

TEST_F(DefaultProject, offersTheConstructionOfTheDesignToWhoeverProvidesOne) {
  EXPECT_EQ(defaults.at(FilterDiameterProvided), defaults.at(FilterDiameter));
  EXPECT_EQ(defaults.at(FilterLengthProvided), defaults.at(FilterLength));
  EXPECT_EQ(defaults.at(DistanceBetweenWells), defaults.at(RadiusOfInfluence));
}

TEST_F(DefaultProject, isDesignedAnewByDemandTemperatureConductivityAndThickness) {
  target.write(EnergyDemand, 2e6);
  target.write(UsedTemperatureChange, 4.0);
  target.write(HydraulicConductivity, 4e-4);
  target.write(AquiferThickness, 6.0);
  const DesignFormulas formulas;
  const double flow = formulas.meanFlowRate(3.5, 2e6, 4.0);
  EXPECT_DOUBLE_EQ(target.number(MeanFlowRate), flow);
  const double peak = formulas.peakFlowRate(3.5, 1000.0, 4.0);
  EXPECT_DOUBLE_EQ(target.number(MaximumFlowRate), peak);
  EXPECT_GT(target.number(NumberOfWells), 2.0);
  EXPECT_NEAR(target.number(MaximumFlowRateOfOneWell) * target.number(NumberOfWells), peak, 1e-12);
  EXPECT_DOUBLE_EQ(target.number(FilterLength), 0.85 * 6.0);
  EXPECT_GT(target.number(FilterDiameter), 125.0);
  EXPECT_DOUBLE_EQ(target.number(WellRadius), formulas.wellRadius(target.number(FilterDiameter)));
  EXPECT_DOUBLE_EQ(target.number(DMin), formulas.dMin(target.number(NumberOfWells) / 2, flow,
                                                      defaults.at(SimulationTime), 6.0,
                                                      formulas.darcyVelocity(4e-4, 0.1)));
}

TEST_F(DefaultProject, hasAConductivityBetweenItsLimits) {
  EXPECT_DOUBLE_EQ(DesignFormulas().geometricMean(defaults.at(HydraulicConductivityMin),
                                                  defaults.at(HydraulicConductivityMax)),
                   defaults.at(HydraulicConductivity));
}

} // namespace
} // namespace TVR
