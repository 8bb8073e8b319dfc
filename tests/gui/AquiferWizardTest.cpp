#include "gui/Keyboard.h"
#include "gui/PageUser.h"
#include "gui/wells/AquiferPages.h"
#include "gui/wizard/InputWizard.h"

#include <QComboBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class AquiferWizardTest : public PageTest {
protected:
  AquiferWizardTest() {
    store.setValue(WellWizardDone, false);
    store.setValue(AquiferUnconfined, false);
    store.setValue(UseProvidedAquiferProperties, false);
    for (QWizardPage* page : aquiferPages({store}, &wizard) + wellDesignPages({store}, &wizard))
      wizard.addPage(page);
    wizard.show();
    QApplication::setActiveWindow(&wizard);
  }

  QString place() const { return wizard.currentPage()->metaObject()->className(); }

  InputWizard wizard;
};

TEST_F(AquiferWizardTest, isGoneThroughByKeyboardAlone) {
  retypeAt("GW_gradient", "0.4");
  ASSERT_TRUE(tabTo("unconfinedBox"));
  hit(Qt::Key_Space);
  retypeAt("GW_pegel", "4");
  retypeAt("GW_basis", "16.5");
  ASSERT_TRUE(tabTo("knownConductivityAndPorosity"));
  hit(Qt::Key_Space);
  ASSERT_TRUE(tabTo("AquifierMaterial"));
  hit(Qt::Key_Home);
  hit(Qt::Key_Down);
  hit(Qt::Key_Down);
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  ASSERT_EQ(place(), "TVR::GUI::ProvidedWellsWizardPage");
  ASSERT_TRUE(tabTo("ProvideValues"));
  hit(Qt::Key_Space);
  retypeAt("MaxWell", "2");
  retypeAt("DistanceWell", "60");
  retypeAt("FilterLength", "6");
  retypeAt("FilterDiameter", "8");
  ASSERT_TRUE(tabTo("DiameterUnit"));
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  ASSERT_EQ(place(), "TVR::GUI::AquiferAndWellSummaryWizardPage");
  hit(Qt::Key_Return);
  EXPECT_FALSE(wizard.isVisible());
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_EQ(number(GroundwaterGradient), 0.4);
  EXPECT_EQ(number(GroundwaterTable), 4);
  EXPECT_EQ(number(AquiferBasis), 16.5);
  EXPECT_EQ(number(AquiferMaterial), 4);
  EXPECT_EQ(number(NumberOfWells), 4);
  EXPECT_EQ(number(RadiusOfInfluence), 60);
  EXPECT_EQ(number(Parameter::FilterLength), 6);
  EXPECT_DOUBLE_EQ(number(Parameter::FilterDiameter), 203.2);
  EXPECT_TRUE(store.value(WellWizardDone).toBool());
}

TEST_F(AquiferWizardTest, aPageThatRefusesStaysAndSaysWhy) {
  ASSERT_TRUE(tabTo("GW_gradient"));
  hit(Qt::Key_A, Qt::ControlModifier);
  hit(Qt::Key_Delete);
  hit(Qt::Key_Return);
  EXPECT_EQ(place(), "TVR::GUI::AquiferWizardPage");
  EXPECT_TRUE(in<QLabel>(*wizard.currentPage(), "feedback_page0")->isVisible());
}

TEST_F(AquiferWizardTest, goingBackAsksForAReset) {
  wizard.next();
  ASSERT_EQ(place(), "TVR::GUI::ProvidedWellsWizardPage");
  wizard.back();
  EXPECT_EQ(answers.shown, QStringList{"Reset all changes of the well configuration?"});
}

} // namespace
} // namespace TVR::GUI
