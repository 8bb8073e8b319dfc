#pragma once

#include <cstddef>
#include <vector>

/// Values of a square matrix with the sparsity of a LinkStructure.
struct StructuredMatrix {
  StructuredMatrix(std::size_t elements, std::size_t pairs)
      : diagonal(elements, 0.0), entries(2 * pairs, 0.0) {}

  std::vector<double> diagonal; ///< one per element
  /// Two per pair k: [2 k] in the row of its first element, [2 k + 1] in the row of its second.
  std::vector<double> entries;
};
