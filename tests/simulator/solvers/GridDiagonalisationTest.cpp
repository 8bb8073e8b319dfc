#include "simulator/solvers/GridDiagonalisation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace {

/// The matrix of an implicit step of flow through a homogeneous mesh with graded cells: unit matrix
/// plus `weight` * sum of conductances over cell volumes. The mesh is closed but for the ends of
/// its rows or of its columns, which are linked to fixed states.
class HomogeneousMesh {
public:
  HomogeneousMesh(std::size_t row, std::size_t columns, double weight, bool openRows)
      : row_(row), columns_(columns), weight_(weight), openRows_(openRows) {}

  std::size_t order() const { return row_ * columns_; }
  std::size_t row() const { return row_; }
  /// Conductance of the links of one cell with the cell `along` further, per volume of the cell.
  double rowLink(std::size_t r, std::size_t other) const {
    return weight_ * 2.0 / (width(r) + width(other)) / width(r);
  }
  double columnLink(std::size_t c, std::size_t other) const {
    return 3.0 * rowLink(c + 2, other + 2);
  }

  double diagonal(std::size_t i) const {
    const std::size_t r = i % row_;
    const std::size_t c = i / row_;
    double sum = 1.0 + excess + (i == 40 ? excessOfCell40 : 0.0);
    if (r > 0)
      sum += rowLink(r, r - 1);
    if (r + 1 < row_)
      sum += rowLink(r, r + 1);
    if (c > 0)
      sum += columnLink(c, c - 1);
    if (c + 1 < columns_)
      sum += columnLink(c, c + 1);
    const bool isAtOpenEnd = openRows_ ? r == 0 || r + 1 == row_ : c == 0 || c + 1 == columns_;
    return isAtOpenEnd ? sum + 2.0 * weight_ : sum;
  }

  bool factorise(GridDiagonalisation& solver) const {
    HomogeneousMesh withoutUnit = *this;
    withoutUnit.excess -= 1.0;
    return withoutUnit.analyse(solver) && solver.factorise(1.0, 1.0);
  }

  double largestDiagonal() const {
    double largest = 0.0;
    for (std::size_t i = 0; i < order(); ++i)
      largest = std::max(largest, diagonal(i));
    return largest;
  }

  bool analyse(GridDiagonalisation& solver) const {
    for (std::size_t i = 0; i < order(); ++i) {
      const std::size_t r = i % row_;
      const std::size_t c = i / row_;
      solver.setDiagonal(i, diagonal(i));
      if (r + 1 < row_)
        solver.setLink(i, i + 1, -rowLink(r, r + 1), -rowLink(r + 1, r));
      if (c + 1 < columns_)
        solver.setLink(i, i + row_, -columnLink(c, c + 1), -columnLink(c + 1, c));
    }
    return solver.analyse();
  }

  std::vector<double> product(const std::vector<double>& x) const {
    std::vector<double> result(order());
    for (std::size_t i = 0; i < order(); ++i) {
      const std::size_t r = i % row_;
      const std::size_t c = i / row_;
      result[i] = diagonal(i) * x[i];
      if (r > 0)
        result[i] -= rowLink(r, r - 1) * x[i - 1];
      if (r + 1 < row_)
        result[i] -= rowLink(r, r + 1) * x[i + 1];
      if (c > 0)
        result[i] -= columnLink(c, c - 1) * x[i - row_];
      if (c + 1 < columns_)
        result[i] -= columnLink(c, c + 1) * x[i + row_];
    }
    return result;
  }

  double errorOfSolution(GridDiagonalisation& solver) const {
    std::vector<double> expected(order());
    for (std::size_t i = 0; i < order(); ++i)
      expected[i] = std::sin(static_cast<double>(i));
    std::vector<double> x = product(expected);
    solver.solve(x.data());
    double largest = 0.0;
    for (std::size_t i = 0; i < order(); ++i)
      largest = std::max(largest, std::abs(x[i] - expected[i]));
    return largest;
  }

  double excess = 0.0;         ///< added to all diagonals
  double excessOfCell40 = 0.0; ///< added to one

private:
  static double width(std::size_t i) { return 1.0 + static_cast<double>(i * i % 7); }

  std::size_t row_;
  std::size_t columns_;
  double weight_;
  bool openRows_;
};

} // namespace

TEST(GridDiagonalisation, solvesMeshesThatAreOpenOnEitherPairOfSides) {
  for (const bool openRows : {false, true})
    for (const double weight : {1e-6, 1.0, 1e6}) {
      const HomogeneousMesh mesh(9, 14, weight, openRows);
      GridDiagonalisation solver(mesh.order(), mesh.row());
      ASSERT_TRUE(mesh.factorise(solver));
      EXPECT_LT(mesh.errorOfSolution(solver), 1e-9) << weight;
    }
}

