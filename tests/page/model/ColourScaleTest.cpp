#include "page/model/ColourScale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace TVR::Page;

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

struct Lab {
  double lightness;
  double a;
  double b;
};

/// CIELAB of a colour for the white D65.
Lab labOf(const QColor& colour) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  const double red = linear(colour.redF());
  const double green = linear(colour.greenF());
  const double blue = linear(colour.blueF());
  const auto f = [](double ratio) {
    return ratio > 216.0 / 24389 ? std::cbrt(ratio) : (24389.0 / 27 * ratio + 16) / 116;
  };
  const double x = f((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
  const double y = f(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
  const double z = f((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// Difference of two colours as the CIE defined it in 1976.
double difference(const QColor& one, const QColor& other) {
  const Lab p = labOf(one);
  const Lab q = labOf(other);
  return std::sqrt((p.lightness - q.lightness) * (p.lightness - q.lightness) +
                   (p.a - q.a) * (p.a - q.a) + (p.b - q.b) * (p.b - q.b));
}

TEST(ColourScale, lightnessFallsFromZeroToBothEnds) {
  const ColourScale scale(-2, 2);
  for (double value = 0.01; value <= 2.0; value += 0.01)
    for (double sign : {-1.0, 1.0})
      EXPECT_LT(labOf(scale.colour(sign * value)).lightness,
                labOf(scale.colour(sign * (value - 0.01))).lightness);
}

TEST(ColourScale, valuesOfOneSizeAreEquallyLightAndEquallyColourful) {
  const ColourScale scale(-1, 4);
  for (double value = 0; value <= 1.0; value += 0.05) {
    const Lab cold = labOf(scale.colour(-value));
    const Lab warm = labOf(scale.colour(value));
    EXPECT_NEAR(cold.lightness, warm.lightness, 0.1);
    EXPECT_NEAR(std::hypot(cold.a, cold.b), std::hypot(warm.a, warm.b), 0.2);
  }
}

TEST(ColourScale, equalStepsDifferEqually) {
  for (const auto& [minimum, maximum] : {std::pair(-3.0, 3.0), {0.0, 7.0}, {-7.0, -1.0}}) {
    const ColourScale scale(minimum, maximum);
    const double step = (maximum - minimum) / 100;
    const double expected =
        difference(scale.colour(minimum), scale.colour(minimum + 10 * step)) / 10;
    for (int i = 0; i < 100; ++i)
      EXPECT_NEAR(
          difference(scale.colour(minimum + i * step), scale.colour(minimum + (i + 1) * step)),
          expected, 0.02 * expected)
          << i;
  }
}

TEST(ColourScale, coldIsBlueAndWarmIsRed) {
  const ColourScale scale(-1, 1);
  EXPECT_GT(scale.colour(-1).blue(), scale.colour(-1).red() + 100);
  EXPECT_GT(scale.colour(1).red(), scale.colour(1).blue() + 80);
}

TEST(ColourScale, zeroIsNearlyWhiteWhateverTheRange) {
  for (const ColourScale& scale : {ColourScale(-1, 9), ColourScale(0, 2), ColourScale(-5, 0)}) {
    EXPECT_NEAR(labOf(scale.colour(0)).lightness, 96, 0.1);
    EXPECT_LT(scale.colour(0).hsvSaturation(), 5);
  }
}

TEST(ColourScale, aRangeOfOneSignUsesTheWholeScaleOfThatSign) {
  EXPECT_EQ(ColourScale(2, 5).colour(5), ColourScale(-5, 5).colour(5));
  EXPECT_EQ(ColourScale(2, 5).colour(2), ColourScale(-5, 5).colour(0));
  EXPECT_EQ(ColourScale(-5, -2).colour(-5), ColourScale(-5, 5).colour(-5));
  EXPECT_EQ(ColourScale(-5, -2).colour(-2), ColourScale(-5, 5).colour(0));
}

TEST(ColourScale, theEndsOfTheRangeComeInAnyOrder) {
  EXPECT_EQ(ColourScale(4, -1).colour(2.5), ColourScale(-1, 4).colour(2.5));
}

TEST(ColourScale, beyondTheRangeTheColourStays) {
  const ColourScale scale(-1, 2);
  EXPECT_EQ(scale.colour(infinite), scale.colour(2));
  EXPECT_EQ(scale.colour(-infinite), scale.colour(-2));
}

TEST(ColourScale, whatIsNotANumberIsTransparent) {
  EXPECT_EQ(ColourScale(-1, 1).colour(nothing).alpha(), 0);
}

TEST(ColourScale, aRangeThatIsNotFiniteHasNoColours) {
  EXPECT_EQ(ColourScale(nothing, 1).colour(0.5).alpha(), 0);
  EXPECT_EQ(ColourScale(-infinite, 1).colour(0.5).alpha(), 0);
  EXPECT_EQ(ColourScale(std::vector<ColourScale::Entry>()).colour(0.5).alpha(), 0);
}

TEST(ColourScale, aRangeOfOneValueIsNearlyWhite) {
  EXPECT_EQ(ColourScale(3, 3).colour(3), ColourScale(-1, 1).colour(0));
}

TEST(ColourScale, entriesAreJoinedStraight) {
  const ColourScale scale({{10, Qt::white}, {0, Qt::black}, {20, QColor(255, 255, 255, 0)}});
  EXPECT_EQ(scale.colour(5).red(), 128);
  EXPECT_EQ(scale.colour(10), QColor(Qt::white));
  EXPECT_EQ(scale.colour(15).alpha(), 128);
  EXPECT_EQ(scale.colour(-7), QColor(Qt::black));
  EXPECT_EQ(scale.colour(99).alpha(), 0);
}

TEST(ColourScale, ofEntriesWithOneValueTheFirstCounts) {
  const ColourScale scale({{0, Qt::red}, {0, Qt::green}, {1, Qt::blue}, {nothing, Qt::white}});
  EXPECT_EQ(scale.colour(0), QColor(Qt::red));
  EXPECT_EQ(scale.colour(1), QColor(Qt::blue));
  EXPECT_EQ(scale.colour(2), QColor(Qt::blue));
}

} // namespace
