#include "project/Wells.h"

#include "project/ParameterValues.h"

#include <algorithm>
#include <iterator>

namespace TVR {

namespace {

template <typename Map>
void moveEntry(Map& map, int from, int to) {
  if (map.contains(from))
    map.insert(to, map.take(from));
}

template <typename Map>
void removeRows(Map& map, int first, int end) {
  for (int row = first; row < end; ++row)
    map.remove(row);
}

template <typename Map>
void shrinkRows(Map& map, int oldSize, int size) {
  removeRows(map, size, oldSize);
  for (int row = oldSize; row < 2 * oldSize; ++row)
    moveEntry(map, row, row - oldSize + size);
  removeRows(map, size, oldSize);
}

bool isSamePlace(const QPointF& one, const QPointF& other) {
  return isSameNumber(one.x(), other.x()) && isSameNumber(one.y(), other.y());
}

using PeriodsOfWells = QMap<int, ByPeriod>;

bool isSame(const PeriodsOfWells& one, const PeriodsOfWells& other) {
  const auto isSameEntry = [](const auto& a, const auto& b) {
    return a.first == b.first && TVR::isSame(a.second, b.second);
  };
  return std::equal(one.keyValueBegin(), one.keyValueEnd(), other.keyValueBegin(),
                    other.keyValueEnd(), isSameEntry);
}

} // namespace

bool isSame(const ByPeriod& one, const ByPeriod& other) {
  const auto isSameEntry = [](const auto& a, const auto& b) {
    return a.first == b.first && isSameNumber(a.second, b.second);
  };
  return std::equal(one.keyValueBegin(), one.keyValueEnd(), other.keyValueBegin(),
                    other.keyValueEnd(), isSameEntry);
}

bool Wells::operator==(const Wells& other) const {
  return std::equal(positions.begin(), positions.end(), other.positions.begin(),
                    other.positions.end(), isSamePlace) &&
         givenPlaces == other.givenPlaces && names == other.names && isSame(rates, other.rates) &&
         isSame(temperatureChanges, other.temperatureChanges) &&
         isSame(periodRates, other.periodRates) &&
         isSame(periodTemperatureChanges, other.periodTemperatureChanges);
}

bool Wells::hasEntries() const {
  return !(givenPlaces.isEmpty() && names.isEmpty() && rates.isEmpty() &&
           temperatureChanges.isEmpty() && periodRates.isEmpty() &&
           periodTemperatureChanges.isEmpty());
}

void Wells::clearEntries() {
  temperatureChanges.clear();
  rates.clear();
  names.clear();
  periodTemperatureChanges.clear();
  periodRates.clear();
}

void Wells::fitEntries(int oldSize) {
  const int size = positions.size();
  if (oldSize > size) {
    shrinkRows(names, oldSize, size);
    shrinkRows(rates, oldSize, size);
    shrinkRows(temperatureChanges, oldSize, size);
    shrinkRows(periodRates, oldSize, size);
    shrinkRows(periodTemperatureChanges, oldSize, size);
  } else if (oldSize < size) {
    // The target is the row behind the last one: oldSize + (size - oldSize).
    if (names.value(oldSize).isEmpty())
      names.remove(size);
    else
      moveEntry(names, oldSize, size);
    moveEntry(rates, oldSize, size);
    moveEntry(temperatureChanges, oldSize, size);
    moveEntry(periodRates, oldSize, size);
    moveEntry(periodTemperatureChanges, oldSize, size);
  }
}

void Wells::resizePositions(int count, const QPointF& place) {
  const int before = positions.size();
  positions.resize(std::max(count, 0));
  for (int row = before; row < positions.size(); ++row)
    positions[row] = place;
  const int kept = std::min(before, positions.size());
  for (auto row = givenPlaces.begin(); row != givenPlaces.end();)
    row = *row >= kept ? givenPlaces.erase(row) : std::next(row);
}

} // namespace TVR
