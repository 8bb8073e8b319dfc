#pragma once

#include "inspection/Findings.h"
#include "study/plan/Distribution.h"
#include "study/plan/RankCorrelation.h"
#include "study/plan/Raster.h"
#include "study/plan/StudyKey.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace TVR::Study {

enum class Sampler { LatinHypercube, Sobol, Grid, Table };

/// A key that is varied, and how.
struct VariedKey {
  StudyKey key;
  Distribution distribution; ///< within the range of the key
};

/// What a study file says.
struct StudyFile {
  QString fileName;
  QString base; ///< batch file or project file, complete path
  Sampler sampler = Sampler::LatinHypercube;
  std::size_t runs = 1000; ///< of a grid and of a table they follow
  std::uint64_t seed = 1;
  std::size_t gridPoints = 5;   ///< of each key of a grid that is no list
  QString table;                ///< the values of the runs, complete path
  double timeLimit = 600;       ///< of a run [s]
  std::size_t runsPerPart = 25; ///< see Plan
  std::vector<VariedKey> varied;
  std::vector<CorrelatedPair> correlations; ///< of `varied`, by their places

  QStringList quantities;    ///< of the quantities of interest, see ResultLayout; empty: all
  std::vector<double> times; ///< of maps and quantities [a]; none: the end of the run
  std::vector<double> levels{-3, -1, 1, 3}; ///< of temperature changes [K], ascending
  std::optional<RasterBox> raster;          ///< none: around the plume of the base
  std::optional<double> rasterCell;         ///< width of a cell [m]
  bool meshBands = false; ///< of all quantities, for which each run is computed on three meshes
};

/// The most runs of a study, whatever its sampler.
constexpr std::size_t mostRuns = 10'000'000;

/// How many values each varied key of a grid has.
std::vector<std::size_t> gridShares(const StudyFile& study);

/// Reads a study file. With errors, each with line, key and what was expected, the study is not to
/// be run.
StudyFile readStudyFile(const QString& fileName, Findings& findings);

} // namespace TVR::Study
