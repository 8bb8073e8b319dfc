#include "simulator/solvers/GridIteration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace {

using Shape = std::pair<std::size_t, std::size_t>; // length of a row, number of rows

/// A matrix over the cells of a mesh, with random links that differ in their two directions, and
/// diagonals that dominate their rows.
class MeshMatrix {
public:
  explicit MeshMatrix(Shape shape)
      : row_(shape.first), order_(shape.first * shape.second), diagonal_(order_, 1.0) {
    for (std::size_t i = 0; i < order_; ++i) {
      if ((i + 1) % row_ != 0)
        addLink(i, i + 1);
      if (i + row_ < order_)
        addLink(i, i + row_);
    }
  }

  std::size_t order() const { return order_; }
  std::size_t row() const { return row_; }
  GridIteration solver() const { return {order_, row_}; }
  double& diagonal(std::size_t i) { return diagonal_[i]; }

  bool factorise(GridIteration& solver) const {
    solver.setZero();
    for (std::size_t i = 0; i < order_; ++i)
      solver.setDiagonal(i, diagonal_[i]);
    for (const Link& link : links_)
      solver.setLink(link.i, link.j, link.upper, link.lower);
    return solver.factorise();
  }

  std::vector<double> product(const std::vector<double>& x) const {
    std::vector<double> result(order_);
    for (std::size_t i = 0; i < order_; ++i)
      result[i] = diagonal_[i] * x[i];
    for (const Link& link : links_) {
      result[link.i] += link.upper * x[link.j];
      result[link.j] += link.lower * x[link.i];
    }
    return result;
  }

private:
  struct Link {
    std::size_t i;
    std::size_t j;
    double upper;
    double lower;
  };

  void addLink(std::size_t i, std::size_t j) {
    std::uniform_real_distribution<double> magnitude(0.1, 4.0);
    links_.push_back({i, j, -magnitude(random_), -magnitude(random_)});
    diagonal_[i] -= links_.back().upper;
    diagonal_[j] -= links_.back().lower;
  }

  std::mt19937 random_{11};
  std::size_t row_;
  std::size_t order_;
  std::vector<double> diagonal_;
  std::vector<Link> links_;
};

std::vector<std::int32_t> inOrder(std::size_t count) {
  std::vector<std::int32_t> list(count);
  std::iota(list.begin(), list.end(), 0);
  return list;
}

std::vector<double> waves(std::size_t count) {
  std::vector<double> values(count);
  for (std::size_t i = 0; i < count; ++i)
    values[i] = 1.5 + std::sin(static_cast<double>(i));
  return values;
}

/// The solution that a solver finds for `waves`, after it has been factorised.
std::vector<double> solutionForWaves(const MeshMatrix& matrix, GridIteration& solver) {
  std::vector<double> x = matrix.product(waves(matrix.order()));
  EXPECT_TRUE(solver.solve(x.data(), inOrder(matrix.order()).data()));
  return x;
}

std::vector<double> solutionOfAFreshSolver(const MeshMatrix& matrix) {
  GridIteration solver = matrix.solver();
  EXPECT_TRUE(matrix.factorise(solver));
  return solutionForWaves(matrix, solver);
}

void expectWaves(const std::vector<double>& x) {
  const std::vector<double> expected = waves(x.size());
  for (std::size_t i = 0; i < x.size(); ++i)
    ASSERT_NEAR(x[i], expected[i], 1e-4) << i;
}

/// Small ones, in which every front is near an edge, and some with fronts of each length.
const std::vector<Shape> someShapes{{2, 2}, {2, 9}, {9, 2}, {5, 7}, {8, 8}, {3, 21}};

} // namespace

TEST(GridIteration, solvesMeshesOfEveryShape) {
  for (std::size_t row = 2; row <= 18; ++row)
    for (std::size_t rows = 1; rows <= 18; ++rows) {
      SCOPED_TRACE(testing::Message() << row << " x " << rows);
      expectWaves(solutionOfAFreshSolver(MeshMatrix({row, rows})));
    }
}

TEST(GridIteration, solvesVeryLongAndVeryTallMeshes) {
  for (const Shape& shape : {Shape{2, 3000}, {3000, 2}, {3, 1001}, {1001, 5}, {999, 1}}) {
    SCOPED_TRACE(testing::Message() << shape.first << " x " << shape.second);
    expectWaves(solutionOfAFreshSolver(MeshMatrix(shape)));
  }
}

TEST(GridIteration, solvesWhereLinksAreMissing) {
  GridIteration solver(6, 3);
  solver.setZero();
  for (std::size_t i = 0; i < 6; ++i)
    solver.setDiagonal(i, 2.0);
  ASSERT_TRUE(solver.factorise());
  std::vector<double> x{2.0, 4.0, 6.0, 8.0, 10.0, 12.0};
  ASSERT_TRUE(solver.solve(x.data(), inOrder(6).data()));
  for (std::size_t i = 0; i < x.size(); ++i)
    EXPECT_NEAR(x[i], static_cast<double>(i) + 1.0, 1e-5);
}

