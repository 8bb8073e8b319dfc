#include "messages/PrintableText.h"

#include <gtest/gtest.h>

using TVR::printable;

TEST(PrintableText, lettersAndSignsOfAllLanguagesStay) {
  const QString text = QString::fromUtf8("Förderbrunnen 3 °C, 井戸 \xF0\x9F\x98\x80 \"a\"");
  EXPECT_EQ(printable(text), text);
}

TEST(PrintableText, controlCharactersBecomeNumbers) {
  EXPECT_EQ(printable("a\x1b[31mb"), "a\\u001b[31mb");
  EXPECT_EQ(printable("a\nb\tc\rd\x7f"), "a\\u000ab\\u0009c\\u000dd\\u007f");
  EXPECT_EQ(printable(QString(QChar(0x9b)) + "2J"), "\\u009b2J");
}

TEST(PrintableText, whatIsNoCharacterBecomesANumber) {
  EXPECT_EQ(printable("a" + QString(QChar(0xffff)) + QString(QChar(0xfdd0))), "a\\uffff\\ufdd0");
}

TEST(PrintableText, marksThatTurnTheDirectionOfWritingBecomeNumbers) {
  EXPECT_EQ(printable(QString(QChar(0x202e)) + "tab"), "\\u202etab");
}
