#pragma once

#include "tables/WellModel.h"

#include <span>
#include <vector>

namespace TVR::Data {

class Manager;

/// The three tables of a store that stand in its files, in the order of batch files.
enum class FileTableKind { Demand, Well, WellDemand };

/// A table in a file: its name there, the first of its columns that is kept, and the number of its
/// columns. The two columns that `well_demand_model` leaves out repeat the other tables.
struct FileTable {
  FileTableKind kind;
  const char* name;
  int firstColumn;
  int columns;
};

std::span<const FileTable> fileTables();
const FileTable& fileTable(FileTableKind kind);
/// The table with this name; null for any other name.
const FileTable* fileTable(const QString& name);
/// The store's model of a table, made if need be.
QAbstractItemModel* tableModel(FileTableKind kind, Manager& store);
/// Whether the store has made the model of a table yet.
bool hasTableModel(FileTableKind kind, const Manager& store);

/// Sets the cells of a table in their order, values as texts in the C locale and in the
/// unit of the edit role. Cells that the table has not are passed over.
void setCells(FileTableKind kind, const std::vector<WellModel::Cell>& cells, Manager& store);

} // namespace TVR::Data
