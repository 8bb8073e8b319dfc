#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// A flow into the first cell of a link and out of the second:
/// (y1 - y2) * difference + y1 * first + y2 * second.
struct LinkFactors {
  double difference = 0.0;
  double first = 0.0;
  double second = 0.0;

  bool isPlain() const { return first == 0.0 && second == 0.0; }
};

/// The links of a balance, arranged for its evaluation. Where links follow one another along a mesh
/// or a chain, both their cells follow one another in the state: such a run needs no list of cells,
/// and is reckoned with vector instructions. Links that are in no run are kept one by one.
class LinkRuns {
public:
  using Ends = std::vector<std::pair<std::size_t, std::size_t>>;

  /// Takes the factors of all links: factorsOf(k) of that between the cells ends[k]. Of two calls
  /// the second may know more links, but none in another place. Allocates nothing unless there are
  /// more links, or one that carried differences only now carries more.
  template <class FactorsOf>
  void set(const Ends& ends, FactorsOf factorsOf) {
    if (places_.size() == ends.size() && fill(factorsOf))
      return;
    std::vector<bool> isPlain(ends.size());
    for (std::size_t k = 0; k < ends.size(); ++k)
      isPlain[k] = factorsOf(k).isPlain();
    arrange(ends, isPlain);
    fill(factorsOf);
  }
  /// Adds the flows of all links in the state y to dydt.
  void addFlows(const double* y, double* dydt) const;

private:
  using Index = std::int32_t;
  /// Links (first + j, second + j) for j below count. Holes between links are filled with links
  /// that carry nothing. Factors of link j stand at [begin + j].
  struct Run {
    Index first;
    Index second;
    Index count;
    Index begin;
  };
  struct SingleLink {
    Index first;
    Index second;
    LinkFactors factors;
  };

  void arrange(const Ends& ends, const std::vector<bool>& isPlain);
  void addRun(const Ends& ends, const std::vector<Index>& links, bool isPlain);
  /// False if a link no longer fits its place.
  template <class FactorsOf>
  bool fill(FactorsOf factorsOf);

  std::vector<Run> plainRuns_;
  std::vector<Run> runs_;
  std::vector<SingleLink> singles_;
  std::vector<double> plainDifferences_; ///< of the links in plainRuns_
  std::vector<double> differences_;      ///< of the links in runs_
  std::vector<double> firsts_;           ///< likewise
  std::vector<double> seconds_;          ///< likewise
  /// Where each link is: its place in plainDifferences_, behind them in differences_, or behind
  /// these in singles_.
  std::vector<Index> places_;
};

template <class FactorsOf>
bool LinkRuns::fill(FactorsOf factorsOf) {
  const std::size_t plain = plainDifferences_.size();
  const std::size_t inRuns = plain + differences_.size();
  for (std::size_t k = 0; k < places_.size(); ++k) {
    const LinkFactors factors = factorsOf(k);
    const auto place = static_cast<std::size_t>(places_[k]);
    if (place < plain) {
      if (!factors.isPlain())
        return false;
      plainDifferences_[place] = factors.difference;
    } else if (place < inRuns) {
      differences_[place - plain] = factors.difference;
      firsts_[place - plain] = factors.first;
      seconds_[place - plain] = factors.second;
    } else {
      singles_[place - inRuns].factors = factors;
    }
  }
  return true;
}
