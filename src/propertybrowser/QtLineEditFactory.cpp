#include "propertybrowser/QtLineEditFactory.h"

#include "propertybrowser/QtProperty.h"

#include <QDoubleValidator>
#include <QLineEdit>
#include <QMetaType>

QWidget* QtLineEditFactory::createEditor(QtProperty* property, QWidget* parent) {
  auto* const line = new QLineEdit(parent);
  if (property->propertyType() == QMetaType::Double) {
    auto* const validator = new QDoubleValidator(line);
    QLocale pointed = QLocale::c();
    pointed.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(pointed);
    line->setValidator(validator);
  }
  return line;
}
