#include "gui/PageUser.h"
#include "gui/mapping/MappingPages.h"
#include "results/DialogUser.h"

#include <QGroupBox>
#include <QImage>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class MappingPageTest : public PageTest {
protected:
  bool isChecked(const char* button) { return in<QAbstractButton>(page, button)->isChecked(); }
  QString path(const char* name) const { return folder.filePath(name); }
  void writeFile(const char* name, const QByteArray& content) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  /// A picture of 200 by 100 pixels.
  void writePicture(const char* name) {
    ASSERT_TRUE(QImage(200, 100, QImage::Format_RGB32).save(path(name)));
  }
  /// Presses "..." and chooses a file.
  void choosePicture(const char* name) {
    const DialogUser user([this, name](QFileDialog& dialog) { choose(dialog, path(name)); });
    toggle(page, "selectImageFile");
    EXPECT_TRUE(user.sawDialog());
  }
  QStringList frame() {
    return {textIn(page, "XImage"), textIn(page, "YImage"), textIn(page, "WidthImport"),
            textIn(page, "HeightImport")};
  }

  QTemporaryDir folder;
  InputWizard wizard;
  QWizardPage& page = *mappingPages({store}, &wizard).at(0);
};

TEST_F(MappingPageTest, whatIsStoredIsShown) {
  store.setValue(ViewX, 600000.126);
  store.setValue(ViewY, 200000.5);
  store.setValue(ViewUseExtension, true);
  store.setValue(ViewHorizontalExtension, 750.557);
  store.setValue(ViewScale, 2500.0);
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, "plan.png");
  store.setValue(BackgroundImageX, -12.345);
  store.setValue(BackgroundImageY, 7.0);
  store.setValue(BackgroundImageWidth, 321.0);
  store.setValue(BackgroundImageHeight, 123.0);
  in<QLabel>(page, "feedback_page0")->setText("message");
  page.initializePage();
  EXPECT_EQ(textIn(page, "XMap"), "600000.13");
  EXPECT_EQ(textIn(page, "YMap"), "200000.50");
  EXPECT_EQ(textIn(page, "extensionMap"), "750.56");
  EXPECT_EQ(in<QSpinBox>(page, "scaleMap")->value(), 2500);
  EXPECT_TRUE(in<QGroupBox>(page, "imageGroupBox")->isChecked());
  EXPECT_EQ(textIn(page, "ImageFile"), "plan.png");
  EXPECT_EQ(frame(), (QStringList{"-12.35", "7.00", "321.00", "123.00"}));
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(), "");
}

TEST_F(MappingPageTest, whatCanBeTypedIsLimited) {
  page.initializePage();
  expectTypeable(page, {{"XMap", 0, 18577795, 2},
                        {"YMap", 0, 10001889, 2},
                        {"extensionMap", 0, 10000, 2},
                        {"XImage", -18577795, 18577795, 2},
                        {"YImage", -10001889, 10001889, 2},
                        {"WidthImport", 0, 10000, 2},
                        {"HeightImport", 0, 10000, 2}});
  EXPECT_EQ(in<QSpinBox>(page, "scaleMap")->minimum(), 1);
  EXPECT_EQ(in<QSpinBox>(page, "scaleMap")->maximum(), 100000);
}

TEST_F(MappingPageTest, extensionAndScaleExcludeEachOther) {
  auto& extension = *in<QLineEdit>(page, "extensionMap");
  auto& scale = *in<QSpinBox>(page, "scaleMap");
  for (const bool usesExtension : {true, false, true}) {
    store.setValue(ViewUseExtension, usesExtension);
    page.initializePage();
    EXPECT_EQ(isChecked("horizontalExtentionUsed"), usesExtension);
    EXPECT_EQ(isChecked("scaleUsed"), !usesExtension);
    EXPECT_EQ(extension.isEnabled(), usesExtension);
    EXPECT_EQ(scale.isEnabled(), !usesExtension);
  }
  toggle(page, "scaleUsed");
  EXPECT_FALSE(extension.isEnabled());
  EXPECT_TRUE(scale.isEnabled());
  EXPECT_TRUE(page.validatePage());
  EXPECT_FALSE(store.value(ViewUseExtension).toBool());
}

