#pragma once

#include "host/GraphicsInterface.h"
#include "host/PageProperty.h"

#include <QMap>
#include <QString>
#include <QWidget>

#include <vector>

/// A page that draws nothing: it keeps items, properties and observers, and writes every call down.
class PageRecord : public Sketra_lib::GraphicsWorkspaceWindow {
public:
  struct Set {
    int item;
    int property;
    QVariant value;
  };

  /// An item as a page holds it from the start; its id.
  int addItem(const QString& name, int parent = 0) {
    const int id = ++lastId;
    parents[id] = parent;
    properties[id][Sketra_lib::Property::Name] = name;
    return id;
  }
  /// The values that one property of an item was set to, in order.
  QVariantList valuesOf(int item, int property) const {
    QVariantList values;
    for (const Set& set : sets)
      if (set.item == item && set.property == property)
        values.append(set.value);
    return values;
  }
  /// The numbers of the properties that were set on an item, in order.
  std::vector<int> propertiesSetOn(int item) const {
    std::vector<int> numbers;
    for (const Set& set : sets)
      if (set.item == item)
        numbers.push_back(set.property);
    return numbers;
  }

  std::vector<Set> sets;
  QStringList calls; ///< operations other than property access, as "name" or "name item"
  QMap<int, QMap<int, QVariant>> properties;
  QMap<int, int> parents;
  QMultiMap<int, DATA::DataObserver*> observers;
  QByteArray page; ///< what setContents was given
  QString type = QStringLiteral("GraphicsWindow");
  int lastId = 0;
  int changedItem = 0;
  int changedProperty = 0;
  int openUpdates = 0;

  QString windowType() const override { return type; }
  void clearContents() override { calls << "clearContents"; }
  void setCurrentItem(int item) override { calls << QStringLiteral("setCurrentItem %1").arg(item); }
  void moveToBackground(int item) override {
    calls << QStringLiteral("moveToBackground %1").arg(item);
  }
  int addPicture(int plot, double x, double y, double width, double height) override {
    calls << QStringLiteral("addPicture %1 %2 %3 %4").arg(x).arg(y).arg(width).arg(height);
    return addItem({}, plot);
  }
  int addCurve(int plot, const QPolygonF& points, int connected, int flag) override {
    calls << QStringLiteral("addCurve %1 %2 %3").arg(plot).arg(connected).arg(flag);
    const int id = addItem({}, plot);
    properties[id][Sketra_lib::Property::Points] = points;
    return id;
  }
  int addGridData(int plot, int flag) override {
    calls << QStringLiteral("addGridData %1 %2").arg(plot).arg(flag);
    return addItem({}, plot);
  }
  int importItem(int plot, const QDomElement&, double version) override {
    calls << QStringLiteral("importItem %1 %2").arg(plot).arg(version);
    return addItem({}, plot);
  }
  void setItemProperty(int item, int property, const QVariant& value) override {
    sets.push_back({item, property, value});
    if (parents.contains(item))
      properties[item][property] = value;
  }
  QVariant itemProperty(int item, int property) const override {
    return properties.value(item).value(property);
  }
  void removeItem(int item, int flag) override {
    calls << QStringLiteral("removeItem %1 %2").arg(item).arg(flag);
    for (const int child : childItems(item))
      removeItem(child, flag);
    properties.remove(item);
    parents.remove(item);
  }
  void redrawItem(int item) override { calls << QStringLiteral("redrawItem %1").arg(item); }
  void beginUpdate() override { ++openUpdates; }
  void endUpdate() override { --openUpdates; }
  QList<int> childItems(int item) const override {
    return item > 0 ? parents.keys(item) : QList<int>();
  }
  int itemByName(const QString& name, int) const override {
    for (auto item = properties.begin(); item != properties.end(); ++item)
      if (item->value(Sketra_lib::Property::Name) == name)
        return item.key();
    return 0;
  }
  void attachObserver(int item, DATA::DataObserver* observer) override {
    observers.insert(item, observer);
  }
  void detachObserver(int item, DATA::DataObserver* observer) override {
    observers.remove(item, observer);
  }
  int lastChangedItem() const override { return changedItem; }
  int lastChangedProperty() const override { return changedProperty; }
  void setNotificationsEnabled(bool enabled) override {
    calls << QStringLiteral("setNotificationsEnabled %1").arg(enabled);
  }
  void setContents(const QByteArray& contents) override { page = contents; }
  QByteArray contents() const override { return page; }

protected:
  ~PageRecord() = default;
};

/// The same as a window of the library is: a widget that has the page as one of its faces.
class RecordingPage : public QWidget, public PageRecord {
public:
  QWidget* widget() override { return this; }
};
