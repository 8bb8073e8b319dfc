#include "results/Isolines.h"

#include "support/ResultPageTest.h"

#include <QFont>

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class IsolinesTest : public ResultPageTest {
protected:
  IsolinesTest() {
    items.results = page.addItem("Simulation results", items.mapView);
    give(items.results, ValueCount, 10);
  }

  int addLine(double level, std::initializer_list<QPointF> points = {}) {
    const int line = page.addItem({}, items.results);
    give(line, Level, level);
    give(line, Points, polygon(points));
    QVariantList ids = of(items.results, IsolineIds).toList();
    ids.append(line);
    give(items.results, IsolineIds, ids);
    return line;
  }

  /// The doublet with its injection well of -3 K at (40, 0), in a flow eastward unless told.
  void prepare(double gradient = 0.2, double direction = 90) {
    read(BatchProject::doublet()
             .set("hydraulic", "groundwater_gradient", gradient)
             .set("hydraulic", "groundwater_flow_direction", direction));
    store.setValue(MinElementLength, 1.0);
    store.setValue(MaximumExtent3K, 0.0);
    store.setValue(TimeOfMaximumExtent3K, 0.0);
    store.setValue(AdditionalIsotherm, 0.0);
  }

  /// The doublet with an injection well that cools or warms, and nothing else that warms.
  void prepareChange(double change) {
    prepare();
    store.setValue(UsedTemperatureChange, 0.0);
    setWell(0, -0.001, 0);
    setWell(1, 0.001, change);
  }

  bool updateIsotherms(double time = secondsPerYear) {
    return Isolines(access(), runFrameOf(store)).updateIsotherms(time, 10);
  }
  QVariantList levels() { return of(items.results, Levels).toList(); }
};

QVariantList list(std::initializer_list<double> values) {
  QVariantList result;
  for (const double value : values)
    result.append(value);
  return result;
}

} // namespace

// Levels of the isohypses

TEST(IsohypseLevels, drawdownsOfZeroHaveNone) {
  EXPECT_TRUE(isohypseLevels({0, 0, 0}).isEmpty());
  EXPECT_TRUE(isohypseLevels({}).isEmpty());
}

TEST(IsohypseLevels, aRangeOfTwoCentimetresHasNone) {
  EXPECT_TRUE(isohypseLevels({0, 0.02}).isEmpty());
  EXPECT_TRUE(isohypseLevels({-0.015, 0.005}).isEmpty());
}

TEST(IsohypseLevels, aRangeJustAboveKeepsTheFirstOfEqualTexts) {
  EXPECT_EQ(isohypseLevels({0, 0.022}), (QStringList{"0.01", "0.02"}));
}

TEST(IsohypseLevels, theLeastRangeIsTwoCentimetresAndNoMore) {
  EXPECT_EQ(isohypseLevels({0, std::nextafter(0.02, 1)}), (QStringList{"0.01", "0.02"}));
  EXPECT_EQ(isohypseLevels({0, -std::nextafter(0.02, 1)}), (QStringList{"-0.02", "-0.01"}));
}

TEST(IsohypseLevels, aLevelOfACentimetreIsTheNearestToTheUndisturbedTable) {
  ASSERT_EQ(0.11 / 11, 0.01);
  EXPECT_EQ(isohypseLevels({0, 0.11}).first(), "0.01");
  EXPECT_EQ(isohypseLevels({0, 0.1099}).first(), "0.02") << "0.00999 would read as 0.01 too";
}

TEST(IsohypseLevels, tenLevelsDivideTheRangeInEleven) {
  EXPECT_EQ(isohypseLevels({0, 11}), (QStringList{"1.00", "2.00", "3.00", "4.00", "5.00", "6.00",
                                                  "7.00", "8.00", "9.00", "10.00"}));
}

