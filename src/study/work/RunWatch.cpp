#include "study/work/RunWatch.h"

#include "project/RunFrame.h"
#include "project/Units.h"
#include "simulation/OutputTimes.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationRun.h"
#include "simulator/models/FVGeothermSite.h"
#include "study/work/CellField.h"
#include "study/work/Exceedance.h"
#include "study/work/RasterWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Study {

namespace {

/// How far an output time may lie from a time that is asked for: as a share of it, and in years.
constexpr double mostShare = 0.02;
constexpr double mostYears = 0.05;

} // namespace

std::size_t nearestOutputTime(const std::vector<double>& outputTimes, double years) {
  const auto nearest =
      std::min_element(outputTimes.begin(), outputTimes.end(), [&](double one, double other) {
        return std::abs(inYears(one) - years) < std::abs(inYears(other) - years);
      });
  return static_cast<std::size_t>(nearest - outputTimes.begin());
}

bool isNearOutputTime(const std::vector<double>& outputTimes, double years) {
  if (outputTimes.empty())
    return false;
  const double off = inYears(outputTimes[nearestOutputTime(outputTimes, years)]) - years;
  return std::abs(off) <= std::max(mostShare * years, mostYears);
}

QString unfitness(const ResultLayout& layout, const std::vector<double>& outputTimes,
                  std::size_t wells) {
  for (const double time : layout.times)
    if (!isNearOutputTime(outputTimes, time))
      return QStringLiteral("has no results near %1 years").arg(time);
  if (wells != static_cast<std::size_t>(layout.wells.size()))
    return QStringLiteral("has %1 wells that take part, not %2 like the base")
        .arg(wells)
        .arg(layout.wells.size());
  return {};
}

RunWatch::RunWatch(const ResultLayout& layout, const SimulationRun& run)
    : layout_(layout), run_(run) {}

double RunWatch::History::at(double time) const {
  const auto next = std::lower_bound(times.begin(), times.end(), time);
  if (next == times.end())
    return values.back();
  const auto i = static_cast<std::size_t>(next - times.begin());
  if (i == 0)
    return values.front();
  const double share = (time - times[i - 1]) / (times[i] - times[i - 1]);
  return values[i - 1] + share * (values[i] - values[i - 1]);
}

void RunWatch::starting(const RunStart& start) {
  cells_ = start.cells;
  const std::vector<double>& times = run_.outputTimes().times;
  const QString fault = unfitness(layout_, times, run_.simulation()->wells().size());
  if (!fault.isEmpty())
    throw UnfitRun(fault.toStdString());
  for (const double time : layout_.times) {
    Moment moment;
    moment.step = nearestOutputTime(times, time);
    moments_.push_back(moment);
  }
  findWells();
}

void RunWatch::findWells() {
  const std::vector<Well*> wells = run_.simulation()->wells();
  drawdowns_.resize(wells.size());
  for (const Well* well : wells)
    wellCells_.push_back(run_.mesh()->findElement(well->x(), well->y()));
}

void RunWatch::stepReached(const RunStep& step) {
  // What the simulation calls drawdown is the change of the level, which falls where water is
  // withdrawn.
  std::vector<double> drawdowns = step.simulation.presentDrawdowns();
  for (double& drawdown : drawdowns)
    drawdown = -drawdown;
  for (std::size_t well = 0; well < wellCells_.size(); ++well) {
    drawdowns_[well].times.push_back(step.time);
    drawdowns_[well].values.push_back(drawdowns[wellCells_[well]]);
  }
  for (Moment& moment : moments_)
    if (moment.step == static_cast<std::size_t>(step.index))
      take(moment, step.simulation, drawdowns);
}

void RunWatch::take(Moment& moment, const Simulation& simulation,
                    const std::vector<double>& drawdowns) {
  const std::vector<double> values = simulation.presentTemperatureChanges();
  const CellField changes(simulation.mesh(), values);
  moment.plumes = Quantities::plumeExtents(simulation.mesh(), values, layout_.levels);
  for (const double level : layout_.levels)
    moment.plumeAreas.push_back(changes.areaAbove(level));
  appendMaps(changes);
  moment.drawdownMax = *std::max_element(drawdowns.begin(), drawdowns.end());
  for (const std::size_t cell : wellCells_) {
    moment.drawdowns.push_back(drawdowns[cell]);
    moment.temperatures.push_back(simulation.model()->temperature(cell));
  }
}

void RunWatch::appendMaps(const CellField& changes) {
  for (const double level : layout_.levels)
    appendMap(maps_, cellsAbove(changes, level, layout_.raster, *run_.frame()));
}

void RunWatch::resultsReached(const RunResults& results) {
  for (const Well* well : results.simulation.wells())
    temperatures_.push_back({well->times(), well->temperatures()});
}

double RunWatch::valueOf(const Scalar& scalar) const {
  const auto extreme = [&](auto least) {
    const std::vector<double>& values = temperatures_[*scalar.well].values;
    return *least(values.begin(), values.end());
  };
  constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
  if (scalar.isMeshBand)
    return unknown;
  switch (scalar.quantity) {
  case Quantity::PlumeLength:
    return moments_[*scalar.time].plumes[*scalar.level].length;
  case Quantity::PlumeWidth:
    return moments_[*scalar.time].plumes[*scalar.level].width;
  case Quantity::PlumeArea:
    return moments_[*scalar.time].plumeAreas[*scalar.level];
  case Quantity::DrawdownMax:
    return moments_[*scalar.time].drawdownMax;
  case Quantity::Drawdown:
    return moments_[*scalar.time].drawdowns[*scalar.well];
  case Quantity::Temperature:
    return moments_[*scalar.time].temperatures[*scalar.well];
  case Quantity::TemperatureMin:
    return extreme([](auto first, auto last) { return std::min_element(first, last); });
  case Quantity::TemperatureMax:
    return extreme([](auto first, auto last) { return std::max_element(first, last); });
  }
  return unknown;
}

Record RunWatch::record() const {
  Record record;
  for (const Scalar& scalar : layout_.scalars())
    record.scalars.push_back(valueOf(scalar));
  for (const Series& series : layout_.series()) {
    const History& history = series.quantity == Quantity::Temperature ? temperatures_[series.well]
                                                                      : drawdowns_[series.well];
    std::vector<double> values;
    for (const double time : layout_.seriesTimes)
      values.push_back(history.at(time * secondsPerYear));
    record.series.push_back(std::move(values));
  }
  record.maps = maps_;
  return record;
}

} // namespace TVR::Study
