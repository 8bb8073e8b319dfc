#pragma once

#include "propertybrowser/QtAbstractPropertyManager.h"
#include "propertybrowser/QtProperty.h"

#include <QAbstractSpinBox>

#include <limits>

/// Gives a QSpinBox or QDoubleSpinBox the limits, step and text behind the number of a property. It
/// takes a typed number when it is complete, and writes numbers with a point in every language.
template <typename Number, typename Box>
void setUpSpinBox(Box& box, const QtProperty& property) {
  const auto attribute = [&property](const char* name, const QVariant& otherwise) {
    const QVariant value = property.propertyManager()->attributeValue(&property, name);
    return value.isValid() ? value : otherwise;
  };
  const auto scale = Number(property.propertyManager()->scale(&property));
  const auto shown = [&](const char* name, Number otherwise) {
    const QVariant value = attribute(name, {});
    return value.isValid() ? value.template value<Number>() * scale : otherwise;
  };
  box.setRange(shown("minimum", std::numeric_limits<Number>::lowest()),
               shown("maximum", std::numeric_limits<Number>::max()));
  box.setSingleStep(shown("singleStep", 1));
  box.setSuffix(attribute("prefix", QString()).toString());
  box.setKeyboardTracking(false);
  QLocale pointed = QLocale::c();
  pointed.setNumberOptions(QLocale::OmitGroupSeparator);
  box.setLocale(pointed);
}
