#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// The sparsity of a system whose elements depend on themselves and on the elements that they share
/// a link with, and the orders that follow from it: in which elements are eliminated, and which of
/// them may be disturbed together in a difference quotient. Fixed after construction.
class LinkStructure {
public:
  using Index = std::int32_t;

  /// Two linked elements. Links that join the same two elements make one pair.
  struct Pair {
    Index first;
    Index second;
  };
  /// A neighbour of an element. `entry`: place of the dependence of the neighbour on the element in
  /// the entries of StructuredMatrix.
  struct Neighbour {
    Index element;
    Index entry;
  };
  /// An element that, with all leaves before it gone, has one neighbour left: its root.
  /// `leafEntry` and `rootEntry`: dependence of the leaf on its root, and the other way round.
  struct Leaf {
    Index leaf;
    Index root;
    Index leafEntry;
    Index rootEntry;
  };

  /// `count`: number of elements; `links`: pairs of element indices below `count`. A link of an
  /// element with itself is left out. Throws std::out_of_range.
  LinkStructure(std::size_t count, const std::vector<std::pair<std::size_t, std::size_t>>& links);

  std::size_t count() const { return neighboursBegin_.size() - 1; }
  const std::vector<Pair>& pairs() const { return pairs_; }

  const Neighbour* neighboursBegin(Index element) const {
    return neighbours_.data() + neighboursBegin_[static_cast<std::size_t>(element)];
  }
  const Neighbour* neighboursEnd(Index element) const {
    return neighbours_.data() + neighboursBegin_[static_cast<std::size_t>(element) + 1];
  }

  /// Elements by colour: no two of a colour are linked or have a neighbour in common.
  const std::vector<std::vector<Index>>& colours() const { return colours_; }
  /// Chains and other trees that hang on the rest, from their ends inwards.
  const std::vector<Leaf>& leaves() const { return leaves_; }
  /// The elements that are no leaves, in the order of their elimination. On the cells of a
  /// rectangular mesh this runs along the shorter axis.
  const std::vector<Index>& core() const { return core_; }
  /// Place of each element in `core`, -1 for a leaf.
  const std::vector<Index>& placeInCore() const { return placeInCore_; }
  /// Largest distance in `core` of two linked elements.
  Index coreHalfWidth() const { return coreHalfWidth_; }
  /// True if the core is a rectangular mesh, numbered row by row: rows of coreHalfWidth() elements,
  /// 2 at least, with links to the next element of the row and to that of the next row only.
  bool isCoreGrid() const;

private:
  void collectPairs(const std::vector<std::pair<std::size_t, std::size_t>>& links);
  void collectNeighbours(std::size_t count);
  void findColours();
  void findLeaves();
  void orderCore();
  void numberCore();

  std::vector<Pair> pairs_;
  std::vector<std::size_t> neighboursBegin_;
  std::vector<Neighbour> neighbours_;
  std::vector<std::vector<Index>> colours_;
  std::vector<Leaf> leaves_;
  std::vector<Index> core_;
  std::vector<Index> placeInCore_;
  Index coreHalfWidth_ = 0;
};
