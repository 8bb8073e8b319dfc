#include "page/window/Grip.h"

#include <QPointF>
#include <QPolygonF>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

TEST(Grip, theNearestPointWithinReachIsTaken) {
  const QPolygonF points(QVector<QPointF>{{0, 0}, {10, 0}, {14, 0}});
  EXPECT_EQ(nearestPoint(points, {11, 1}, 6), 1);
  EXPECT_EQ(nearestPoint(points, {13, 1}, 6), 2);
}

TEST(Grip, aPointAtExactlyTheReachIsTaken) {
  EXPECT_EQ(nearestPoint(QPolygonF(QVector<QPointF>{{3, 4}}), {0, 0}, 5), 0);
}

TEST(Grip, beyondTheReachThereIsNoPoint) {
  EXPECT_EQ(nearestPoint(QPolygonF(QVector<QPointF>{{3, 4}}), {0, 0}, 4.9), -1);
  EXPECT_EQ(nearestPoint({}, {0, 0}, 5), -1);
}

TEST(Grip, theCursorTellsWellsPicturesAndMapApart) {
  EXPECT_EQ(cursorOf({Grip::Point, 1, 0, {}}), Qt::PointingHandCursor);
  EXPECT_EQ(cursorOf({Grip::Picture, 1, 0, Qt::LeftEdge}), Qt::SizeHorCursor);
  EXPECT_EQ(cursorOf({Grip::Map, 1, 0, {}}), Qt::ArrowCursor);
  EXPECT_EQ(cursorOf(Grip()), Qt::ArrowCursor);
}

} // namespace
