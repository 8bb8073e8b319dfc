#include "batch/ConvergenceText.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <cmath>

using namespace TVR::Batch;
using namespace TVR::Quantities;

namespace {

/// A figure of these values, from the coarse mesh to the fine one, as meshes of 100, 400 and 1600
/// cells give it.
MeshConvergence judged(const std::array<double, 3>& values) {
  const GridConvergence convergence =
      gridConvergence({{{values[0], 100}, {values[1], 400}, {values[2], 1600}}}, 1e-4);
  const SiteFigure figure{.kind = SiteFigure::Temperature, .well = 0};
  return {{100, 400, 1600}, {{figure, "temperature of Pump", "°C", values, convergence, 0.1}}};
}

/// A figure that is 10 with cells without a width, and goes there at this order.
MeshConvergence ofOrder(double order) {
  return judged({10 + std::pow(1.0, order), 10 + std::pow(0.5, order), 10 + std::pow(0.25, order)});
}

/// The words that stand behind the name of the only figure.
QStringList wordsOf(const MeshConvergence& convergence) {
  return convergenceLines(convergence).last().section("Pump", 1).simplified().split(' ');
}

QJsonObject figureOf(const MeshConvergence& convergence) {
  return convergenceJson(convergence)["figures"].toArray().first().toObject();
}

} // namespace

TEST(ConvergenceTextTest, whatIsExtrapolatedIsShownWithTheOrder) {
  EXPECT_EQ(wordsOf(ofOrder(1)), (QStringList{"10.5", "10", "1.00", "0.625", "°C"}));
  const QJsonObject figure = figureOf(ofOrder(1));
  EXPECT_NEAR(figure["extrapolated"].toDouble(), 10, 1e-9);
  EXPECT_NEAR(figure["order"].toDouble(), 1, 1e-9);
}

TEST(ConvergenceTextTest, anOrderBelowTheOnesThatAreTrustedIsShownAsItIsAndExtrapolatesNothing) {
  EXPECT_EQ(wordsOf(ofOrder(0.46)).mid(1, 2), (QStringList{"-", "0.46"}));
  const QJsonObject figure = figureOf(ofOrder(0.46));
  EXPECT_TRUE(figure["extrapolated"].isNull());
  EXPECT_NEAR(figure["order"].toDouble(), 0.46, 1e-9);
  EXPECT_EQ(figure["behaviour"].toString(), "monotone");
}

TEST(ConvergenceTextTest, valuesThatGoToAndFroOrStayExtrapolateNothing) {
  const std::pair<std::array<double, 3>, QString> cases[]{{{10, 11, 10.5}, "oscillating"},
                                                          {{10, 10, 10}, "settled"}};
  for (const auto& [values, behaviour] : cases) {
    EXPECT_EQ(wordsOf(judged(values)).mid(1, 2), (QStringList{"-", behaviour}));
    const QJsonObject figure = figureOf(judged(values));
    EXPECT_TRUE(figure["extrapolated"].isNull());
    EXPECT_TRUE(figure["order"].isNull());
    EXPECT_EQ(figure["behaviour"].toString(), behaviour);
  }
}