TEST(GridIteration, readsAndWritesTheElementsOfItsCellsOnly) {
  const MeshMatrix matrix({7, 5});
  GridIteration solver = matrix.solver();
  ASSERT_TRUE(matrix.factorise(solver));
  const std::vector<double> right = matrix.product(waves(matrix.order()));
  std::vector<std::int32_t> elements;
  std::vector<double> x(3 * matrix.order(), -7.0);
  for (std::size_t i = 0; i < matrix.order(); ++i) {
    elements.push_back(static_cast<std::int32_t>(x.size() - 1 - 3 * i));
    x[x.size() - 1 - 3 * i] = right[i];
  }
  ASSERT_TRUE(solver.solve(x.data(), elements.data()));
  std::vector<double> ofCells;
  for (const std::int32_t element : elements) {
    ofCells.push_back(x[static_cast<std::size_t>(element)]);
    x[static_cast<std::size_t>(element)] = -7.0;
  }
  expectWaves(ofCells);
  EXPECT_EQ(x, std::vector<double>(x.size(), -7.0));
}

TEST(GridIteration, refusesAPivotThatDoesNotDominateInAnyCell) {
  for (const Shape& shape : someShapes) {
    MeshMatrix matrix(shape);
    GridIteration solver = matrix.solver();
    for (std::size_t i = 0; i < matrix.order(); ++i) {
      const double dominant = std::exchange(matrix.diagonal(i), -1.0);
      EXPECT_FALSE(matrix.factorise(solver)) << i;
      matrix.diagonal(i) = dominant;
    }
  }
}

TEST(GridIteration, factorisationThatFailedLeavesNothingToTheNextOne) {
  for (const Shape& shape : someShapes) {
    MeshMatrix matrix(shape);
    const std::vector<double> expected = solutionOfAFreshSolver(matrix);
    GridIteration solver = matrix.solver();
    const double dominant = std::exchange(matrix.diagonal(2), 0.0);
    ASSERT_FALSE(matrix.factorise(solver));
    matrix.diagonal(2) = dominant;
    ASSERT_TRUE(matrix.factorise(solver));
    EXPECT_EQ(solutionForWaves(matrix, solver), expected);
  }
}

TEST(GridIteration, solutionThatFailedInAnyCellLeavesNothingToTheNextOne) {
  for (const Shape& shape : someShapes) {
    const MeshMatrix matrix(shape);
    const std::vector<double> expected = solutionOfAFreshSolver(matrix);
    GridIteration solver = matrix.solver();
    ASSERT_TRUE(matrix.factorise(solver));
    for (std::size_t i = 0; i < matrix.order(); ++i)
      for (const double value : {std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity(), 1e200}) {
        std::vector<double> x(matrix.order(), 1.0);
        x[i] = value;
        ASSERT_FALSE(solver.solve(x.data(), inOrder(matrix.order()).data())) << i;
        x[i] = 1.0;
        ASSERT_EQ(x, std::vector<double>(matrix.order(), 1.0)) << i;
        ASSERT_EQ(solutionForWaves(matrix, solver), expected) << i;
      }
  }
}

/// A closed mesh without storage: what is put into it has no place to go, so that there is no
/// solution to come near to.
TEST(GridIteration, givesUpAfterFourHundredIterations) {
  constexpr std::size_t row = 40;
  constexpr std::size_t order = row * row;
  GridIteration solver(order, row);
  solver.setZero();
  std::vector<double> diagonal(order, 0.0);
  const auto link = [&](std::size_t i, std::size_t j) {
    solver.setLink(i, j, -1.0, -1.0);
    diagonal[i] += 1.0;
    diagonal[j] += 1.0;
  };
  for (std::size_t i = 0; i < order; ++i) {
    if ((i + 1) % row != 0)
      link(i, i + 1);
    if (i + row < order)
      link(i, i + row);
  }
  for (std::size_t i = 0; i < order; ++i)
    solver.setDiagonal(i, diagonal[i]);
  ASSERT_TRUE(solver.factorise());
  std::vector<double> x = waves(order);
  EXPECT_FALSE(solver.solve(x.data(), inOrder(order).data()));
  EXPECT_EQ(x, waves(order));
  EXPECT_EQ(solver.iterations(), 400);
}

TEST(GridIteration, takesHardlyMoreIterationsOnALargerMesh) {
  const auto iterationsOn = [](std::size_t length) {
    const MeshMatrix matrix({length, length});
    GridIteration solver = matrix.solver();
    EXPECT_TRUE(matrix.factorise(solver));
    solutionForWaves(matrix, solver);
    return solver.iterations();
  };
  const long few = iterationsOn(40);
  EXPECT_GT(few, 1);
  EXPECT_LE(iterationsOn(160), few + few / 2);
}
