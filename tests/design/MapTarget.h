#pragma once

#include "design/DependencyRules.h"
#include "design/ParameterId.h"
#include "design/RuleTarget.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace TVR {

using Ids = std::vector<int>;
using Events = std::vector<std::string>;

template <class Entry>
std::vector<Entry> operator+(std::vector<Entry> first, const std::vector<Entry>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// The entries that writes of `ids` leave in the log.
inline Events writesOf(const Ids& ids) {
  Events entries;
  for (const int id : ids)
    entries.push_back("write " + std::to_string(id));
  return entries;
}

/// A store over maps that runs the rules on every write, as the project's store does, and keeps a
/// log of what happened. Reference tables are maps of rows from parameter id to value.
class MapTarget : public RuleTarget {
public:
  std::map<int, double> numbers;
  std::map<int, std::string> texts;
  /// Rows of the reference table of a column, by column and row.
  std::map<int, std::map<int, double>> references;
  /// Columns of a table's row in their order.
  std::map<std::pair<std::string, int>, std::vector<std::pair<int, double>>> tableRows;
  std::vector<double> filterDiameters;
  /// Ids in the order in which they were written, nested writes after the write they belong to.
  Ids written;
  /// Everything else that a rule did, and mirrors, in order, as "mirror 125", "startSimulation".
  Events events;
  /// Writes and events in the order in which they happened, writes as "write 131".
  Events log;
  /// When off, a write stores and logs, but runs no rule.
  bool nested = true;

  double number(int id) const override {
    using namespace Parameter;
    const double stored = storedNumber(id);
    return id == SpecificHeatDemand ? stored / 3.6 : stored;
  }
  double storedNumber(int id) const override {
    const auto found = numbers.find(id);
    return found == numbers.end() ? 0.0 : found->second;
  }
  bool flag(int id) const override { return storedNumber(id) != 0.0; }
  std::string text(int id) const override {
    const auto found = texts.find(id);
    return found == texts.end() ? std::string() : found->second;
  }

  void write(int id, double value) override {
    numbers[id] = value;
    run(id);
  }
  void writeFlag(int id, bool value) override { write(id, value ? 1.0 : 0.0); }
  void writeText(int id, const std::string& value) override {
    texts[id] = value;
    run(id);
  }
  void mirror(int id, double value) override {
    numbers[id] = value;
    happened("mirror " + std::to_string(id));
  }
  void mirrorStored(int id, int source) override { mirror(id, storedNumber(source)); }

  void writeReferenceValue(int id, int column, int row) override {
    const auto rows = references.find(column);
    if (rows == references.end() || !rows->second.contains(row))
      return;
    write(id, rows->second.at(row));
  }
  void applyReferenceRow(std::string_view table, int row) override {
    happened("row " + std::string(table) + " " + std::to_string(row));
    const auto found = tableRows.find({std::string(table), row});
    if (found == tableRows.end())
      return;
    for (const auto& [id, value] : found->second)
      write(id, value);
  }
  double providedFilterDiameter(int row) const override {
    const auto index = static_cast<std::size_t>(row - 1);
    return index < filterDiameters.size() ? filterDiameters[index] : 0.0;
  }

  void resizeWells(int count) override { happened("wells " + std::to_string(count)); }
  void clearWells() override { happened("clearWells"); }
  void resizeDemandPeriods(int count) override { happened("periods " + std::to_string(count)); }
  void emitStartSimulation() override { happened("startSimulation"); }
  void emitUpdateCurrentGraphic() override { happened("updateCurrentGraphic"); }

private:
  void happened(const std::string& event) {
    events.push_back(event);
    log.push_back(event);
  }
  void run(int id) {
    written.push_back(id);
    log.push_back("write " + std::to_string(id));
    if (nested || written.size() == 1)
      applyRule(id, *this);
  }
};

} // namespace TVR
