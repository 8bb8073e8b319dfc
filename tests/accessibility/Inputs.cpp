#include "accessibility/Inputs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>

namespace TVR::Test {
namespace {

template <typename... Classes>
bool isOneOf(const QWidget& widget) {
  return (qobject_cast<const Classes*>(&widget) || ...);
}

void collectVisible(QWidget& parent, QWidget& window, QVector<QWidget*>& found) {
  for (QObject* const child : parent.children()) {
    auto* const widget = qobject_cast<QWidget*>(child);
    if (!widget || widget->isWindow() || !widget->isVisibleTo(&window))
      continue;
    found.append(widget);
    if (!isInput(*widget))
      collectVisible(*widget, window, found);
  }
}

} // namespace

bool isInput(const QWidget& widget) {
  if (isOneOf<QScrollBar, QHeaderView>(widget))
    return false;
  return isOneOf<QLineEdit, QAbstractSpinBox, QComboBox, QAbstractButton, QAbstractItemView,
                 QAbstractSlider, QTextEdit, QPlainTextEdit, QTabBar>(widget);
}

QVector<QWidget*> visibleWidgets(QWidget& window) {
  QVector<QWidget*> found;
  collectVisible(window, window, found);
  return found;
}

QString described(const QWidget& widget) {
  if (!widget.objectName().isEmpty())
    return widget.objectName();
  QString text;
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
    text = button->text();
  else if (const auto* const label = qobject_cast<const QLabel*>(&widget))
    text = label->text();
  const QString type = widget.metaObject()->className();
  return text.isEmpty() ? type : QString("%1 \"%2\"").arg(type, text);
}

} // namespace TVR::Test
