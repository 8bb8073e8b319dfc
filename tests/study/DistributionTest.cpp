#include "study/plan/Distribution.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace TVR;
using namespace TVR::Study;

namespace {

Distribution parsed(const QString& text) {
  QString expected;
  const auto distribution = parseDistribution(text, expected);
  EXPECT_TRUE(distribution) << expected.toStdString();
  return distribution.value_or(Distribution{Shape::List, {0}});
}

std::string expectedFor(const QString& text) {
  QString expected;
  EXPECT_FALSE(parseDistribution(text, expected)) << text.toStdString();
  return expected.toStdString();
}

constexpr double oneDeviation = 0.84134474606854293; // share of a normal law below it

} // namespace

TEST(DistributionTest, quantilesAreThoseOfTheClosedLaws) {
  EXPECT_DOUBLE_EQ(parsed("uniform(2, 6)").quantile(0.25), 3);
  EXPECT_NEAR(parsed("log-uniform(0.001, 0.1)").quantile(0.5), 0.01, 1e-15);
  EXPECT_NEAR(parsed("normal(10, 2)").quantile(oneDeviation), 12, 1e-12);
  EXPECT_NEAR(parsed("log-normal(0.002, 3)").quantile(oneDeviation), 0.006, 1e-14);
  // below the peak F = (x - a)^2 / ((b - a)(c - a)), above it 1 - F = (b - x)^2 / ((b - a)(b - c))
  EXPECT_NEAR(parsed("triangular(0, 1, 4)").quantile(0.0625), 0.5, 1e-12);
  EXPECT_NEAR(parsed("triangular(0, 1, 4)").quantile(0.6666666666666667), 2, 1e-12);
  EXPECT_DOUBLE_EQ(parsed("list(5, 7, 9)").quantile(0.34), 7);
  EXPECT_DOUBLE_EQ(parsed("list(5, 7, 9)").quantile(0.999999), 9);
}

TEST(DistributionTest, aDistributionThatIsCutOffKeepsItsShapeBetweenTheBounds) {
  const Distribution cut = parsed("normal(0, 1) within 0 to 1");
  EXPECT_NEAR(cut.quantile(1e-12), 0, 1e-9);
  EXPECT_NEAR(cut.quantile(1 - 1e-12), 1, 1e-9);
  // half of the share between 0 and 1, which is 0.341344746
  EXPECT_NEAR(0.5 * std::erfc(-cut.quantile(0.5) / std::sqrt(2.0)), 0.5 + 0.341344746068543 / 2,
              1e-12);
  EXPECT_DOUBLE_EQ(parsed("uniform(0, 10) within 4 to 6").quantile(0.5), 5);
  EXPECT_NEAR(parsed("log-uniform(1, 10000) within 10 to 1000").quantile(0.5), 100, 1e-10);
}

TEST(DistributionTest, aFarTailIsStillResolved) {
  const Distribution tail = parsed("normal(0, 1) within 9 to 10");
  EXPECT_GT(tail.quantile(0.25), 9);
  EXPECT_LT(tail.quantile(0.25), tail.quantile(0.75));
  EXPECT_LT(tail.quantile(0.75), 9.3); // nearly all of it lies next to its beginning
}

TEST(DistributionTest, whereNumbersEndATailGoesOn) {
  for (const QString text : {"normal(200, 1) within 0 to 1", "normal(-200, 1) within -1 to 0",
                             "log-normal(1, 1.05) within 10 to 20"}) {
    const Distribution tail = parsed(text);
    const double likely = tail.numbers[0] == 200 ? tail.most : tail.least; // next to the middle
    EXPECT_NEAR(tail.quantile(0.5), likely, 0.01 * std::abs(likely)) << text.toStdString();
    EXPECT_LT(tail.quantile(0.25), tail.quantile(0.75)) << text.toStdString();
  }
  // 36 deviations off: next to what numbers still hold
  EXPECT_NEAR(parsed("normal(0, 1) within -40 to -36").quantile(0.5),
              parsed("normal(0, 1) within -40 to -34.999").quantile(0.5) - 1.001, 1e-3);
}

