#pragma once

#include "propertybrowser/QtEditorFactory.h"

/// Spin boxes for double values, by the attributes "minimum", "maximum", "singleStep", "decimals"
/// and "prefix".
class QtDoubleSpinBoxFactory : public QtEditorFactory {
  Q_OBJECT

public:
  using QtEditorFactory::QtEditorFactory;

  QWidget* createEditor(QtProperty* property, QWidget* parent) override;
};
