#include "gui/EveryPage.h"
#include "gui/delegates/WellDemandModelDelegate.h"
#include "gui/mapping/CompassWidget.h"
#include "support/MethodsOf.h"

namespace TVR::GUI {
namespace {

class PageSlots : public EveryPage {
protected:
  QStringList methods(const char* page) { return methodsOf(*pageOf(page).metaObject()); }
};

TEST_F(PageSlots, thePageOfTheWellsDeclaresItsSignalAndThenItsSlotsInOrder) {
  EXPECT_EQ(
      methods("WellPositionAndUsageWizardPage"),
      (QStringList{"signal updateGraphics()", "slot update()", "slot wellRatesModified()",
                   "slot changeWellCount(int)", "slot changeDemandStepNumber(int)",
                   "slot demandModelChanged(QModelIndex,QModelIndex)", "slot showExtendTableView()",
                   "slot wellSelected(QModelIndex)", "slot emitGraphicsUpdate()"}));
}

TEST_F(PageSlots, thoseOfTheOtherPagesBearTheirNames) {
  EXPECT_EQ(methods("UserWizardPage"), (QStringList{"slot on_toolButtonLogoFileSelection_clicked()",
                                                    "slot on_toolButtonDeleteLogo_clicked()"}));
  EXPECT_EQ(methods("AquiferWizardPage"), QStringList{"slot toggleType()"});
  EXPECT_EQ(methods("ProvidedWellsWizardPage"), QStringList{"slot toggleWellSpecification()"});
  EXPECT_EQ(methods("MappingWizardPage"), QStringList{"slot on_selectImageFile_clicked()"});
  EXPECT_EQ(methods("ExtendedSimulationParameterWizardPage"),
            (QStringList{"slot setWellOutputFile()", "slot setTecplotOutputFile()"}));
}

TEST_F(PageSlots, compassAndDelegateBearTheirs) {
  EXPECT_EQ(methodsOf(CompassWidget::staticMetaObject),
            (QStringList{"signal angleChanged(int)", "slot setAngle(int)"}));
  EXPECT_EQ(methodsOf(WellDemandModelDelegate::staticMetaObject),
            QStringList{"slot timeUnitChanged(bool)"});
}

} // namespace
} // namespace TVR::GUI
