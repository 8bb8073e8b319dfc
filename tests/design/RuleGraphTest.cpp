#include "design/RuleGraph.h"

#include "design/FormulaReading.h"
#include "design/RuleTest.h"

#include <set>

namespace TVR::Rules {
namespace {

/// How far apart may lie what a formula gives as it is written and as it is programmed.
constexpr double tolerance = 1e-12;

struct RuleGraphTest : RuleTest {
  RuleGraphTest() {
    target.numbers[GasDemand] = 2200.0;
    target.numbers[OilDemand] = 1800.0;
    target.numbers[ProvidedEnergyDemandType] = 1.0;
    target.numbers[CoolingPeakLoadDuration] = 900.0;
    target.numbers[HeatingPeakLoadDuration] = 1500.0;
    target.numbers[DistanceBetweenWells] = 25.0;
    target.references = {{HeatingDegreeDays, {{0, 3500.0}}}};
  }

  static Ids idsOf(const ParameterSet& set) {
    Ids ids;
    for (int id = 0; id < Count; ++id)
      if (set.test(static_cast<std::size_t>(id)))
        ids.push_back(id);
    return ids;
  }
  static bool has(const ParameterSet& set, int id) {
    return set.test(static_cast<std::size_t>(id));
  }
  /// The effect of a rule on a parameter; null if there is none.
  static const RuleGraph::Effect* effect(const RuleGraph& graph, int trigger, int written) {
    for (const RuleGraph::Effect& one : graph.effects())
      if (one.trigger == trigger && one.write.id == written)
        return &one;
    return nullptr;
  }
  /// Each mode of the project once, with numbers that differ from mode to mode.
  template <typename Check>
  void inAllModes(const Check& check) {
    const std::map<int, double> numbers = target.numbers;
    for (int mode = 0; mode < 32; ++mode) {
      target.numbers = numbers;
      for (auto& [id, number] : target.numbers)
        number *= 1.0 + 0.05 * ((id * 7 + mode * 3) % 11);
      target.numbers[EnergyDemandType] = (mode & 1) != 0 ? 2.0 : 0.0;
      target.numbers[AquiferUnconfined] = (mode & 2) != 0 ? 1.0 : 0.0;
      target.numbers[ProvidedEnergyDemandType] = (mode & 4) != 0 ? 1.0 : 0.0;
      target.numbers[CalculateEnergyDemand] = (mode & 4) != 0 ? 1.0 : 0.0;
      target.numbers[HotWaterProvided] = (mode & 4) != 0 ? 1.0 : 0.0;
      if ((mode & 8) != 0)
        designing();
      else
        target.numbers[CalculateWellConstruction] = 0.0;
      if ((mode & 16) != 0) {
        target.numbers[NumberOfWells] = 0.0;
        target.numbers[WellDepth] = 1.0;
        target.numbers[AquiferMaterial] = 2.0;
        target.numbers[AquiferPorosity] = 0.0;
        target.numbers[MaximumFlowRate] = 0.2;
      }
      check(RuleGraph(target));
    }
  }
};

TEST_F(RuleGraphTest, lookingAtTheRulesChangesNothing) {
  const std::map<int, double> before = target.numbers;
  designing();
  target.numbers[CalculateWellConstruction] = 0.0;
  const RuleGraph graph(target);
  target.numbers.erase(CalculateWellConstruction);
  EXPECT_EQ(target.numbers, before);
  EXPECT_TRUE(target.log.empty());
}

TEST_F(RuleGraphTest, sourcesAreWhatMakesTheWriteAnotherOne) {
  const RuleGraph graph(target);
  EXPECT_EQ(idsOf(effect(graph, GroundwaterGradient, GroundwaterVelocity)->sources),
            (Ids{GroundwaterGradient, HydraulicConductivityUsed}));
  EXPECT_EQ(idsOf(effect(graph, HeatingDemand, EnergyDemand)->sources),
            (Ids{CoolingDemand, HeatingDemand, SystemCop}));
}

TEST_F(RuleGraphTest, theOtherTermOfAMaximumIsASourceToo) {
  const Ids sources = idsOf(effect(RuleGraph(target), RadiusOfInfluence, BMin)->sources);
  EXPECT_EQ(sources, (Ids{RadiusOfInfluence, MeanFlowRate, AquiferThickness, AquiferUnconfined,
                          SimulationTime}));
}

TEST_F(RuleGraphTest, modesOfTheProjectDecideWhatDependsOnWhat) {
  const RuleGraph confined(target);
  EXPECT_TRUE(has(confined.sourcesOf(BMin), AquiferThickness));
  EXPECT_FALSE(has(confined.sourcesOf(BMin), AquiferBasis));
  unconfined();
  const RuleGraph open(target);
  EXPECT_FALSE(has(open.sourcesOf(BMin), AquiferThickness));
  EXPECT_TRUE(has(open.sourcesOf(BMin), AquiferBasis));
  EXPECT_TRUE(has(open.sourcesOf(BMin), GroundwaterTable));
}

TEST_F(RuleGraphTest, sourcesAndConsequencesGoByWayOfOthers) {
  const RuleGraph graph(target);
  EXPECT_TRUE(has(graph.sourcesOf(AMin), HydraulicConductivity)); // by way of the velocity
  EXPECT_TRUE(has(graph.consequencesOf(HydraulicConductivity), AMin));
  EXPECT_FALSE(has(graph.consequencesOf(HydraulicConductivity), SimulationTime));
  EXPECT_FALSE(has(graph.sourcesOf(AMin), AMin));
}

TEST_F(RuleGraphTest, consequencesAreTheSourcesTheOtherWay) {
  const RuleGraph graph(target);
  for (int source = 0; source < Count; ++source)
    for (int result = 0; result < Count; ++result)
      ASSERT_EQ(has(graph.sourcesOf(result), source), has(graph.consequencesOf(source), result))
          << source << ' ' << result;
}

TEST_F(RuleGraphTest, triggersAreTheParametersWhoseRulesWriteTheValue) {
  const RuleGraph graph(target);
  EXPECT_EQ(idsOf(graph.triggersOf(GroundwaterVelocity)),
            (Ids{HydraulicConductivity, GroundwaterGradient, HydraulicConductivityUsed}));
  EXPECT_EQ(idsOf(graph.triggersOf(SimulationTime)), Ids());
}

TEST_F(RuleGraphTest, valueIsExplainedByTheRuleThatBringsIt) {
  target.nested = true;
  target.numbers[ProvidedEnergyDemandType] = 1.0;
  target.write(GasDemand, 2500.0);
  const RuleGraph graph(target);
  const RuleGraph::Effect* const gas = graph.explanationOf(EnergyDemand);
  ASSERT_NE(gas, nullptr);
  EXPECT_EQ(gas->trigger, GasDemand);
  EXPECT_STREQ(gas->formula->text, "V · 9.6 / 0.85");
  ASSERT_EQ(operandsOf(*gas, target).size(), 1U);
  EXPECT_EQ(operandsOf(*gas, target).front().value, 2500.0);
}

TEST_F(RuleGraphTest, valueThatNoRuleBringsHasNoExplanation) {
  target.numbers[EnergyDemand] = 1.0;
  EXPECT_EQ(RuleGraph(target).explanationOf(EnergyDemand), nullptr);
  EXPECT_EQ(RuleGraph(target).explanationOf(SimulationTime), nullptr);
}

TEST_F(RuleGraphTest, thicknessOfAnUnconfinedAquiferIsAnOperand) {
  unconfined();
  const RuleGraph graph(target);
  const RuleGraph::Effect& reach = *effect(graph, AquiferBasis, RadiusOfInfluence);
  ASSERT_STREQ(reach.formula->text, "3000 · H · √k_f");
  EXPECT_EQ(operandsOf(reach, target).front().value, v(AquiferBasis) - v(GroundwaterTable));
}

TEST_F(RuleGraphTest, formulasAreWhatTheRulesCompute) {
  std::set<std::string> computed;
  inAllModes([&](const RuleGraph& graph) {
    for (const RuleGraph::Effect& one : graph.effects()) {
      if (!one.formula || std::string(one.formula->text).empty())
        continue;
      std::map<std::string, double> symbols;
      for (const FormulaOperand& operand : operandsOf(one, target))
        symbols[operand.symbol.symbol] = operand.value;
      if (one.write.id == SpecificHeatDemand)
        symbols["q"] = target.storedNumber(SpecificHeatDemand);
      const double value = FormulaReading(one.formula->text, symbols).value();
      EXPECT_NEAR(one.write.number, value, tolerance * std::abs(value))
          << one.trigger << " writes " << one.write.id << " = " << one.formula->text;
      computed.insert(std::to_string(one.write.id) + one.formula->text);
    }
  });
  for (const RuleFormula& formula : ruleFormulas()) {
    if (std::string(formula.text).empty())
      continue;
    EXPECT_TRUE(computed.contains(std::to_string(formula.result) + formula.text))
        << formula.result << " = " << formula.text;
  }
}

TEST_F(RuleGraphTest, operandsOfAFormulaAreAllThatItsResultDependsOn) {
  inAllModes([&](const RuleGraph& graph) {
    for (const RuleGraph::Effect& one : graph.effects()) {
      if (!one.formula || std::string(one.formula->text).empty())
        continue;
      ParameterSet others = one.sources;
      for (const FormulaSymbol& symbol : one.formula->operands()) {
        others.reset(static_cast<std::size_t>(symbol.id));
        if (symbol.id == AquiferThickness)
          for (const int id : {AquiferUnconfined, AquiferBasis, GroundwaterTable})
            others.reset(static_cast<std::size_t>(id));
      }
      for (const int mode :
           {EnergyDemandType, CalculateEnergyDemand, ProvidedEnergyDemandType, AquiferMaterial,
            HotWaterProvided, BuildingType, WellDepth, CalculateWellConstruction,
            UseProvidedAquiferProperties, AquiferUnconfined})
        others.reset(
            static_cast<std::size_t>(mode)); // whether the formula counts, not what it gives
      EXPECT_TRUE(others.none()) << one.trigger << " writes " << one.write.id << ": "
                                 << testing::PrintToString(idsOf(others));
    }
  });
}

TEST_F(RuleGraphTest, everyNumberThatARuleComputesHasItsFormula) {
  inAllModes([&](const RuleGraph& graph) {
    for (const RuleGraph::Effect& one : graph.effects()) {
      const bool isComputed = one.write.text.empty() && one.trigger != CoolingOnly;
      EXPECT_EQ(one.formula != nullptr, isComputed) << one.trigger << " writes " << one.write.id;
    }
  });
}

TEST_F(RuleGraphTest, operandsOfAFormulaAreDistinctSymbols) {
  for (const RuleFormula& formula : ruleFormulas()) {
    std::set<std::string> symbols;
    for (const FormulaSymbol& symbol : formula.operands())
      EXPECT_TRUE(symbols.insert(symbol.symbol).second) << formula.result << ' ' << symbol.symbol;
    EXPECT_FALSE(symbols.empty()) << formula.result;
  }
}

} // namespace
} // namespace TVR::Rules
