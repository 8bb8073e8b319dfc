#include "contour/Isoline.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Contour;
using Points = QVector<QPointF>;

TEST(Pieces, aLineWithoutBreaksIsOnePiece) {
  const Isoline isoline{{{0, 0}, {1, 0}, {2, 0}}, {}};
  EXPECT_EQ(pieces(isoline), std::vector<Points>{isoline.points});
}

TEST(Pieces, breaksAreTheEndsOfPieces) {
  const Isoline isoline{{{0, 0}, {1, 0}, {5, 0}, {6, 0}}, {2, 4}};
  EXPECT_EQ(pieces(isoline), (std::vector<Points>{Points{{0, 0}, {1, 0}}, Points{{5, 0}, {6, 0}}}));
}

TEST(Pieces, breaksBehindTheLineDoNoHarm) {
  const Isoline isoline{{{0, 0}, {1, 0}}, {-3, 90, 1}};
  EXPECT_EQ(pieces(isoline), std::vector<Points>{isoline.points});
}

} // namespace
