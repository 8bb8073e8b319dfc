#include "propertybrowser/QtDoubleSpinBoxFactory.h"

#include "propertybrowser/SpinBoxSetup.h"

#include <QDoubleSpinBox>

QWidget* QtDoubleSpinBoxFactory::createEditor(QtProperty* property, QWidget* parent) {
  auto* const box = new QDoubleSpinBox(parent);
  const QVariant decimals =
      property->propertyManager()->attributeValue(property, QStringLiteral("decimals"));
  if (decimals.isValid())
    box->setDecimals(decimals.toInt()); // before the limits, which are rounded to them
  setUpSpinBox<double>(*box, *property);
  return box;
}
