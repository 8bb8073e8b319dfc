#pragma once

#include "gui/PageTest.h"
#include "gui/energy/EnergyPages.h"
#include "gui/general/GeneralPages.h"
#include "gui/mapping/MappingPages.h"
#include "gui/positions/PositionPages.h"
#include "gui/simulation/SimulationPages.h"
#include "gui/wells/AquiferPages.h"

namespace TVR::GUI {

/// Each page as its wizard shows it.
class EveryPage : public PageTest {
protected:
  EveryPage() { addPages(wizard); }

  void addPages(InputWizard& added) {
    for (const auto& pages :
         {generalPages, energyPages, aquiferPages, wellDesignPages, mappingPages, positionPages,
          simulationPages, extendedSimulationPages})
      for (QWizardPage* page : pages({store}, &added))
        added.addPage(page);
  }

  /// A page by the name of its class.
  QWizardPage& pageOf(const char* name) {
    for (const int id : wizard.pageIds())
      if (nameOf(*wizard.page(id)) == name)
        return *wizard.page(id);
    throw std::runtime_error(name);
  }
  static QString nameOf(const QWizardPage& page) {
    return QString(page.metaObject()->className()).section("::", -1);
  }

  template <class Check>
  void onEachPage(const Check& check) {
    for (const int id : wizard.pageIds()) {
      wizard.setStartId(id);
      wizard.restart();
      wizard.show();
      wizard.resize(400, 620);
      QApplication::processEvents();
      const QWizardPage& page = *wizard.page(id);
      ASSERT_TRUE(page.isVisible());
      SCOPED_TRACE(page.metaObject()->className());
      check(page);
    }
  }

  InputWizard wizard;
};

} // namespace TVR::GUI