TEST_F(MappingPageTest, whatIsTypedIsStored) {
  page.initializePage();
  type(page, "XMap", "612345.67");
  type(page, "YMap", "212345.67");
  toggle(page, "horizontalExtentionUsed");
  type(page, "extensionMap", "480");
  in<QSpinBox>(page, "scaleMap")->setValue(1234);
  toggle(page, "imageGroupBox");
  type(page, "ImageFile", "plan.png");
  type(page, "XImage", "-1.5");
  type(page, "YImage", "2.50");
  type(page, "WidthImport", "33");
  type(page, "HeightImport", "44");
  EXPECT_EQ(written(page),
            (QVector<int>{ViewX, ViewY, ViewUseExtension, ViewHorizontalExtension, ViewScale,
                          BackgroundImage, BackgroundImageFile, BackgroundImageX, BackgroundImageY,
                          BackgroundImageWidth, BackgroundImageHeight, GraphicWizardDone}));
  EXPECT_EQ(number(ViewX), 612345.67);
  EXPECT_EQ(number(ViewY), 212345.67);
  EXPECT_TRUE(store.value(ViewUseExtension).toBool());
  EXPECT_EQ(number(ViewHorizontalExtension), 480);
  EXPECT_EQ(number(ViewScale), 1234);
  EXPECT_TRUE(store.value(BackgroundImage).toBool());
  EXPECT_EQ(store.value(BackgroundImageFile), "plan.png");
  EXPECT_EQ(number(BackgroundImageWidth), 33);
  EXPECT_EQ(number(BackgroundImageHeight), 44);
  EXPECT_TRUE(store.value(GraphicWizardDone).toBool());
}

TEST_F(MappingPageTest, theOriginOfThePictureIsStoredAsTyped) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  type(page, "ImageFile", "plan.png");
  type(page, "XImage", "-1.50");
  type(page, "YImage", "1e2");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.values().value(BackgroundImageX).type(), QVariant::String);
  EXPECT_EQ(store.values().value(BackgroundImageX), "-1.50");
  EXPECT_EQ(store.values().value(BackgroundImageY), "1e2");
  EXPECT_EQ(store.values().value(BackgroundImageWidth).type(), QVariant::Double);
}

TEST_F(MappingPageTest, theLastMistakeIsNamedAndTheMapIsIncomplete) {
  store.setValue(ViewUseExtension, true);
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, "plan.png");
  const std::vector<Mistake> mistakes{
      {[this] { type(page, "XMap", ""); },
       "Please provide a valid value for the x coordinate of the map origin."},
      {[this] { type(page, "YMap", ""); },
       "Please provide a valid value for the y coordinate of the map origin."},
      {[this] { type(page, "extensionMap", ""); },
       "We need a valid value for the map extention (West - East) or select a scale!"},
      {[this] { type(page, "ImageFile", ""); },
       "Please provide a valid name for the background image file."},
      {[this] { type(page, "XImage", ""); },
       "Please provide a valid value for the x coordinate of the background image origin."},
      {[this] { type(page, "YImage", ""); },
       "Please provide a valid value for the y coordinate of the background image origin."},
      {[this] { type(page, "WidthImport", ""); },
       "Please provide a valid value for the horizontal image extension (West-East)."},
      {[this] { type(page, "HeightImport", ""); },
       "Please provide a valid value for the vertical image extension (North-South)."}};
  store.setValue(GraphicWizardDone, false);
  expectLastMistakeNamed(page, "feedback_page0", mistakes, store);
  store.setValue(GraphicWizardDone, true);
  page.initializePage();
  mistakes.front().make();
  EXPECT_FALSE(page.validatePage());
  EXPECT_FALSE(store.value(GraphicWizardDone).toBool());
}

TEST_F(MappingPageTest, anExtentOfZeroIsNone) {
  store.setValue(ViewUseExtension, true);
  store.setValue(BackgroundImage, false);
  for (const char* const edit : {"extensionMap", "WidthImport", "HeightImport"}) {
    page.initializePage();
    in<QLineEdit>(page, edit)->setText("0.00");
    EXPECT_FALSE(page.validatePage()) << edit;
  }
}

TEST_F(MappingPageTest, withoutAPictureItsNameAndOriginAreNotLookedAt) {
  page.initializePage();
  for (const char* const edit : {"ImageFile", "XImage", "YImage"})
    in<QLineEdit>(page, edit)->clear();
  EXPECT_TRUE(page.validatePage());
}

TEST_F(MappingPageTest, withoutAPictureItsExtentsStillCount) {
  page.initializePage();
  ASSERT_FALSE(in<QGroupBox>(page, "imageGroupBox")->isChecked());
  in<QLineEdit>(page, "WidthImport")->setText("0.00");
  EXPECT_FALSE(page.validatePage());
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(),
            red("Please provide a valid value for the horizontal image extension (West-East)."));
  in<QLineEdit>(page, "HeightImport")->clear();
  EXPECT_FALSE(page.validatePage());
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(),
            red("Please provide a valid value for the vertical image extension (North-South)."));
}

TEST_F(MappingPageTest, withAScaleTheExtensionMayBeEmptyAndBecomesZero) {
  store.setValue(ViewUseExtension, false);
  page.initializePage();
  in<QLineEdit>(page, "extensionMap")->clear();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.value(ViewHorizontalExtension), 0.0);
}

