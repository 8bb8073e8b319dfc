#include "plugin/CancelKeys.h"

#include <QKeyEvent>

namespace TVR {

bool CancelKeys::areMeant(const QEvent& event) {
  if (event.type() != QEvent::KeyPress)
    return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  // A press that the page does not use reaches the main window too. Made ones bear no time.
  const bool isAnswered = press.timestamp() != 0 && press.timestamp() == answered_;
  if (isAnswered || (press.key() != Qt::Key_Escape && press.key() != Qt::Key_End))
    return false;
  answered_ = press.timestamp();
  return true;
}

} // namespace TVR
