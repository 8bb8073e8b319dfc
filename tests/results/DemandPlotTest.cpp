#include "results/DemandPlot.h"

#include "support/ResultPageTest.h"

#include <QColor>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

constexpr double litrePerMinute = 1.0 / 60000; // [m3/s]

class DemandPlotTest : public ResultPageTest {
protected:
  DemandPlotTest() {
    for (const int plot : {items.ratePlot, items.temperaturePlot}) {
      give(plot, YMinimum, 0);
      give(plot, YMaximum, 10);
    }
  }

  void show() { showDemandPlot(access(), months); }
  int curve(int plot, int index = 0) { return page.childItems(plot).value(index); }
  QPolygonF points(int plot, int index = 0) {
    return of(curve(plot, index), Points).value<QPolygonF>();
  }
  double end(int plot) { return of(plot, YMaximum).toDouble(); }

  BatchProject oneWell(double litres, double change) {
    BatchProject project;
    project.addWell("Well", 0, 0, litres * litrePerMinute, change);
    return project;
  }

  int months = 12;
};

} // namespace

TEST(DemandSteps, aPeriodOfAYearIsOneFlatStep) {
  const WellSteps steps = stepsOfPeriods({{secondsPerYear, 2 * litrePerMinute, 3}});
  EXPECT_EQ(steps.rates, (polygon({{0, 2}, {12, 2}})));
  EXPECT_EQ(steps.temperatureChanges, (polygon({{0, 3}, {12, 3}})));
}

TEST(DemandSteps, periodsFollowEachOther) {
  const WellSteps steps = stepsOfPeriods(
      {{secondsPerYear / 4, 2 * litrePerMinute, 3}, {secondsPerYear / 2, -litrePerMinute, -4}});
  EXPECT_EQ(steps.rates, (polygon({{0, 2}, {3, 2}, {3, -1}, {9, -1}})));
  EXPECT_EQ(steps.temperatureChanges, (polygon({{0, 3}, {3, 3}, {3, -4}, {9, -4}})));
}

TEST(DemandSteps, aWellWithoutPeriodsIsTheSameAllTheTime) {
  const WellSteps steps = stepsOfYear(5 * litrePerMinute, 3, 24);
  EXPECT_EQ(steps.rates, (polygon({{0, 5}, {24, 5}})));
  EXPECT_EQ(steps.temperatureChanges, (polygon({{0, 3}, {24, 3}})));
}

TEST(DemandSteps, aWellThatWithdrawsChangesNothing) {
  const WellSteps steps = stepsOfYear(-5 * litrePerMinute, 3, 12);
  EXPECT_EQ(steps.rates, (polygon({{0, -5}, {12, -5}})));
  EXPECT_EQ(steps.temperatureChanges, (polygon({{0, 0}, {12, 0}})));
}

TEST(DemandSteps, aRateOfZeroKeepsItsChange) {
  EXPECT_EQ(stepsOfYear(0, -3, 12).temperatureChanges, (polygon({{0, -3}, {12, -3}})));
}

TEST(DemandSteps, theTimeAxisHasTheMonthsOfAllPeriods) {
  EXPECT_EQ(monthsOfPeriods({}), 12);
  EXPECT_EQ(monthsOfPeriods({secondsPerYear}), 12);
  EXPECT_EQ(monthsOfPeriods({secondsPerYear / 2}), 12);
  EXPECT_EQ(monthsOfPeriods({secondsPerYear, secondsPerYear}), 24);
  EXPECT_EQ(monthsOfPeriods({secondsPerYear, secondsPerYear * 0.99}), 23);
}

TEST(DemandSteps, axesGrowByFactorsOfTen) {
  EXPECT_EQ(grownAxisEnd(10, 15), 100);
  EXPECT_EQ(grownAxisEnd(10, 10), 10);
  EXPECT_EQ(grownAxisEnd(10, 1234), 10000);
  EXPECT_EQ(grownAxisEnd(100, 1), 100);
}

TEST(DemandSteps, anAxisWithoutALengthDoesNotGrow) {
  EXPECT_EQ(grownAxisEnd(0, 15), 0);
  EXPECT_EQ(grownAxisEnd(-1, 15), -1);
}

TEST_F(DemandPlotTest, aWellHasACurveOnEachPlot) {
  read(oneWell(5, 3));
  show();
  EXPECT_EQ(points(items.ratePlot), (polygon({{0, 5}, {12, 5}})));
  EXPECT_EQ(points(items.temperaturePlot), (polygon({{0, 3}, {12, 3}})));
  EXPECT_TRUE(page.calls.contains(QStringLiteral("addCurve %1 0 0").arg(items.ratePlot)));
  for (const auto& [plot, colour] : {std::pair{items.ratePlot, QColor(110, 165, 165)},
                                     std::pair{items.temperaturePlot, QColor(255, 170, 0)}}) {
    EXPECT_EQ(page.propertiesSetOn(curve(plot)),
              (std::vector<int>{CurveStyle, Visible, Name, LineColour}));
    EXPECT_EQ(of(curve(plot), CurveStyle), QVariant(1));
    EXPECT_EQ(of(curve(plot), Visible), QVariant(true));
    EXPECT_EQ(of(curve(plot), Name), QVariant("Well"));
    EXPECT_EQ(of(curve(plot), LineColour).value<QColor>(), colour);
  }
}

