#pragma once

#include <QObject>

class QtProperty;
class QWidget;

/// Makes the widgets in which values are edited. The value goes in and out by the widget's user
/// property, so that any widget that has one will do.
class QtEditorFactory : public QObject {
public:
  using QObject::QObject;

  /// A new editor with the limits and texts of the property's attributes; its value is set
  /// afterwards. Null if the factory has none for this property.
  virtual QWidget* createEditor(QtProperty* property, QWidget* parent) = 0;
};
