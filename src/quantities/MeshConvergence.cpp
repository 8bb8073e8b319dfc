#include "quantities/MeshConvergence.h"

#include "quantities/MeshRefinement.h"
#include "quantities/PlumeExtent.h"
#include "quantities/SiteSolution.h"
#include "simulation/RunRequest.h"

#include <algorithm>
#include <cmath>

namespace TVR::Quantities {

namespace {

constexpr double plumeLevels[] = {-3, -1, 1, 3};

// Where a mesh deserves a warning
constexpr double extentTolerance = 0.1;      ///< of the length
constexpr double temperatureTolerance = 0.1; ///< [K]
constexpr double drawdownTolerance = 0.05;   ///< of the drawdown

/// One mesh with what was found on it.
struct Level {
  FVMesh mesh;
  SiteSolution solution;
};

Level solved(const SiteInput& input, const OutputTimes& outputTimes, MeshChange change) {
  SiteSetup site = makeSite(input, outputTimes, planSite(input, outputTimes));
  if (change)
    *site.mesh = change(*site.mesh, site.wells);
  return {*site.mesh, solveSite(site)};
}

class Comparison {
public:
  Comparison(const QStringList& wellNames, std::array<Level, 3> levels)
      : wellNames_(wellNames), levels_(std::move(levels)) {}

  MeshConvergence result() && {
    for (std::size_t i = 0; i < levels_.size(); ++i)
      result_.cells[i] = levels_[i].solution.cells;
    for (const double level : plumeLevels)
      comparePlume(level);
    for (std::size_t well = 0; well < levels_[0].solution.wells.size(); ++well)
      compareWell(well);
    const auto drawdowns = valuesOf([](const Level& level) {
      const auto& changes = level.solution.levelChanges;
      return -*std::min_element(changes.begin(), changes.end());
    });
    add({SiteFigure::GreatestDrawdown}, "greatest drawdown", "m", drawdowns, Resolution::drawdown,
        drawdownTolerance * std::abs(drawdowns[1]));
    return std::move(result_);
  }

private:
  template <class Figure>
  std::array<double, 3> valuesOf(Figure figure) const {
    return {figure(levels_[0]), figure(levels_[1]), figure(levels_[2])};
  }

  void add(const SiteFigure& figure, const QString& name, const QString& unit,
           const std::array<double, 3>& values, double resolution, double tolerance) {
    const auto& cells = result_.cells;
    const GridConvergence convergence = gridConvergence(
        {{{values[0], cells[0]}, {values[1], cells[1]}, {values[2], cells[2]}}}, resolution);
    result_.figures.push_back(
        {figure, name, unit, values, convergence, std::max(tolerance, resolution)});
  }

  void comparePlume(double level) {
    const auto extent = [level](const Level& on) {
      return plumeExtent(on.mesh, on.solution.temperatureChanges, level);
    };
    const auto lengths = valuesOf([&](const Level& on) { return extent(on).length; });
    const auto widths = valuesOf([&](const Level& on) { return extent(on).width; });
    if (lengths[1] <= 0)
      return;
    const QString name = QStringLiteral("plume of %1 K, %2").arg(level);
    add({SiteFigure::PlumeLength, level}, name.arg("length"), "m", lengths, Resolution::extent,
        extentTolerance * lengths[1]);
    add({SiteFigure::PlumeWidth, level}, name.arg("width"), "m", widths, Resolution::extent,
        extentTolerance * widths[1]);
  }

  void compareWell(std::size_t well) {
    const auto last = valuesOf(
        [well](const Level& level) { return level.solution.wells[well].temperatures().back(); });
    const int row = levels_[1].solution.wells[well].id();
    add({SiteFigure::Temperature, 0, row},
        QStringLiteral("temperature of %1").arg(wellNames_.value(row)), "°C", last,
        Resolution::temperature, temperatureTolerance);
  }

  const QStringList& wellNames_;
  const std::array<Level, 3> levels_;
  MeshConvergence result_{};
};

} // namespace

MeshConvergence meshConvergence(const SiteInput& site, const OutputTimes& outputTimes,
                                const QStringList& wellNames) {
  return Comparison(wellNames,
                    {solved(site, outputTimes, coarsened), solved(site, outputTimes, nullptr),
                     solved(site, outputTimes, refined)})
      .result();
}

} // namespace TVR::Quantities
