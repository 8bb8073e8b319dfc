#include "gui/editor/DoubleEditorFactory.h"

#include "gui/wizard/LimitedQDoubleValidator.h"
#include "propertybrowser/QtLineEditFactory.h"
#include "propertybrowser/QtVariantPropertyManager.h"

#include <QLineEdit>

#include <algorithm>
#include <limits>

namespace TVR::GUI {

namespace {

constexpr int manyDigits = 17; ///< more than a double has

/// Takes numbers within a range; one beyond it becomes the nearest within.
class RangeValidator final : public BrenvikTools::LimitedQDoubleValidator {
public:
  RangeValidator(double least, double most, QObject* parent)
      : LimitedQDoubleValidator(least, most, manyDigits, parent) {
    QLocale pointed = QLocale::c();
    pointed.setNumberOptions(QLocale::RejectGroupSeparator);
    setLocale(pointed);
  }

  void fixup(QString& text) const override {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber)
      text = QString::number(std::clamp(number, bottom(), top()));
  }
};

} // namespace

DoubleEditorFactory::DoubleEditorFactory(QObject* parent)
    : QtDoubleSpinBoxFactory(parent), lines_(new QtLineEditFactory(this)) {}

QWidget* DoubleEditorFactory::createEditor(QtProperty* property, QWidget* parent) {
  const auto attribute = [property](const char* name) {
    return property->propertyManager()->attributeValue(property, name);
  };
  if (!attribute("format").toString().startsWith('g'))
    return QtDoubleSpinBoxFactory::createEditor(property, parent);
  QWidget* const editor = lines_->createEditor(property, parent);
  const double scale = property->propertyManager()->scale(property);
  if (auto* const line = qobject_cast<QLineEdit*>(editor))
    line->setValidator(new RangeValidator(attribute("minimum").toDouble() * scale,
                                          attribute("maximum").toDouble() * scale, line));
  return editor;
}

} // namespace TVR::GUI
