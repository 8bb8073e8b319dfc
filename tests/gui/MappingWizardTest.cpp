#include "gui/Keyboard.h"
#include "gui/PageTest.h"
#include "gui/mapping/MappingPages.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

class MappingWizard : public PageTest {
protected:
  MappingWizard() {
    store.setValue(ViewUseExtension, false);
    store.setValue(BackgroundImage, false);
    for (QWizardPage* page : mappingPages({store}, &wizard))
      wizard.addPage(page);
    wizard.resize(400, 620);
    wizard.show();
    QApplication::setActiveWindow(&wizard);
  }

  InputWizard wizard;
};

TEST_F(MappingWizard, isGoneThroughByKeyboardAlone) {
  retypeAt("XMap", "680950");
  retypeAt("YMap", "226900.5");
  ASSERT_TRUE(tabTo("horizontalExtentionUsed"));
  hit(Qt::Key_Space);
  retypeAt("extensionMap", "250");
  ASSERT_TRUE(tabTo("imageGroupBox"));
  hit(Qt::Key_Space);
  retypeAt("ImageFile", "/maps/valley.png");
  retypeAt("XImage", "-12.25");
  retypeAt("YImage", "7");
  retypeAt("WidthImport", "800");
  retypeAt("HeightImport", "600,5");
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_FALSE(wizard.isVisible());
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_TRUE(store.flag(GraphicWizardDone));
  EXPECT_EQ(number(ViewX), 680950);
  EXPECT_EQ(number(ViewY), 226900.5);
  EXPECT_TRUE(store.flag(ViewUseExtension));
  EXPECT_EQ(number(ViewHorizontalExtension), 250);
  EXPECT_TRUE(store.flag(BackgroundImage));
  EXPECT_EQ(store.value(BackgroundImageFile).toString(), "/maps/valley.png");
  EXPECT_EQ(number(BackgroundImageX), -12.25);
  EXPECT_EQ(number(BackgroundImageY), 7);
  EXPECT_EQ(number(BackgroundImageWidth), 800);
  EXPECT_EQ(number(BackgroundImageHeight), 600.5);
}

TEST_F(MappingWizard, aScaleInThePlaceOfAnExtentIsEnteredByKeyboardAlone) {
  store.setValue(ViewUseExtension, true);
  store.setValue(BackgroundImageWidth, 1.0);
  store.setValue(BackgroundImageHeight, 1.0);
  wizard.restart();
  ASSERT_TRUE(tabTo("horizontalExtentionUsed"));
  hit(Qt::Key_Down);
  retypeAt("scaleMap", "2500");
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_FALSE(store.flag(ViewUseExtension));
  EXPECT_EQ(number(ViewScale), 2500);
}

} // namespace
} // namespace TVR::GUI
