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
  box.setRange(attribute("minimum", std::numeric_limits<Number>::lowest()).template value<Number>(),
               attribute("maximum", std::numeric_limits<Number>::max()).template value<Number>());
  box.setSingleStep(attribute("singleStep", 1).template value<Number>());
  box.setSuffix(attribute("prefix", QString()).toString());
  box.setKeyboardTracking(false);
  QLocale pointed = QLocale::c();
  pointed.setNumberOptions(QLocale::OmitGroupSeparator);
  box.setLocale(pointed);
}
