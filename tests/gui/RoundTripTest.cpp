#include "gui/EveryPage.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

class RoundTrip : public EveryPage {
protected:
  RoundTrip() {
    for (const int id : {AquiferThickness, AquiferBasis, DistanceBetweenWells, WellDepth,
                         FilterLengthProvided, FilterDiameterProvided})
      store.setValue(id, 12.3456);
    store.setValue(OilDemand, 2500.25);
    store.setValue(CalculateWellConstruction, false);
  }

  /// All numbers are texts, as those of a file are until somebody writes them.
  void makeTexts() {
    for (int id = 0; id < Count; ++id) {
      const QVariant value = store.stored(id);
      if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Int)
        store.setStored(id, numberAsText(value.toDouble()));
    }
  }
  static QString numberAsText(double number) {
    const QString text = QString::number(number, 'g', 17);
    return text.contains('.') || text.contains('e') ? text : text + ".0";
  }

  static void goThrough(QWizardPage& page) {
    page.initializePage();
    EXPECT_TRUE(page.validatePage());
  }
};

TEST_F(RoundTrip, throughAPageLeavesWhatNobodyTouched) {
  const Project start = store.project();
  for (const bool isFromFile : {false, true})
    for (const int id : wizard.pageIds()) {
      QWizardPage& page = *wizard.page(id);
      store.setProject(start);
      const bool cools = nameOf(page) == "CoolingAndHeatingInstallationWizardPage";
      store.setValue(EnergyDemandType, cools ? 2 : 0); // which leads to this page
      goThrough(page); // what the page notes and the rules derive stands now
      if (isFromFile)
        makeTexts();
      const Project before = store.project();
      goThrough(page);
      for (const int changed : changedSince(before))
        ADD_FAILURE() << page.metaObject()->className() << ": " << qPrintable(store.key(changed))
                      << " was " << qPrintable(before.values.value(changed).toString())
                      << " and is " << qPrintable(store.stored(changed).toString());
    }
}

} // namespace
} // namespace TVR::GUI
