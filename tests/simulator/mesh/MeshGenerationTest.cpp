#include "simulator/mesh/MeshGeneration.h"

#include "simulator/SiteFixtures.h"
#include "simulator/mesh/MeshRequest.h"

#include <gtest/gtest.h>

#include <stdexcept>

using MeshRequests::endOf;
using MeshRequests::expectWidths;
using MeshRequests::MeshRequest;
using MeshRequests::noLimit;
using MeshRequests::rangeErrorOf;
using MeshRequests::widths;
using SiteFixtures::lineOf;

TEST(GradedCells, growByTheIncrementOfTheFirstWidthAtScaleOne) {
  const FVGridLine line = gradedCells(5.0, 15.0, 1.0, 100.0, true, 1.0);
  expectWidths(line, {1.0, 2.0, 3.0, 4.0});
  EXPECT_EQ(line.start(0), 5.0);
}

TEST(GradedCells, incrementGrowsByTheLogarithmOfTheScaleFromTheSecondTurnOn) {
  expectWidths(gradedCells(0.0, 14.0, 1.0, 100.0, true, 10.0), {1.0, 2.0, 4.0, 7.0});
}

TEST(GradedCells, decreasingRunIsTheMirrorImage) {
  const FVGridLine line = gradedCells(5.0, 15.0, 1.0, 100.0, false, 1.0);
  expectWidths(line, {4.0, 3.0, 2.0, 1.0});
  EXPECT_EQ(line.start(0), 5.0);
}

TEST(GradedCells, widthIsCappedAtTheMaximum) {
  expectWidths(gradedCells(0.0, 10.5, 1.0, 2.5, true, 1.0), {1.0, 2.0, 2.5, 2.5, 2.5});
}

TEST(GradedCells, shortRemainderIsAddedToTheLastCell) {
  expectWidths(gradedCells(0.0, 11.0, 1.0, 100.0, true, 1.0), {1.0, 2.0, 3.0, 5.0});
}

TEST(GradedCells, incrementOverflowsToInfinityAndTheMaximumTakesOver) {
  expectWidths(gradedCells(0.0, 1e6, 400.0, 1e6, true, 1.5), {400.0, 800.0, 998800.0});
}

TEST(GradedCells, runOfLengthZeroHasNoCell) {
  EXPECT_EQ(gradedCells(3.0, 3.0, 1.0, 10.0, true, 1.2).count(), 0u);
  EXPECT_EQ(gradedCells(3.0, 3.0, 1.0, 10.0, false, 1.2).count(), 0u);
}

TEST(GradedCells, firstWidthAboveTheLengthGivesOneCell) {
  expectWidths(gradedCells(3.0, 5.0, 4.0, 10.0, true, 1.2), {2.0});
  expectWidths(gradedCells(3.0, 5.0, 4.0, 10.0, false, 1.2), {2.0});
}

TEST(GradedCells, runThatShrinksToNothingIsRefused) {
  EXPECT_THROW(gradedCells(0.0, 1000.0, 0.5, 10.0, true, 0.5), std::range_error);
}

TEST(MergeCells, emptyLineTakesAllCells) {
  FVGridLine line;
  mergeCells(line, lineOf({1.0, 4.0}, 2.0), 10.0);
  expectWidths(line, {1.0, 4.0});
}

TEST(MergeCells, lastCellIsStretchedToTheFirstNewCell) {
  FVGridLine line = lineOf({1.0});
  mergeCells(line, lineOf({1.0, 2.0}, 1.5), 10.0);
  expectWidths(line, {1.5, 1.0, 2.0});
}

TEST(MergeCells, cellsThatDoNotStartBehindTheLastCellAreSkipped) {
  FVGridLine line = lineOf({1.0});
  mergeCells(line, lineOf({1.0, 2.0, 3.0}, -1.0), 10.0);
  expectWidths(line, {2.0, 3.0});
}

TEST(MergeCells, nothingRemainsWhenAllCellsAreSkipped) {
  FVGridLine line = lineOf({1.0, 1.0});
  mergeCells(line, lineOf({1.0}, 0.0), 10.0);
  expectWidths(line, {1.0, 1.0});
}

TEST(MergeCells, gapOfTheMaximumIsHalved) {
  FVGridLine line = lineOf({4.0});
  mergeCells(line, lineOf({3.0}, 4.0), 4.0);
  expectWidths(line, {2.0, 2.0, 3.0});
  EXPECT_DOUBLE_EQ(line.start(1), 2.0);
}

