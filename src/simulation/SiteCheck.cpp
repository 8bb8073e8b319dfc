#include "simulation/SiteCheck.h"

#include "project/NearWells.h"
#include "project/ParameterTable.h"
#include "project/ProjectReader.h"
#include "simulation/RunText.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace TVR {

using namespace Parameter;

namespace {

/// The parameters that a run reads, whatever kind of aquifer it is.
constexpr std::array runParameters = {
    SimulationTime,
    HydraulicConductivity,
    EffectivePorosity,
    HeatConductivityAquifer,
    HeatConductivitySurrounding,
    DynamicViscosityWater,
    DensityWater,
    DensityAquifer,
    DensitySurrounding,
    HeatCapacityWater,
    HeatCapacityStone,
    Gravity,
    GroundwaterGradient,
    GroundwaterFlowDirection,
    ReferenceTemperature,
    ThermalDispersivity,
    MaxNumberOfElements,
    CellIncreaseFactor,
    MinElementLength,
    MaxElementLength,
    WellDiameter,
    RelTolGroundwater,
    AbsTolGroundwater,
    RelTolHeat,
    AbsTolHeat,
};

QString shown(double value) {
  return QString::number(value, 'g', 10);
}

/// The name of a well, in quotes.
QString nameOf(const WellReader& wells, int well) {
  return '"' + wells.name(well) + '"';
}

/// Two rows of the table of wells, and the place at which both stand.
struct SharedPlace {
  int first;
  int second;
  QString place;

  QString text(const WellReader& wells) const {
    return QStringLiteral("%1 and %2 stand at one place (%3)")
        .arg(nameOf(wells, first), nameOf(wells, second), place);
  }
};

/// Each well with the one before it at its place.
std::vector<SharedPlace> sharedPlaces(const WellReader& wells) {
  std::vector<SharedPlace> shared;
  QHash<QString, int> last;
  const auto exact = [](double value) { return QString::number(value, 'g', 17); };
  for (int well = 0; well < wells.count(); ++well) {
    const QString place = exact(wells.place(well).x()) + ' ' + exact(wells.place(well).y());
    if (last.contains(place))
      shared.push_back({last[place], well, place});
    last.insert(place, well);
  }
  return shared;
}

class SiteChecker {
public:
  explicit SiteChecker(const ProjectReader& project)
      : project_(project), wells_(project.wells()), durations_(project.periods()),
        periods_(static_cast<int>(durations_.size())) {}

  std::vector<SiteProblem> check() {
    for (const int id : runParameters)
      checkParameter(id);
    checkThickness();
    checkDemand();
    checkWells();
    checkDistances();
    checkNearWells();
    return std::move(problems_);
  }

private:
  double v(int id) const { return project_.number(id); }
  void report(int id, const QString& text) { problems_.push_back({id, {}, text}); }
  void reportPeriods(const QString& text) { problems_.push_back({{}, "demand_model", text}); }
  void reportWells(const QString& text) { problems_.push_back({{}, "well_model", text}); }

  void checkParameter(int id) {
    const ParameterRow& row = parameterRow(id);
    const QString remark = rangeRemark(row.range, v(id), row.unit, project_.text(id));
    if (!remark.isEmpty())
      problems_.push_back({id, {}, remark, isUnusual(id, v(id))});
  }

  static bool isUnusual(int id, double value) {
    return judge(parameterRow(id).range, value) == RangeVerdict::Unusual;
  }

  /// The thickness of an unconfined aquifer is the distance of two parameters.
  void checkThickness() {
    if (!project_.flag(AquiferUnconfined)) {
      checkParameter(AquiferThickness);
      return;
    }
    checkParameter(AquiferBasis);
    checkParameter(GroundwaterTable);
    const ParameterRow& row = parameterRow(AquiferThickness);
    const double thickness = v(AquiferBasis) - v(GroundwaterTable);
    if (!(thickness > 0))
      report(AquiferBasis,
             QStringLiteral("the base of the aquifer (%1 m below ground) has to lie below the "
                            "groundwater table (%2 m below ground)")
                 .arg(project_.text(AquiferBasis), project_.text(GroundwaterTable)));
    else if (const QString remark = rangeRemark(row.range, thickness, row.unit, shown(thickness));
             !remark.isEmpty())
      problems_.push_back({AquiferBasis,
                           {},
                           "from the groundwater table to the base: " + remark,
                           isUnusual(AquiferThickness, thickness)});
  }

  void checkDemand() {
    for (int row = 0; periods_ > 1 && row < periods_; ++row) {
      const double duration = durations_[row];
      if (!(duration > 0 && std::isfinite(duration)))
        reportPeriods(
            QStringLiteral("the duration of demand period %1 has to be above 0 s, but is %2")
                .arg(row + 1)
                .arg(duration));
    }
  }

  QString name(int well) const { return nameOf(wells_, well); }

