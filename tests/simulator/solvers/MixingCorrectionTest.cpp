#include "simulator/solvers/MixingCorrection.h"

#include "simulator/solvers/LinkStructure.h"
#include "simulator/solvers/StructuredFactor.h"
#include "simulator/solvers/StructuredMatrix.h"

#include <gtest/gtest.h>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace {

/// The links of a mesh with wells in several of its cells, and a Jacobian whose columns sum to
/// what leaves over the edges.
class MeshWithWells {
public:
  static constexpr std::size_t row = 7;
  static constexpr std::size_t order = 35;

  MeshWithWells() {
    for (std::size_t k = 0; k < structure.pairs().size(); ++k)
      for (const bool isFirst : {true, false}) {
        const auto& [first, second] = structure.pairs()[k];
        const double entry = 1.0 + 0.1 * static_cast<double>(k % 5) + (isFirst ? 0.3 : 0.0);
        matrix.entries[2 * k + (isFirst ? 0 : 1)] = entry;
        matrix.diagonal[static_cast<std::size_t>(isFirst ? first : second)] -= entry;
      }
    // As much as is injected flows on.
    for (const MixedCell& well : wells)
      matrix.diagonal[well.cell] -= well.response;
    matrix.diagonal[0] -= 2.0;
  }

  /// `factor` times the Jacobian, mixing included, plus `identity` times the unit matrix.
  Eigen::MatrixXd dense(double factor, double identity) const {
    Eigen::MatrixXd all = identity * Eigen::MatrixXd::Identity(order, order);
    for (std::size_t i = 0; i < order; ++i)
      all(at(i), at(i)) += factor * matrix.diagonal[i];
    for (std::size_t k = 0; k < structure.pairs().size(); ++k) {
      const auto& [first, second] = structure.pairs()[k];
      all(first, second) += factor * matrix.entries[2 * k];
      all(second, first) += factor * matrix.entries[2 * k + 1];
    }
    for (const MixedCell& to : wells)
      for (const MixedCell& from : wells)
        all(at(to.cell), at(from.cell)) += factor * to.response * from.share;
    return all;
  }

  static Eigen::Index at(std::size_t i) { return static_cast<Eigen::Index>(i); }

  static std::vector<std::pair<std::size_t, std::size_t>> links() {
    std::vector<std::pair<std::size_t, std::size_t>> all;
    for (std::size_t i = 0; i < order; ++i) {
      if (i % row > 0)
        all.emplace_back(i - 1, i);
      if (i >= row)
        all.emplace_back(i - row, i);
    }
    return all;
  }

  LinkStructure structure{order, links()};
  StructuredMatrix matrix{order, structure.pairs().size()};
  /// Two of them stand in one cell.
  std::vector<MixedCell> wells{{3, 0.25, 0.0},  {17, 0.0, 2.0}, {20, 0.5, 0.0},
                               {20, 0.25, 0.0}, {31, 0.0, 0.4}, {31, 0.0, 1.1}};
};

double errorOfSolution(const MeshWithWells& mesh, StructuredFactor& factors,
                       MixingCorrection& mixing, double factor) {
  EXPECT_TRUE(factors.factorise(factor, 1.0));
  EXPECT_TRUE(mixing.factorise(factor, factors));
  std::vector<double> x(MeshWithWells::order);
  for (std::size_t i = 0; i < x.size(); ++i)
    x[i] = std::sin(static_cast<double>(i));
  const Eigen::VectorXd expected =
      mesh.dense(factor, 1.0)
          .lu()
          .solve(Eigen::Map<Eigen::VectorXd>(x.data(), MeshWithWells::order));
  EXPECT_TRUE(factors.solve(x.data()));
  mixing.correct(x.data());
  double largest = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i)
    largest = std::max(largest, std::abs(x[i] - expected[MeshWithWells::at(i)]));
  return largest;
}

} // namespace

TEST(MixingCorrection, makesTheSolutionThatOfTheWholeMatrixForEveryWidthOfStep) {
  const MeshWithWells mesh;
  for (const auto& [core, error] : {std::pair{StructuredFactor::Core::Band, 1e-12},
                                    {StructuredFactor::Core::Iteration, 1e-4}}) {
    StructuredFactor factors(mesh.structure, core);
    factors.setMatrix(mesh.matrix);
    MixingCorrection mixing;
    mixing.setTerm(mesh.wells, MeshWithWells::order);
    for (const double factor : {-1e-3, -1.0, -30.0})
      EXPECT_LT(errorOfSolution(mesh, factors, mixing, factor), error) << factor;
  }
}

TEST(MixingCorrection, takesAnotherTermWhenThePeriodChanges) {
  MeshWithWells mesh;
  StructuredFactor factors(mesh.structure);
  factors.setMatrix(mesh.matrix);
  MixingCorrection mixing;
  mixing.setTerm(mesh.wells, MeshWithWells::order);
  EXPECT_LT(errorOfSolution(mesh, factors, mixing, -1.0), 1e-12);
  mesh.wells = {{3, 0.0, 1.0}, {17, 1.0, 0.0}};
  mixing.setTerm(mesh.wells, MeshWithWells::order);
  EXPECT_LT(errorOfSolution(mesh, factors, mixing, -1.0), 1e-12);
}

TEST(MixingCorrection, leavesASolutionWithoutMixingAsItIs) {
  const MeshWithWells mesh;
  StructuredFactor factors(mesh.structure);
  factors.setMatrix(mesh.matrix);
  ASSERT_TRUE(factors.factorise(-1.0, 1.0));
  MixingCorrection mixing;
  mixing.setTerm({}, MeshWithWells::order);
  ASSERT_TRUE(mixing.factorise(-1.0, factors));
  const std::vector<double> before(MeshWithWells::order, 0.1);
  std::vector<double> x = before;
  mixing.correct(x.data());
  EXPECT_EQ(x, before);
}

/// The unit matrix less a term that takes all of it away, or more.
TEST(MixingCorrection, refusesAMatrixThatTheTermMakesSingular) {
  const LinkStructure structure(1, {});
  const StructuredMatrix nothing(1, 0);
  StructuredFactor factors(structure);
  factors.setMatrix(nothing);
  ASSERT_TRUE(factors.factorise(-1.0, 1.0));
  MixingCorrection mixing;
  for (const double response : {1.0, 2.0}) {
    mixing.setTerm({{0, 1.0, response}}, 1);
    EXPECT_FALSE(mixing.factorise(-1.0, factors)) << response;
  }
  mixing.setTerm({{0, 1.0, 0.5}}, 1);
  ASSERT_TRUE(mixing.factorise(-1.0, factors));
  double x = 3.0;
  mixing.correct(&x);
  EXPECT_DOUBLE_EQ(x, 6.0);
}
