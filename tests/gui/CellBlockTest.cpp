#include "gui/positions/CellBlock.h"

#include <gtest/gtest.h>

namespace TVR::GUI {
namespace {

std::vector<QStringList> rowsOf(const QString& text) {
  const CellBlock block(text);
  std::vector<QStringList> rows;
  for (int row = 0; row < block.rows(); ++row) {
    QStringList cells;
    for (int column = 0; column < block.columns(); ++column)
      cells << block.cell(row, column);
    rows.push_back(cells);
  }
  return rows;
}

using Rows = std::vector<QStringList>;

TEST(CellBlock, tabulatorsEndCellsAndLineFeedsRows) {
  EXPECT_EQ(rowsOf("a\tb\nc\td"), (Rows{{"a", "b"}, {"c", "d"}}));
}

TEST(CellBlock, everyKindOfLineEndIsRead) {
  EXPECT_EQ(rowsOf("a\r\nb\r\n"), (Rows{{"a"}, {"b"}}));
  EXPECT_EQ(rowsOf("a\rb"), (Rows{{"a"}, {"b"}}));
}

TEST(CellBlock, aLineFeedAtTheEndBeginsNoRow) {
  EXPECT_EQ(rowsOf("1\n2\n"), (Rows{{"1"}, {"2"}}));
  EXPECT_EQ(rowsOf("1\n\n"), (Rows{{"1"}, {""}})) << "an empty row that was copied counts";
}

TEST(CellBlock, anEmptyCellAtTheEndOfARowIsOne) {
  EXPECT_EQ(rowsOf("1\t\n2\t3\n"), (Rows{{"1", ""}, {"2", "3"}}));
  EXPECT_EQ(rowsOf("1\t"), (Rows{{"1", ""}}));
}

TEST(CellBlock, shortRowsAreFilled) {
  EXPECT_EQ(rowsOf("1\t2\n3"), (Rows{{"1", "2"}, {"3", ""}}));
}

TEST(CellBlock, quotesEncloseWhatWouldEndACell) {
  EXPECT_EQ(rowsOf("\"a\tb\nc\"\t\"say \"\"x\"\"\"\n"), (Rows{{"a\tb\nc", "say \"x\""}}));
  EXPECT_EQ(rowsOf("\"\"\t1"), (Rows{{"", "1"}}));
  EXPECT_EQ(rowsOf("1\t\"a\nb\""), (Rows{{"1", "a\nb"}}));
}

TEST(CellBlock, quotesThatEncloseNoCellArePartOfIt) {
  EXPECT_EQ(rowsOf("\"north\" well\t1"), (Rows{{"\"north\" well", "1"}}));
  EXPECT_EQ(rowsOf("\"open\t1\n2"), (Rows{{"\"open", "1"}, {"2", ""}}));
  EXPECT_EQ(rowsOf("5\"\t\""), (Rows{{"5\"", "\""}}));
}

TEST(CellBlock, noTextHasNoRows) {
  EXPECT_EQ(CellBlock(QString()).rows(), 0);
  EXPECT_EQ(CellBlock(QString()).columns(), 0);
}

TEST(CellBlock, whatIsWrittenIsReadAgain) {
  const Rows rows{{"plain", "with\ttab", "with\nline"}, {"\"quoted\"", "5\" pipe", ""}};
  CellBlock block;
  for (const QStringList& row : rows)
    block.addRow(row);
  EXPECT_EQ(block.text(), "plain\t\"with\ttab\"\t\"with\nline\"\n"
                          "\"\"\"quoted\"\"\"\t5\" pipe\t");
  EXPECT_EQ(rowsOf(block.text()), rows);
}

double valueOf(const QString& text) {
  const CellNumber number = readNumber(text);
  EXPECT_EQ(number.fault, CellNumber::None) << text.toStdString();
  return number.value;
}

TEST(ReadNumber, pointAndCommaAreDecimalMarks) {
  EXPECT_EQ(valueOf("12.5"), 12.5);
  EXPECT_EQ(valueOf("12,5"), 12.5);
  EXPECT_EQ(valueOf("-0,25"), -0.25);
  EXPECT_EQ(valueOf("+7"), 7);
  EXPECT_EQ(valueOf(",5"), 0.5);
  EXPECT_EQ(valueOf("3."), 3);
  EXPECT_EQ(readNumber("1,5").decimalMark, QChar(','));
  EXPECT_EQ(readNumber("1.5").decimalMark, QChar('.'));
  EXPECT_TRUE(readNumber("15").decimalMark.isNull());
}

TEST(ReadNumber, exponentsBlanksAroundAndTheLongMinusAreRead) {
  EXPECT_EQ(valueOf("1.5E+03"), 1500);
  EXPECT_EQ(valueOf("2e-3"), 0.002);
  EXPECT_EQ(valueOf("  4\u00a0"), 4);
  EXPECT_EQ(valueOf("\u2212"
                    "3,5"),
            -3.5);
}

TEST(ReadNumber, separatorsOfThousandsAreNotGuessedAt) {
  for (const char* const text :
       {"1.234,5", "1,234.5", "1 234", "1'234.50", "1.234.567", "681\u202f000",
        "681\u2019"
        "000",
        "-12 500,75"})
    EXPECT_EQ(readNumber(QString::fromUtf8(text)).fault, CellNumber::Grouped) << text;
}

TEST(ReadNumber, whatIsNoNumberIsNone) {
  EXPECT_EQ(readNumber("").fault, CellNumber::Empty);
  EXPECT_EQ(readNumber("  ").fault, CellNumber::Empty);
  for (const char* const text :
       {"abc", "12 l/min", "nan", "inf", "0x10", "1e", "-", ".", "1..2", "1e999", "1,2,3"})
    EXPECT_EQ(readNumber(text).fault, CellNumber::NoNumber) << text;
}

TEST(NumberText, hasAllDigitsAndNoExponent) {
  EXPECT_EQ(numberText(2600000), "2600000");
  EXPECT_EQ(numberText(681000.123456), "681000.123456");
  EXPECT_EQ(numberText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(numberText(-12), "-12");
}

} // namespace
} // namespace TVR::GUI
