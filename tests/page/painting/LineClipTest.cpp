#include "page/painting/LineClip.h"

#include "page/painting/LinePainter.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace TVR::Page;

const QRectF unitSquare(0, 0, 10, 10);

QPolygonF line(std::initializer_list<QPointF> points) {
  return QPolygonF(QVector<QPointF>(points));
}

TEST(LineClip, aLineInsideStaysAsItIs) {
  const QPolygonF inside = line({{1, 1}, {5, 2}, {3, 8}});
  EXPECT_EQ(clippedLine(inside, unitSquare), std::vector<QPolygonF>{inside});
}

TEST(LineClip, aLineIsCutAtTheEdges) {
  EXPECT_EQ(clippedLine(line({{-5, 5}, {15, 5}}), unitSquare),
            std::vector<QPolygonF>{line({{0, 5}, {10, 5}})});
}

TEST(LineClip, aLineThatComesBackHasTwoParts) {
  EXPECT_EQ(clippedLine(line({{5, 2}, {15, 2}, {15, 8}, {5, 8}}), unitSquare),
            (std::vector<QPolygonF>{line({{5, 2}, {10, 2}}), line({{10, 8}, {5, 8}})}));
}

TEST(LineClip, nothingIsLeftOfALineOutside) {
  EXPECT_TRUE(clippedLine(line({{-5, -5}, {15, -1}, {20, 20}}), unitSquare).empty());
}

TEST(LineClip, aPointThatIsNotFiniteBreaksTheLine) {
  const auto parts =
      clippedLine(line({{1, 1}, {2, 1}, {std::nan(""), 1}, {4, 1}, {5, 1}}), unitSquare);
  EXPECT_EQ(parts, (std::vector<QPolygonF>{line({{1, 1}, {2, 1}}), line({{4, 1}, {5, 1}})}));
}

TEST(Dashes, theyHaveTheLengthsOfThePattern) {
  EXPECT_EQ(dashes(line({{0, 0}, {10, 0}}), {4, 2}),
            (std::vector<QPolygonF>{line({{0, 0}, {4, 0}}), line({{6, 0}, {10, 0}})}));
}

TEST(Dashes, theyGoOnAroundCorners) {
  EXPECT_EQ(dashes(line({{0, 0}, {2, 0}, {2, 5}}), {4, 2}),
            (std::vector<QPolygonF>{line({{0, 0}, {2, 0}, {2, 2}}), line({{2, 4}, {2, 5}})}));
}

TEST(Dashes, aPatternOfNothingLeavesTheLineWhole) {
  const QPolygonF whole = line({{0, 0}, {2, 0}});
  EXPECT_EQ(dashes(whole, {}), std::vector<QPolygonF>{whole});
  EXPECT_EQ(dashes(whole, {1, 0}), std::vector<QPolygonF>{whole});
}

TEST(Dashes, theSumOfDashesOfALongCurvedLineIsItsShare) {
  QPolygonF circle;
  for (int i = 0; i <= 360; ++i)
    circle.append(50 * QPointF(std::cos(i * 0.0174532925), std::sin(i * 0.0174532925)));
  double drawn = 0;
  for (const QPolygonF& dash : dashes(circle, {1, 1}))
    for (int i = 1; i < dash.size(); ++i)
      drawn += QLineF(dash[i - 1], dash[i]).length();
  EXPECT_NEAR(drawn, 3.14159265 * 50, 1);
}

} // namespace
