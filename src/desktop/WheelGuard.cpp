#include "desktop/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace TVR::Desktop {

namespace {

QWidget* changedByWheel(QObject* object) {
  if (auto* box = qobject_cast<QAbstractSpinBox*>(object))
    return box;
  return qobject_cast<QComboBox*>(object);
}

} // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel && event->type() != QEvent::Polish)
    return false;
  QWidget* const box = changedByWheel(watched);
  if (!box)
    return false;
  if (event->type() == QEvent::Polish) {
    if (box->focusPolicy() == Qt::WheelFocus)
      box->setFocusPolicy(Qt::StrongFocus);
    return false;
  }
  if (box->hasFocus())
    return false;
  event->ignore(); // so that it goes on to what lies around the box
  return true;
}

} // namespace TVR::Desktop
