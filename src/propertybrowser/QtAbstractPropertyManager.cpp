#include "propertybrowser/QtAbstractPropertyManager.h"

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject* parent) : QObject(parent) {}

double QtAbstractPropertyManager::scale(const QtProperty* property) const {
  const QVariant scale = attributeValue(property, QStringLiteral("scale"));
  return scale.isValid() ? scale.toDouble() : 1.0;
}
