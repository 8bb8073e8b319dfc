#pragma once

#include <QString>
#include <QVector>

class QWidget;

namespace TVR::Test {

/// Whether a widget is something that people put in or choose with, as one: a spin box, not the
/// line edit inside it.
bool isInput(const QWidget& widget);

/// The visible widgets of a window outside other inputs, in the order of the widget tree; other
/// windows that it owns are left out.
QVector<QWidget*> visibleWidgets(QWidget& window);

/// A widget for a message: its object name, or else its class with what it says.
QString described(const QWidget& widget);

} // namespace TVR::Test
