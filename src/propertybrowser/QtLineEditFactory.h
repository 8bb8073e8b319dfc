#pragma once

#include "propertybrowser/QtEditorFactory.h"

/// Lines for text, and for numbers that are best typed, such as 1e-05. A line for a number takes
/// what reads as one, in every language with a point; whether it is possible, others say.
class QtLineEditFactory : public QtEditorFactory {
  Q_OBJECT

public:
  using QtEditorFactory::QtEditorFactory;

  QWidget* createEditor(QtProperty* property, QWidget* parent) override;
};
