#include "page/document/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using namespace TVR::Page;

TEST(ShiftedText, movesTheDecimalPoint) {
  EXPECT_EQ(shiftedText(7.5, 1), "75");
  EXPECT_EQ(shiftedText(0.15, 1), "1.5");
  EXPECT_EQ(shiftedText(-12.34, 1), "-123.4");
  EXPECT_EQ(shiftedText(0, 1), "0");
  EXPECT_EQ(shiftedText(1e-5, 1), "0.0001");
  EXPECT_EQ(shiftedText(123, 1), "1230");
}

TEST(ShiftedText, movesItToTheLeftAsWell) {
  EXPECT_EQ(shiftedText(297, -1), "29.7");
  EXPECT_EQ(shiftedText(5, -1), "0.5");
  EXPECT_EQ(shiftedText(0.5, -1), "0.05");
}

TEST(ShiftedNumber, readsBackExactlyWhatWasWritten) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> mantissa(-1, 1);
  std::uniform_int_distribution<int> exponent(-12, 12);
  for (int sample = 0; sample < 20000; ++sample) {
    const double value = mantissa(random) * std::pow(10.0, exponent(random));
    ASSERT_EQ(shiftedNumber(shiftedText(value, 1), 1, 0), value);
    ASSERT_EQ(shiftedNumber(shiftedText(value, -1), -1, 0), value);
    ASSERT_EQ(shiftedNumber(numberText(value), 0, 0), value);
  }
}

TEST(ShiftedNumber, readsExponentsOfOtherWriters) {
  EXPECT_DOUBLE_EQ(shiftedNumber("1.8e3", 1, 0), 180);
}

TEST(ShiftedNumber, ofWhatIsNoFiniteNumberIsTheFallback) {
  for (const char* text : {"", "wide", "nan", "inf", "1e999", "1,5", "--1"})
    EXPECT_EQ(shiftedNumber(text, 1, 42), 42) << text;
}

TEST(NumbersOf, readsAListInAnyWhiteSpace) {
  EXPECT_EQ(numbersOf<double>(" 1 2.5\n-3e2\t", 100), std::vector<double>({1, 2.5, -300}));
}

TEST(NumbersOf, keepsWhatIsNotANumber) {
  const std::vector<double> numbers = numbersOf<double>("1 nan -inf 2", 100);
  ASSERT_EQ(numbers.size(), 4U);
  EXPECT_TRUE(std::isnan(numbers[1]));
  EXPECT_EQ(numbers[2], -std::numeric_limits<double>::infinity());
}

TEST(NumbersOf, endsAtTheFirstTextThatIsNone) {
  EXPECT_EQ(numbersOf<int>("1 2 x 3", 100), std::vector<int>({1, 2}));
}

TEST(NumbersOf, readsNoMoreThanIsAllowed) {
  EXPECT_EQ(numbersOf<int>("1 2 3 4", 2), std::vector<int>({1, 2}));
}

TEST(AppendNumber, separatesByBlanksAndKeepsEveryDigit) {
  QByteArray list;
  for (const double number : {0.1, 680123.4567890123, 2.0})
    appendNumber(list, number);
  EXPECT_EQ(list, "0.1 680123.4567890123 2");
}

} // namespace
