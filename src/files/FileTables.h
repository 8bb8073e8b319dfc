#pragma once

#include "project/ProjectTables.h"

#include <QString>

#include <span>

namespace TVR::Data {

/// A table of a project in a file: its name there, the first of its columns that is kept, and the
/// number of its columns. The two columns that `well_demand_model` leaves out repeat the other
/// tables.
struct FileTable {
  ProjectTable table;
  const char* name;
  int firstColumn;
  int columns;
};

/// Which tables of a project have been made: a file holds no others.
struct MadeTables {
  bool wells = false;
  bool periods = false;
  bool wellPeriods = false;

  bool has(ProjectTable table) const;
};

std::span<const FileTable> fileTables();
const FileTable& fileTable(ProjectTable table);
/// The table with this name; null for any other name.
const FileTable* fileTable(const QString& name);

} // namespace TVR::Data
