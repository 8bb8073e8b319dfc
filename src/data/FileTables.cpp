#include "data/FileTables.h"

#include "data/Manager.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <algorithm>
#include <array>

namespace TVR::Data {

namespace {

constexpr std::array tables = {
    FileTable{FileTableKind::Demand, "demand_model", 0, 1},
    FileTable{FileTableKind::Well, "well_model", 0, WellModel::ColumnCount},
    FileTable{FileTableKind::WellDemand, "well_demand_model", WellDemandModel::Rate,
              WellDemandModel::ColumnCount},
};

} // namespace

std::span<const FileTable> fileTables() {
  return tables;
}

const FileTable& fileTable(FileTableKind kind) {
  return tables[static_cast<std::size_t>(kind)]; // in the order of the kinds
}

const FileTable* fileTable(const QString& name) {
  const auto* table = std::find_if(tables.begin(), tables.end(),
                                   [&](const FileTable& row) { return name == row.name; });
  return table != tables.end() ? table : nullptr;
}

QAbstractItemModel* tableModel(FileTableKind kind, Manager& store) {
  switch (kind) {
  case FileTableKind::Demand:
    return store.demandModel();
  case FileTableKind::Well:
    return store.wellModel();
  case FileTableKind::WellDemand:
    return store.wellDemandModel();
  }
  return nullptr;
}

bool hasTableModel(FileTableKind kind, const Manager& store) {
  switch (kind) {
  case FileTableKind::Demand:
    return store.hasDemandModel();
  case FileTableKind::Well:
    return store.hasWellModel();
  case FileTableKind::WellDemand:
    return store.hasWellDemandModel();
  }
  return false;
}

void setCells(FileTableKind kind, const std::vector<WellModel::Cell>& cells, Manager& store) {
  if (kind == FileTableKind::Well) {
    store.wellModel()->setCells(cells);
    return;
  }
  QAbstractItemModel& model = *tableModel(kind, store);
  for (const auto& [row, column, value] : cells)
    if (const QModelIndex index = model.index(row, column); index.isValid())
      model.setData(index, value, Qt::EditRole);
}

} // namespace TVR::Data
