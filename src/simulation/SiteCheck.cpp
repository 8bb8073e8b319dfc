#include "simulation/SiteCheck.h"

#include "data/DemandModel.h"
#include "data/Manager.h"
#include "data/TableNumber.h"
#include "data/WellModel.h"
#include "simulation/NearWells.h"

#include <QHash>

#include <cmath>

namespace TVR {

using namespace Parameter;

namespace {

class SiteChecker {
public:
  explicit SiteChecker(Data::Manager& store)
      : store_(store), wells_(*store.wellModel()), demand_(*store.demandModel()) {}

  std::vector<SiteProblem> check() {
    checkPositiveValues();
    checkAquifer();
    checkFlow();
    checkDemand();
    checkWells();
    checkNearWells();
    return std::move(problems_);
  }

private:
  double v(int id) const { return store_.value(id).toDouble(); }
  void report(int id, const QString& text) { problems_.push_back({id, {}, text}); }
  void reportPeriods(const QString& text) { problems_.push_back({{}, "demand_model", text}); }
  void reportWells(const QString& text) { problems_.push_back({{}, "well_model", text}); }

  void requireAboveZero(int id, const QString& name, const char* unit) {
    if (!(v(id) > 0) || !std::isfinite(v(id)))
      report(id, QStringLiteral("%1 has to be above %2, but is %3")
                     .arg(name, QStringLiteral("0 %1").arg(unit).trimmed(),
                          store_.value(id).toString()));
  }

  void requireNotNegative(int id, const QString& name, const char* unit) {
    if (!(v(id) >= 0) || !std::isfinite(v(id)))
      report(id, QStringLiteral("%1 has to be 0 %2 or above, but is %3")
                     .arg(name, unit, store_.value(id).toString()));
  }

  void checkPositiveValues() {
    requireAboveZero(SimulationTime, "the simulated time", "s");
    requireAboveZero(HydraulicConductivity, "the hydraulic conductivity", "m/s");
    requireAboveZero(HeatConductivityAquifer, "the heat conductivity of the aquifer", "W/(m·K)");
    requireAboveZero(HeatConductivitySurrounding, "the heat conductivity of the surrounding rock",
                     "W/(m·K)");
    requireAboveZero(DynamicViscosityWater, "the viscosity of the water", "Pa·s");
    requireAboveZero(DensityWater, "the density of the water", "kg/m³");
    requireAboveZero(DensityAquifer, "the density of the aquifer", "kg/m³");
    requireAboveZero(DensitySurrounding, "the density of the surrounding rock", "kg/m³");
    requireAboveZero(HeatCapacityWater, "the heat capacity of the water", "J/(kg·K)");
    requireAboveZero(HeatCapacityStone, "the heat capacity of the rock", "J/(kg·K)");
    requireAboveZero(MaxNumberOfElements, "the number of cells", "");
    requireNotNegative(MinElementLength, "the smallest size of a cell", "m");
    requireNotNegative(MaxElementLength, "the largest size of a cell", "m");
    requireNotNegative(ThermalDispersivity, "the dispersivity", "m");
    requireNotNegative(CellIncreaseFactor, "the increase factor of the cells", "%");
    for (const int tolerance : {RelTolGroundwater, AbsTolGroundwater, RelTolHeat, AbsTolHeat})
      requireAboveZero(tolerance, "an error tolerance", "");
  }

  void checkAquifer() {
    const double porosity = v(EffectivePorosity);
    if (!(porosity > 0 && porosity <= 1))
      report(EffectivePorosity,
             QStringLiteral("the porosity is a fraction above 0 and not above 1, but is %1")
                 .arg(store_.value(EffectivePorosity).toString()));
    if (!store_.value(AquiferUnconfined).toBool())
      requireAboveZero(AquiferThickness, "the thickness of the aquifer", "m");
    else if (!(v(AquiferBasis) > v(GroundwaterTable)))
      report(AquiferBasis,
             QStringLiteral("the base of the aquifer (%1 m below ground) has to lie below the "
                            "groundwater table (%2 m below ground)")
                 .arg(store_.value(AquiferBasis).toString(),
                      store_.value(GroundwaterTable).toString()));
  }

