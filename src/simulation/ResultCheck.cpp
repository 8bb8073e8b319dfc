#include "simulation/ResultCheck.h"

#include "project/ParameterTable.h"
#include "project/Units.h"
#include "simulation/RunText.h"
#include "simulator/models/FVGeothermSite.h"

#include <algorithm>

namespace TVR {

namespace {

/// Walks through the records of a run with the range of what has flowed in so far.
class InflowRange {
public:
  InflowRange(const SimulationInput& input, const std::vector<Well*>& wells,
              const std::vector<WellHistory>& histories)
      : input_(input), wells_(wells), histories_(histories), lowest_(input.referenceTemperature),
        highest_(input.referenceTemperature) {}

  /// Goes on to the record at this index, whose demand period ends no earlier than its time.
  void advance(std::size_t record) {
    const double time = histories_.front().times[record];
    while (step_ + 1 < input_.times.size() && time > input_.times[step_])
      ++step_;
    const int period = step_ < input_.demandSteps.size() ? input_.demandSteps[step_] : 0;
    // The water of a closed loop changes between two records, and so do the rates.
    extend(period, record > 0 ? mixed(period, record - 1) : input_.referenceTemperature);
    extend(period, mixed(period, record));
  }

  /// Written so that what is no number lies outside. A closed loop could cool its own inflow
  /// without end: nothing is ice or steam either.
  bool holds(double temperature) const {
    return temperature >= std::max(lowest_, water_.least) - temperatureTolerance &&
           temperature <= std::min(highest_, water_.most) + temperatureTolerance;
  }

  /// What is wrong with a temperature outside, of the well or of any cell.
  QString faultOfWell(const QString& name, double time, double temperature) const {
    const QString text =
        leavesWater() ? RunText::tr("the temperature of \"%1\" after %2 years would be %3 °C, but "
                                    "water has %4 to %5 °C")
                      : RunText::tr("the temperature of \"%1\" after %2 years would be %3 °C, but "
                                    "what flows in has %4 to %5 °C");
    return text.arg(name, QString::number(inYears(time), 'f', 2), QString::number(temperature),
                    least(), most());
  }
  QString faultOfCell(double temperature) const {
    const QString text =
        leavesWater() ? RunText::tr("the temperature of a cell would be %1 °C at the end, but "
                                    "water has %2 to %3 °C")
                      : RunText::tr("the temperature of a cell would be %1 °C at the end, but "
                                    "what flows in has %2 to %3 °C");
    return text.arg(QString::number(temperature), least(), most());
  }

private:
  bool leavesWater() const { return lowest_ < water_.least || highest_ > water_.most; }
  QString least() const { return QString::number(leavesWater() ? water_.least : lowest_); }
  QString most() const { return QString::number(leavesWater() ? water_.most : highest_); }

  /// Temperature of the water that is handed to the injection wells [deg C].
  double mixed(int period, std::size_t record) const {
    double rates = 0;
    double sum = 0;
    for (std::size_t i = 0; input_.closedLoop && i < wells_.size(); ++i)
      if (const double rate = wells_[i]->rate(period); rate < 0) {
        rates += rate;
        sum += rate * histories_[i].temperatures[record];
      }
    return rates < 0 ? sum / rates : input_.referenceTemperature;
  }

  void extend(int period, double inflow) {
    for (const Well* well : wells_)
      if (well->rate(period) > 0) {
        const double injected = inflow + well->temperatureChange(period);
        lowest_ = std::min(lowest_, injected);
        highest_ = std::max(highest_, injected);
      }
  }

  const SimulationInput& input_;
  const std::vector<Well*>& wells_;
  const std::vector<WellHistory>& histories_;
  const ParameterRange& water_ = parameterRow(Parameter::ReferenceTemperature).range;
  std::size_t step_ = 0;
  double lowest_;  ///< [deg C]
  double highest_; ///< [deg C]
};

} // namespace

QString temperatureFault(const SimulationInput& input, const std::vector<Well*>& wells,
                         const std::vector<WellHistory>& histories,
                         const std::vector<double>& cells) {
  InflowRange range(input, wells, histories);
  const std::size_t records = histories.empty() ? 0 : histories.front().times.size();
  for (std::size_t record = 0; record < records; ++record) {
    range.advance(record);
    for (const WellHistory& well : histories)
      if (const double temperature = well.temperatures[record]; !range.holds(temperature))
        return range.faultOfWell(well.name, well.times[record], temperature);
  }
  for (const double temperature : cells)
    if (records > 0 && !range.holds(temperature))
      return range.faultOfCell(temperature);
  return {};
}

QString temperatureFault(const SimulationInput& input, const Simulation& simulation,
                         const std::vector<WellHistory>& histories) {
  const FVGeothermSite& model = *simulation.model();
  std::vector<double> cells(static_cast<std::size_t>(input.mesh->nx) *
                            static_cast<std::size_t>(input.mesh->ny));
  for (std::size_t i = 0; i < cells.size(); ++i)
    cells[i] = model.temperature(i);
  return temperatureFault(input, simulation.wells(), histories, cells);
}

} // namespace TVR
