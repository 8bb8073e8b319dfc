#include "results/DemandPlot.h"

#include "design/WellDesign.h"
#include "project/ProjectTarget.h"
#include "project/Units.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

constexpr int monthsPerYear = 12;
const QColor rateColour(110, 165, 165, 255);
const QColor temperatureColour(255, 170, 0, 255);

void addStep(QPolygonF& steps, double length, double y) {
  const double start = steps.isEmpty() ? 0.0 : steps.last().x();
  steps << QPointF(start, y) << QPointF(start + length, y);
}

double highest(const QPolygonF& steps) {
  double top = 0;
  for (const QPointF& point : steps)
    top = std::max(top, point.y());
  return top;
}

double lowest(const QPolygonF& steps) {
  return std::min_element(steps.begin(), steps.end(),
                          [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); })
      ->y();
}

/// The wells' rates as the tables of the project hold them.
class DemandTables {
public:
  explicit DemandTables(ProjectTarget& project) : project_(project) {
    for (const ProjectTable table :
         {ProjectTable::Well, ProjectTable::Demand, ProjectTable::WellDemand})
      project.makeTable(table);
  }

  int wellCount() const { return project_.wells().count(); }
  QString name(int well) const { return project_.wells().name(well); }

  std::vector<double> durations() const {
    const ByPeriod& durations = project_.enteredDurations();
    return {durations.begin(), durations.end()};
  }

  WellSteps steps(int well, int months) const {
    const std::vector<WellPeriod> ofWell = periods(name(well));
    const WellReader wells = project_.wells();
    return ofWell.empty() ? stepsOfYear(wells.rate(well), wells.temperatureChange(well), months)
                          : stepsOfPeriods(ofWell);
  }

private:
  /// The periods of all wells that bear the name, whole.
  std::vector<WellPeriod> periods(const QString& name) const {
    const ByPeriod& durations = project_.enteredDurations();
    const WellReader wells = project_.wells();
    std::vector<WellPeriod> periods;
    for (int well = 0; well < wells.count(); ++well) {
      if (wells.name(well) != name)
        continue;
      for (int period = 0; period < durations.size(); ++period)
        periods.push_back({durations.value(static_cast<int>(periods.size())),
                           wells.rate(well, period), wells.temperatureChange(well, period)});
    }
    return periods;
  }

  const ProjectReader& project_;
};

class DemandPlotPage {
public:
  DemandPlotPage(const PageAccess& page, int& months)
      : window_(*page.window), items_(page.items), months_(months) {}

  void clear() {
    for (const int plot : {items_.ratePlot, items_.temperaturePlot})
      for (const int child : window_.childItems(plot))
        window_.removeItem(child, 1);
  }

  void showRates(const QString& name, const QPolygonF& rates, int span) {
    const int plot = items_.ratePlot;
    if (plot <= 0)
      return;
    if (span > months_) {
      months_ = span;
      window_.setItemProperty(plot, XMaximum, span);
    }
    growAxis(plot, highest(rates));
    addCurve(plot, name, rates, rateColour);
  }

  /// A well that only withdraws has no temperature.
  void showTemperatures(const QString& name, const WellSteps& steps) {
    const int plot = items_.temperaturePlot;
    if (plot < 1)
      return;
    window_.setItemProperty(plot, XMaximum, months_);
    if (lowest(steps.temperatureChanges) < 0 && number(plot, YMinimum) > -1) {
      // The axis becomes symmetric around 0.
      window_.setItemProperty(plot, YMaximum, number(plot, YMaximum) / 2);
      window_.setItemProperty(plot, YMinimum, -number(plot, YMaximum));
    }
    growAxis(plot, highest(steps.temperatureChanges));
    if (highest(steps.rates) > 0)
      addCurve(plot, name, steps.temperatureChanges, temperatureColour);
  }

private:
  double number(int plot, int property) const {
    return window_.itemProperty(plot, property).toDouble();
  }

  void growAxis(int plot, double top) {
    const double end = number(plot, YMaximum);
    if (const double grown = grownAxisEnd(end, top); grown > end)
      window_.setItemProperty(plot, YMaximum, grown);
  }

  void addCurve(int plot, const QString& name, const QPolygonF& points, const QColor& colour) {
    const int curve = window_.addCurve(plot, points, 0, 0);
    window_.setItemProperty(curve, CurveStyle, static_cast<int>(Steps));
    window_.setItemProperty(curve, Visible, true);
    window_.setItemProperty(curve, Name, name);
    window_.setItemProperty(curve, LineColour, colour);
  }

  Sketra_lib::GraphicsWorkspaceWindow& window_;
  const PageItems& items_;
  int& months_;
};

} // namespace

WellSteps stepsOfPeriods(const std::vector<WellPeriod>& periods) {
  WellSteps steps;
  for (const WellPeriod& period : periods) {
    addStep(steps.rates, period.duration * monthsPerYear / secondsPerYear,
            period.rate * litresPerMinute);
    addStep(steps.temperatureChanges, inYears(period.duration * monthsPerYear),
            period.temperatureChange);
  }
  return steps;
}

WellSteps stepsOfYear(double rate, double temperatureChange, int months) {
  WellSteps steps;
  addStep(steps.rates, months, rate * litresPerMinute);
  addStep(steps.temperatureChanges, months, rate < 0 ? 0.0 : temperatureChange);
  return steps;
}

int monthsOfPeriods(const std::vector<double>& durations) {
  const double sum = std::accumulate(durations.begin(), durations.end(), 0.0);
  return sum > secondsPerYear ? wholeNumber(sum * monthsPerYear / secondsPerYear) : monthsPerYear;
}

double grownAxisEnd(double end, double top) {
  while (end > 0 && top > end)
    end *= 10;
  return end;
}

void showDemandPlot(const PageAccess& page, int& months) {
  if (!page.window)
    return;
  const DemandTables tables(page.project);
  DemandPlotPage plots(page, months);
  if (const PageLock lock(page.mutex); lock)
    plots.clear();
  const int span = monthsOfPeriods(tables.durations());
  for (int well = 0; well < tables.wellCount(); ++well) {
    const WellSteps steps = tables.steps(well, months);
    const PageLock lock(page.mutex);
    if (!lock || steps.rates.isEmpty() || steps.temperatureChanges.isEmpty())
      continue;
    plots.showRates(tables.name(well), steps.rates, span);
    plots.showTemperatures(tables.name(well), steps);
  }
}

} // namespace TVR