  void checkFlow() {
    if (!(v(GroundwaterGradient) >= 0) || !std::isfinite(v(GroundwaterGradient)))
      report(GroundwaterGradient,
             QStringLiteral("the hydraulic gradient has to be 0 m/100m or above, but is %1; the "
                            "flow direction tells where the water goes")
                 .arg(store_.value(GroundwaterGradient).toString()));
    if (!std::isfinite(v(GroundwaterFlowDirection)))
      report(GroundwaterFlowDirection, "the flow direction has to be a number of degrees");
    if (!std::isfinite(v(ReferenceTemperature)))
      report(ReferenceTemperature, "the groundwater temperature has to be a number of °C");
  }

  void checkDemand() {
    for (int row = 0; row < demand_.rowCount(); ++row) {
      const double duration = editNumber(demand_, row, 0);
      if (demand_.rowCount() > 1 && !(duration > 0 && std::isfinite(duration)))
        reportPeriods(
            QStringLiteral("the duration of demand period %1 has to be above 0 s, but is %2")
                .arg(row + 1)
                .arg(duration));
    }
  }

  QString name(int well) const { return wells_.index(well, WellModel::Name).data().toString(); }

  bool hasRate(int well) const {
    if (cell(well, WellModel::Rate) != 0)
      return true;
    for (int period = 0; demand_.rowCount() > 1 && period < demand_.rowCount(); ++period)
      if (wells_.stepRate(well, period, Qt::EditRole) != 0)
        return true;
    return false;
  }

  double cell(int well, int column) const { return editNumber(wells_, well, column); }

  void checkWells() {
    bool anyRate = false;
    QHash<QString, int> places;
    QHash<QString, int> names;
    for (int well = 0; well < wells_.rowCount(); ++well) {
      anyRate = anyRate || hasRate(well);
      checkNumbers(well);
      const QString place =
          QStringLiteral("%1 %2").arg(QString::number(cell(well, WellModel::X), 'g', 17),
                                      QString::number(cell(well, WellModel::Y), 'g', 17));
      if (places.contains(place))
        reportWells(QStringLiteral("\"%1\" and \"%2\" stand at one place (%3)")
                        .arg(name(places[place]), name(well), place));
      places.insert(place, well);
      // Rates by period are found by the well's name.
      if (demand_.rowCount() > 1 && names.contains(name(well)))
        reportWells(QStringLiteral("two wells have the name \"%1\"; with demand periods each well "
                                   "needs a name of its own")
                        .arg(name(well)));
      names.insert(name(well), well);
    }
    if (!anyRate)
      reportWells("no well has a rate");
  }

  void checkNearWells() {
    for (const NearWells& near : nearWells(store_)) {
      QString text = QStringLiteral("\"%1\" and \"%2\" stand only %3 m apart")
                         .arg(name(near.one), name(near.other))
                         .arg(near.distance, 0, 'g', 3);
      if (near.shareACell)
        text += QStringLiteral(", which the cells of %1 m around wells cannot tell apart")
                    .arg(wellCellWidth(store_));
      problems_.push_back({{}, "well_model", text, !near.shareACell});
    }
  }

  void checkNumbers(int well) {
    for (const int column :
         {WellModel::X, WellModel::Y, WellModel::Rate, WellModel::TemperatureChange})
      if (!std::isfinite(cell(well, column)))
        reportWells(QStringLiteral("a value of the well \"%1\" is not finite").arg(name(well)));
  }

  Data::Manager& store_;
  const WellModel& wells_;
  const DemandModel& demand_;
  std::vector<SiteProblem> problems_;
};

} // namespace

std::vector<SiteProblem> checkSite(Data::Manager& store) {
  return SiteChecker(store).check();
}

} // namespace TVR
