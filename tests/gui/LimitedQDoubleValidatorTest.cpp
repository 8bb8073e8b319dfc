#include "gui/wizard/LimitedQDoubleValidator.h"

#include <QLineEdit>
#include <QtTest>

#include <gtest/gtest.h>

using BrenvikTools::LimitedQDoubleValidator;

namespace {

class LimitedQDoubleValidatorTest : public testing::Test {
protected:
  QValidator::State stateOf(const QString& text) {
    QString validated = text;
    int position = text.size();
    return validator_.validate(validated, position);
  }
  QValidator::State stateOfBase(const QString& text) {
    const QDoubleValidator base(validator_.bottom(), validator_.top(), validator_.decimals());
    QString validated = text;
    int position = text.size();
    return base.validate(validated, position);
  }

  QLineEdit field;
  LimitedQDoubleValidator validator_{0, 1000, 6, &field};
};

} // namespace

TEST_F(LimitedQDoubleValidatorTest, aSecondExponentIsRefused) {
  EXPECT_EQ(stateOf("1e5e"), QValidator::Invalid);
  EXPECT_EQ(stateOf("1E5e"), QValidator::Invalid);
}

TEST_F(LimitedQDoubleValidatorTest, aSecondExponentIsNoBeginningOfANumber) {
  const auto limited = &LimitedQDoubleValidator::limited;
  for (const char* const text : {"1e5e", "1E5e", "1ee", "EE"})
    EXPECT_EQ(limited(QValidator::Intermediate, text), QValidator::Invalid) << text;
  for (const char* const text : {"", "1e", "1E5", "-"})
    EXPECT_EQ(limited(QValidator::Intermediate, text), QValidator::Intermediate) << text;
  EXPECT_EQ(limited(QValidator::Acceptable, "1e5e"), QValidator::Acceptable);
  EXPECT_EQ(limited(QValidator::Invalid, "1e"), QValidator::Invalid);
}

TEST_F(LimitedQDoubleValidatorTest, anExponentMayBeBegun) {
  EXPECT_EQ(stateOf("1e"), QValidator::Intermediate);
  EXPECT_EQ(stateOf("1E-"), QValidator::Intermediate);
}

TEST_F(LimitedQDoubleValidatorTest, allOtherAnswersAreThoseOfTheBase) {
  for (const char* const text : {"", "-", "1", "1e2", "1e-5", "2000", "1.5", "abc", "1e2.5"})
    EXPECT_EQ(stateOf(text), stateOfBase(text)) << text;
}

TEST_F(LimitedQDoubleValidatorTest, aFieldTakesNoSecondExponent) {
  field.setValidator(&validator_);
  QTest::keyClicks(&field, "1e2e5");
  EXPECT_EQ(field.text(), "1e25");
  field.clear();
  QTest::keyClicks(&field, "1e");
  EXPECT_EQ(field.text(), "1e");
}
