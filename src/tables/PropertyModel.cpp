#include "tables/PropertyModel.h"

#include "design/ParameterId.h"
#include "tables/TableHeader.h"

#include <iterator>

namespace TVR {

namespace {

constexpr const char* headers[] = {QT_TRANSLATE_NOOP("TVR::PropertyModel", "Parameter"),
                                   QT_TRANSLATE_NOOP("TVR::PropertyModel", "Value"),
                                   QT_TRANSLATE_NOOP("TVR::PropertyModel", "Unit")};
static_assert(std::size(headers) == PropertyModel::ColumnCount);

} // namespace

PropertyModel::PropertyModel(const QVector<int>& ids, PropertySource& source, bool editable,
                             QObject* parent)
    : QAbstractTableModel(parent), ids_(ids), source_(source), editable_(editable) {}

int PropertyModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ids_.size();
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
    return {};
  const int id = ids_.at(index.row());
  switch (index.column()) {
  case Name:
    return source_.label(id);
  case Value:
    if (id == Parameter::EnergyDemand && role == Qt::DisplayRole)
      return QString::number(source_.value(id).toDouble(), 'f', 0);
    return source_.value(id);
  default:
    return {};
  }
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole ? tableHeader("TVR::PropertyModel", headers, section, orientation)
                                 : QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const {
  if (editable_ && index.column() == Value)
    return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
  return Qt::ItemIsEnabled;
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!editable_ || index.column() != Value || role != Qt::EditRole)
    return false;
  return source_.setValue(ids_.at(index.row()), value);
}

void PropertyModel::revert() {
  beginResetModel();
  endResetModel();
}

} // namespace TVR
