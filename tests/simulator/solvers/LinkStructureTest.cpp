#include "simulator/solvers/LinkStructure.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using Index = LinkStructure::Index;
using Links = std::vector<std::pair<std::size_t, std::size_t>>;

/// Links of a rectangular mesh numbered row by row.
Links meshLinks(std::size_t nx, std::size_t ny) {
  Links links;
  for (std::size_t e = 0; e < nx * ny; ++e) {
    if (e % nx > 0)
      links.emplace_back(e - 1, e);
    if (e >= nx)
      links.emplace_back(e - nx, e);
  }
  return links;
}

/// Puts a chain of `length` new elements on each of the first `roots` elements.
std::size_t addChains(Links& links, std::size_t count, std::size_t roots, std::size_t length) {
  for (std::size_t root = 0; root < roots; ++root) {
    std::size_t below = root;
    for (std::size_t layer = 0; layer < length; ++layer) {
      links.emplace_back(below, count);
      below = count++;
    }
  }
  return count;
}

/// True if no element sees two disturbed ones of a colour, itself included.
bool separatesColours(const LinkStructure& structure) {
  for (const auto& colour : structure.colours()) {
    std::set<Index> seen;
    for (const Index element : colour) {
      if (!seen.insert(element).second)
        return false;
      for (auto near = structure.neighboursBegin(element); near != structure.neighboursEnd(element);
           ++near)
        if (!seen.insert(near->element).second)
          return false;
    }
  }
  return true;
}

} // namespace

TEST(LinkStructure, elementsWithoutLinksAreACoreOfHalfWidthZero) {
  const LinkStructure structure(3, {});
  EXPECT_EQ(structure.core(), (std::vector<Index>{0, 1, 2}));
  EXPECT_EQ(structure.coreHalfWidth(), 0);
  EXPECT_EQ(structure.colours().size(), 1u);
}

TEST(LinkStructure, linksOfTheSameElementsMakeOnePair) {
  const LinkStructure structure(2, {{0, 1}, {1, 0}, {1, 1}});
  ASSERT_EQ(structure.pairs().size(), 1u);
  EXPECT_EQ(structure.pairs()[0].first, 0);
  EXPECT_EQ(structure.pairs()[0].second, 1);
}

TEST(LinkStructure, refusesALinkOfAnElementThatDoesNotExist) {
  EXPECT_THROW(LinkStructure(2, {{0, 2}}), std::out_of_range);
}

TEST(LinkStructure, noElementSeesTwoElementsOfAColour) {
  Links links = meshLinks(12, 7);
  const std::size_t count = addChains(links, 84, 80, 5);
  EXPECT_TRUE(separatesColours(LinkStructure(count, links)));
}

TEST(LinkStructure, aHandfulOfColoursCoversMeshAndChains) {
  Links links = meshLinks(60, 45);
  const std::size_t count = addChains(links, 2700, 2690, 5);
  EXPECT_LE(LinkStructure(count, links).colours().size(), 8u);
}

TEST(LinkStructure, chainsAreLeavesFromTheirEndsInwards) {
  Links links = meshLinks(3, 3);
  const std::size_t count = addChains(links, 9, 2, 2);
  const LinkStructure structure(count, links);
  std::vector<std::pair<Index, Index>> order;
  for (const LinkStructure::Leaf& leaf : structure.leaves())
    order.emplace_back(leaf.leaf, leaf.root);
  EXPECT_EQ(order, (std::vector<std::pair<Index, Index>>{{10, 9}, {9, 0}, {12, 11}, {11, 1}}));
  EXPECT_EQ(structure.core().size(), 9u);
}

TEST(LinkStructure, singleRowIsOneChainWithItsLastCellAsCore) {
  const LinkStructure structure(4, meshLinks(4, 1));
  EXPECT_EQ(structure.leaves().size(), 3u);
  EXPECT_EQ(structure.core().size(), 1u);
}

TEST(LinkStructure, bandRunsAlongTheShorterAxis) {
  EXPECT_EQ(LinkStructure(84, meshLinks(12, 7)).coreHalfWidth(), 7);
  EXPECT_EQ(LinkStructure(84, meshLinks(7, 12)).coreHalfWidth(), 7);
}

TEST(LinkStructure, rectangularMeshIsAGrid) {
  EXPECT_TRUE(LinkStructure(28, meshLinks(7, 4)).isCoreGrid());
  EXPECT_FALSE(LinkStructure(7, meshLinks(7, 1)).isCoreGrid());
}

TEST(LinkStructure, meshWithALinkFromRowToRowOrAShorterLastRowIsNoGrid) {
  Links spiral = meshLinks(7, 4);
  spiral.emplace_back(6, 7);
  EXPECT_FALSE(LinkStructure(28, spiral).isCoreGrid());
  Links shortened;
  for (const auto& link : meshLinks(7, 4))
    if (link.second < 26)
      shortened.push_back(link);
  EXPECT_FALSE(LinkStructure(26, shortened).isCoreGrid());
}

TEST(LinkStructure, irregularLinksKeepTheirNumbering) {
  Links links = meshLinks(12, 7);
  links.emplace_back(0, 83);
  const LinkStructure structure(84, links);
  EXPECT_EQ(structure.coreHalfWidth(), 83);
  EXPECT_EQ(structure.core()[1], 1);
}

TEST(LinkStructure, entriesOfNeighboursAndLeavesNameTheSamePlaces) {
  Links links = meshLinks(3, 2);
  const std::size_t count = addChains(links, 6, 1, 1);
  const LinkStructure structure(count, links);
  ASSERT_EQ(structure.leaves().size(), 1u);
  const LinkStructure::Leaf leaf = structure.leaves()[0];
  EXPECT_EQ(leaf.rootEntry, structure.neighboursBegin(leaf.leaf)->entry);
  EXPECT_EQ(leaf.leafEntry, leaf.rootEntry ^ 1);
  const auto& pair = structure.pairs()[static_cast<std::size_t>(leaf.rootEntry / 2)];
  EXPECT_EQ(leaf.rootEntry % 2 == 0 ? pair.first : pair.second, leaf.root);
}
