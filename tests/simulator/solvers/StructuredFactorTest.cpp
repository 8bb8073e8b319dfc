#include "simulator/solvers/StructuredFactor.h"

#include "simulator/solvers/LinkStructure.h"
#include "simulator/solvers/StructuredMatrix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace {

using Links = std::vector<std::pair<std::size_t, std::size_t>>;

/// Cells of a mesh numbered row by row, each but the last with a chain of five cells.
LinkStructure meshWithChains(std::size_t nx, std::size_t ny) {
  Links links;
  std::size_t count = nx * ny;
  for (std::size_t e = 0; e < nx * ny; ++e) {
    if (e % nx > 0)
      links.emplace_back(e - 1, e);
    if (e >= nx)
      links.emplace_back(e - nx, e);
  }
  for (std::size_t root = 0; root + 1 < nx * ny; ++root) {
    links.emplace_back(root, count);
    for (int layer = 0; layer < 4; ++layer, ++count)
      links.emplace_back(count, count + 1);
    ++count;
  }
  return LinkStructure(count, links);
}

/// Random entries with diagonals that dominate their rows.
StructuredMatrix dominantMatrix(const LinkStructure& structure) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> magnitude(0.1, 4.0);
  StructuredMatrix matrix(structure.count(), structure.pairs().size());
  std::fill(matrix.diagonal.begin(), matrix.diagonal.end(), 1.0);
  for (std::size_t k = 0; k < structure.pairs().size(); ++k) {
    matrix.entries[2 * k] = -magnitude(random);
    matrix.entries[2 * k + 1] = -magnitude(random);
    matrix.diagonal[static_cast<std::size_t>(structure.pairs()[k].first)] -= matrix.entries[2 * k];
    matrix.diagonal[static_cast<std::size_t>(structure.pairs()[k].second)] -=
        matrix.entries[2 * k + 1];
  }
  return matrix;
}

std::vector<double> product(const LinkStructure& structure, const StructuredMatrix& matrix,
                            const std::vector<double>& x) {
  std::vector<double> result(x.size());
  for (std::size_t i = 0; i < x.size(); ++i)
    result[i] = matrix.diagonal[i] * x[i];
  for (std::size_t k = 0; k < structure.pairs().size(); ++k) {
    const auto first = static_cast<std::size_t>(structure.pairs()[k].first);
    const auto second = static_cast<std::size_t>(structure.pairs()[k].second);
    result[first] += matrix.entries[2 * k] * x[second];
    result[second] += matrix.entries[2 * k + 1] * x[first];
  }
  return result;
}

bool factorise(StructuredFactor& factor, const StructuredMatrix& matrix) {
  factor.setMatrix(matrix);
  return factor.factorise(1.0, 0.0);
}

double errorOfSolution(const LinkStructure& structure,
                       StructuredFactor::Core core = StructuredFactor::Core::Automatic) {
  const StructuredMatrix matrix = dominantMatrix(structure);
  std::vector<double> expected(structure.count());
  for (std::size_t i = 0; i < expected.size(); ++i)
    expected[i] = std::sin(static_cast<double>(i));
  std::vector<double> x = product(structure, matrix, expected);
  StructuredFactor factor(structure, core);
  EXPECT_TRUE(factorise(factor, matrix));
  EXPECT_TRUE(factor.solve(x.data()));
  double largest = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i)
    largest = std::max(largest, std::abs(x[i] - expected[i]));
  return largest;
}

} // namespace

TEST(StructuredFactor, solvesMeshesWithChainsOfAnyShape) {
  for (const auto& [nx, ny] : {std::pair{9, 6}, {6, 9}, {13, 2}, {1, 8}, {8, 1}, {1, 1}, {2, 1}})
    EXPECT_LT(
        errorOfSolution(meshWithChains(static_cast<std::size_t>(nx), static_cast<std::size_t>(ny))),
        1e-12)
        << nx << " x " << ny;
}

TEST(StructuredFactor, bandAndIterationSolveAMeshOfThousandsOfCells) {
  const LinkStructure structure = meshWithChains(90, 70);
  EXPECT_LT(errorOfSolution(structure, StructuredFactor::Core::Band), 1e-11);
  EXPECT_LT(errorOfSolution(structure, StructuredFactor::Core::Iteration), 1e-4);
}

TEST(StructuredFactor, iterationSolvesMeshesOfAnyShape) {
  for (const auto& [nx, ny] : {std::pair{9, 6}, {6, 9}, {13, 2}, {2, 13}, {7, 7}, {2, 2}})
    EXPECT_LT(
        errorOfSolution(meshWithChains(static_cast<std::size_t>(nx), static_cast<std::size_t>(ny)),
                        StructuredFactor::Core::Iteration),
        1e-4)
        << nx << " x " << ny;
}

TEST(StructuredFactor, iterationSolvesAVanishingRightHandSide) {
  const LinkStructure structure = meshWithChains(9, 6);
  StructuredFactor factor(structure, StructuredFactor::Core::Iteration);
  const StructuredMatrix matrix = dominantMatrix(structure);
  ASSERT_TRUE(factorise(factor, matrix));
  std::vector<double> x(structure.count(), 0.0);
  ASSERT_TRUE(factor.solve(x.data()));
  EXPECT_EQ(x, std::vector<double>(structure.count(), 0.0));
}

