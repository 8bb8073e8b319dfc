#include "project/WellReader.h"

#include "design/ParameterId.h"
#include "design/ParameterReader.h"
#include "design/WellDesign.h"

#include <QCoreApplication>

#include <algorithm>

namespace TVR {

int WellReader::count() const {
  return std::max(wholeNumber(parameters_.number(Parameter::NumberOfWells)), 0);
}

QString WellReader::name(int row) const {
  const auto entry = wells_.names.constFind(row);
  return entry != wells_.names.cend()
             ? *entry
             : QCoreApplication::translate("WellModel", "Well %1").arg(row + 1);
}

double WellReader::rate(int row) const {
  const auto entry = wells_.rates.constFind(row);
  if (entry != wells_.rates.cend())
    return *entry;
  const double sign = row < count() / 2 ? -2.0 : 2.0;
  return parameters_.number(Parameter::MeanFlowRate) * sign /
         parameters_.number(Parameter::NumberOfWells);
}

double WellReader::temperatureChange(int row) const {
  if (rate(row) < 0.0)
    return 0.0;
  const double usual = parameters_.number(Parameter::UsedTemperatureChange);
  return wells_.rates.contains(row) ? wells_.temperatureChanges.value(row, usual) : usual;
}

double WellReader::rate(int row, int period) const {
  const auto periods = wells_.periodRates.constFind(row);
  if (periods != wells_.periodRates.cend() && periods->contains(period))
    return periods->value(period);
  return period == 0 && isRow(row) ? rate(row) : 0.0;
}

double WellReader::temperatureChange(int row, int period) const {
  if (rate(row, period) < 0.0)
    return 0.0;
  const auto periods = wells_.periodTemperatureChanges.constFind(row);
  if (periods != wells_.periodTemperatureChanges.cend()) {
    if (periods->contains(period))
      return periods->value(period);
    return period == 0 ? parameters_.number(Parameter::UsedTemperatureChange) : 0.0;
  }
  return period == 0 && isRow(row) ? temperatureChange(row) : 0.0;
}

} // namespace TVR