TEST(GridDiagonalisation, solvesTheSmallestMeshes) {
  for (const auto& [row, columns] : {std::pair{2, 2}, {2, 5}, {5, 2}, {3, 3}}) {
    const HomogeneousMesh mesh(static_cast<std::size_t>(row), static_cast<std::size_t>(columns),
                               1.0, false);
    GridDiagonalisation solver(mesh.order(), mesh.row());
    ASSERT_TRUE(mesh.factorise(solver));
    EXPECT_LT(mesh.errorOfSolution(solver), 1e-12);
  }
}

/// Products are reckoned in groups of four and eight entries, and of four rows.
TEST(GridDiagonalisation, solvesMeshesWithRowsOfAnyLengthAndNumber) {
  for (std::size_t row = 2; row <= 19; ++row)
    for (std::size_t columns = 2; columns <= 9; ++columns)
      for (const bool openRows : {false, true}) {
        const HomogeneousMesh mesh(row, columns, 1.0, openRows);
        GridDiagonalisation solver(mesh.order(), mesh.row());
        ASSERT_TRUE(mesh.factorise(solver)) << row << " x " << columns;
        EXPECT_LT(mesh.errorOfSolution(solver), 1e-11) << row << " x " << columns;
      }
}

TEST(GridDiagonalisation, followsAnotherStepWidth) {
  GridDiagonalisation solver(9 * 14, 9);
  for (const double weight : {1.0, 30.0, 0.2}) {
    const HomogeneousMesh mesh(9, 14, weight, true);
    ASSERT_TRUE(mesh.factorise(solver));
    EXPECT_LT(mesh.errorOfSolution(solver), 1e-11) << weight;
  }
}

TEST(GridDiagonalisation, analysesAMatrixOnceForAllItsMultiples) {
  HomogeneousMesh withoutUnit(9, 14, 1.0, true);
  withoutUnit.excess = -1.0;
  GridDiagonalisation solver(9 * 14, 9);
  ASSERT_TRUE(withoutUnit.analyse(solver));
  for (const double weight : {1.0, 30.0, 0.2}) {
    ASSERT_TRUE(solver.factorise(weight, 1.0));
    EXPECT_LT(HomogeneousMesh(9, 14, weight, true).errorOfSolution(solver), 1e-11) << weight;
  }
}

TEST(GridDiagonalisation, refusesAMeshWithACellOfItsOwn) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  GridDiagonalisation solver(mesh.order(), mesh.row());
  ASSERT_TRUE(mesh.factorise(solver));
  mesh.excessOfCell40 = 0.01;
  EXPECT_FALSE(mesh.factorise(solver));
}

TEST(GridDiagonalisation, takesDeviationsForRoundingUpToAShareOfTheDiagonal) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  GridDiagonalisation solver(mesh.order(), mesh.row());
  const double share = 1e-7 * mesh.diagonal(40);
  mesh.excessOfCell40 = 0.9 * share;
  EXPECT_TRUE(mesh.analyse(solver));
  mesh.excessOfCell40 = 1.1 * share;
  EXPECT_FALSE(mesh.analyse(solver));
}

TEST(GridDiagonalisation, takesStepsWhoseRoundingStaysAShareOfTheUnitMatrix) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  mesh.excess = -1.0;
  GridDiagonalisation solver(mesh.order(), mesh.row());
  ASSERT_TRUE(mesh.analyse(solver));
  const double longest = 1e-4 / (std::numeric_limits<double>::epsilon() * mesh.largestDiagonal());
  EXPECT_TRUE(solver.factorise(0.99 * longest, 1.0));
  EXPECT_FALSE(solver.factorise(1.01 * longest, 1.0));
  EXPECT_TRUE(solver.factorise(1.98 * longest, 2.0));
}

TEST(GridDiagonalisation, refusesAStepThatIsTooLongForItsEigenvalues) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  mesh.excess = -1.0;
  GridDiagonalisation solver(mesh.order(), mesh.row());
  ASSERT_TRUE(mesh.analyse(solver));
  EXPECT_TRUE(solver.factorise(1e9, 1.0));
  EXPECT_FALSE(solver.factorise(1e14, 1.0));
}

TEST(GridDiagonalisation, refusesAMatrixWithoutDominance) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  mesh.excess = -1.5;
  GridDiagonalisation solver(mesh.order(), mesh.row());
  EXPECT_FALSE(mesh.factorise(solver));
}

TEST(GridDiagonalisation, worksAgainAfterARefusal) {
  HomogeneousMesh mesh(9, 14, 1.0, false);
  mesh.excess = -1.5;
  GridDiagonalisation solver(mesh.order(), mesh.row());
  ASSERT_FALSE(mesh.factorise(solver));
  mesh.excess = 0.0;
  ASSERT_TRUE(mesh.factorise(solver));
  EXPECT_LT(mesh.errorOfSolution(solver), 1e-11);
}
