#include "page/painting/IsolineLabels.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace TVR::Page;

const QRectF plotArea(0, 0, 150, 150);
const QSizeF label(5, 3);

QPolygonF straight(const QPointF& from, const QPointF& to) {
  QPolygonF line;
  for (int i = 0; i <= 50; ++i)
    line.append(from + i / 50. * (to - from));
  return line;
}

QPolygonF circle(double radius) {
  QPolygonF line;
  for (int i = 0; i <= 180; ++i)
    line.append(QPointF(75, 75) + radius * QPointF(std::cos(i * std::acos(-1.0) / 90),
                                                   std::sin(i * std::acos(-1.0) / 90)));
  return line;
}

std::vector<LabelPlace> placesOn(const QPolygonF& line, double distance = 50) {
  std::vector<QPolygonF> taken;
  return placeLabels(line, label, distance, plotArea, taken);
}

TEST(IsolineLabels, theyAreAsFarApartInTheMeanAsAskedFor) {
  EXPECT_EQ(placesOn(straight({0, 50}, {150, 50}), 50).size(), 3u);
  EXPECT_EQ(placesOn(straight({0, 50}, {150, 50}), 30).size(), 5u);
}

TEST(IsolineLabels, aShorterLineThanTheirDistanceHasOne) {
  EXPECT_EQ(placesOn(straight({10, 50}, {40, 50}), 100).size(), 1u);
}

TEST(IsolineLabels, aLineShorterThanSixLabelsHasNone) {
  EXPECT_TRUE(placesOn(straight({10, 50}, {39.9, 50})).empty());
  EXPECT_EQ(placesOn(straight({10, 50}, {40.1, 50})).size(), 1u);
}

TEST(IsolineLabels, labelsLeaveMostOfALineToBeSeen) {
  EXPECT_EQ(placesOn(straight({0, 50}, {150, 50}), 10).size(), 5u);
}

TEST(IsolineLabels, theLabelOfASmallLoopStandsOutsideOfIt) {
  std::vector<QPolygonF> taken;
  const auto place = placeOffLine(circle(2), label, plotArea, {}, taken);
  ASSERT_TRUE(place);
  EXPECT_FALSE(place->label.outline().boundingRect().intersects(circle(2).boundingRect()));
  EXPECT_EQ(taken.size(), 1u);
}

TEST(IsolineLabels, aLeaderGoesFromTheLineToTheEdgeOfTheLabel) {
  std::vector<QPolygonF> taken;
  const auto place = placeOffLine(circle(2), label, plotArea, {}, taken);
  ASSERT_TRUE(place);
  const QRectF box = place->label.outline().boundingRect();
  EXPECT_NEAR(std::hypot(place->leader.x1() - 75, place->leader.y1() - 75), 2, 0.01);
  EXPECT_TRUE(box.adjusted(-0.01, -0.01, 0.01, 0.01).contains(place->leader.p2()));
  EXPECT_FALSE(box.adjusted(0.01, 0.01, -0.01, -0.01).contains(place->leader.p2()));
}

TEST(IsolineLabels, theLabelOfASmallLoopStandsOffOtherLines) {
  // A larger loop around it: the label goes beyond that, or stays between them.
  for (const double radius : {4., 6., 9.}) {
    std::vector<QPolygonF> taken;
    const auto place = placeOffLine(circle(2), label, plotArea, {circle(2), circle(radius)}, taken);
    ASSERT_TRUE(place);
    double nearest = 100;
    double farthest = 0;
    for (const QPointF& corner : place->label.outline()) {
      const double distance = std::hypot(corner.x() - 75, corner.y() - 75);
      nearest = std::min(nearest, distance);
      farthest = std::max(farthest, distance);
    }
    EXPECT_TRUE(nearest > radius - 0.5 || farthest < radius) << radius;
  }
}

TEST(IsolineLabels, whereLinesAreEverywhereALabelStandsOnThem) {
  std::vector<QPolygonF> lines;
  for (int y = 0; y < 150; ++y)
    lines.push_back(straight({0, 1. * y}, {150, 1. * y}));
  std::vector<QPolygonF> taken;
  EXPECT_TRUE(placeOffLine(circle(2), label, plotArea, lines, taken));
}

TEST(IsolineLabels, theLabelOfASmallLoopKeepsOffWhatIsThere) {
  std::vector<QPolygonF> taken{QPolygonF(QRectF(75, 0, 75, 150))};
  const auto place = placeOffLine(circle(2), label, plotArea, {}, taken);
  ASSERT_TRUE(place);
  EXPECT_LT(place->label.centre.x(), 75);
  taken = {QPolygonF(plotArea)};
  EXPECT_FALSE(placeOffLine(circle(2), label, plotArea, {}, taken));
}

