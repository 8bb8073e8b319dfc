#include "files/FileTables.h"

#include <algorithm>
#include <array>

namespace TVR::Data {

namespace {

constexpr std::array tables = {
    FileTable{ProjectTable::Demand, "demand_model", 0, 1},
    FileTable{ProjectTable::Well, "well_model", 0, WellColumns::ColumnCount},
    FileTable{ProjectTable::WellDemand, "well_demand_model", WellDemandColumns::Rate,
              WellDemandColumns::ColumnCount},
};

} // namespace

bool isMade(const MadeTables& tables, ProjectTable table) {
  switch (table) {
  case ProjectTable::Demand:
    return tables.periods;
  case ProjectTable::Well:
    return tables.wells;
  case ProjectTable::WellDemand:
    return tables.wellPeriods;
  }
  return false;
}

std::span<const FileTable> fileTables() {
  return tables;
}

const FileTable& fileTable(ProjectTable table) {
  return tables[static_cast<std::size_t>(table)]; // in the order of the kinds
}

const FileTable* fileTable(const QString& name) {
  const auto* table = std::find_if(tables.begin(), tables.end(),
                                   [&](const FileTable& row) { return name == row.name; });
  return table != tables.end() ? table : nullptr;
}

} // namespace TVR::Data
