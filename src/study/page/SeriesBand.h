#pragma once

#include "study/plan/ResultLayout.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace TVR::Study {

class Results;

/// How a quantity of a well goes on over time in the runs of a study: what it stays below in 10, 50
/// and 90 of 100 runs.
struct SeriesBand {
  std::vector<double> times; ///< [a]
  std::vector<double> low;   ///< P10
  std::vector<double> middle;
  std::vector<double> high;
};

/// The band of one of ResultLayout::series. Times at which no run has a number are left out.
SeriesBand seriesBand(const ResultLayout& layout, const Results& results, std::size_t series);

/// That of the given series whose median at the end is the greatest, or the least; none of none.
enum class Extreme { Least, Greatest };
std::optional<std::size_t> extremeSeries(const Results& results,
                                         const std::vector<std::size_t>& series, Extreme extreme);

} // namespace TVR::Study
