#pragma once

#include "propertybrowser/QtEditorFactory.h"

#include <map>

/// Makes editors by the type of the property. To begin with these are spin boxes for int and
/// double, a check box for bool and a line for QString.
class QtVariantEditorFactory : public QtEditorFactory {
  Q_OBJECT

public:
  explicit QtVariantEditorFactory(QObject* parent = nullptr);

  /// Lets another factory make the editors of a type (a QMetaType). It must outlive this one.
  void setFactoryForType(int type, QtEditorFactory* factory);

  QWidget* createEditor(QtProperty* property, QWidget* parent) override;

private:
  std::map<int, QtEditorFactory*> factories_; ///< by the type of the property
};