TEST_F(DemandPlotTest, aFreshAxisOfTenBecomesAHundredForFifteenLitres) {
  read(oneWell(15, 3));
  show();
  EXPECT_EQ(end(items.ratePlot), 100);
  EXPECT_EQ(end(items.temperaturePlot), 10);
}

TEST_F(DemandPlotTest, aWellThatWithdrawsHasNoTemperatureCurve) {
  read(oneWell(-5, 3));
  show();
  EXPECT_EQ(points(items.ratePlot), (polygon({{0, -5}, {12, -5}})));
  EXPECT_TRUE(page.childItems(items.temperaturePlot).isEmpty());
  EXPECT_EQ(of(items.temperaturePlot, YMinimum).toDouble(), 0);
}

TEST_F(DemandPlotTest, aWellWithARateOfZeroHasARateCurveOnly) {
  read(oneWell(0, 3));
  show();
  EXPECT_EQ(points(items.ratePlot), (polygon({{0, 0}, {12, 0}})));
  EXPECT_TRUE(page.childItems(items.temperaturePlot).isEmpty());
}

TEST_F(DemandPlotTest, coldMakesTheTemperatureAxisSymmetricOnce) {
  BatchProject project;
  project.addWell("A", 0, 0, 0.001, -3);
  project.addWell("B", 40, 0, 0.001, -4);
  read(project);
  show();
  EXPECT_EQ(page.valuesOf(items.temperaturePlot, YMaximum), QVariantList{5.0});
  EXPECT_EQ(page.valuesOf(items.temperaturePlot, YMinimum), QVariantList{-5.0});
}

TEST_F(DemandPlotTest, whatStoodThereIsRemovedRatesFirst) {
  read(oneWell(5, 3));
  const int oldTemperature = page.addItem("old", items.temperaturePlot);
  const int oldRate = page.addItem("old", items.ratePlot);
  show();
  EXPECT_EQ(page.calls.mid(0, 2),
            (QStringList{QStringLiteral("removeItem %1 1").arg(oldRate),
                         QStringLiteral("removeItem %1 1").arg(oldTemperature)}));
  EXPECT_EQ(page.childItems(items.ratePlot).size(), 1);
}

TEST_F(DemandPlotTest, withoutWellsThePlotsAreEmptied) {
  page.addItem("old", items.ratePlot);
  store.setValue(NumberOfWells, 0);
  show();
  EXPECT_TRUE(page.childItems(items.ratePlot).isEmpty());
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(DemandPlotTest, periodsOfTwoYearsMakeAnAxisOfTwentyFourMonths) {
  BatchProject project = oneWell(5, 3);
  project.addPeriod(secondsPerYear);
  project.addPeriod(secondsPerYear);
  project.addPeriodRates({{5 * litrePerMinute, 3}, {6 * litrePerMinute, 2}});
  read(project);
  show();
  EXPECT_EQ(months, 24);
  EXPECT_EQ(of(items.ratePlot, XMaximum), QVariant(24));
  EXPECT_EQ(of(items.temperaturePlot, XMaximum), QVariant(24));
  EXPECT_EQ(points(items.ratePlot).size(), 4);
  EXPECT_EQ(points(items.ratePlot).last(), QPointF(24, 6));
}

TEST_F(DemandPlotTest, theTimeAxisOfTheRatesIsNotTouchedForAYear) {
  read(oneWell(5, 3));
  show();
  EXPECT_TRUE(page.valuesOf(items.ratePlot, XMaximum).isEmpty());
  EXPECT_EQ(page.valuesOf(items.temperaturePlot, XMaximum), QVariantList{12});
}

TEST_F(DemandPlotTest, periodsBelongToTheWellWithTheWholeName) {
  BatchProject project;
  project.addWell("Well 1", 0, 0, 0.001, 3);
  project.addWell("Well 10", 40, 0, 0.002, 3);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriodRates({{0.001, 1}, {0.002, 2}, {0.003, 3}, {0.004, 4}});
  read(project);
  show();
  EXPECT_EQ(points(items.ratePlot, 0), (polygon({{0, 60}, {6, 60}, {6, 120}, {12, 120}})));
  EXPECT_EQ(points(items.ratePlot, 1), (polygon({{0, 180}, {6, 180}, {6, 240}, {12, 240}})));
}

TEST_F(DemandPlotTest, withoutAPageTheMonthsStay) {
  BatchProject project = oneWell(5, 3);
  project.addPeriod(secondsPerYear);
  project.addPeriod(secondsPerYear);
  read(project);
  showDemandPlot(noPage(), months);
  EXPECT_EQ(months, 12);
}

TEST_F(DemandPlotTest, plotsThatAreNotThereAreSkipped) {
  read(oneWell(5, 3));
  items.ratePlot = 0;
  items.temperaturePlot = 0;
  show();
  EXPECT_TRUE(page.calls.isEmpty());
  EXPECT_TRUE(page.sets.empty());
}
