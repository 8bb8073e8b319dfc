#pragma once

#include "gui/PageTest.h"
#include "gui/energy/EnergyPages.h"

namespace TVR::GUI {

/// The energy wizard with its pages.
class EnergyPagesTest : public PageTest {
protected:
  /// In the order of adding.
  enum Place {
    Feature,
    Cooling,
    Consumption,
    Definition,
    Determination,
    Approximation,
    HeatPump,
    Result
  };

  EnergyPagesTest() {
    for (QWizardPage* page : energyPages({store}, &wizard))
      wizard.addPage(page);
  }

  QWizardPage& page(int place) { return *wizard.page(wizard.pageIds().at(place)); }
  int placeAfter(int place) { return wizard.pageIds().indexOf(page(place).nextId()); }

  /// The page as the wizard shows it.
  QWizardPage& enter(int place) {
    page(place).initializePage();
    return page(place);
  }

  /// What a page refuses to be left with; empty if it does not.
  static QString refusal(QWizardPage& page, const char* feedback) {
    const bool isLeft = page.validatePage();
    const QString text = in<QLabel>(page, feedback)->text();
    EXPECT_EQ(isLeft, text.isEmpty());
    return text;
  }

  InputWizard wizard;
};

} // namespace TVR::GUI
