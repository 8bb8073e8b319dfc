#pragma once

#include "contour/GridMesh.h"
#include "study/plan/Raster.h"

#include <cstdint>
#include <vector>

namespace TVR::Study {

struct ExceedanceCounts;
struct ResultLayout;

/// How likely it is for each cell of a raster that the temperature there has changed by a level or
/// more.
struct ProbabilityMap {
  double level = 0; ///< [K]; of one below 0 the ground is colder
  double time = 0;  ///< [a]
  Raster raster;
  std::vector<double> values; ///< by cell, 0 to 1

  /// The highest of all values; 0 without any.
  double greatest() const;
};

/// The maps of a study, the levels of a time one after the other, from how often each cell lay in
/// the plume in `runs` runs that have results, repeats included. None without such runs.
std::vector<ProbabilityMap> probabilityMaps(const ResultLayout& layout,
                                            const ExceedanceCounts& counts, std::uint64_t runs);

/// The cells of a raster as quadrilaterals with their centres, in the order of the raster.
Contour::GridMesh meshOf(const Raster& raster);

} // namespace TVR::Study
