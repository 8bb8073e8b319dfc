#pragma once

#include "simulator/mesh/MeshGeneration.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Meshes around wells, as a caller asks for them, and what tests read from an axis.
namespace MeshRequests {

inline constexpr int noLimit = std::numeric_limits<int>::max();

inline std::vector<double> widths(const FVGridLine& line) {
  std::vector<double> list;
  for (const FVGridLine::Cell& cell : line.cells())
    list.push_back(cell.width);
  return list;
}

inline void expectWidths(const FVGridLine& line, const std::vector<double>& expected) {
  const std::vector<double> found = widths(line);
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i)
    EXPECT_NEAR(found[i], expected[i], 1e-9) << "cell " << i;
}

inline double endOf(const FVGridLine& line) {
  return line.start(line.count() - 1) + line.width(line.count() - 1);
}

struct MeshRequest {
  std::vector<std::pair<double, double>> wells{{0.0, 0.0}};
  double H = 10.0;
  double amin = 100.0;
  double bmin = 100.0;
  double minimum = 1.0;
  double maximum = 20.0;
  double scale = 1.2;
  int maxelements = noLimit;
  bool dispersion = false;

  FVMesh make() const {
    std::vector<Well> list;
    for (const auto& [x, y] : wells)
      list.emplace_back(static_cast<int>(list.size()), x, y);
    std::vector<Well*> pointers;
    for (Well& well : list)
      pointers.push_back(&well);
    return *makeWellDiscretisation(H, amin, bmin, pointers, minimum, maximum, scale, maxelements,
                                   dispersion);
  }
};

inline std::string rangeErrorOf(const MeshRequest& request) {
  try {
    request.make();
  } catch (const std::range_error& error) {
    return error.what();
  }
  return "no range error";
}

} // namespace MeshRequests
