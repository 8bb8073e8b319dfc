#include "translations/UntranslatedTexts.h"

#include "support/PseudoTranslator.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

TEST(UntranslatedTexts, bracketsNumbersMarkupAndUnitsAreNoEnglish) {
  for (const char* text :
       {"", "[!! Well ~~~~ !!]", "<b>[!! Map scale ~~~ !!] 1:2000</b>", "1.5 kWh/a", "X 1.00   Y 2",
        "[!! %1 of [!! Well ~~~ !!] ~~~ !!]", "<td style=\"font-size:9pt\">12.0</td>", "Tevrane"})
    EXPECT_EQ(leftInEnglish(text), "") << text;
}

TEST(UntranslatedTexts, wordsBesideTheBracketsAreEnglish) {
  EXPECT_EQ(leftInEnglish("Withdrawal wells"), "Withdrawal wells");
  EXPECT_EQ(leftInEnglish("[!! Well ~~~ !!] and more"), "and more");
  EXPECT_EQ(leftInEnglish("<td>true</td>"), "true");
  EXPECT_EQ(leftInEnglish("&File"), "File");
}

TEST(UntranslatedTexts, theTextsOfAWindowAreFoundWhereverTheyStand) {
  QWidget window;
  QVBoxLayout layout(&window);
  QLabel label("a label");
  QPushButton button("[!! Save ~~~ !!]");
  button.setToolTip("a tip");
  button.setAccessibleName("[!! Save ~~~ !!]");
  layout.addWidget(&label);
  layout.addWidget(&button);
  const QStringList texts = untranslatedTexts(window);
  EXPECT_EQ(texts.size(), 2) << texts.join('\n').toStdString();
  EXPECT_EQ(texts.filter("a label").size(), 1);
  EXPECT_EQ(texts.filter("tool tip: a tip").size(), 1);
}

TEST(PseudoTranslator, givesBracketsToWhatIsTranslatedAndNothingElse) {
  const PseudoTranslator pseudo;
  EXPECT_EQ(QCoreApplication::translate("TVRPlugin", "Wells"), "[!! Wells ~~~~ !!]");
  EXPECT_TRUE(QCoreApplication::translate("QPlatformTheme", "Cancel").startsWith("[!! Cancel "));
  EXPECT_EQ(QCoreApplication::translate("TVRPlugin", "No tool has found this"),
            "No tool has found this");
  EXPECT_EQ(QCoreApplication::translate("ElseWhere", "Wells"), "Wells");
}
