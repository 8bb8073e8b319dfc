#include "gui/wizard/InputWizard.h"

#include <QEvent>
#include <QLayout>

namespace TVR::GUI {

InputWizard::InputWizard(QWidget* parent, Qt::WindowFlags flags) : QWizard(parent, flags) {
  // The class of Qt has its layout in a child, and looks at its needs before the texts of a page
  // and of the buttons are there.
  for (QObject* const child : children())
    child->installEventFilter(this);
}

/// The class of Qt cleans all pages up that were visited.
void InputWizard::done(int result) {
  isCancelled_ = result == Rejected;
  QWizard::done(result);
  isCancelled_ = false;
}

bool InputWizard::eventFilter(QObject* watched, QEvent* event) {
  const auto* const part = qobject_cast<QWidget*>(watched);
  if (event->type() == QEvent::LayoutRequest && part && part->layout())
    resize(size().expandedTo(part->layout()->totalMinimumSize()));
  return QWizard::eventFilter(watched, event);
}

void InputWizard::cleanupPage(int id) {
  if (!isCancelled_)
    QWizard::cleanupPage(id);
}

} // namespace TVR::GUI
