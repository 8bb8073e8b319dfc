#include "simulator/mesh/Well.h"

#include <cstddef>
#include <stdexcept>

namespace {

double entryOr(const std::vector<double>& list, int step, double fallback) {
  const auto index = static_cast<std::size_t>(step);
  return step >= 0 && index < list.size() ? list[index] : fallback;
}

void writeEntry(std::vector<double>& list, int step, double value) {
  if (step < 0)
    throw std::out_of_range("Well: negative demand step");
  const auto index = static_cast<std::size_t>(step);
  if (index >= list.size())
    list.resize(index + 1, 0.0);
  list[index] = value;
}

} // namespace

Well::Well(std::int32_t id, double x, double y, double defaultRate, double defaultTemperatureChange)
    : id_(id), x_(x), y_(y), defaultRate_(defaultRate),
      defaultTemperatureChange_(defaultTemperatureChange) {}

double Well::rate(int step) const {
  return entryOr(rates_, step, defaultRate_);
}

double Well::temperatureChange(int step) const {
  return entryOr(temperatureChanges_, step, defaultTemperatureChange_);
}

void Well::setRate(int step, double value) {
  writeEntry(rates_, step, value);
}

void Well::setTemperatureChange(int step, double value) {
  writeEntry(temperatureChanges_, step, value);
}

void Well::record(double t, double T) {
  times_.push_back(t);
  temperatures_.push_back(T);
}
