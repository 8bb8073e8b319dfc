#include "study/plan/UnitSamples.h"

#include <boost/random/mersenne_twister.hpp>
#include <boost/random/sobol.hpp>
#include <limits>
#include <numeric>
#include <utility>

namespace TVR::Study {

namespace {

using Generator = boost::random::mt19937_64;
using Digits = boost::random::sobol::result_type;

/// Between 0 and 1, both excluded. The distributions of the libraries may differ from one machine
/// to another, the generator does not.
double unitNumber(Generator& generator) {
  return (static_cast<double>(generator() >> 11U) + 0.5) * 0x1p-53;
}

std::size_t indexBelow(std::size_t end, Generator& generator) {
  return static_cast<std::size_t>(unitNumber(generator) * static_cast<double>(end));
}

void shuffle(std::vector<std::size_t>& order, Generator& generator) {
  for (std::size_t i = order.size(); i > 1; --i)
    std::swap(order[i - 1], order[indexBelow(i, generator)]);
}

double midOf(std::size_t share, std::size_t shares) {
  return (static_cast<double>(share) + 0.5) / static_cast<double>(shares);
}

} // namespace

Columns latinHypercube(std::size_t count, std::size_t dimensions, std::uint64_t seed) {
  Generator generator(seed);
  Columns columns(dimensions, std::vector<double>(count));
  std::vector<std::size_t> order(count);
  for (std::vector<double>& column : columns) {
    std::iota(order.begin(), order.end(), std::size_t{0});
    shuffle(order, generator);
    for (std::size_t i = 0; i < count; ++i)
      column[i] =
          (static_cast<double>(order[i]) + unitNumber(generator)) / static_cast<double>(count);
  }
  return columns;
}

Columns sobolPoints(std::size_t count, std::size_t dimensions, std::uint64_t seed) {
  constexpr int digits = std::numeric_limits<Digits>::digits;
  Generator generator(seed);
  std::vector<Digits> shifts(dimensions);
  for (Digits& shift : shifts)
    shift = seed == 0 ? 0 : generator();

  boost::random::sobol sequence(dimensions); // begins behind the origin, which has no quantile
  Columns columns(dimensions, std::vector<double>(count));
  for (std::size_t i = 0; i < count; ++i)
    for (std::size_t d = 0; d < dimensions; ++d) {
      const Digits point = sequence() ^ shifts[d];
      // A double holds 53 of the digits; half of the last one keeps off 0 and 1.
      const Digits kept = point >> (digits - 53);
      columns[d][i] = seed == 0 ? static_cast<double>(kept) * 0x1p-53
                                : (static_cast<double>(kept >> 1U) + 0.5) * 0x1p-52;
    }
  return columns;
}

Columns gridPoints(const std::vector<std::size_t>& shares) {
  std::size_t count = 1;
  for (const std::size_t one : shares)
    count *= one;
  Columns columns(shares.size(), std::vector<double>(count));
  for (std::size_t i = 0; i < count; ++i)
    for (std::size_t d = shares.size(), rest = i; d-- > 0; rest /= shares[d])
      columns[d][i] = midOf(rest % shares[d], shares[d]);
  return columns;
}

} // namespace TVR::Study
