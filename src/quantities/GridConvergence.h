#pragma once

#include <array>
#include <optional>

namespace TVR::Quantities {

/// How a figure goes on as the mesh is refined.
enum class Behaviour {
  Settled,    ///< it hardly changes any more
  Monotone,   ///< it runs to a limit, at an order that can be seen
  Oscillating ///< it goes to and fro
};

/// A figure and the mesh that it was found on.
struct MeshValue {
  double value;
  int cells;
};

/// What three meshes say of a figure.
struct GridConvergence {
  double value;                       ///< on the mesh in the middle
  std::optional<double> extrapolated; ///< to cells without a width, if the order can be trusted
  std::optional<double> order;        ///< that was observed, where the figure is monotone
  double band; ///< the figure of the middle mesh is right within plus or minus this
  Behaviour behaviour;
};

/// Judges a figure by its values on a coarse, a middle and a fine mesh of one area, each with more
/// cells than the one before, at most `resolution` apart where they count as equal (above 0).
///
/// The order is the one at which the differences shrink with the width of the cells (Celik et al.
/// 2008, J. Fluids Eng. 130:078001); the band is the grid convergence index (Roache 1994, J. Fluids
/// Eng. 116:405) of the middle mesh: 1.25 times the extrapolated error at an order from 0.5 to 3,
/// the range in which it can be trusted here; else nothing is extrapolated, and the band is three
/// times the larger difference.
GridConvergence gridConvergence(const std::array<MeshValue, 3>& coarseToFine, double resolution);

} // namespace TVR::Quantities