TEST(DistributionTest, theShareThatIsKeptIsThatOfTheShape) {
  EXPECT_EQ(keptShare(parsed("normal(0, 1)")), 1);
  EXPECT_NEAR(keptShare(parsed("normal(0, 1) within 0 to 1")), 0.341344746068543, 1e-12);
  EXPECT_NEAR(keptShare(parsed("log-normal(1, 2) within 0.5 to 2")), 0.682689492137086, 1e-12);
  EXPECT_DOUBLE_EQ(keptShare(parsed("uniform(0, 10) within 4 to 6")), 0.2);
  EXPECT_DOUBLE_EQ(keptShare(parsed("log-uniform(1, 10000) within 10 to 1000")), 0.5);
  EXPECT_DOUBLE_EQ(keptShare(parsed("triangular(0, 1, 4) within 0.5 to 5")), 0.9375);
  EXPECT_EQ(keptShare(parsed("list(5, 7)")), 1);
}

TEST(DistributionTest, aMistakeSaysWhatWasExpected) {
  EXPECT_EQ(expectedFor("uniform(6, 2)"), "uniform(LEAST, GREATEST), the first below the second");
  EXPECT_EQ(expectedFor("log-uniform(0, 2)"),
            "log-uniform(LEAST, GREATEST), both above 0, the first below the second");
  EXPECT_EQ(expectedFor("normal(1, 0)"), "normal(MEAN, STANDARD DEVIATION), the second above 0");
  EXPECT_EQ(expectedFor("log-normal(1, 1)"),
            "log-normal(MEDIAN, FACTOR), the first above 0, the second above 1");
  EXPECT_EQ(expectedFor("triangular(1, 0, 2)"),
            "triangular(LEAST, MOST LIKELY, GREATEST), in ascending order");
  EXPECT_EQ(expectedFor("list(1, x)"), "list(VALUE, VALUE, ...)");
  EXPECT_EQ(expectedFor("normal(1, 2) within 3 to 2"),
            "within LEAST to GREATEST, the first below the second");
  EXPECT_EQ(expectedFor("list(1, 2) within 0 to 3"), "list(VALUE, VALUE, ...)");
  EXPECT_EQ(expectedFor("gauss(1, 2)").substr(0, 12), "uniform(...)");
}

TEST(DistributionTest, aRangeCutsOffEndlessTailsAndRefusesEndsOutside) {
  const ParameterRange range{0, 1};
  ASSERT_TRUE(within(parsed("normal(0.5, 1)"), range));
  EXPECT_GE(within(parsed("normal(0.5, 1)"), range)->quantile(1e-9), 0);
  EXPECT_LE(within(parsed("normal(0.5, 1)"), range)->quantile(1 - 1e-9), 1);
  EXPECT_FALSE(within(parsed("uniform(0.5, 1.5)"), range));
  EXPECT_FALSE(within(parsed("list(0.5, 1.5)"), range));
  EXPECT_FALSE(within(parsed("normal(5, 1) within 2 to 3"), range));
  EXPECT_FALSE(within(parsed("log-normal(5, 2) within -3 to -2"), {-10, 10}));
}

TEST(Distribution, itsTextReadsAsTheSame) {
  for (const QString text : {"uniform(45, 85)", "list(1, 2.5)", "triangular(0.17, 0.25, 0.33)",
                             "log-normal(0.0025, 1.75) within 0.0008 to 0.0075",
                             "normal(0.25, 0.1) within 0.1 to 0.5"}) {
    QString expected;
    EXPECT_EQ(toText(*parseDistribution(text, expected)), text);
  }
}

TEST(Distribution, itsTextTellsBoundsOnlyWhereTheyCut) {
  QString expected;
  const auto distribution = parseDistribution("uniform(45, 85)", expected);
  EXPECT_EQ(toText(*within(*distribution, {0, 360})), "uniform(45, 85)");
}
