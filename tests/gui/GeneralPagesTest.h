#pragma once

#include "gui/PageTest.h"
#include "gui/general/GeneralPages.h"

namespace TVR::GUI {

/// The general wizard with its pages.
class GeneralPagesTest : public PageTest {
protected:
  enum Place { User, Plan };

  explicit GeneralPagesTest(BrenvikApp::ApplicationInterface* host = nullptr) {
    for (QWizardPage* page : generalPages({store, host}, &wizard))
      wizard.addPage(page);
  }

  QWizardPage& page(int place) { return *wizard.page(wizard.pageIds().at(place)); }
  QWizardPage& enter(int place) {
    page(place).initializePage();
    return page(place);
  }

  InputWizard wizard;
};

} // namespace TVR::GUI