TEST(IsolineLabels, aLeaderCrossesNothingThatIsThere) {
  std::vector<QPolygonF> taken{QPolygonF(QRectF(77.9, 60, 0.2, 30))};
  const auto place = placeOffLine(circle(2), label, plotArea, {}, taken);
  ASSERT_TRUE(place);
  EXPECT_LT(place->leader.x2(), 77.9);
}

TEST(IsolineLabels, aLeaderMayCrossWhatLiesAtItsStart) {
  // A symbol over the loop is no reason to put the label on the line at 80.
  std::vector<QPolygonF> taken{QPolygonF(QRectF(72.9, 72.9, 4.2, 4.2))};
  const std::vector<QPolygonF> lines{straight({80, 0}, {80, 150})};
  const auto place = placeOffLine(circle(2), label, plotArea, lines, taken);
  ASSERT_TRUE(place);
  const QRectF box = place->label.outline().boundingRect();
  EXPECT_FALSE(box.left() < 80 && box.right() > 80);
}

TEST(IsolineLabels, whereEveryLeaderCrossesSomethingOneDoes) {
  std::vector<QPolygonF> taken;
  for (const QRectF& side : {QRectF(72, 72, 6, 0.1), QRectF(72, 78, 6, 0.1), QRectF(72, 72, 0.1, 6),
                             QRectF(78, 72, 0.1, 6.1)})
    taken.emplace_back(side);
  EXPECT_TRUE(placeOffLine(circle(2), label, plotArea, {}, taken));
}

TEST(IsolineLabels, theyStandOnTheLine) {
  for (const LabelPlace& place : placesOn(straight({0, 20}, {100, 120})))
    EXPECT_NEAR(place.centre.y() - place.centre.x(), 20, 1e-9);
}

TEST(IsolineLabels, theTextFollowsTheLineAndStandsUpright) {
  EXPECT_NEAR(placesOn(straight({20, 20}, {120, 120})).at(0).angle, 45, 1e-6);
  EXPECT_NEAR(placesOn(straight({120, 120}, {20, 20})).at(0).angle, 45, 1e-6);
  EXPECT_NEAR(placesOn(straight({120, 20}, {20, 120})).at(0).angle, -45, 1e-6);
}

TEST(IsolineLabels, aTightBendHasNone) {
  EXPECT_TRUE(placesOn(circle(2)).empty());
}

TEST(IsolineLabels, aWideCircleHasSome) {
  EXPECT_EQ(placesOn(circle(40), 80).size(), 3u);
}

TEST(IsolineLabels, theStraightPartOfALineIsTaken) {
  QPolygonF line;
  for (int i = 0; i <= 40; ++i)
    line.append({10 + 0.5 * i, i % 2 ? 60. : 62.});
  line.append({70, 62});
  const auto places = placesOn(line, 200);
  ASSERT_EQ(places.size(), 1u);
  EXPECT_GT(places[0].centre.x(), 30);
}

TEST(IsolineLabels, noneTouchesAnother) {
  std::vector<QPolygonF> taken;
  for (int i = 0; i < 20; ++i)
    placeLabels(straight({0, 50. + i}, {150, 50. + i}), label, 40, plotArea, taken);
  ASSERT_GT(taken.size(), 20u);
  for (std::size_t i = 0; i < taken.size(); ++i)
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_FALSE(taken[i].boundingRect().intersects(taken[k].boundingRect()));
}

TEST(IsolineLabels, theyStayInTheArea) {
  EXPECT_TRUE(placesOn(straight({10, 1}, {140, 1})).empty());
}

TEST(IsolineLabels, theyKeepOffWhatIsThere) {
  std::vector<QPolygonF> taken{QPolygonF(QRectF(0, 0, 150, 150))};
  EXPECT_TRUE(placeLabels(straight({0, 50}, {150, 50}), label, 50, plotArea, taken).empty());
}

TEST(IsolineLabels, theyKeepOffOtherLines) {
  std::vector<QPolygonF> taken;
  const QPolygonF line = straight({0, 50}, {150, 50});
  const auto beside = placeLabels(line, label, 200, plotArea, taken, {straight({0, 51}, {90, 51})});
  ASSERT_EQ(beside.size(), 1u);
  EXPECT_GT(beside[0].outline().boundingRect().left(), 90);
  EXPECT_TRUE(
      placeLabels(line, label, 200, plotArea, taken, {straight({0, 51}, {150, 51})}).empty());
}

TEST(IsolineLabels, aLineBesideTheCornersOfATurnedLabelIsNoneThatItStandsOn) {
  std::vector<QPolygonF> taken;
  const QPolygonF other = straight({0, 0}, {100, 100}).translated(label.height(), -label.height());
  EXPECT_FALSE(
      placeLabels(straight({0, 0}, {100, 100}), label, 200, plotArea, taken, {other}).empty());
}

} // namespace
