#include "tables/DemandModel.h"

#include "project/ChangeScope.h"
#include "project/Units.h"
#include "tables/TableHeader.h"

#include <QCoreApplication>

namespace TVR {

namespace {

constexpr const char* headers[] = {QT_TRANSLATE_NOOP("DemandModel", "Duration")};

} // namespace

DemandModel::DemandModel(ByPeriod& durations, int periods, QObject* parent)
    : QAbstractTableModel(parent), durations_(durations) {
  resize(periods);
}

int DemandModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : durations_.size();
}

int DemandModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1;
}

QVariant DemandModel::data(const QModelIndex& index, int role) const {
  if (index.column() != 0)
    return {};
  const double seconds = durations_.value(index.row(), 0.0);
  switch (role) {
  case Qt::DisplayRole:
    return seconds / secondsPerHour;
  case Qt::EditRole:
    return seconds;
  default:
    return {};
  }
}

QVariant DemandModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole ? tableHeader("DemandModel", headers, section, orientation)
                                 : QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags DemandModel::flags(const QModelIndex& index) const {
  if (!index.isValid())
    return Qt::ItemIsSelectable;
  return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
}

bool DemandModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (index.column() != 0 || !durations_.contains(index.row()) || role != Qt::EditRole)
    return false;
  const ChangeScope change(keeper_, ChangedPeriods);
  durations_[index.row()] = value.toDouble();
  emit dataChanged(index, index);
  return true;
}

void DemandModel::resize(int size) {
  if (size == rowCount())
    return;
  const ChangeScope change(keeper_, ChangedPeriods);
  beginResetModel();
  const ByPeriod before = durations_;
  durations_.clear();
  for (int period = 0; period < size; ++period)
    durations_[period] = before.value(period, secondsPerYear / size);
  endResetModel();
}

void DemandModel::refresh() {
  beginResetModel();
  endResetModel();
}

} // namespace TVR