TEST(IsohypseLevels, thereAreNeverMoreThanTen) {
  for (int k = 1; k < 3000; ++k)
    ASSERT_LE(isohypseLevels({-0.0137 * k, 0.0291 * k}).size(), 10) << k;
}

TEST(IsohypseLevels, theRangeAlwaysHoldsZero) {
  EXPECT_EQ(isohypseLevels({11, 11}).first(), "1.00");
  EXPECT_EQ(isohypseLevels({-11, -11}).first(), "-10.00");
}

TEST(IsohypseLevels, noneRunsAlongTheUndisturbedTable) {
  const QStringList levels = isohypseLevels({-5, 6});
  EXPECT_EQ(levels.size(), 9);
  EXPECT_FALSE(levels.contains("0.00"));
  EXPECT_FALSE(levels.contains("-0.00"));
}

TEST(IsohypseLevels, drawdownsThatAreNoNumbersDoNoHarm) {
  EXPECT_EQ(isohypseLevels({std::nan(""), 11}).size(), 10);
  EXPECT_TRUE(isohypseLevels({INFINITY}).isEmpty());
}

// Levels of the isotherms

TEST(IsothermLevels, comeInTheirOrder) {
  EXPECT_EQ(isothermLevels({-4, 4}, 0.5), list({-1, -3, 1, 3, 0.5}));
  EXPECT_EQ(isothermLevels({-4, 4}, -0.5), list({-1, -3, -0.5, 1, 3}));
}

TEST(IsothermLevels, reachAsFarAsTheWells) {
  EXPECT_EQ(isothermLevels({-2.9, 2.9}, 0.5), list({-1, 1, 0.5}));
  EXPECT_EQ(isothermLevels({-3, 3}, 0.5), list({-1, -3, 1, 3, 0.5}));
}

TEST(IsothermLevels, pureHeatingHasNoneBelowZero) {
  EXPECT_EQ(isothermLevels({0, 4}, -2), list({1, 3}));
  EXPECT_EQ(isothermLevels({0, 4}, 0), list({1, 3}));
}

TEST(IsothermLevels, aLittleWarmthHasTheAdditionalOneOnly) {
  EXPECT_EQ(isothermLevels({0, 0.9}, 0.5), list({0.5}));
  EXPECT_EQ(isothermColour(0.5), QColor(Qt::green));
}

TEST(IsothermLevels, onlyAPositiveAdditionalOneIsNotAddedTwice) {
  EXPECT_EQ(isothermLevels({0, 3}, 3), list({1, 3}));
  EXPECT_EQ(isothermLevels({-3, 0}, -3), list({-1, -3, -3}));
  EXPECT_EQ(isothermLevels({-1, 0}, -1), list({-1, -1}));
}

TEST(IsothermLevels, anAdditionalOneOfZeroCountsWithCold) {
  EXPECT_EQ(isothermLevels({-0.5, 0}, 0), list({0}));
}

// Colours

TEST(IsothermColour, standsForTheSizeOfTheChange) {
  for (const double sign : {-1.0, 1.0}) {
    EXPECT_EQ(isothermColour(sign * 1), QColor(Qt::blue));
    EXPECT_EQ(isothermColour(sign * 3), QColor(Qt::red));
    EXPECT_EQ(isothermColour(sign * 0.99), QColor(Qt::green));
    EXPECT_EQ(isothermColour(sign * 2), QColor(127, 0, 127));
    EXPECT_EQ(isothermColour(sign * 1.5), QColor(63, 0, 191));
    EXPECT_EQ(isothermColour(sign * 4), QColor(64, 0, 0));
    EXPECT_EQ(isothermColour(sign * 5), QColor(1, 0, 0));
  }
}

TEST(IsothermColour, isInvalidBeyondFiveDegrees) {
  for (const double level : {5.1, -6.0, 40.0, 1e300})
    EXPECT_FALSE(isothermColour(level).isValid()) << level;
}

// Extension

