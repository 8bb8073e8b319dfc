#include "page/window/PictureHandles.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

const QRectF frame(100, 50, 200, 80);

TEST(PictureHandles, aCornerHoldsItsTwoEdges) {
  EXPECT_EQ(edgesAt(frame, {302, 127}, 4), Qt::BottomEdge | Qt::RightEdge);
  EXPECT_EQ(edgesAt(frame, {97, 53}, 4), Qt::TopEdge | Qt::LeftEdge);
}

TEST(PictureHandles, theMiddleOfAnEdgeHoldsThatEdge) {
  EXPECT_EQ(edgesAt(frame, {200, 48}, 4), Qt::Edges(Qt::TopEdge));
  EXPECT_EQ(edgesAt(frame, {303, 90}, 4), Qt::Edges(Qt::RightEdge));
}

TEST(PictureHandles, theInsideHoldsTheWholeFrame) {
  EXPECT_EQ(edgesAt(frame, {150, 80}, 4), Qt::Edges());
}

TEST(PictureHandles, besideTheFrameThereIsNothingToHold) {
  EXPECT_FALSE(edgesAt(frame, {150, 140}, 4).has_value());
  EXPECT_FALSE(edgesAt(frame, {306, 90}, 4).has_value());
}

TEST(PictureHandles, everyHandleHoldsOtherEdges) {
  std::vector<Qt::Edges> seen;
  for (const QPointF& handle : handlesOf(frame)) {
    const auto edges = edgesAt(frame, handle, 4);
    ASSERT_TRUE(edges && *edges);
    EXPECT_EQ(std::count(seen.begin(), seen.end(), *edges), 0);
    seen.push_back(*edges);
  }
}

TEST(PictureHandles, withoutEdgesTheFrameMoves) {
  EXPECT_EQ(draggedFrame(frame, {}, {7, -3}, true, 1), QRectF(107, 47, 200, 80));
}

TEST(PictureHandles, anEdgeMovesAlone) {
  EXPECT_EQ(draggedFrame(frame, Qt::LeftEdge, {-20, 99}, false, 1), QRectF(80, 50, 220, 80));
  EXPECT_EQ(draggedFrame(frame, Qt::BottomEdge, {99, 20}, false, 1), QRectF(100, 50, 200, 100));
}

TEST(PictureHandles, aCornerMovesBothEdgesAndTheOppositeCornerHoldsStill) {
  EXPECT_EQ(draggedFrame(frame, Qt::TopEdge | Qt::RightEdge, {10, 5}, false, 1),
            QRectF(100, 55, 210, 75));
}

TEST(PictureHandles, aSideStopsAtTheShortestLength) {
  EXPECT_EQ(draggedFrame(frame, Qt::LeftEdge, {500, 0}, false, 2), QRectF(298, 50, 2, 80));
}

TEST(PictureHandles, theAspectIsKeptAtACornerByTheLargerChange) {
  const QRectF dragged = draggedFrame(frame, Qt::BottomEdge | Qt::RightEdge, {100, 1}, true, 1);
  EXPECT_EQ(dragged, QRectF(100, 50, 300, 120));
}

TEST(PictureHandles, theAspectIsKeptAtAnEdgeAroundTheMiddle) {
  EXPECT_EQ(draggedFrame(frame, Qt::RightEdge, {100, 0}, true, 1), QRectF(100, 30, 300, 120));
}

TEST(PictureHandles, cursorsPointAlongTheDrag) {
  EXPECT_EQ(cursorOf(Qt::Edges()), Qt::SizeAllCursor);
  EXPECT_EQ(cursorOf(Qt::LeftEdge), Qt::SizeHorCursor);
  EXPECT_EQ(cursorOf(Qt::TopEdge), Qt::SizeVerCursor);
  EXPECT_EQ(cursorOf(Qt::TopEdge | Qt::LeftEdge), Qt::SizeFDiagCursor);
  EXPECT_EQ(cursorOf(Qt::BottomEdge | Qt::RightEdge), Qt::SizeFDiagCursor);
  EXPECT_EQ(cursorOf(Qt::TopEdge | Qt::RightEdge), Qt::SizeBDiagCursor);
}

} // namespace
