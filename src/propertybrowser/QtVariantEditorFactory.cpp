#include "propertybrowser/QtVariantEditorFactory.h"

#include "propertybrowser/QtDoubleSpinBoxFactory.h"
#include "propertybrowser/QtLineEditFactory.h"
#include "propertybrowser/SpinBoxSetup.h"

#include <QCheckBox>
#include <QMetaType>
#include <QSpinBox>

namespace {

class SpinBoxFactory final : public QtEditorFactory {
public:
  using QtEditorFactory::QtEditorFactory;

  QWidget* createEditor(QtProperty* property, QWidget* parent) override {
    auto* const box = new QSpinBox(parent);
    setUpSpinBox<int>(*box, *property);
    return box;
  }
};

class CheckBoxFactory final : public QtEditorFactory {
public:
  using QtEditorFactory::QtEditorFactory;

  QWidget* createEditor(QtProperty*, QWidget* parent) override { return new QCheckBox(parent); }
};

} // namespace

QtVariantEditorFactory::QtVariantEditorFactory(QObject* parent)
    : QtEditorFactory(parent), factories_{{QMetaType::Int, new SpinBoxFactory(this)},
                                          {QMetaType::Double, new QtDoubleSpinBoxFactory(this)},
                                          {QMetaType::Bool, new CheckBoxFactory(this)},
                                          {QMetaType::QString, new QtLineEditFactory(this)}} {}

void QtVariantEditorFactory::setFactoryForType(int type, QtEditorFactory* factory) {
  factories_[type] = factory;
}

QWidget* QtVariantEditorFactory::createEditor(QtProperty* property, QWidget* parent) {
  const auto found = factories_.find(property->propertyType());
  return found == factories_.end() ? nullptr : found->second->createEditor(property, parent);
}
