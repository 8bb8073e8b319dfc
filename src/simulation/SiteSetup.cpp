#include "simulation/SiteSetup.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "simulation/NearWells.h"
#include "simulator/mesh/MeshGeneration.h"
#include "store/Manager.h"
#include "tables/DemandModel.h"
#include "tables/TableNumber.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <cmath>
#include <optional>

namespace TVR {

using namespace Parameter;

namespace {

/// A rate [m3/s] from which on a well takes part in a run.
constexpr double leastRate = 1e-25;
/// The lengths of the design are raised by this factor to make the extents of the model.
constexpr double extentMargin = 1.5;
constexpr double largestExtent = 10000.0;   // [m]
constexpr double compressibility = 1e-07;   // of the aquifer's pores [1/Pa]
constexpr double gravityOfGradient = -9.81; // whatever the parameter of gravity says [m/s2]

/// Lengths that the extents of the model are made of [m], margin included.
struct Extents {
  double a; ///< behind the last well along the regional flow
  double b; ///< before the first well and to the sides
  double d; ///< between the wells
};

class SetupBuilder {
public:
  SetupBuilder(Data::Manager& store, const OutputTimes& outputTimes)
      : store_(store), outputTimes_(outputTimes), wellTable_(*store.wellModel()),
        periods_(store.demandModel()->rowCount()),
        lastTime_(outputTimes.times.empty() ? 0.0 : outputTimes.times.back()) {}

  SiteSetup build() {
    Extents extents{v(AMin) * extentMargin, v(BMin) * extentMargin, v(DMin) * extentMargin};
    setup_.frame = runFrameOf(store_);
    makeWells();
    storeUsedDistance();
    if (maxFlow_ > meanFlow())
      extents = extentsForFlow(maxFlow_);
    makeMaterials();
    makeMesh(extents);
    makeExchange();
    for (const int result : {MaximumExtent3K, TimeOfMaximumExtent3K})
      store_.setValue(result, 0.0);
    makeInput();
    return std::move(setup_);
  }

private:
  double v(int id) const { return store_.value(id).toDouble(); }
  double dispersivity() const { return v(ThermalDispersivity); }
  double thickness() const {
    return store_.value(AquiferUnconfined).toBool() ? v(AquiferBasis) - v(GroundwaterTable)
                                                    : v(AquiferThickness);
  }
  double meanFlow() const {
    return store_.value(MeanFlowRate).toString() == "nan" ? 0.0 : v(MeanFlowRate);
  }

  QPointF modelPosition(int row) const {
    return setup_.frame.inModel(
        {editNumber(wellTable_, row, WellModel::X), editNumber(wellTable_, row, WellModel::Y)});
  }

  /// The largest flow runs on from row to row: behind a well with a rate every well takes part.
  void makeWells() {
    for (int row = 0; row < wellTable_.rowCount(); ++row) {
      const double rate = editNumber(wellTable_, row, WellModel::Rate);
      const double change =
          rate < 0 ? 0.0 : editNumber(wellTable_, row, WellModel::TemperatureChange);
      maxFlow_ = std::max(maxFlow_, std::abs(rate));
      if (periods_ > 1)
        for (int period = 0; period < periods_; ++period)
          maxFlow_ = std::max(maxFlow_, std::abs(wellTable_.stepRate(row, period, Qt::EditRole)));
      if (maxFlow_ < leastRate && !demandListsFlow(row))
        continue;
      const QPointF position = modelPosition(row);
      auto well = std::make_unique<Well>(row, position.x(), position.y(), rate, change);
      if (periods_ > 1)
        setPeriodRates(row, *well);
      setup_.wells.push_back(std::move(well));
    }
    if (setup_.wells.empty())
      throw SetupError("No well has a rate.");
  }

  /// The rows of the demand table with this well's name: the whole name, since "Well 1" is no
  /// "Well 10".
  void filterByWell(QSortFilterProxyModel& proxy, int row) const {
    const QString name = wellTable_.index(row, WellModel::Name).data().toString();
    proxy.setSourceModel(store_.wellDemandModel());
    proxy.setFilterRole(Qt::DisplayRole);
    proxy.setDynamicSortFilter(true);
    proxy.setFilterKeyColumn(0);
    proxy.setFilterRegularExpression(
        QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(name))));
  }

  bool demandListsFlow(int row) const {
    if (periods_ <= 1)
      return false;
    QSortFilterProxyModel proxy;
    filterByWell(proxy, row);
    for (int j = 0; j < proxy.rowCount(); ++j)
      if (editNumber(proxy, j, WellDemandModel::Rate) > leastRate)
        return true;
    return false;
  }

  void setPeriodRates(int row, Well& well) const {
    QSortFilterProxyModel proxy;
    filterByWell(proxy, row);
    std::vector<double> rates;
    std::vector<double> changes;
    for (int j = 0; j < proxy.rowCount(); ++j) {
      rates.push_back(editNumber(proxy, j, WellDemandModel::Rate));
      changes.push_back(rates[j] <= 0 ? 0.0
                                      : editNumber(proxy, j, WellDemandModel::TemperatureChange));
    }
    const int cycles = static_cast<int>(outputTimes_.times.size()) / periods_;
    for (int cycle = 0; cycle < cycles; ++cycle)
      for (int j = 0; j < proxy.rowCount(); ++j) {
        well.setRate(cycle * periods_ + j, rates[j]);
        well.setTemperatureChange(cycle * periods_ + j, changes[j]);
      }
  }

