#include "contour/IsolineSamples.h"

#include <QRectF>

#include <array>
#include <chrono>

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

TEST(IsolineMesh, anEmptyMeshHasNoLine) {
  EXPECT_TRUE(traceIsoline({}, {}, 0).points.isEmpty());
}

TEST(IsolineMesh, aSingleCellHasNoLine) {
  EXPECT_TRUE(traceIsoline(unitMesh(1, 1), {1.0}, 1.0).points.isEmpty());
  EXPECT_TRUE(traceIsoline(unitMesh(1, 1), {1.0}, 0.5).points.isEmpty());
}

TEST(IsolineMesh, aSingleRowIsCrossedFromEdgeToEdge) {
  const Isoline line = traced(
      unitMesh(6, 1), [](double x, double) { return x; }, 2.25);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  EXPECT_NEAR(lengthOf(line), 1.0, 1e-12);
  for (const QPointF& point : line.points)
    EXPECT_NEAR(point.x(), 2.25, 1e-12);
}

TEST(IsolineMesh, aSingleColumnIsCrossedFromEdgeToEdge) {
  const Isoline line = traced(
      unitMesh(1, 6), [](double, double y) { return y; }, 4.75);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  EXPECT_NEAR(lengthOf(line), 1.0, 1e-12);
  for (const QPointF& point : line.points)
    EXPECT_NEAR(point.y(), 4.75, 1e-12);
}

TEST(IsolineMesh, cellsWithMissingNodesAreLeftOut) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.cells[12] = {17, -3, 25, 24};
  mesh.cells[13] = {18, 19, 1000000, 25};
  const Isoline line = traced(
      mesh, [](double, double y) { return y; }, 2.6);
  ASSERT_EQ(piecesOf(line).size(), 2u) << "one on either side of the gap";
  for (const QPointF& point : line.points)
    EXPECT_TRUE(point.x() <= 2 || point.x() >= 4);
}

TEST(IsolineMesh, cellsThatNameANodeTwiceAreLeftOut) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.cells[12] = {14, 14, 14, 14};
  EXPECT_EQ(piecesOf(traced(
                         mesh, [](double, double y) { return y; }, 2.6))
                .size(),
            2u);
}

TEST(IsolineMesh, cellsThatAreListedManyTimesDoNoHarm) {
  GridMesh mesh = unitMesh(3, 3);
  for (int i = 0; i < 5; ++i)
    mesh.cells.push_back(mesh.cells[4]);
  mesh.centres.clear();
  const std::vector<double> values = randomValues(mesh.cells.size(), 3);
  for (const QPointF& point : traceIsoline(mesh, values, 0.1).points)
    EXPECT_TRUE(QRectF(0, 0, 3, 3).contains(point));
}

TEST(IsolineMesh, centresThatAreMissingLieAtTheMeanOfTheNodes) {
  GridMesh mesh = unitMesh(6, 6);
  const std::vector<double> values = randomValues(36, 11);
  const Isoline expected = traceIsoline(mesh, values, 0.2);
  mesh.centres.resize(10);
  expectSameLine(traceIsoline(mesh, values, 0.2), expected);
}

TEST(IsolineMesh, aCentreThatLiesNowhereIsAHole) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.centres[12] = {nothing, 2.5};
  const Isoline line =
      traceIsoline(mesh, sampled(unitMesh(5, 5), [](double, double y) { return y; }), 2.6);
  EXPECT_EQ(piecesOf(line).size(), 2u);
  for (const QPointF& point : line.points)
    EXPECT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y()));
}

TEST(IsolineMesh, aMeshWithoutAreaGivesFinitePoints) {
  GridMesh mesh = unitMesh(4, 4);
  std::fill(mesh.nodes.begin(), mesh.nodes.end(), QPointF(7, 7));
  std::fill(mesh.centres.begin(), mesh.centres.end(), QPointF(7, 7));
  const Isoline line = traceIsoline(mesh, randomValues(16, 5), 0.1);
  EXPECT_TRUE(line.points.isEmpty()) << "all its points are one";
}

TEST(IsolineMesh, aMeshOfTwoPartsIsTracedInBoth) {
  GridMesh mesh = unitMesh(4, 4);
  const GridMesh other = rowMesh(evenAxis(4, 10, 14), evenAxis(4, 0, 4));
  const int nodes = static_cast<int>(mesh.nodes.size());
  mesh.nodes.insert(mesh.nodes.end(), other.nodes.begin(), other.nodes.end());
  mesh.centres.insert(mesh.centres.end(), other.centres.begin(), other.centres.end());
  for (std::array<int, 4> cell : other.cells) {
    for (int& node : cell)
      node += nodes;
    mesh.cells.push_back(cell);
  }
  const auto pieces = piecesOf(traced(
      mesh, [](double, double y) { return y; }, 1.75));
  ASSERT_EQ(pieces.size(), 2u);
  for (const QVector<QPointF>& piece : pieces)
    EXPECT_NEAR(std::abs(piece.first().x() - piece.last().x()), 4.0, 1e-12);
}

TEST(IsolineMesh, aReentrantCornerIsPassedWithoutAGap) {
  GridMesh mesh = unitMesh(6, 6);
  std::vector<double> values = sampled(mesh, [](double x, double y) { return x + y; });
  // The upper right quarter does not exist.
  for (int cell = 35; cell >= 0; --cell)
    if (mesh.centres[cell].x() > 3 && mesh.centres[cell].y() > 3) {
      mesh.cells.erase(mesh.cells.begin() + cell);
      mesh.centres.erase(mesh.centres.begin() + cell);
      values.erase(values.begin() + cell);
    }
  const Isoline line = traceIsoline(mesh, values, 5.5);
  EXPECT_EQ(piecesOf(line).size(), 1u);
  EXPECT_LT(largest(line, [](double x, double y) { return x + y - 5.5; }), 0.5);
}

TEST(IsolineMesh, nodesWithThreeOrFiveCellsAreCrossedWithoutAGap) {
  // `count` quadrilaterals around the origin.
  for (int count : {3, 5, 6}) {
    GridMesh mesh;
    mesh.nodes.push_back({0, 0});
    for (int i = 0; i < 2 * count; ++i) {
      const double angle = 3.14159265358979 * i / count;
      mesh.nodes.push_back({std::cos(angle), std::sin(angle)});
    }
    for (int i = 0; i < count; ++i)
      mesh.cells.push_back({0, 2 * i + 1, 2 * i + 2, (2 * i + 2) % (2 * count) + 1});
    for (const std::array<int, 4>& cell : mesh.cells)
      mesh.centres.push_back((mesh.nodes[cell[1]] + mesh.nodes[cell[2]] + mesh.nodes[cell[3]]) / 4);
    const Isoline line = traced(
        mesh, [](double x, double y) { return x + 0.3 * y; }, 0.05);
    EXPECT_EQ(piecesOf(line).size(), 1u) << count;
    EXPECT_LT(largest(line, [](double x, double y) { return x + 0.3 * y - 0.05; }), 0.25) << count;
  }
}

TEST(IsolineMesh, aNodeThatAllCellsShareCostsNoTime) {
  GridMesh mesh;
  const int cells = 100000;
  for (int i = 0; i < 3 * cells + 1; ++i)
    mesh.nodes.push_back({std::cos(i * 1e-5), std::sin(i * 2e-5)});
  for (int i = 0; i < cells; ++i)
    mesh.cells.push_back({0, 3 * i + 1, 3 * i + 2, 3 * i + 3});
  const auto before = std::chrono::steady_clock::now();
  traceIsoline(mesh, randomValues(cells, 1), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(10));
}

} // namespace
