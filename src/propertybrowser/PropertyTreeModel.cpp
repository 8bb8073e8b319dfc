#include "propertybrowser/PropertyTreeModel.h"

#include "propertybrowser/QtProperty.h"

#include <QBrush>
#include <QFont>
#include <QMetaType>

namespace {

/// What tool tips and screen readers say beside name and value.
QStringList surroundings(const QtProperty& property) {
  const QtPropertyDecoration& decoration = property.decoration();
  QStringList texts{decoration.remark, decoration.badgeText, decoration.noteText};
  texts.removeAll({});
  return texts;
}

QFont fontOf(const QtProperty& property) {
  QFont font;
  font.setBold(property.isModified() || property.isGroup());
  font.setItalic(property.decoration().italic);
  return font;
}

QVariant backgroundOf(const QtProperty& property) {
  const QColor& colour = property.decoration().background;
  return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
}

void collect(const QList<QtBrowserItem*>& items, const QtProperty* property,
             QList<QtBrowserItem*>& found) {
  for (QtBrowserItem* const item : items) {
    if (item->property() == property)
      found.append(item);
    collect(item->children(), property, found);
  }
}

} // namespace

PropertyTreeModel::PropertyTreeModel(QObject* parent) : QAbstractItemModel(parent) {}

void PropertyTreeModel::fill(QtBrowserItem& item) {
  for (QtProperty* const below : item.property_->subProperties()) {
    item.children_.push_back(std::make_unique<QtBrowserItem>(below, &item));
    fill(*item.children_.back());
  }
}

QtBrowserItem* PropertyTreeModel::append(QtProperty* property, QtBrowserItem* above) {
  QtBrowserItem& parent = above ? *above : root_;
  const int row = int(parent.children_.size());
  auto item = std::make_unique<QtBrowserItem>(property, &parent);
  fill(*item);
  beginInsertRows(indexOf(above), row, row);
  parent.children_.push_back(std::move(item));
  endInsertRows();
  return parent.children_.back().get();
}

void PropertyTreeModel::remove(QtBrowserItem* item) {
  QtBrowserItem& parent = *item->parent_;
  const int row = item->row();
  beginRemoveRows(indexOf(item->parent()), row, row);
  parent.children_.erase(parent.children_.begin() + row);
  endRemoveRows();
}

void PropertyTreeModel::clear() {
  beginResetModel();
  root_.children_.clear();
  endResetModel();
}

void PropertyTreeModel::update(const QtProperty* property) {
  for (const QtBrowserItem* const item : items(property))
    emit dataChanged(indexOf(item, NameColumn), indexOf(item, ValueColumn));
}

void PropertyTreeModel::retranslate() {
  emit headerDataChanged(Qt::Horizontal, NameColumn, ValueColumn);
}

QList<QtBrowserItem*> PropertyTreeModel::items(const QtProperty* property) const {
  QList<QtBrowserItem*> found;
  collect(root_.children(), property, found);
  return found;
}

QtBrowserItem* PropertyTreeModel::item(const QModelIndex& index) {
  return static_cast<QtBrowserItem*>(index.internalPointer());
}

QtProperty* PropertyTreeModel::property(const QModelIndex& index) {
  return index.isValid() ? item(index)->property() : nullptr;
}

QModelIndex PropertyTreeModel::indexOf(const QtBrowserItem* item, int column) const {
  if (!item)
    return {};
  return createIndex(item->row(), column, const_cast<QtBrowserItem*>(item));
}

QModelIndex PropertyTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent))
    return {};
  const QtBrowserItem& above = parent.isValid() ? *item(parent) : root_;
  return createIndex(row, column, above.children_[size_t(row)].get());
}

QModelIndex PropertyTreeModel::parent(const QModelIndex& index) const {
  return index.isValid() ? indexOf(item(index)->parent()) : QModelIndex();
}

int PropertyTreeModel::rowCount(const QModelIndex& parent) const {
  if (parent.column() > NameColumn)
    return 0;
  const QtBrowserItem& above = parent.isValid() ? *item(parent) : root_;
  return int(above.children_.size());
}

int PropertyTreeModel::columnCount(const QModelIndex&) const {
  return ColumnCount;
}

QVariant PropertyTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return {};
  return section == NameColumn ? tr("Parameter") : tr("Value");
}

QString PropertyTreeModel::toolTipOf(const QtProperty& property) const {
  QStringList texts = surroundings(property);
  for (QString& text : texts)
    text = text.toHtmlEscaped();
  texts << property.toolTip() << (toolTips_ ? toolTips_(property) : QString());
  texts.removeAll({});
  return texts.join("<br>");
}

QVariant PropertyTreeModel::nameData(const QtProperty& property, int role) {
  const QtPropertyDecoration& decoration = property.decoration();
  switch (role) {
  case Qt::DisplayRole:
    if (decoration.badge.isEmpty())
      return property.propertyName();
    return QStringLiteral("%1 %2").arg(decoration.badge, property.propertyName());
  case Qt::AccessibleTextRole:
    return property.propertyName();
  default:
    return {};
  }
}

QVariant PropertyTreeModel::valueData(const QtProperty& property, int role) {
  switch (role) {
  case Qt::DisplayRole:
    return property.valueText();
  case Qt::EditRole:
    return property.value();
  case Qt::CheckStateRole:
    if (property.propertyType() == QMetaType::Bool)
      return property.value().toBool() ? Qt::Checked : Qt::Unchecked;
    return {};
  case Qt::AccessibleTextRole:
    return tr("%1: %2", "name and value").arg(property.propertyName(), property.valueText());
  default:
    return {};
  }
}

QVariant PropertyTreeModel::data(const QModelIndex& index, int role) const {
  const QtProperty* const shown = property(index);
  if (!shown)
    return {};
  switch (role) {
  case Qt::ToolTipRole:
    return toolTipOf(*shown);
  case Qt::WhatsThisRole:
    return shown->whatsThis();
  case Qt::AccessibleDescriptionRole:
    return surroundings(*shown).join(' ');
  case Qt::FontRole:
    return fontOf(*shown);
  case Qt::BackgroundRole:
    return backgroundOf(*shown);
  default:
    return index.column() == NameColumn ? nameData(*shown, role) : valueData(*shown, role);
  }
}

bool PropertyTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  QtProperty* const changed = property(index);
  if (!changed || !flags(index).testFlag(Qt::ItemIsEditable))
    return false;
  if (role == Qt::CheckStateRole)
    changed->setValue(value.toInt() == Qt::Checked);
  else if (role == Qt::EditRole)
    changed->setValue(value);
  else
    return false;
  return true;
}

Qt::ItemFlags PropertyTreeModel::flags(const QModelIndex& index) const {
  const QtProperty* const shown = property(index);
  if (!shown)
    return Qt::NoItemFlags;
  // What cannot be edited can still be read, selected and double-clicked.
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.column() != ValueColumn || shown->isGroup() || !shown->isEnabled())
    return flags;
  flags |= Qt::ItemIsEditable;
  if (shown->propertyType() == QMetaType::Bool)
    flags |= Qt::ItemIsUserCheckable;
  return flags;
}
