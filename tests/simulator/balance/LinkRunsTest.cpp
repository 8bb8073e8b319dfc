#include "simulator/balance/LinkRuns.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using Ends = LinkRuns::Ends;

/// Cells and links of a mesh, with a chain of two cells on every other cell.
struct MeshLinks {
  MeshLinks(std::size_t nx, std::size_t ny) : cells(nx * ny) {
    for (std::size_t i = 0; i < nx * ny; ++i) {
      if (i % nx > 0)
        ends.emplace_back(i - 1, i);
      if (i >= nx)
        ends.emplace_back(i - nx, i);
    }
    for (std::size_t i = 0; i < nx * ny; i += 2) {
      ends.emplace_back(i, cells);
      ends.emplace_back(cells, cells + 1);
      cells += 2;
    }
  }

  Ends ends;
  std::size_t cells;
};

LinkFactors plain(std::size_t k) {
  return {std::sin(1.0 + static_cast<double>(k)), 0.0, 0.0};
}

LinkFactors full(std::size_t k) {
  const auto x = static_cast<double>(k);
  return {std::sin(1.0 + x), std::cos(3.0 + x), std::sin(5.0 + x)};
}

template <class FactorsOf>
void expectFlows(const LinkRuns& runs, const MeshLinks& links, FactorsOf factorsOf) {
  std::vector<double> y(links.cells);
  for (std::size_t i = 0; i < y.size(); ++i)
    y[i] = std::cos(static_cast<double>(7 * i));
  std::vector<double> expected(y.size(), 1.0);
  for (std::size_t k = 0; k < links.ends.size(); ++k) {
    const auto [i, j] = links.ends[k];
    const LinkFactors f = factorsOf(k);
    const double flow = (y[i] - y[j]) * f.difference + y[i] * f.first + y[j] * f.second;
    expected[i] += flow;
    expected[j] -= flow;
  }
  std::vector<double> sums(y.size(), 1.0);
  runs.addFlows(y.data(), sums.data());
  for (std::size_t i = 0; i < y.size(); ++i)
    EXPECT_NEAR(sums[i], expected[i], 1e-14) << i;
}

} // namespace

TEST(LinkRuns, addTheFlowsOfMeshesOfAnyShape) {
  for (const auto& [nx, ny] :
       {std::pair{1u, 1u}, {1u, 30u}, {30u, 1u}, {2u, 9u}, {9u, 2u}, {8u, 9u}, {40u, 33u}})
    for (const auto factorsOf : {plain, full}) {
      const MeshLinks links(nx, ny);
      LinkRuns runs;
      runs.set(links.ends, factorsOf);
      expectFlows(runs, links, factorsOf);
    }
}

TEST(LinkRuns, keepPlainAndOtherLinksApart) {
  const MeshLinks links(20, 20);
  const auto factorsOf = [](std::size_t k) { return k % 40 < 25 ? plain(k) : full(k); };
  LinkRuns runs;
  runs.set(links.ends, factorsOf);
  expectFlows(runs, links, factorsOf);
}

TEST(LinkRuns, areArrangedAnewWhenAPlainLinkCarriesMore) {
  const MeshLinks links(20, 20);
  LinkRuns runs;
  runs.set(links.ends, plain);
  runs.set(links.ends, full);
  expectFlows(runs, links, full);
  runs.set(links.ends, plain);
  expectFlows(runs, links, plain);
}

TEST(LinkRuns, takeFurtherLinks) {
  const MeshLinks links(20, 20);
  LinkRuns runs;
  runs.set(Ends(links.ends.begin(), links.ends.begin() + 100), full);
  runs.set(links.ends, full);
  expectFlows(runs, links, full);
}

TEST(LinkRuns, countLinksOfTheSameCellsEach) {
  MeshLinks links(12, 3);
  links.ends.insert(links.ends.end(), links.ends.begin(), links.ends.begin() + 30);
  LinkRuns runs;
  runs.set(links.ends, full);
  expectFlows(runs, links, full);
}

TEST(LinkRuns, takeLinksTowardsEarlierCells) {
  MeshLinks links(12, 6);
  for (auto& [first, second] : links.ends)
    std::swap(first, second);
  LinkRuns runs;
  runs.set(links.ends, full);
  expectFlows(runs, links, full);
}
