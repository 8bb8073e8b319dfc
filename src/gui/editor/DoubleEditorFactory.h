#pragma once

#include "propertybrowser/QtDoubleSpinBoxFactory.h"

class QtLineEditFactory;

namespace TVR::GUI {

/// Editors of numbers: a line where the attribute "format" starts with "g", so that a number like
/// 1e-05 can be typed, and a spin box for all others. Both hold numbers within the attributes
/// "minimum" and "maximum".
class DoubleEditorFactory final : public QtDoubleSpinBoxFactory {
  Q_OBJECT

public:
  explicit DoubleEditorFactory(QObject* parent = nullptr);

  QWidget* createEditor(QtProperty* property, QWidget* parent) override;

private:
  QtLineEditFactory* lines_;
};

} // namespace TVR::GUI