TEST(MergeCells, widerGapIsDividedUntilTheMaximumHolds) {
  FVGridLine line = lineOf({6.0});
  mergeCells(line, lineOf({3.0}, 6.0), 1.6);
  expectWidths(line, {1.5, 1.5, 1.5, 1.5, 3.0});
}

TEST(MergeCells, firstCellOfHalfTheWidthIsAddedToTheLastCell) {
  FVGridLine line = lineOf({2.0});
  mergeCells(line, lineOf({1.0, 1.0, 5.0}, 2.0), 10.0);
  expectWidths(line, {3.0, 1.0, 5.0});
}

TEST(MakeWellDiscretisation, refusesLengthsThatAreNotPositiveInOrder) {
  MeshRequest request;
  request.H = request.amin = request.bmin = request.minimum = request.scale = 0.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: H <= 0");
  request.H = 1.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: amin <= 0");
  request.amin = 1.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: bmin <= 0");
  request.bmin = 1.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: minelesize <= 0");
  request.minimum = 1.0;
  EXPECT_EQ(rangeErrorOf(request), "Error in makeWellDiscretisation: scalefactor <= 0");
}

TEST(MakeWellDiscretisation, oneWellSitsInACellOfTheMinimumSizeBetweenTheExtents) {
  MeshRequest request;
  request.wells = {{7.0, -3.0}};
  request.amin = 150.0;
  const FVMesh mesh = request.make();
  EXPECT_EQ(mesh.xLine.start(0), 7.0 - 100.0);
  EXPECT_NEAR(endOf(mesh.xLine), 7.0 + 150.0, 1e-9);
  EXPECT_EQ(mesh.yLine.start(0), -3.0 - 100.0);
  EXPECT_NEAR(endOf(mesh.yLine), -3.0 + 100.0, 1e-9);
  const auto column = static_cast<std::size_t>(mesh.xLine.find(7.0));
  EXPECT_NEAR(mesh.xLine.width(column), 1.0, 1e-12);
  EXPECT_NEAR(mesh.xLine.centre(column), 7.0, 1e-12);
}

TEST(MakeWellDiscretisation, secondWellOfTheSameXChangesNothingAlongX) {
  MeshRequest one;
  MeshRequest two;
  two.wells = {{0.0, 0.0}, {0.0, 30.0}};
  EXPECT_EQ(widths(two.make().xLine), widths(one.make().xLine));
  EXPECT_GT(two.make().ny, one.make().ny);
}

TEST(MakeWellDiscretisation, neighboursWithinTwoMinimumSizesShareOneShrinkingRun) {
  MeshRequest request;
  request.wells = {{0.0, 0.0}, {1.5, 0.0}};
  const FVGridLine line = request.make().xLine;
  const auto column = static_cast<std::size_t>(line.find(0.0));
  EXPECT_NEAR(line.start(column), -0.5, 1e-12);
  EXPECT_NEAR(line.width(column), 1.5, 1e-12);
  EXPECT_NEAR(line.start(column + 1), 1.0, 1e-12);
  EXPECT_NEAR(line.width(column + 1), 1.0, 1e-12);
}

TEST(MakeWellDiscretisation, neighboursWithinThreeMinimumSizesMeetHalfACellBeforeTheMiddle) {
  MeshRequest request;
  request.wells = {{0.0, 0.0}, {2.5, 0.0}};
  const FVGridLine line = request.make().xLine;
  const auto column = static_cast<std::size_t>(line.find(0.0));
  EXPECT_NEAR(line.start(column), -0.5, 1e-12);
  EXPECT_NEAR(line.width(column), 1.25, 1e-12);
  EXPECT_NEAR(line.width(column + 1), 1.25, 1e-12);
  EXPECT_NEAR(line.centre(column + 2), 2.5, 1e-12);
}

TEST(MakeWellDiscretisation, distantNeighboursAreGradedToTheMiddleFromBothSides) {
  MeshRequest request;
  request.wells = {{0.0, 0.0}, {21.0, 0.0}};
  request.scale = 1.0;
  const FVGridLine line = request.make().xLine;
  const auto column = static_cast<std::size_t>(line.find(0.0));
  const std::vector<double> expected{1.0, 1.0, 2.0, 3.0, 4.0, 4.0, 3.0, 2.0, 1.0, 1.0};
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_NEAR(line.width(column + i), expected[i], 1e-9) << "cell " << i;
}

