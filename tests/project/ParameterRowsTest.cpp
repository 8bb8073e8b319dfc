#include "project/ParameterTable.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace TVR {
namespace {

using namespace Parameter;
using Units = QMap<QString, QSet<int>>;

/// The ids of the numbers and counts by what a function says of their rows.
template <typename Say>
auto idsBy(Say say) {
  QMap<decltype(say(parameterRow(0))), QSet<int>> ids;
  for (const ParameterRow& row : parameterTable())
    if (row.kind == ParameterKind::Number || row.kind == ParameterKind::Count)
      ids[say(row)].insert(row.id);
  return ids;
}

TEST(ParameterRows, haveTheUnitOfTheStoredValue) {
  const Units expected{
      {"kg/m³", {14, 15, 16, 17}},
      {"m", {18, 27, 32, 35, 36, 38, 39,  40,  42,  46,  54,  55,  71,  74,  84,
             85, 88, 96, 97, 98, 99, 100, 112, 117, 133, 134, 166, 169, 170, 171}},
      {"Pa·s", {19}},
      {"m/s²", {20}},
      {"W/(m·K)", {21, 22, 23}},
      {"days", {24}},
      {"mm", {28, 53, 116}},
      {"J/(kg·K)", {30, 31}},
      {"s", {33, 148}},
      {"-", {34, 90, 146, 147, 149, 160}},
      {"h", {47, 48, 49, 108, 126}},
      {"kWh/a", {50, 69, 107, 125}},
      {"m/s", {59, 60, 61, 78, 130}},
      {"kW", {64, 109, 127}},
      {"%", {26, 65}},
      {"MJ/(m²·a)", {68, 70}},
      {"m³/s", {77, 79, 80, 81, 82}},
      {"m bgl", {87, 121}},
      {"Pa", {92}},
      {"K", {86, 93, 110, 128, 159}},
      {"m³/a", {118}},
      {"degrees", {119}},
      {"m/100m", {120}},
      {"m²", {123}},
      {"l/a", {135}},
      {"°C", {145}},
  };
  Units found = idsBy([](const ParameterRow& row) { return QString(row.unit); });
  found.remove("");
  EXPECT_EQ(found.keys(), expected.keys());
  for (const QString& unit : expected.keys())
    EXPECT_EQ(found[unit], expected[unit]) << unit.toStdString();
}

TEST(ParameterRows, areShownInTheirUnitOrInOneOfForms) {
  Units found = idsBy([](const ParameterRow& row) {
    return QString(row.shown.unit) == row.unit ? QString() : QString(row.shown.unit);
  });
  found.remove("");
  EXPECT_EQ(found, (Units{{"%", {34, 90}},
                          {"m³/h", {77, 79, 80, 81, 82}},
                          {"a", {33, 148}},
                          {"°", {119}},
                          {"kWh/(m²·a)", {68}},
                          {"-", {92, 93}}}));
}

TEST(ParameterRows, anotherUnitHasAFactor) {
  const auto found = idsBy([](const ParameterRow& row) { return row.toShown(1) != 1; });
  EXPECT_EQ(found[true], (QSet<int>{33, 34, 68, 77, 79, 80, 81, 82, 90, 148}));
}

TEST(ParameterRows, aShownNumberIsExactAndLeadsBack) {
  EXPECT_EQ(parameterRow(EffectivePorosity).toShown(0.25), 25);
  EXPECT_EQ(parameterRow(EffectivePorosity).toStored(29), 29 / 100.0);
  EXPECT_EQ(parameterRow(MaximumFlowRate).toShown(0.01), 0.01 * 3600.0);
  EXPECT_EQ(parameterRow(MaximumFlowRate).toStored(36), 0.01);
  EXPECT_EQ(parameterRow(SimulationTime).toShown(9.46728e8), 30);
  EXPECT_EQ(parameterRow(SimulationTime).toStored(0.1), 3155760);
  EXPECT_EQ(parameterRow(SpecificHeatDemand).toShown(480), 480 / 3.6);
  EXPECT_EQ(parameterRow(GroundwaterTable).toShown(3.3), 3.3);
}

TEST(ParameterRows, knowWhichValuesTheStoreGivesAsShown) {
  for (const ParameterRow& row : parameterTable()) {
    EXPECT_EQ(row.has(ReadsAsShown), row.id == SpecificHeatDemand) << row.key;
    EXPECT_STREQ(row.unitOfValue(), row.id == SpecificHeatDemand ? "kWh/(m²·a)" : row.unit);
  }
}

TEST(ParameterRows, fieldsTakeTwoDecimalsUnlessSaidOtherwise) {
  auto found = idsBy([](const ParameterRow& row) { return row.shown.decimals; });
  for (const ParameterRow& row : parameterTable())
    if (row.kind == ParameterKind::Count) {
      EXPECT_EQ(row.shown.decimals, 0) << row.key;
      found[0].remove(row.id);
    }
  found.remove(2);
  const QMap<int, QSet<int>> expected{{0, {26, 32, 39, 40, 64, 119, 167}},
                                      {1, {33}},
                                      {4, {120}},
                                      {5, {19, 59, 60, 61, 78, 130}},
                                      {12, {92, 93, 146, 147}}};
  EXPECT_EQ(found, expected);
}

TEST(ParameterRows, conductivitiesAndTolerancesAreShownWithAPowerOfTen) {
  EXPECT_EQ(idsBy([](const ParameterRow& row) { return row.shown.format; })['e'],
            (QSet<int>{59, 60, 61, 78, 92, 93, 130, 146, 147}));
}

void expectRange(const QList<int>& ids, double least, double most, double usualLeast,
                 double usualMost) {
  for (const int id : ids) {
    const ParameterRow& row = parameterRow(id);
    EXPECT_EQ(row.range.least, least) << row.key;
    EXPECT_EQ(row.range.most, most) << row.key;
    EXPECT_EQ(row.range.usualLeast, usualLeast) << row.key;
    EXPECT_EQ(row.range.usualMost, usualMost) << row.key;
  }
}

TEST(ParameterRows, haveTheBoundsOfTheFormThatEditsThem) {
  expectRange({50, 118, 123, 135}, 0, 1e8, 0, 1e8);
  expectRange({108, 126}, 0, 8784, 0, 8784);
  expectRange({109, 127}, 0, 1e5, 0, 1e5);
  expectRange({131}, 1, 10000, 1, 10000);
  expectRange({112, 116, 117, 171}, 0, 1000, 0, 1000);
  expectRange({166, 96, 97}, 0, 10000, 0, 10000);
  expectRange({167}, 1, 1e5, 1, 1e5);
  expectRange({98}, -18577795, 18577795, -18577795, 18577795);
  expectRange({99}, -10001889, 10001889, -10001889, 10001889);
}

TEST(ParameterRows, ofTwoFormsTheWiderOneTellsWhatIsPossible) {
  expectRange({107, 125}, 0, 1e8, 0, 1e5);
  expectRange({110, 128}, -100, 100, 0, 100);
  expectRange({149}, 0, 10, 0, 6);
}

TEST(ParameterRows, boundsThatNatureSetsAreThoseOfTheSite) {
  expectRange({14, 15, 16}, 500, 5000, 1500, 3300);
  expectRange({21, 22, 23}, 0.05, 20, 0.5, 6);
  expectRange({59}, 1e-8, 10, 1e-5, 0.1);
  expectRange({88}, 0.01, 2000, 1, 200);
  expectRange({120}, 0, 100, 0, 5);
  expectRange({148}, 1, 3.15576e10, 86400, 3.15576e9);
}

TEST(ParameterRows, whatIsNoNumberHasNeitherUnitNorRange) {
  for (const ParameterRow& row : parameterTable())
    if (row.kind != ParameterKind::Number && row.kind != ParameterKind::Count) {
      EXPECT_STREQ(row.unit, "") << row.key;
      EXPECT_STREQ(row.shown.unit, "") << row.key;
      EXPECT_EQ(judge(row.range, -1e300), RangeVerdict::Usual) << row.key;
    }
}

TEST(ParameterRows, unitsStandInRichTextWithRaisedPowers) {
  EXPECT_EQ(richUnit(parameterRow(MaximumFlowRate)), "m<sup>3</sup>/h");
  EXPECT_EQ(richUnit(parameterRow(HeatedFootSpace)), "m<sup>2</sup>");
  EXPECT_EQ(richUnit(parameterRow(GroundwaterTable)), "m bgl");
  EXPECT_EQ(richUnit(parameterRow(SystemCop)), "");
}

} // namespace
} // namespace TVR
