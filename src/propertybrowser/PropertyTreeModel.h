#pragma once

#include "propertybrowser/QtBrowserItem.h"

#include <QAbstractItemModel>

#include <functional>

class QtProperty;

/// The rows of a property tree: column 0 is the name, column 1 the value. It keeps the rows and
/// takes everything that they show from their properties.
class PropertyTreeModel final : public QAbstractItemModel {
  Q_OBJECT

public:
  enum Column { NameColumn, ValueColumn, ColumnCount };

  explicit PropertyTreeModel(QObject* parent = nullptr);

  /// Puts a property with all below it last among the rows of `above`; at the top without one.
  QtBrowserItem* append(QtProperty* property, QtBrowserItem* above = nullptr);
  void remove(QtBrowserItem* item);
  void clear();
  /// The property's looks or value are another.
  void update(const QtProperty* property);
  void retranslate();
  /// Asked for more to tell of a property, as rich text.
  void setToolTips(const std::function<QString(const QtProperty&)>& toolTips) {
    toolTips_ = toolTips;
  }

  QList<QtBrowserItem*> topLevelItems() const { return root_.children(); }
  /// All rows of a property, top down.
  QList<QtBrowserItem*> items(const QtProperty* property) const;
  /// Null for an index that is none.
  static QtBrowserItem* item(const QModelIndex& index);
  static QtProperty* property(const QModelIndex& index);
  QModelIndex indexOf(const QtBrowserItem* item, int column = NameColumn) const;

  static bool isItemVisible(const QtBrowserItem* item) { return item->visible_; }
  static void setItemVisible(QtBrowserItem* item, bool visible) { item->visible_ = visible; }

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
  static void fill(QtBrowserItem& item);
  static QVariant nameData(const QtProperty& property, int role);
  static QVariant valueData(const QtProperty& property, int role);

  QString toolTipOf(const QtProperty& property) const;

  std::function<QString(const QtProperty&)> toolTips_;
  QtBrowserItem root_{nullptr, nullptr};
};
