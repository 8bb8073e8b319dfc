#pragma once

#include "study/plan/ResultLayout.h"

#include <array>
#include <vector>

namespace TVR::Study {

/// What a run answers on one mesh.
struct MeshAnswers {
  int cells = 0;
  std::vector<double> scalars; ///< of a layout without mesh bands
};

/// The band in which each scalar of a run on the middle mesh is right, in its unit: the grid
/// convergence index, see GridConvergence.h. Not a number where one of the meshes has none.
std::vector<double> meshBands(const std::vector<Scalar>& scalars,
                              const std::array<MeshAnswers, 3>& coarseToFine);

} // namespace TVR::Study
