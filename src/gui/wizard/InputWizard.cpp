#include "gui/wizard/InputWizard.h"

#include "store/UserStep.h"

#include <QAccessible>
#include <QEvent>
#include <QLayout>
#include <QWizardPage>

#include <optional>

namespace TVR::GUI {

namespace {

/// A widget that is made within a disabled one tells assistive technology so while it is a bare
/// widget still, and as such it would be known for good.
void presentAnew(const QWidget& page) {
  for (QWidget* const widget : page.findChildren<QWidget*>())
    if (QAccessibleInterface* const early = QAccessible::queryAccessibleInterface(widget);
        early && early->role() == QAccessible::Client)
      QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

} // namespace

InputWizard::InputWizard(QWidget* parent, Qt::WindowFlags flags) : QWizard(parent, flags) {
  // The class of Qt has its layout in a child, and looks at its needs before the texts of a page
  // and of the buttons are there.
  for (QObject* const child : children())
    child->installEventFilter(this);
  connect(this, &QWizard::pageAdded, this, [this](int id) { presentAnew(*page(id)); });
}

bool InputWizard::validateCurrentPage() {
  std::optional<Data::UserStep> step;
  if (store_)
    step.emplace(*store_, Data::StepName{.text = tr("Change values (%1)").arg(windowTitle()),
                                         .isForSeveral = true});
  return QWizard::validateCurrentPage();
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
  if (isCancelled_)
    return;
  std::optional<Data::UserStep> step;
  if (store_)
    step.emplace(*store_, tr("Reset values (%1)").arg(windowTitle()));
  QWizard::cleanupPage(id);
}

} // namespace TVR::GUI
