#pragma once

#include "verification/Report.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace Verification {

/// One level of a refinement: what is refined (cell width, tolerance) and the error it gives.
struct Level {
  double size;
  double error;
};

/// Observed orders between neighbouring levels: p in error ~ size^p.
inline std::vector<double> observedOrders(const std::vector<Level>& levels) {
  std::vector<double> orders;
  for (std::size_t i = 1; i < levels.size(); ++i)
    orders.push_back(std::log(levels[i - 1].error / levels[i].error) /
                     std::log(levels[i - 1].size / levels[i].size));
  return orders;
}

/// A table with one row per level: size, error, observed order to the level before.
inline void tabulate(Report& report, const std::string& sizeName, const std::string& errorName,
                     const std::vector<Level>& levels) {
  const std::vector<double> orders = observedOrders(levels);
  std::vector<std::vector<std::string>> rows;
  for (std::size_t i = 0; i < levels.size(); ++i)
    rows.push_back({number(levels[i].size), number(levels[i].error),
                    i == 0 ? std::string() : number(orders[i - 1])});
  report.table({sizeName, errorName, "observed order"}, rows);
}

} // namespace Verification
