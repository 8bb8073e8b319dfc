#pragma once

#include "study/plan/UnitSamples.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace TVR::Study {

/// The rank correlation (Spearman) that two dimensions shall have, between -1 and 1.
struct CorrelatedPair {
  std::size_t one;
  std::size_t other;
  double correlation;
};

/// Whether there can be such points: the correlations of all pairs have to go together.
bool areConsistent(const std::vector<CorrelatedPair>& pairs, std::size_t dimensions);

/// Reorders the columns so that they are correlated as `pairs` says, and the others hardly
/// (Iman and Conover 1982, with normal scores): each column keeps its numbers. To be asked for
/// consistent pairs and more points than dimensions.
Columns reordered(const Columns& columns, const std::vector<CorrelatedPair>& pairs);

/// Bends independent points so that they are correlated (normal copula), which keeps the even
/// spread of a sequence rather than the numbers of each column. To be asked for consistent pairs.
Columns bent(const Columns& columns, const std::vector<CorrelatedPair>& pairs);

} // namespace TVR::Study
