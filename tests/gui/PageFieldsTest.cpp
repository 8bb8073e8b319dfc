#include "gui/wizard/PageFields.h"

#include "gui/PageTest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QWizardPage>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class PageFieldsTest : public PageTest {
protected:
  QLineEdit edit;
  QLabel feedback;
  PageFields fields{store, "EngerieVerbrauchWizard"};
};

TEST_F(PageFieldsTest, whatIsNotTouchedKeepsItsHiddenDecimals) {
  store.setValue(AquiferThickness, 12.3456);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.enter();
  EXPECT_EQ(edit.text(), "12.35");
  EXPECT_TRUE(fields.leave());
  EXPECT_EQ(number(AquiferThickness), 12.3456);
}

TEST_F(PageFieldsTest, whatIsTypedCountsThoughItLooksTheSame) {
  store.setValue(AquiferThickness, 12.3456);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.enter();
  edit.clear();
  QTest::keyClicks(&edit, "12.35");
  fields.leave();
  EXPECT_EQ(number(AquiferThickness), 12.35);
}

TEST_F(PageFieldsTest, aRangeBindsWhatIsTypedAndNotWhatTheStoreHolds) {
  store.setValue(AquiferThickness, 1500.0);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.enter();
  EXPECT_FALSE(lacksNumber(&edit));
  edit.clear();
  QTest::keyClicks(&edit, "1500");
  EXPECT_TRUE(lacksNumber(&edit));
  edit.clear();
  QTest::keyClicks(&edit, "1000");
  EXPECT_FALSE(lacksNumber(&edit));
}

TEST_F(PageFieldsTest, whatIsTypedIsWritten) {
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.enter();
  edit.clear();
  QTest::keyClicks(&edit, "7.25");
  EXPECT_TRUE(fields.leave());
  EXPECT_EQ(number(AquiferThickness), 7.25);
}

TEST_F(PageFieldsTest, aFactorLiesBetweenStoreAndWidget) {
  store.setValue(EffectivePorosity, 0.15);
  fields.add(numberField(EffectivePorosity, &edit,
                         {.minimum = 0, .maximum = 100, .shown = 1, .factor = 100}));
  fields.enter();
  EXPECT_EQ(edit.text(), "15.0");
  edit.clear();
  QTest::keyClicks(&edit, "25");
  fields.leave();
  EXPECT_EQ(number(EffectivePorosity), 0.25);
}

TEST_F(PageFieldsTest, aCommaIsTakenForAPoint) {
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  fields.enter();
  edit.clear();
  QTest::keyClicks(&edit, "7,25");
  QLocale::setDefault(before);
  EXPECT_EQ(edit.text(), "7.25");
}

TEST_F(PageFieldsTest, theLastMessageIsTheOneThatShows) {
  QLineEdit other;
  fields.showMessagesIn(&feedback);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.add(numberField(AquiferBasis, &other, {0, 1000}));
  fields.test([this] { return lacksNumber(&edit); }, "first");
  fields.test([&other] { return lacksNumber(&other); }, "second");
  fields.enter();
  edit.clear();
  other.clear();
  const Project before = store.project();
  EXPECT_FALSE(fields.leave());
  EXPECT_EQ(feedback.text(), red("second"));
  EXPECT_EQ(store.project(), before);
  other.setText("3");
  EXPECT_FALSE(fields.leave());
  EXPECT_EQ(feedback.text(), red("first"));
  edit.setText("4");
  EXPECT_TRUE(fields.leave());
  EXPECT_EQ(feedback.text(), "");
}

TEST_F(PageFieldsTest, aHalfTypedNumberIsNone) {
  edit.setText("1e");
  EXPECT_TRUE(lacksNumber(&edit));
  edit.setText("1e2");
  EXPECT_FALSE(lacksNumber(&edit));
}

TEST_F(PageFieldsTest, onlyWhatItsConditionAllowsIsWritten) {
  QCheckBox box;
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}).writtenIf(&box));
  const double before = number(AquiferThickness);
  fields.enter();
  edit.setText("77");
  fields.leave();
  EXPECT_EQ(number(AquiferThickness), before);
  box.setChecked(true);
  fields.leave();
  EXPECT_EQ(number(AquiferThickness), 77);
}

TEST_F(PageFieldsTest, aResetAnsweredWithNoLeavesEverything) {
  fields.showMessagesIn(&feedback);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  fields.enter();
  store.setValue(AquiferThickness, 55);
  feedback.setText("message");
  answers.yes = false;
  fields.reset("Reset all changes on it?");
  EXPECT_EQ(number(AquiferThickness), 55);
  EXPECT_EQ(feedback.text(), "message");
  EXPECT_EQ(answers.shown, QStringList{"Reset all changes on it?"});
  EXPECT_EQ(answers.titles, QStringList{"Tevrane"});
}

TEST_F(PageFieldsTest, aResetAnsweredWithYesPutsTheValuesBack) {
  fields.showMessagesIn(&feedback);
  fields.add(numberField(AquiferThickness, &edit, {0, 1000}));
  const double before = number(AquiferThickness);
  fields.enter();
  store.setValue(AquiferThickness, 55);
  feedback.setText("message");
  fields.reset("Reset all changes on it?");
  EXPECT_EQ(number(AquiferThickness), before);
  EXPECT_EQ(feedback.text(), "");
}

TEST_F(PageFieldsTest, choicesKeepTheirPlaceInAnotherLanguage) {
  QComboBox box;
  fields.add(choiceField(store, AquiferMaterial, &box));
  store.setValue(AquiferMaterial, 3);
  fields.enter();
  EXPECT_EQ(box.currentData().toInt(), 3);
  const QString english = box.currentText();
  store.setValue(GuiLanguage, "de");
  fillChoices(store, AquiferMaterial, &box);
  EXPECT_EQ(box.currentData().toInt(), 3);
  EXPECT_NE(box.currentText(), english);
  store.setValue(GuiLanguage, "en");
}

TEST(AsksForTexts, onlyAPageWithActionsDoes) {
  QWizardPage page;
  const QEvent language(QEvent::LanguageChange);
  EXPECT_FALSE(asksForTexts(page, language));
  QAction action("one");
  page.addAction(&action);
  EXPECT_TRUE(asksForTexts(page, language));
  EXPECT_FALSE(asksForTexts(page, QEvent(QEvent::FontChange)));
}

} // namespace
} // namespace TVR::GUI
