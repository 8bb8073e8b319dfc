#include "study/plan/StudyKey.h"

#include "design/ParameterId.h"
#include "files/BatchFile.h"
#include "files/FileTables.h"
#include "project/ParameterTable.h"
#include "project/Units.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

namespace BatchFile = Data::BatchFile;
using BatchFile::ValueKind;

/// A smaller number of the key `simulation_time` is one in years.
constexpr double mostYears = 999;

bool isVaried(const BatchFile::Key& key) {
  switch (key.id) {
  case Parameter::NumberOfWells: // the same wells in all runs
  case Parameter::NumberOfDemandsPerYear:
  case Parameter::WriteTecplotOutput:
    return false;
  default:
    return key.kind == ValueKind::Number || key.kind == ValueKind::Years ||
           key.kind == ValueKind::Count || key.kind == ValueKind::Flag;
  }
}

const BatchFile::Key* batchKey(const QString& name) {
  const BatchFile::Key* found = nullptr;
  for (const BatchFile::Key& key : BatchFile::keys())
    if (name == key.name && isVaried(key))
      found = &key;
  if (!found)
    return nullptr;
  const bool isOverruled =
      std::any_of(found + 1, BatchFile::keys().data() + BatchFile::keys().size(),
                  [&](const BatchFile::Key& later) {
                    return later.id == found->id && later.kind == found->kind;
                  });
  return isOverruled ? nullptr : found;
}

ParameterRange rangeOf(const BatchFile::Key& key) {
  const ParameterRange& range = parameterRow(key.id).range;
  if (key.kind == ValueKind::Flag)
    return {0, 1};
  if (key.kind != ValueKind::Years)
    return range.inUnitOf(key.readDivisor);
  ParameterRange years = range.inUnitOf(1 / secondsPerYear);
  years.most = std::min(years.most, mostYears);
  return years;
}

StudyKey keyOf(const BatchFile::Key& key) {
  const QString unit =
      key.kind == ValueKind::Years ? QStringLiteral("a") : QString(parameterRow(key.id).unit);
  const bool isChoice = key.kind == ValueKind::Count || key.kind == ValueKind::Flag;
  return {key.name, key.section, unit.isEmpty() ? "-" : unit, rangeOf(key), isChoice, key.id, {}};
}

/// A rate has either sign.
ParameterRange rateRange() {
  const ParameterRange& size = parameterRow(Parameter::MaximumFlowRateOfOneWell).range;
  return {-size.most, size.most, -size.usualMost, size.usualMost};
}

struct CellKind {
  QString unit;
  ParameterRange range;
};

std::optional<CellKind> cellKind(ProjectTable table, int column) {
  const auto like = [](int id) { return CellKind{parameterRow(id).unit, parameterRow(id).range}; };
  switch (table) {
  case ProjectTable::Demand:
    return column == 0 ? std::optional(CellKind{"s", {0, 1000 * secondsPerYear}}) : std::nullopt;
  case ProjectTable::Well:
    if (column == WellColumns::X)
      return like(Parameter::ViewX);
    if (column == WellColumns::Y)
      return like(Parameter::ViewY);
    if (column == WellColumns::Rate)
      return CellKind{"m³/s", rateRange()};
    if (column == WellColumns::TemperatureChange)
      return like(Parameter::UsedTemperatureChange);
    return {};
  case ProjectTable::WellDemand:
    if (column == WellDemandColumns::Rate)
      return CellKind{"m³/s", rateRange()};
    if (column == WellDemandColumns::TemperatureChange)
      return like(Parameter::UsedTemperatureChange);
    return {};
  }
  return {};
}

std::optional<StudyKey> cellKey(const QString& name) {
  static const QRegularExpression form(R"(^([a-z_]+)\\([1-9][0-9]{0,5})\\([0-9]{1,2})$)");
  const QRegularExpressionMatch match = form.match(name);
  const Data::FileTable* table = Data::fileTable(match.captured(1));
  if (!table)
    return {};
  const KeyCell cell{table->table, match.captured(2).toInt() - 1, match.captured(3).toInt()};
  const std::optional<CellKind> kind = cellKind(cell.table, cell.column);
  if (!kind)
    return {};
  return StudyKey{name, "installation", kind->unit, kind->range, false, -1, cell};
}

} // namespace

bool StudyKey::takes(double number) const {
  return judge(range, number) != RangeVerdict::Impossible &&
         (!isChoice || number == std::trunc(number));
}

QString StudyKey::expected() const {
  const QString bounds = boundsText(range, RangeVerdict::Impossible, unit);
  return isChoice ? QStringLiteral("a whole number, %1").arg(bounds) : bounds;
}

double StudyKey::inStore(double number) const {
  const BatchFile::Key* key = cell ? nullptr : batchKey(name);
  return key ? BatchFile::inStore(*key, number) : number;
}

std::optional<StudyKey> studyKey(const QString& name) {
  if (const BatchFile::Key* key = batchKey(name))
    return keyOf(*key);
  return cellKey(name);
}

} // namespace TVR::Study
