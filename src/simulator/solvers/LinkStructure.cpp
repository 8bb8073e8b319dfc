#include "simulator/solvers/LinkStructure.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace {

std::size_t at(LinkStructure::Index i) {
  return static_cast<std::size_t>(i);
}

} // namespace

LinkStructure::LinkStructure(std::size_t count,
                             const std::vector<std::pair<std::size_t, std::size_t>>& links) {
  for (const auto& [i1, i2] : links)
    if (i1 >= count || i2 >= count)
      throw std::out_of_range("LinkStructure: link of an element that does not exist");
  collectPairs(links);
  collectNeighbours(count);
  findColours();
  findLeaves();
  orderCore();
  numberCore();
}

void LinkStructure::collectPairs(const std::vector<std::pair<std::size_t, std::size_t>>& links) {
  const auto ends = [](const Pair& pair) { return std::pair(pair.first, pair.second); };
  for (const auto& [i1, i2] : links)
    if (i1 != i2)
      pairs_.push_back(
          {static_cast<Index>(std::min(i1, i2)), static_cast<Index>(std::max(i1, i2))});
  std::sort(pairs_.begin(), pairs_.end(),
            [&](const Pair& a, const Pair& b) { return ends(a) < ends(b); });
  pairs_.erase(std::unique(pairs_.begin(), pairs_.end(),
                           [&](const Pair& a, const Pair& b) { return ends(a) == ends(b); }),
               pairs_.end());
}

void LinkStructure::collectNeighbours(std::size_t count) {
  neighboursBegin_.assign(count + 1, 0);
  for (const Pair& pair : pairs_) {
    ++neighboursBegin_[at(pair.first) + 1];
    ++neighboursBegin_[at(pair.second) + 1];
  }
  for (std::size_t i = 0; i < count; ++i)
    neighboursBegin_[i + 1] += neighboursBegin_[i];
  neighbours_.resize(2 * pairs_.size());
  std::vector<std::size_t> next(neighboursBegin_.begin(), neighboursBegin_.end() - 1);
  for (std::size_t k = 0; k < pairs_.size(); ++k) {
    const auto [first, second] = pairs_[k];
    const auto entryOfFirst = static_cast<Index>(2 * k);
    neighbours_[next[at(first)]++] = {second, entryOfFirst + 1};
    neighbours_[next[at(second)]++] = {first, entryOfFirst};
  }
}

void LinkStructure::findColours() {
  std::vector<std::size_t> colourOf(count(), count());
  std::vector<Index> takenBy; // the last element that a colour was forbidden to
  for (Index i = 0; at(i) < count(); ++i) {
    const auto forbid = [&](Index element) {
      if (colourOf[at(element)] < takenBy.size())
        takenBy[colourOf[at(element)]] = i;
    };
    for (auto near = neighboursBegin(i); near != neighboursEnd(i); ++near) {
      forbid(near->element);
      for (auto far = neighboursBegin(near->element); far != neighboursEnd(near->element); ++far)
        forbid(far->element);
    }
    std::size_t colour = 0;
    while (colour < takenBy.size() && takenBy[colour] == i)
      ++colour;
    if (colour == takenBy.size()) {
      takenBy.push_back(-1);
      colours_.emplace_back();
    }
    colourOf[at(i)] = colour;
    colours_[colour].push_back(i);
  }
}

// Each tree is followed inwards as far as it goes, so that a chain is eliminated in one run through
// memory.
void LinkStructure::findLeaves() {
  std::vector<std::ptrdiff_t> degree(count());
  for (Index i = 0; at(i) < count(); ++i)
    degree[at(i)] = neighboursEnd(i) - neighboursBegin(i);
  std::vector<char> isGone(count(), 0);
  for (Index start = 0; at(start) < count(); ++start) {
    Index leaf = start;
    while (degree[at(leaf)] == 1 && !isGone[at(leaf)]) {
      auto root = neighboursBegin(leaf);
      while (isGone[at(root->element)])
        ++root;
      leaves_.push_back({leaf, root->element, root->entry ^ 1, root->entry});
      isGone[at(leaf)] = 1;
      --degree[at(root->element)];
      leaf = root->element;
    }
  }
  for (Index i = 0; at(i) < count(); ++i)
    if (!isGone[at(i)])
      core_.push_back(i);
}

// A rectangular mesh numbered row by row shows itself by its links: their distances are 1 and the
// length of a row. Numbered column by column its band is as wide as a column is long.
void LinkStructure::orderCore() {
  numberCore();
  const Index row = coreHalfWidth_;
  const auto cells = static_cast<Index>(core_.size());
  if (!isCoreGrid() || cells / row >= row)
    return;
  std::vector<Index> byColumns;
  byColumns.reserve(core_.size());
  for (Index column = 0; column < row; ++column)
    for (Index i = column; i < cells; i += row)
      byColumns.push_back(core_[at(i)]);
  core_ = std::move(byColumns);
}

bool LinkStructure::isCoreGrid() const {
  const Index row = coreHalfWidth_;
  const auto isOfGrid = [&](const Pair& pair) {
    const Index p = placeInCore_[at(pair.first)];
    const Index q = placeInCore_[at(pair.second)];
    if (p < 0 || q < 0)
      return true;
    const Index distance = std::abs(p - q);
    return distance == row || (distance == 1 && std::max(p, q) % row != 0);
  };
  return row >= 2 && core_.size() % at(row) == 0 &&
         std::all_of(pairs_.begin(), pairs_.end(), isOfGrid);
}

void LinkStructure::numberCore() {
  placeInCore_.assign(count(), -1);
  for (std::size_t k = 0; k < core_.size(); ++k)
    placeInCore_[at(core_[k])] = static_cast<Index>(k);
  coreHalfWidth_ = 0;
  for (const Pair& pair : pairs_) {
    const Index p = placeInCore_[at(pair.first)];
    const Index q = placeInCore_[at(pair.second)];
    if (p >= 0 && q >= 0)
      coreHalfWidth_ = std::max(coreHalfWidth_, std::abs(p - q));
  }
}
