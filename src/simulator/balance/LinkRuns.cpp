#include "simulator/balance/LinkRuns.h"

#include "simulator/balance/WideVectors.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

/// Shorter ones are not worth a run.
constexpr std::ptrdiff_t shortestRun = 8;
/// At the end of a mesh row, and between two chains, one link is missing.
constexpr std::ptrdiff_t longestHole = 1;
/// Flows that are reckoned before they are added: few enough to stay in the cache.
constexpr std::size_t blockLength = 512;

TVR_WIDE_VECTORS void takeFrom(double* from, const double* __restrict flows, std::size_t count) {
  for (std::size_t j = 0; j < count; ++j)
    from[j] -= flows[j];
}

TVR_WIDE_VECTORS void addPlainFlows(const double* y1, const double* y2, const double* difference,
                                    double* __restrict flows, double* __restrict into,
                                    std::size_t count) {
  for (std::size_t j = 0; j < count; ++j) {
    flows[j] = (y1[j] - y2[j]) * difference[j];
    into[j] += flows[j];
  }
}

TVR_WIDE_VECTORS void addFullFlows(const double* y1, const double* y2, const double* difference,
                                   const double* first, const double* second,
                                   double* __restrict flows, double* __restrict into,
                                   std::size_t count) {
  for (std::size_t j = 0; j < count; ++j) {
    flows[j] = (y1[j] - y2[j]) * difference[j] + (y1[j] * first[j] + y2[j] * second[j]);
    into[j] += flows[j];
  }
}

} // namespace

void LinkRuns::arrange(const Ends& ends, const std::vector<bool>& isPlain) {
  const auto first = [&](Index k) { return ends[static_cast<std::size_t>(k)].first; };
  const auto distance = [&](Index k) {
    return static_cast<std::ptrdiff_t>(ends[static_cast<std::size_t>(k)].second) -
           static_cast<std::ptrdiff_t>(first(k));
  };
  const auto kind = [&](Index k) {
    return std::pair(!isPlain[static_cast<std::size_t>(k)], distance(k));
  };
  std::vector<Index> order(ends.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](Index k, Index l) {
    return std::tuple(kind(k), first(k), k) < std::tuple(kind(l), first(l), l);
  });

  *this = LinkRuns();
  places_.resize(ends.size());
  std::vector<Index> singles;
  const auto follows = [&](Index next, Index last) {
    return kind(next) == kind(last) && first(next) > first(last) &&
           first(next) - first(last) <= 1 + longestHole;
  };
  for (auto begin = order.begin(); begin != order.end();) {
    auto end = begin + 1;
    while (end != order.end() && follows(*end, *(end - 1)))
      ++end;
    if (end - begin < shortestRun)
      singles.insert(singles.end(), begin, end);
    else
      addRun(ends, std::vector<Index>(begin, end), isPlain[static_cast<std::size_t>(*begin)]);
    begin = end;
  }
  for (const Index k : singles) {
    places_[static_cast<std::size_t>(k)] =
        static_cast<Index>(plainDifferences_.size() + differences_.size() + singles_.size());
    const auto& [one, other] = ends[static_cast<std::size_t>(k)];
    singles_.push_back({static_cast<Index>(one), static_cast<Index>(other), {}});
  }
}

// All plain runs come before the others, so that the place of a link behind them is known.
void LinkRuns::addRun(const Ends& ends, const std::vector<Index>& links, bool isPlain) {
  const auto first = [&](Index k) {
    return static_cast<Index>(ends[static_cast<std::size_t>(k)].first);
  };
  const Index start = first(links.front());
  const Index count = first(links.back()) - start + 1;
  std::vector<double>& differences = isPlain ? plainDifferences_ : differences_;
  const auto begin = static_cast<Index>(differences.size());
  const auto second = static_cast<Index>(ends[static_cast<std::size_t>(links.front())].second);
  (isPlain ? plainRuns_ : runs_).push_back({start, second, count, begin});
  differences.resize(differences.size() + static_cast<std::size_t>(count), 0.0);
  if (!isPlain) {
    firsts_.resize(differences.size(), 0.0);
    seconds_.resize(differences.size(), 0.0);
  }
  const Index offset = isPlain ? begin : begin + static_cast<Index>(plainDifferences_.size());
  for (const Index k : links)
    places_[static_cast<std::size_t>(k)] = offset + first(k) - start;
}

void LinkRuns::addFlows(const double* y, double* dydt) const {
  double flows[blockLength];
  // One side after the other: where a run links neighbours, its two sides overlap.
  const auto addRunOf = [&](const Run& run, auto addFlowsOf) {
    const auto count = static_cast<std::size_t>(run.count);
    for (std::size_t begin = 0; begin < count; begin += blockLength) {
      const std::size_t n = std::min(blockLength, count - begin);
      const std::size_t one = static_cast<std::size_t>(run.first) + begin;
      const std::size_t other = static_cast<std::size_t>(run.second) + begin;
      addFlowsOf(y + one, y + other, static_cast<std::size_t>(run.begin) + begin, dydt + one, n);
      takeFrom(dydt + other, flows, n);
    }
  };
  for (const Run& run : plainRuns_)
    addRunOf(run,
             [&](const double* y1, const double* y2, std::size_t k, double* into, std::size_t n) {
               addPlainFlows(y1, y2, &plainDifferences_[k], flows, into, n);
             });
  for (const Run& run : runs_)
    addRunOf(run,
             [&](const double* y1, const double* y2, std::size_t k, double* into, std::size_t n) {
               addFullFlows(y1, y2, &differences_[k], &firsts_[k], &seconds_[k], flows, into, n);
             });
  for (const auto& [first, second, factors] : singles_) {
    const double flow = (y[first] - y[second]) * factors.difference +
                        (y[first] * factors.first + y[second] * factors.second);
    dydt[first] += flow;
    dydt[second] -= flow;
  }
}
