#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Base of every cell of a balance. It knows the links that the cell takes part in, as indices
/// into the lists of the model that owns the cell; each index stands at most once in a list.
/// A cell has one state variable.
class FVElement {
public:
  /// Number of state variables of a cell; the state of element i starts at index
  /// i * variablesPerElement of the integrator's vector.
  static constexpr std::size_t variablesPerElement = 1;

  virtual ~FVElement() = default;

  /// Turns the sum of flows in dydt[0] into the rate of change of the state. The base has no
  /// storage and leaves dydt as it is.
  virtual void scaleDerivative(double* /*dydt*/) const {}

  /// Links to other integrated cells: indices into the model's `connections`.
  std::vector<std::int32_t> connections;
  /// Links to cells of fixed state: indices into the model's `boundaryConnections`.
  std::vector<std::int32_t> boundaryConnections;
};
