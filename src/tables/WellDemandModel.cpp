#include "tables/WellDemandModel.h"

#include "tables/DemandModel.h"
#include "tables/TableHeader.h"
#include "tables/WellModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <limits>

namespace TVR {

namespace {

constexpr const char* headers[] = {QT_TRANSLATE_NOOP("WellDemandModel", "Name"),
                                   QT_TRANSLATE_NOOP("WellDemandModel", "Duration"),
                                   QT_TRANSLATE_NOOP("WellDemandModel", "Mean rate"),
                                   QT_TRANSLATE_NOOP("WellDemandModel", "Temperature change")};
static_assert(std::size(headers) == WellDemandModel::ColumnCount);

} // namespace

WellDemandModel::WellDemandModel(WellModel* wells, DemandModel* demand, QObject* parent)
    : QAbstractTableModel(parent), wellModel_(wells), demandModel_(demand) {
  connect(wells, &QAbstractItemModel::modelReset, this, &WellDemandModel::resetModel);
  connect(demand, &QAbstractItemModel::modelReset, this, &WellDemandModel::resetModel);
}

int WellDemandModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid())
    return 0;
  const qint64 rows = qint64{wellModel_->rowCount()} * demandModel_->rowCount();
  return static_cast<int>(std::min<qint64>(rows, std::numeric_limits<int>::max()));
}

int WellDemandModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

WellDemandModel::WellAndStep WellDemandModel::wellAndStep(int row) const {
  const int periods = demandModel_->rowCount();
  if (periods <= 0)
    return {row, 0};
  const int well = row / periods;
  return {well, std::max(row - periods * well, 0)};
}

QVariant WellDemandModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
    return {};
  const auto [well, step] = wellAndStep(index.row());
  switch (index.column()) {
  case Name:
    return wellModel_->data(wellModel_->index(well, WellModel::Name), role);
  case Duration:
    return demandModel_->data(demandModel_->index(step, 0), role);
  case Rate:
    return wellModel_->stepRate(well, step, role);
  case TemperatureChange:
    return wellModel_->stepTemperatureChange(well, step, role);
  default:
    return {};
  }
}

QVariant WellDemandModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole ? tableHeader("WellDemandModel", headers, section, orientation)
                                 : QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags WellDemandModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags readOnly = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
  if (!index.isValid() || index.column() == Name)
    return readOnly;
  const auto [well, step] = wellAndStep(index.row());
  if (index.column() == TemperatureChange &&
      wellModel_->stepRate(well, step, Qt::DisplayRole) < 0.0)
    return readOnly;
  return readOnly | Qt::ItemIsEditable;
}

bool WellDemandModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole)
    return false;
  const auto [well, step] = wellAndStep(index.row());
  switch (index.column()) {
  case Duration:
    return demandModel_->setData(demandModel_->index(step, 0), value, role);
  case Rate:
    return wellModel_->setStepRate(well, step, value.toDouble());
  case TemperatureChange:
    return wellModel_->setStepTemperatureChange(well, step, value.toDouble());
  default:
    return false;
  }
}

void WellDemandModel::resetModel() {
  beginResetModel();
  endResetModel();
}

} // namespace TVR