TEST(RoundedExtension, isCutToTheCellAndRefinedByAHalf) {
  EXPECT_EQ(roundedExtension(47.3, 40, 1), 7);
  EXPECT_EQ(roundedExtension(47.6, 40, 1), 7.5);
  EXPECT_EQ(roundedExtension(47.5, 40, 1), 7.5) << "a half is reached, not passed";
  EXPECT_EQ(roundedExtension(std::nextafter(47.5, 0), 40, 1), 7);
  EXPECT_EQ(roundedExtension(87.6, 40, 12), 40.5);
  EXPECT_DOUBLE_EQ(roundedExtension(47.68, 40, 0.05), 7.6);
}

TEST(RoundedExtension, isNotBelowZero) {
  EXPECT_EQ(roundedExtension(30, 40, 1), 0);
}

TEST_F(IsolinesTest, theRangeOfChangesIsThatOfAllWellsAndPeriods) {
  read(BatchProject::seasons());
  const ChangeRange range = temperatureChanges(store);
  EXPECT_EQ(range.cold, -3);
  EXPECT_EQ(range.warm, std::max(4.0, number(UsedTemperatureChange)));
}

// Isotherms on the page

TEST_F(IsolinesTest, levelsAreWrittenToTheTemperature) {
  prepareChange(-3);
  store.setValue(AdditionalIsotherm, 0.5);
  EXPECT_TRUE(updateIsotherms());
  EXPECT_EQ(page.valuesOf(items.results, SelectedSet), (QVariantList{2, 2}));
  EXPECT_EQ(levels(), list({-1, -3, 0.5}));
  EXPECT_EQ(library.refreshed, 1);
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(IsolinesTest, aLineIsNamedColouredAndShownInThisOrder) {
  prepare();
  const int line = addLine(1.5);
  give(line, LegendText, QVariantMap{{"Other", 7}});
  updateIsotherms();
  EXPECT_EQ(page.propertiesSetOn(line), (std::vector<int>{Name, LegendText, LineColour, Visible}));
  EXPECT_EQ(of(line, Name), QVariant("Isotherm (1.5K change)"));
  const QVariantMap legend = of(line, LegendText).toMap();
  EXPECT_EQ(legend["Text"], QVariant("Isotherm (1.5K)"));
  EXPECT_EQ(legend["Font"].value<QFont>(), QFont("Arial", 11));
  EXPECT_EQ(legend["Other"], QVariant(7));
  EXPECT_EQ(of(line, LineColour).value<QColor>(), QColor(63, 0, 191));
  EXPECT_EQ(of(line, Visible), QVariant(true));
}

TEST_F(IsolinesTest, coldMainLinesAreDashedBesideWarmOnes) {
  prepare();
  EXPECT_GT(number(UsedTemperatureChange), 0);
  const int cold = addLine(-1);
  const int warm = addLine(1);
  const int other = addLine(-2);
  updateIsotherms();
  EXPECT_EQ(of(cold, LineStyle), QVariant(2));
  EXPECT_EQ(of(cold, LabelsVisible), QVariant(false));
  for (const int line : {warm, other}) {
    EXPECT_FALSE(of(line, LineStyle).isValid());
    EXPECT_FALSE(of(line, LabelsVisible).isValid());
  }
}

TEST_F(IsolinesTest, coldLinesAloneAreNotDashed) {
  prepareChange(-3);
  const int line = addLine(-3);
  updateIsotherms();
  EXPECT_FALSE(of(line, LineStyle).isValid());
  EXPECT_FALSE(of(line, LabelsVisible).isValid());
}

TEST_F(IsolinesTest, coldMainLinesHaveNoLabelsAlsoWhereTheChangesAreTooSmallForDashes) {
  prepare();
  store.setValue(UsedTemperatureChange, 1e-200);
  setWell(0, -0.001, 0);
  setWell(1, 0.001, -1e-200);
  const ChangeRange range = temperatureChanges(store);
  ASSERT_TRUE(range.cold < 0 && range.warm > 0 && range.cold * range.warm == 0);
  const int one = addLine(-1);
  const int three = addLine(-3);
  updateIsotherms();
  for (const int line : {one, three}) {
    EXPECT_FALSE(of(line, LineStyle).isValid());
    EXPECT_EQ(of(line, LabelsVisible), QVariant(false));
  }
}

TEST_F(IsolinesTest, aLineBeyondFiveDegreesDoesNoHarm) {
  prepare();
  const int line = addLine(7);
  updateIsotherms();
  EXPECT_FALSE(of(line, LineColour).value<QColor>().isValid());
}

TEST_F(IsolinesTest, theExtensionIsTheWayOfTheThreeKelvinLineBehindTheWells) {
  prepare();
  addLine(-3, {{10, 0}, {62.3, 5}, {50, 9}});
  addLine(1, {{500, 0}});
  updateIsotherms(3 * secondsPerYear);
  EXPECT_EQ(number(MaximumExtent3K), 22);
  EXPECT_EQ(number(TimeOfMaximumExtent3K), 3 * secondsPerYear);
}

TEST_F(IsolinesTest, theLongestOfSeveralLinesCounts) {
  prepare();
  addLine(3, {{70, 0}});
  addLine(-3, {{50, 0}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 30);
}

TEST_F(IsolinesTest, theExtensionNeverShrinks) {
  prepare();
  const int line = addLine(3, {{70, 0}});
  updateIsotherms(secondsPerYear);
  give(line, Points, polygon({{60, 0}}));
  updateIsotherms(2 * secondsPerYear);
  EXPECT_EQ(number(MaximumExtent3K), 30);
  EXPECT_EQ(number(TimeOfMaximumExtent3K), secondsPerYear);
  give(line, Points, polygon({{70, 0}}));
  updateIsotherms(3 * secondsPerYear);
  EXPECT_EQ(number(TimeOfMaximumExtent3K), 3 * secondsPerYear) << "the last step that reached it";
}

TEST_F(IsolinesTest, anExtensionThatIsATextCountsAsNothing) {
  prepare();
  store.setValue(MaximumExtent3K, "error");
  addLine(3, {{45, 0}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 5);
}

TEST_F(IsolinesTest, theExtensionIsMeasuredAlongTheFlow) {
  BatchProject northward;
  northward.set("hydraulic", "groundwater_flow_direction", 0);
  northward.addWell("Pump", 0, 0, -0.001);
  northward.addWell("Return", 0, 40, 0.001, -3);
  read(northward);
  store.setValue(MinElementLength, 1.0);
  store.setValue(MaximumExtent3K, 0.0);
  addLine(3, {{500, 0}, {0, 70}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 30);
}

TEST_F(IsolinesTest, withoutAGradientNothingIsTurned) {
  prepare(0, 0);
  addLine(3, {{52, 0}, {0, 300}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 12);
}

TEST_F(IsolinesTest, aLineUpstreamOfAllWellsHasNoExtension) {
  prepare();
  addLine(3, {{-60, 0}, {30, 5}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 0);
}

TEST_F(IsolinesTest, withoutAnInjectionWellTheExtensionIsAnError) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Pump 2", 40, 0, -0.001);
  read(project);
  addLine(3, {{60, 0}});
  updateIsotherms();
  EXPECT_EQ(store.value(MaximumExtent3K).toString(), "error");
}

TEST_F(IsolinesTest, aWellWithARateOfZeroInjectsNothing) {
  BatchProject project = BatchProject::doublet();
  project.addWell("Idle", 100, 0, 0, -3);
  read(project);
  store.setValue(MinElementLength, 1.0);
  store.setValue(MaximumExtent3K, 0.0);
  addLine(-3, {{130, 0}, {50, 9}});
  updateIsotherms();
  EXPECT_EQ(number(MaximumExtent3K), 90) << "from the injection well at 40";
}

TEST_F(IsolinesTest, injectionWellsBelowZeroAlongTheFlowMakeTheExtensionAnError) {
  BatchProject project;
  project.addWell("Pump", -1000, 0, -0.001);
  project.addWell("Return", -960, 0, 0.001, -3);
  read(project);
  store.setValue(MaximumExtent3K, 0.0);
  addLine(-3, {{-800, 0}, {-300, 0}});
  updateIsotherms();
  EXPECT_EQ(store.value(MaximumExtent3K).toString(), "error");
}

TEST_F(IsolinesTest, withoutAGridTheExtensionIsAnError) {
  prepare();
  items.results = 0;
  EXPECT_FALSE(updateIsotherms());
  EXPECT_EQ(store.value(MaximumExtent3K).toString(), "error");
  EXPECT_EQ(library.refreshed, 1);
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(IsolinesTest, aGridWithoutValuesKeepsItsLevels) {
  prepare();
  give(items.results, ValueCount, 0);
  EXPECT_TRUE(updateIsotherms());
  EXPECT_EQ(page.propertiesSetOn(items.results), std::vector<int>{SelectedSet});
  EXPECT_EQ(library.refreshed, 1);
}

TEST_F(IsolinesTest, viewsAreRefreshedAlsoWithoutAPageOrALock) {
  EXPECT_FALSE(Isolines(noPage(), {}).updateIsotherms(secondsPerYear, 10));
  EXPECT_FALSE(Isolines(noPage(), {}).updateIsohypses());
  EXPECT_EQ(library.refreshed, 2);
  const LockedElsewhere locked(mutex);
  EXPECT_FALSE(updateIsotherms());
  EXPECT_FALSE(Isolines(access(), {}).updateIsohypses());
  EXPECT_EQ(library.refreshed, 4);
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(IsolinesTest, noGraphicsLibraryDoesNoHarm) {
  PageAccess alone{&page, nullptr, store, items, mutex};
  EXPECT_TRUE(Isolines(alone, {}).updateIsohypses());
}

// Isohypses on the page

TEST_F(IsolinesTest, isohypsesAreDressedInTheirOrder) {
  const int line = addLine(0.25);
  EXPECT_TRUE(Isolines(access(), {}).updateIsohypses());
  EXPECT_EQ(page.valuesOf(items.results, SelectedSet), QVariantList{1});
  EXPECT_EQ(page.propertiesSetOn(line),
            (std::vector<int>{Name, LegendText, Visible, ShownLevel, LabelDensity, LabelsVisible,
                              InLegend, Visible}));
  EXPECT_EQ(page.valuesOf(line, Visible), (QVariantList{false, true}));
  EXPECT_EQ(of(line, Name), QVariant("Isohypse (0.25 m change)"));
  EXPECT_EQ(of(line, LegendText).toMap()["Text"], QVariant("Isohypse (%1 m)"));
  EXPECT_EQ(of(line, LegendText).toMap()["Font"].value<QFont>(), QFont("Arial", 11));
  EXPECT_EQ(of(line, ShownLevel), QVariant(0.25));
  EXPECT_EQ(of(line, LabelDensity), QVariant(10));
  EXPECT_EQ(of(line, LabelsVisible), QVariant(false));
  EXPECT_EQ(of(line, InLegend), QVariant(true));
  EXPECT_EQ(page.calls, (QStringList{"setNotificationsEnabled 0", "setNotificationsEnabled 1"}));
  EXPECT_EQ(library.refreshed, 1);
}

TEST_F(IsolinesTest, withoutAMapViewNoIsohypseIsDressed) {
  addLine(0.25);
  items.mapView = 0;
  EXPECT_TRUE(Isolines(access(), {}).updateIsohypses());
  EXPECT_TRUE(page.sets.empty());
}
