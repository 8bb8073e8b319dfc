#include "results/IsolineWalk.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

Isoline isolineOf(int points, const QVector<int>& breaks = {}) {
  return {QVector<QPointF>(points), breaks, 1.0};
}

using Pieces = std::vector<IsolinePiece>;

TEST(IsolineWalk, aLineWithoutBreaksIsOnePieceForEverybody) {
  EXPECT_EQ(piecesOf(isolineOf(12), LineRest::IsAPiece), (Pieces{{0, 12}}));
  EXPECT_EQ(piecesOf(isolineOf(12), LineRest::IsLeftOut), (Pieces{{0, 12}}));
}

TEST(IsolineWalk, pointsBehindTheLastBreakAreAPieceWhereTheyCount) {
  EXPECT_EQ(piecesOf(isolineOf(12, {5, 9}), LineRest::IsAPiece), (Pieces{{0, 5}, {5, 4}, {9, 3}}));
}

TEST(IsolineWalk, pointsBehindTheLastBreakAreLeftOutWhereTheyDoNot) {
  EXPECT_EQ(piecesOf(isolineOf(12, {5, 9}), LineRest::IsLeftOut), (Pieces{{0, 5}, {5, 4}}));
}

TEST(IsolineWalk, aBreakAtTheLastPointLeavesNoRest) {
  EXPECT_EQ(piecesOf(isolineOf(12, {5, 12}), LineRest::IsAPiece), (Pieces{{0, 5}, {5, 7}}));
}

TEST(IsolineWalk, aLineOfAtMostTwoPointsHasNoPieces) {
  for (const LineRest rest : {LineRest::IsAPiece, LineRest::IsLeftOut}) {
    EXPECT_TRUE(piecesOf(isolineOf(0), rest).empty());
    EXPECT_TRUE(piecesOf(isolineOf(2, {1}), rest).empty());
    EXPECT_EQ(piecesOf(isolineOf(3), rest).size(), 1u);
  }
}

TEST(IsolineWalk, breaksThatCanNotBeDoNotLeaveTheLine) {
  EXPECT_EQ(piecesOf(isolineOf(6, {-1, 4, 2, 100}), LineRest::IsAPiece),
            (Pieces{{0, 0}, {0, 4}, {4, 0}, {4, 2}}));
}

} // namespace
} // namespace TVR
