#include "gui/wizard/InputWizard.h"

namespace TVR::GUI {

/// The class of Qt cleans all pages up that were visited.
void InputWizard::done(int result) {
  isCancelled_ = result == Rejected;
  QWizard::done(result);
  isCancelled_ = false;
}

void InputWizard::cleanupPage(int id) {
  if (!isCancelled_)
    QWizard::cleanupPage(id);
}

} // namespace TVR::GUI
