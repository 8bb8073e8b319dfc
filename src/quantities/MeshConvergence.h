#pragma once

#include "quantities/GridConvergence.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace TVR {

struct OutputTimes;
struct SiteInput;

namespace Quantities {

/// Differences of a figure between meshes that count as none.
namespace Resolution {
inline constexpr double extent = 0.1;       ///< [m]
inline constexpr double temperature = 1e-4; ///< [K]
inline constexpr double drawdown = 1e-5;    ///< [m]
} // namespace Resolution

/// What three meshes are compared by, and what it belongs to.
struct SiteFigure {
  enum Kind { PlumeLength, PlumeWidth, Temperature, GreatestDrawdown };
  Kind kind;
  double level = 0; ///< of a plume [K]
  int well = -1;    ///< row of the table of wells, of a temperature
};

/// A figure of a site and what three meshes say of it.
struct FigureConvergence {
  SiteFigure figure;
  QString name; ///< "plume of -3 K, length" say, with the name of a well where it is one's
  QString unit;
  std::array<double, 3> values; ///< from the coarse mesh to the fine one
  GridConvergence convergence;
  double tolerance; ///< a wider band deserves a warning

  bool isGoodEnough() const { return convergence.band <= tolerance; }
};

struct MeshConvergence {
  std::array<int, 3> cells; ///< from the coarse mesh to the fine one; the site's own in the middle
  std::vector<FigureConvergence> figures;
};

/// Runs a site on its own mesh, on one with cells twice as wide and on one with cells half as
/// wide (the cells of wells keep their width), and compares, at the last output time, the extents
/// of the plume, the temperature of each well and the greatest drawdown. The fine run has four
/// times the cells. `wellNames` by row of the table of wells. Throws what planSite, makeSite and
/// solveSite throw.
MeshConvergence meshConvergence(const SiteInput& site, const OutputTimes& outputTimes,
                                const QStringList& wellNames);

} // namespace Quantities
} // namespace TVR
