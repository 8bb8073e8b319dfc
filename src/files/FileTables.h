#pragma once

#include "project/Project.h"
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

/// Whether a file holds this table.
bool isMade(const MadeTables& tables, ProjectTable table);

std::span<const FileTable> fileTables();
const FileTable& fileTable(ProjectTable table);
/// The table with this name; null for any other name.
const FileTable* fileTable(const QString& name);

} // namespace TVR::Data