  bool workAgainstEachOther(const Well& one, const Well& other) const {
    const int steps = std::max(periods_, 1);
    for (int step = 0; step < steps; ++step)
      if (one.rate(step) * other.rate(step) < 0)
        return true;
    return false;
  }

  void storeUsedDistance() {
    std::optional<double> least;
    for (std::size_t i = 0; i < setup_.wells.size(); ++i)
      for (std::size_t j = i + 1; j < setup_.wells.size(); ++j) {
        const Well& one = *setup_.wells[i];
        const Well& other = *setup_.wells[j];
        if (!workAgainstEachOther(one, other))
          continue;
        const double dx = one.x() - other.x();
        const double dy = one.y() - other.y();
        const double square = dx * dx + dy * dy;
        least = least ? std::min(*least, square) : square;
      }
    if (least && *least > 0)
      store_.setValue(DMinUsed, std::sqrt(*least));
  }

  /// The lengths of the design for the flow that the wells really have.
  Extents extentsForFlow(double flow) {
    const DesignFormulas formulas;
    const double h = thickness();
    const double velocity = v(GroundwaterVelocity);
    const int halfOfWells = store_.wellPositions().size() / 2;
    const Extents result{formulas.aMin(flow, lastTime_, h, velocity, v(EffectivePorosity),
                                       v(DensityWater), v(DensityAquifer), v(HeatCapacityWater),
                                       v(HeatCapacityStone)) *
                             extentMargin,
                         formulas.bMin(flow, lastTime_, h, v(RadiusOfInfluence)) * extentMargin,
                         formulas.dMin(halfOfWells, flow, lastTime_, h, velocity) * extentMargin};
    store_.setValue(AMin, result.a / extentMargin);
    store_.setValue(BMin, result.b / extentMargin);
    store_.setValue(DMin, result.d / extentMargin);
    return result;
  }

  void makeMaterials() {
    SimulationInput& input = setup_.input;
    const double porosity = v(EffectivePorosity);
    const double permeability =
        v(DynamicViscosityWater) * v(HydraulicConductivity) / v(Gravity) / v(DensityWater);
    input.aquifer = FVMaterial("material", porosity, v(DensityAquifer), v(HeatCapacityStone),
                               v(HeatConductivityAquifer), permeability, compressibility);
    input.surrounding =
        FVMaterial("material_surrounding", porosity, v(DensitySurrounding), v(HeatCapacityStone),
                   v(HeatConductivitySurrounding), permeability, compressibility);
  }

  void makeMesh(const Extents& extents) {
    const double alpha = dispersivity();
    const double bmin = setup_.frame.hasRegionalFlow ? std::max(extents.d, extents.b) : extents.a;
    if (alpha > 0)
      store_.setValue(ThermalDispersivity, alpha);

    const double minLength = wellCellWidth(store_);
    store_.setValue(MinElementLength, minLength);
    double maxLength = v(MaxElementLength);
    if (alpha > 0)
      maxLength = std::min(maxLength, 2 * alpha);

    for (const auto& well : setup_.wells)
      setup_.input.wells.push_back(well.get());
    const double amin = std::min(largestExtent, extents.a);
    setup_.mesh = makeWellDiscretisation(
        thickness(), amin, std::min(amin, bmin), setup_.input.wells, minLength, maxLength,
        1 + v(CellIncreaseFactor) / 100, store_.count(MaxNumberOfElements), alpha > 0);
    store_.setValue(UsedNumberOfElements, setup_.mesh->nx * setup_.mesh->ny);
  }

  /// The reference length of the exchange chains. The conductivity stands above and below the
  /// line: it is not a thermal diffusivity.
  void makeExchange() {
    const double lambda = v(HeatConductivitySurrounding);
    setup_.input.exchangeLength = std::sqrt(lambda / (v(DensitySurrounding) * lambda) * lastTime_);
    setup_.input.bedrock = store_.value(ExchangeBedrock).toBool();
    setup_.input.caprock = store_.value(ExchangeCaprock).toBool();
  }

  void makeInput() {
    SimulationInput& input = setup_.input;
    input.mesh = setup_.mesh.get();
    input.pressureGradient = v(DensityWater) * v(GroundwaterGradient) * gravityOfGradient / 100;
    input.referenceTemperature = v(ReferenceTemperature);
    input.waterDensity = v(DensityWater);
    input.waterHeatCapacity = v(HeatCapacityWater);
    input.viscosity = v(DynamicViscosityWater);
    input.dispersivity = dispersivity();
    input.closedLoop = store_.value(ClosedLoop).toBool();
    input.times = outputTimes_.times;
    input.demandSteps = outputTimes_.demandSteps;
    setup_.tolerances = {v(RelTolGroundwater), v(RelTolHeat), v(AbsTolGroundwater), v(AbsTolHeat)};
  }

  Data::Manager& store_;
  const OutputTimes& outputTimes_;
  const WellModel& wellTable_;
  const int periods_;
  const double lastTime_;
  double maxFlow_ = 0;
  SiteSetup setup_;
};

} // namespace

SiteSetup makeSiteSetup(Data::Manager& store, const OutputTimes& outputTimes) {
  return SetupBuilder(store, outputTimes).build();
}

OutputTimeInput outputTimeInput(Data::Manager& store, int cycleLength) {
  OutputTimeInput input{store.value(SimulationTime).toDouble(),
                        {},
                        cycleLength,
                        store.value(ThermalDispersivity).toDouble()};
  const DemandModel& demand = *store.demandModel();
  for (int row = 0; row < demand.rowCount(); ++row)
    input.durations.push_back(editNumber(demand, row, 0));
  return input;
}

} // namespace TVR
