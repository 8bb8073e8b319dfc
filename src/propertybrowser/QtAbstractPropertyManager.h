#pragma once

#include <QMetaType>
#include <QObject>
#include <QVariant>

class QtProperty;

/// What a property knows of the manager that keeps its value, and trees of the managers of their
/// properties.
class QtAbstractPropertyManager : public QObject {
  Q_OBJECT

public:
  explicit QtAbstractPropertyManager(QObject* parent = nullptr);

  /// The type of a property that has no value, only others below it.
  static constexpr int groupTypeId() { return QMetaType::UnknownType; }

  virtual QVariant value(const QtProperty* property) const = 0;
  /// Sets a value as one of the property's type, and marks the property as modified, if it is
  /// another value than before. One that cannot be made one of the type is ignored.
  virtual void setValue(QtProperty* property, const QVariant& value) = 0;
  /// Invalid for an attribute that was never set.
  virtual QVariant attributeValue(const QtProperty* property, const QString& attribute) const = 0;
  /// What trees and editors show for 1 of the value of a double: the attribute "scale", 1 without
  /// it.
  double scale(const QtProperty* property) const;
  /// The value as trees show it.
  virtual QString valueText(const QtProperty* property) const = 0;

signals:
  void valueChanged(QtProperty* property, const QVariant& value);
  /// Anything that can be seen of a property is another, its value included.
  void propertyChanged(QtProperty* property);
  void subPropertyAdded(QtProperty* above, QtProperty* property);
  void subPropertyRemoved(QtProperty* above, QtProperty* property);
  /// The property is about to be deleted.
  void propertyRemoved(QtProperty* property);
};
