#include "simulator/SiteFixtures.h"
#include "simulator/mesh/MeshRequest.h"

using MeshRequests::endOf;
using MeshRequests::expectWidths;
using MeshRequests::MeshRequest;
using MeshRequests::rangeErrorOf;
using SiteFixtures::lineOf;

namespace {

/// Widths of the cells from the one that starts at `start` on.
std::vector<double> widthsFrom(const FVGridLine& line, double start, std::size_t count) {
  std::vector<double> list;
  for (std::size_t i = 0; i < line.count() && list.size() < count; ++i)
    if (line.start(i) > start - 1e-9)
      list.push_back(line.width(i));
  return list;
}

void expectWidthsFrom(const FVGridLine& line, double start, const std::vector<double>& expected) {
  expectWidths(lineOf(widthsFrom(line, start, expected.size())), expected);
}

/// Cells of about 1 m everywhere, 3200 along each axis.
MeshRequest hugeRequest() {
  MeshRequest request;
  request.amin = request.bmin = 1600.0;
  request.maximum = 1.0;
  return request;
}

/// Cells at the wells that are wider than the largest width, so that every seam is divided.
MeshRequest dividedRequest() {
  MeshRequest request;
  request.minimum = 2.0;
  request.maximum = 0.6;
  return request;
}

} // namespace

TEST(MeshLimits, moreCellsThanAMeshMayHaveAreRefusedWithTheirCount) {
  // Along each axis 1599 cells before the well, its cell in two halves, and 1599 behind.
  EXPECT_EQ(rangeErrorOf(hugeRequest()),
            "Error in makeWellDiscretisation: 10240000 cells, more than 10000000");
}

TEST(MeshLimits, tooManyCellsAreRefusedAlsoWhereTheLimitOfCellsCannotBeReached) {
  MeshRequest request = hugeRequest();
  request.maxelements = 20000;
  EXPECT_NE(rangeErrorOf(request).find("cells, more than"), std::string::npos);
}

TEST(MeshLimits, finerTriesAboveTheMostCellsAreNotRefusedWhereTheLimitIsReached) {
  MeshRequest request = hugeRequest();
  request.amin = request.bmin = 160.0;
  request.minimum = 0.05;
  request.maximum = 1000.0;
  request.scale = 1.0;
  request.maxelements = 2000;
  EXPECT_LT(request.make().elements.size(), 2000u);
}

TEST(MeshLimits, largestWidthThatIsNotPositiveIsRefusedAfterTheOtherLengths) {
  MeshRequest request;
  request.maximum = request.scale = 0.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: scalefactor <= 0");
  request.scale = 1.2;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: maxelesize <= 0");
  request.maximum = -1.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: maxelesize <= 0");
}

TEST(MeshLimits, extentsSmallerThanHalfACellAreRefused) {
  const std::string text = "Error in makeWellDiscretisation: extents smaller than half a cell";
  MeshRequest request;
  request.amin = 0.49;
  EXPECT_EQ(rangeErrorOf(request), text);
  request.amin = 100.0;
  request.bmin = 0.49;
  EXPECT_EQ(rangeErrorOf(request), text);
}

TEST(MeshLimits, extentsOfHalfACellLeaveTheCellOfTheWell) {
  MeshRequest request;
  request.amin = request.bmin = 0.5;
  const FVMesh mesh = request.make();
  expectWidths(mesh.xLine, {1.0});
  expectWidths(mesh.yLine, {1.0});
  EXPECT_EQ(mesh.xLine.start(0), -0.5);
}

TEST(MeshLimits, extentBehindTheWellOfHalfACellEndsTheLineThere) {
  MeshRequest request;
  request.amin = 0.5;
  EXPECT_NEAR(endOf(request.make().xLine), 0.5, 1e-12);
}

TEST(MeshLimits, mergeRefusesWidthsThatDivideNoGap) {
  for (const double width : {0.0, -1.0, 1e-300}) {
    FVGridLine line = lineOf({4.0});
    EXPECT_THROW(mergeCells(line, lineOf({3.0}, 4.0), width), std::range_error) << width;
    expectWidths(line, {4.0});
  }
}

TEST(MeshLimits, mergeDividesIntoAsFewCellsAsTheMaximumAllows) {
  for (int n = 2; n <= 1000; ++n) {
    FVGridLine line = lineOf({6.0});
    mergeCells(line, lineOf({60.0}, 6.0), 6.0 / n);
    ASSERT_EQ(line.count(), static_cast<std::size_t>(n) + 1);
    ASSERT_LE(line.width(0), 6.0 / n);
  }
}

TEST(MeshLimits, mergeLeavesNoCellAboveTheMaximumToRounding) {
  // The quotient of gap and maximum rounds to 560, the 560th part of the gap to above the maximum.
  const double gap = 3649.636348493804;
  const double maximum = 6.517207765167506;
  FVGridLine line = lineOf({gap});
  mergeCells(line, lineOf({60.0}, gap), maximum);
  EXPECT_EQ(line.count(), 562u);
  EXPECT_LE(line.width(0), maximum);
}

TEST(MeshLimits, neighboursAtExactlyThreeMinimumSizesMeetHalfACellBeforeTheMiddle) {
  MeshRequest request;
  request.wells = {{0.0, 0.0}, {3.0, 0.0}};
  expectWidthsFrom(request.make().xLine, -0.5, {1.5, 1.5, 1.0});
}

TEST(MeshLimits, neighboursAtExactlyTwoMinimumSizesShareOneShrinkingRun) {
  MeshRequest request;
  request.wells = {{0.0, 0.0}, {2.0, 0.0}};
  expectWidthsFrom(request.make().xLine, -0.5, {2.0, 1.0});
}

TEST(MeshLimits, farTailStartsAtTheWidthOfTheLastCell) {
  MeshRequest request;
  request.amin = 5000.0;
  request.maximum = 15.0;
  request.dispersion = true;
  const FVGridLine line = request.make().xLine;
  const auto seam = static_cast<std::size_t>(line.find(200.0 + 1e-6));
  EXPECT_NEAR(line.start(seam), 200.0, 1e-9);
  EXPECT_NEAR(line.width(seam), line.width(seam - 1), 1e-9);
  EXPECT_GT(std::abs(line.width(seam) - request.maximum), 0.1);
  EXPECT_GT(line.width(seam), 2 * request.minimum);
}

TEST(MeshLimits, cellOfTheLastWellIsDividedBeforeATailThatEndsWithinItsLimit) {
  MeshRequest request = dividedRequest();
  request.amin = 150.0;
  request.dispersion = true;
  expectWidthsFrom(request.make().xLine, -1.0, {0.5, 0.5, 0.5, 0.5, 2.0, 0.6});
}

TEST(MeshLimits, cellOfTheLastWellIsDividedBeforeATailThatGoesOnFarBehind) {
  MeshRequest request = dividedRequest();
  request.amin = 5000.0;
  request.dispersion = true;
  expectWidthsFrom(request.make().xLine, -1.0, {0.5, 0.5, 0.5, 0.5, 2.0, 0.6});
}

TEST(MeshLimits, cellOfTheLastWellIsDividedAlongYToo) {
  expectWidthsFrom(dividedRequest().make().yLine, -1.0, {0.5, 0.5, 0.5, 0.5, 2.0, 0.6});
}

TEST(MeshLimits, cellOfAWellWithADistantNeighbourIsDivided) {
  MeshRequest request = dividedRequest();
  request.wells = {{0.0, 0.0}, {30.0, 0.0}};
  expectWidthsFrom(request.make().xLine, -1.0, {0.5, 0.5, 0.5, 0.5, 2.0, 0.6});
}