TEST(MakeWellDiscretisation, tailWithDispersionIsFineUpToTwiceTheExtentBefore) {
  MeshRequest request;
  request.amin = 5000.0;
  request.dispersion = true;
  const FVGridLine line = request.make().xLine;
  const int seam = line.find(200.0 + 1e-6);
  EXPECT_NEAR(line.start(static_cast<std::size_t>(seam)), 200.0, 1e-9);
  for (std::size_t i = 0; i < static_cast<std::size_t>(seam); ++i)
    EXPECT_LT(line.width(i), 1.5 * 20.0 + 1e-9);
  EXPECT_GT(line.width(line.count() - 1), 20.0 * 2);
  EXPECT_NEAR(endOf(line), 5000.0, 1e-9);
}

TEST(MakeWellDiscretisation, tailWithoutDispersionIsFineUpToTenTimesTheExtentBefore) {
  MeshRequest request;
  request.amin = 5000.0;
  const FVGridLine line = request.make().xLine;
  const auto seam = static_cast<std::size_t>(line.find(1000.0 + 1e-6));
  EXPECT_NEAR(line.start(seam), 1000.0, 1e-9);
  EXPECT_LT(line.width(seam - 1), 30.0 + 1e-9);
  EXPECT_GT(line.width(line.count() - 1), 40.0);
}

TEST(MakeWellDiscretisation, farCellsGrowToAThousandMetresWhateverTheMaximumSays) {
  MeshRequest request;
  request.amin = 100000.0;
  request.dispersion = true;
  const FVGridLine line = request.make().xLine;
  EXPECT_NEAR(line.width(line.count() - 2), 1000.0, 1e-9);
}

TEST(MakeWellDiscretisation, tailShorterThanItsLimitKeepsTheMaximum) {
  MeshRequest request;
  request.amin = 150.0;
  request.dispersion = true;
  const FVGridLine line = request.make().xLine;
  for (const double width : widths(line))
    EXPECT_LE(width, 1.5 * 20.0);
  EXPECT_NEAR(endOf(line), 150.0, 1e-9);
}

TEST(MakeWellDiscretisation, equalExtentsWithoutDispersionGiveAMirroredLine) {
  const FVGridLine line = MeshRequest().make().xLine;
  ASSERT_EQ(line.count() % 2, 1u);
  for (std::size_t i = 0; i < line.count(); ++i)
    EXPECT_NEAR(line.width(i), line.width(line.count() - 1 - i), 1e-9);
}

TEST(MakeWellDiscretisation, limitAboveTheCountKeepsTheFactor) {
  MeshRequest request;
  const FVMesh unlimited = request.make();
  request.maxelements = unlimited.nx * unlimited.ny + 1;
  EXPECT_EQ(request.make().elements.size(), unlimited.elements.size());
}

TEST(MakeWellDiscretisation, limitEqualToTheCountRaisesBothFactorsInProportionToTheExtents) {
  MeshRequest request;
  request.amin = 300.0;
  const FVMesh unlimited = request.make();
  MeshRequest grownX = request;
  grownX.scale = request.scale * (300.0 / 400.0 + 1.1);
  MeshRequest grownY = request;
  grownY.scale = request.scale * (100.0 / 400.0 + 1.1);
  request.maxelements = unlimited.nx * unlimited.ny;
  const FVMesh limited = request.make();
  EXPECT_LT(limited.elements.size(), unlimited.elements.size());
  EXPECT_EQ(widths(limited.xLine), widths(grownX.make().xLine));
  EXPECT_EQ(widths(limited.yLine), widths(grownY.make().yLine));
}

TEST(MakeWellDiscretisation, unreachableLimitEndsWhenTheCountStaysTheSame) {
  MeshRequest request;
  request.maxelements = 1;
  MeshRequest step = request;
  step.maxelements = noLimit;
  double previous = 1.0;
  FVMesh expected = step.make();
  while (static_cast<double>(expected.elements.size()) != previous) {
    previous = static_cast<double>(expected.elements.size());
    step.scale *= 100.0 / 200.0 + 1.1;
    expected = step.make();
  }
  const FVMesh mesh = request.make();
  EXPECT_GT(mesh.elements.size(), 1u);
  EXPECT_EQ(widths(mesh.xLine), widths(expected.xLine));
  EXPECT_EQ(widths(mesh.yLine), widths(expected.yLine));
}