  void checkWells() {
    bool anyRate = false;
    QHash<QString, int> names;
    for (int well = 0; well < wells_.count(); ++well) {
      checkWellValue(well, ViewX, "x", wells_.place(well).x());
      checkWellValue(well, ViewY, "y", wells_.place(well).y());
      anyRate = checkRates(well) || anyRate;
      // Rates by period are found by the well's name.
      if (periods_ > 1 && names.contains(name(well)))
        reportWells(QStringLiteral("two wells have the name %1; with demand periods each well "
                                   "needs a name of its own")
                        .arg(name(well)));
      names.insert(name(well), well);
    }
    for (const SharedPlace& shared : sharedPlaces(wells_))
      reportWells(shared.text(wells_));
    if (!anyRate)
      reportWells("no well has a rate");
  }

  /// Looks at a value of a well that has the range of a parameter. False if there is something to
  /// say about it.
  bool checkWellValue(int well, int id, const char* what, double value) {
    const ParameterRow& row = parameterRow(id);
    const double size = id == MaximumFlowRateOfOneWell ? std::abs(value) : value;
    const QString remark = rangeRemark(row.range, size, row.unit, shown(value));
    if (!remark.isEmpty())
      problems_.push_back({{},
                           "well_model",
                           QStringLiteral("%1 of %2: %3").arg(what, name(well), remark),
                           isUnusual(id, size)});
    return remark.isEmpty();
  }

  /// Looks at a well's rates and temperature changes, up to the first that deserves a word. Whether
  /// the well has a rate at all.
  bool checkRates(int well) {
    bool goesOn = checkRate(well, wells_.rate(well), wells_.temperatureChange(well));
    bool hasRate = wells_.rate(well) != 0;
    for (int period = 0; periods_ > 1 && period < periods_; ++period) {
      const double rate = wells_.rate(well, period);
      hasRate = hasRate || rate != 0;
      goesOn = goesOn && checkRate(well, rate, wells_.temperatureChange(well, period));
    }
    return hasRate;
  }

  bool checkRate(int well, double rate, double change) {
    if (!checkWellValue(well, MaximumFlowRateOfOneWell, "size of the rate", rate) ||
        !checkWellValue(well, UsedTemperatureChange, "temperature change", change))
      return false;
    const ParameterRow& water = parameterRow(ReferenceTemperature);
    const double injected = v(ReferenceTemperature) + change;
    const auto isImpossible = [&](double temperature) {
      return judge(water.range, temperature) == RangeVerdict::Impossible;
    };
    if (!(rate > 0) || !isImpossible(injected) || isImpossible(v(ReferenceTemperature)))
      return true;
    reportWells(
        QStringLiteral("temperature of the water injected into %1: %2")
            .arg(name(well), rangeRemark(water.range, injected, water.unit, shown(injected))));
    return false;
  }

  /// A coordinate that was forgotten, or lost a digit, puts wells kilometres apart.
  void checkDistances() {
    checkDistancesAlong([this](int well) { return wells_.place(well).x(); });
    checkDistancesAlong([this](int well) { return wells_.place(well).y(); });
  }

  template <class Coordinate>
  void checkDistancesAlong(Coordinate coordinate) {
    std::vector<int> order(static_cast<std::size_t>(wells_.count()));
    std::iota(order.begin(), order.end(), 0);
    const auto [first, last] =
        std::minmax_element(order.begin(), order.end(), [&](int one, int other) {
          return coordinate(one) < coordinate(other);
        });
    if (first != last)
      checkDistance(*first, *last, coordinate(*last) - coordinate(*first));
  }

  void checkDistance(int one, int other, double distance) {
    const ParameterRow& row = parameterRow(DMinUsed);
    if (distance > row.range.usualMost)
      problems_.push_back({{},
                           "well_model",
                           QStringLiteral("distance between %1 and %2: %3")
                               .arg(name(one), name(other),
                                    rangeRemark(row.range, distance, row.unit, shown(distance))),
                           isUnusual(DMinUsed, distance)});
  }

  void checkNearWells() {
    for (const NearWells& near : nearWells(project_)) {
      QString text = QStringLiteral("%1 and %2 stand only %3 m apart")
                         .arg(name(near.one), name(near.other))
                         .arg(near.distance, 0, 'g', 3);
      if (near.shareACell)
        text += QStringLiteral(", which the cells of %1 m around wells cannot tell apart")
                    .arg(wellCellWidth(project_));
      problems_.push_back({{}, "well_model", text, !near.shareACell});
    }
  }

  const ProjectReader& project_;
  const WellReader wells_;
  const std::vector<double> durations_; ///< of the demand periods [s]
  const int periods_;
  std::vector<SiteProblem> problems_;
};

} // namespace

std::vector<SiteProblem> checkSite(const ProjectReader& project) {
  return SiteChecker(project).check();
}

QString wellsAtOnePlace(const ProjectReader& project) {
  const WellReader wells = project.wells();
  const std::vector<SharedPlace> shared = sharedPlaces(wells);
  if (shared.empty())
    return {};
  const SharedPlace& first = shared.front();
  return RunText::tr("%1 and %2 stand at one place (%3): give each well a place of its own.")
      .arg(nameOf(wells, first.first), nameOf(wells, first.second), first.place);
}

} // namespace TVR