TEST_F(MappingPageTest, leavingItUntouchedChangesNothingButTheFormOfTheOrigin) {
  store.setValue(ViewX, 600000.12345);
  store.setValue(BackgroundImageX, "1.50");
  store.setValue(BackgroundImageY, 2.5);
  store.setValue(GraphicWizardDone, true);
  const Project before = store.project();
  page.initializePage();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(changedSince(before), QVector<int>{});
  EXPECT_EQ(store.values().value(BackgroundImageY).type(), QVariant::String);
  EXPECT_EQ(number(ViewX), 600000.12345);
}

TEST_F(MappingPageTest, aResetIsAskedForAndPutsEverythingBack) {
  page.initializePage();
  const Project before = store.project();
  type(page, "XMap", "5");
  toggle(page, "horizontalExtentionUsed");
  type(page, "extensionMap", "6");
  toggle(page, "imageGroupBox");
  type(page, "ImageFile", "plan.png");
  ASSERT_TRUE(page.validatePage());
  in<QLabel>(page, "feedback_page0")->setText("message");
  answers.yes = false;
  const Project entered = store.project();
  page.cleanupPage();
  EXPECT_EQ(store.project(), entered);
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(), "message");
  answers.yes = true;
  page.cleanupPage();
  EXPECT_EQ(answers.shown[1], "Reset all changes on the mapping information?");
  EXPECT_EQ(changedSince(before), QVector<int>{GraphicWizardDone});
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(), "");
}

TEST_F(MappingPageTest, aPictureIsChosenByADialog) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  writePicture("plan.png");
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Open background image");
    EXPECT_TRUE(dialog.nameFilters().first().startsWith("Image files (*."));
    EXPECT_TRUE(dialog.nameFilters().first().contains("*.png "));
    choose(dialog, path("plan.png"));
  });
  toggle(page, "selectImageFile");
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(textIn(page, "ImageFile"), path("plan.png"));
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(MappingPageTest, aDialogThatIsGivenUpChangesNothing) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  type(page, "ImageFile", "old.png");
  const DialogUser user([](QFileDialog& dialog) { giveUp(dialog); });
  toggle(page, "selectImageFile");
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(textIn(page, "ImageFile"), "old.png");
}

TEST_F(MappingPageTest, aWorldFileGivesOriginAndExtentAfterAQuestion) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  writePicture("plan.png");
  writeFile("plan.pgw", "0.5\n0\n0\n-0.25\n600000.25\n200024.875\n");
  choosePicture("plan.png");
  EXPECT_EQ(answers.shown,
            QStringList{"A world file beside the picture gives its origin as 600000.00, 200000.00 "
                        "and its extent as 100.00 m by 25.00 m. Fill in these values?"});
  EXPECT_EQ(frame(), (QStringList{"600000.00", "200000.00", "100.00", "25.00"}));
}

TEST_F(MappingPageTest, aWorldFileThatIsNotWantedIsLeftAlone) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  const QStringList before = frame();
  writePicture("plan.png");
  writeFile("plan.pgw", "0.5\n0\n0\n-0.25\n600000.25\n200024.875\n");
  answers.yes = false;
  choosePicture("plan.png");
  EXPECT_EQ(answers.shown.size(), 1);
  EXPECT_EQ(frame(), before);
  EXPECT_EQ(textIn(page, "ImageFile"), path("plan.png"));
}

TEST_F(MappingPageTest, aWorldFileThatTurnsThePictureIsRefusedWithTheReason) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  const QStringList before = frame();
  writePicture("plan.png");
  writeFile("plan.pgw", "0.5\n0.1\n0.1\n-0.5\n0\n0\n");
  choosePicture("plan.png");
  EXPECT_EQ(answers.shown,
            QStringList{"The world file beside the picture cannot be used. It turns the picture: "
                        "north has to be at the top."});
  EXPECT_EQ(frame(), before);
}

TEST_F(MappingPageTest, aWorldFileBeyondTheLimitsOfThePageIsRefused) {
  page.initializePage();
  toggle(page, "imageGroupBox");
  const QStringList before = frame();
  writePicture("plan.png");
  writeFile("plan.pgw", "51\n0\n0\n-1\n25.5\n99.5\n");
  choosePicture("plan.png");
  EXPECT_EQ(answers.shown,
            QStringList{"The world file beside the picture cannot be used. Its extent of 10200.00 "
                        "m by 100.00 m at 0.00, 0.00 cannot be entered here."});
  EXPECT_EQ(frame(), before);
}

TEST_F(MappingPageTest, theWizardHasOnePage) {
  const QList<QWizardPage*> pages = mappingPages({store}, &wizard);
  ASSERT_EQ(pages.size(), 1);
  EXPECT_STREQ(pages.first()->metaObject()->className(), "TVR::GUI::MappingWizardPage");
}

} // namespace
} // namespace TVR::GUI