TEST(StructuredFactor, iterationOwnsUpToARightHandSideThatIsNotFinite) {
  const LinkStructure structure = meshWithChains(9, 6);
  StructuredFactor factor(structure, StructuredFactor::Core::Iteration);
  const StructuredMatrix matrix = dominantMatrix(structure);
  ASSERT_TRUE(factorise(factor, matrix));
  std::vector<double> x(structure.count(), 1.0);
  x[4] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(factor.solve(x.data()));
}

TEST(StructuredFactor, iterationThatFailedLeavesNothingToTheNextSolution) {
  const LinkStructure structure = meshWithChains(9, 6);
  const StructuredMatrix matrix = dominantMatrix(structure);
  StructuredFactor factor(structure, StructuredFactor::Core::Iteration);
  ASSERT_TRUE(factorise(factor, matrix));
  const std::vector<double> expected(structure.count(), 1.0);
  const std::vector<double> right = product(structure, matrix, expected);
  std::vector<double> x = right;
  x.front() = std::numeric_limits<double>::infinity();
  ASSERT_FALSE(factor.solve(x.data()));
  x = right;
  ASSERT_TRUE(factor.solve(x.data()));
  for (const double value : x)
    EXPECT_NEAR(value, 1.0, 1e-5);
}

TEST(StructuredFactor, solvesMultiplesOfAMatrixPlusTheUnitMatrix) {
  const LinkStructure structure = meshWithChains(5, 4);
  const StructuredMatrix matrix = dominantMatrix(structure);
  for (const auto core : {StructuredFactor::Core::Automatic, StructuredFactor::Core::Iteration}) {
    StructuredFactor factor(structure, core);
    ASSERT_TRUE(factorise(factor, matrix));
    for (const double weight : {0.25, 7.0}) {
      ASSERT_TRUE(factor.factorise(weight, 1.0));
      const std::vector<double> ones(structure.count(), 1.0);
      std::vector<double> x = product(structure, matrix, ones);
      for (double& value : x)
        value = weight * value + 1.0;
      factor.solve(x.data());
      for (const double value : x)
        EXPECT_NEAR(value, 1.0, core == StructuredFactor::Core::Automatic ? 1e-13 : 1e-5);
    }
  }
}

TEST(StructuredFactor, solvesAgainAfterAnotherMatrix) {
  const LinkStructure structure = meshWithChains(5, 4);
  StructuredFactor factor(structure);
  StructuredMatrix matrix = dominantMatrix(structure);
  ASSERT_TRUE(factorise(factor, matrix));
  for (double& value : matrix.diagonal)
    value *= 2.0;
  ASSERT_TRUE(factorise(factor, matrix));
  const std::vector<double> ones(structure.count(), 1.0);
  std::vector<double> x = product(structure, matrix, ones);
  factor.solve(x.data());
  for (const double value : x)
    EXPECT_NEAR(value, 1.0, 1e-13);
}

/// Links of a mesh without chains, whose matrix is first one that can be diagonalised.
TEST(StructuredFactor, solvesAMatrixThatIsNoLongerThatOfAHomogeneousMesh) {
  constexpr std::size_t nx = 7;
  constexpr std::size_t ny = 5;
  std::vector<std::pair<std::size_t, std::size_t>> links;
  for (std::size_t i = 0; i < nx * ny; ++i) {
    if (i % nx > 0)
      links.emplace_back(i - 1, i);
    if (i >= nx)
      links.emplace_back(i - nx, i);
  }
  const LinkStructure structure(nx * ny, links);
  StructuredMatrix matrix(structure.count(), structure.pairs().size());
  std::fill(matrix.diagonal.begin(), matrix.diagonal.end(), 1.0);
  for (std::size_t k = 0; k < structure.pairs().size(); ++k) {
    matrix.entries[2 * k] = matrix.entries[2 * k + 1] = -1.0;
    matrix.diagonal[static_cast<std::size_t>(structure.pairs()[k].first)] += 1.0;
    matrix.diagonal[static_cast<std::size_t>(structure.pairs()[k].second)] += 1.0;
  }
  StructuredFactor factor(structure);
  for (const double ofOneCell : {0.0, 3.0, 0.0}) {
    matrix.diagonal[16] += ofOneCell;
    ASSERT_TRUE(factorise(factor, matrix));
    const std::vector<double> ones(structure.count(), 1.0);
    std::vector<double> x = product(structure, matrix, ones);
    factor.solve(x.data());
    for (const double value : x)
      EXPECT_NEAR(value, 1.0, 1e-12);
  }
}

TEST(StructuredFactor, refusesAMatrixWhoseDiagonalDoesNotDominate) {
  const LinkStructure structure = meshWithChains(5, 4);
  for (const auto core : {StructuredFactor::Core::Band, StructuredFactor::Core::Iteration}) {
    StructuredFactor factor(structure, core);
    StructuredMatrix matrix = dominantMatrix(structure);
    matrix.diagonal[7] = 0.01;
    EXPECT_FALSE(factorise(factor, matrix));
  }
}

TEST(StructuredFactor, refusesALeafWhoseDiagonalDoesNotDominate) {
  const LinkStructure structure = meshWithChains(5, 4);
  StructuredFactor factor(structure);
  StructuredMatrix matrix = dominantMatrix(structure);
  matrix.diagonal.back() = 0.0;
  EXPECT_FALSE(factorise(factor, matrix));
}

TEST(StructuredFactor, refusesAMatrixThatIsNotFinite) {
  const LinkStructure structure = meshWithChains(5, 4);
  StructuredFactor factor(structure);
  StructuredMatrix matrix = dominantMatrix(structure);
  matrix.diagonal[3] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(factorise(factor, matrix));
}
