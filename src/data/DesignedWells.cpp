#include "data/DesignedWells.h"

#include "data/FileTables.h"
#include "data/Manager.h"
#include "data/RunFrame.h"
#include "tables/TableNumber.h"

#include <QPointF>

#include <cmath>
#include <vector>

namespace TVR::Data {

using namespace Parameter;

namespace {

/// A distance that wells can be laid out with, else 0.
double usable(double distance) {
  return distance > 0 && std::isfinite(distance) ? distance : 0.0;
}

/// Whether the use that governs draws heat from the groundwater.
bool drawsHeat(const Manager& store) {
  const auto v = [&store](int id) { return store.value(id).toDouble(); };
  const bool isHeatingOnly = v(EnergyDemandType) < 2;
  return isHeatingOnly ||
         (v(HeatingTemperatureChange) > 0 &&
          DesignFormulas().netDemand(v(HeatingDemand), 0, v(SystemCop)) > v(CoolingDemand));
}

} // namespace

DesignedWells designedWells(const Manager& store, int wells) {
  const double change = store.value(UsedTemperatureChange).toDouble();
  const double withinRow = usable(store.value(RadiusOfInfluence).toDouble());
  const double betweenRows = usable(store.value(DMin).toDouble());
  const QPointF centre = store.value(DefaultWellPosition).toPointF();
  WellField field;
  field.wells = wells;
  field.betweenRows = betweenRows > 0 ? betweenRows : withinRow;
  field.withinRow = withinRow > 0 ? withinRow : betweenRows;
  field.angle = runFrameOf(store).angleOntoMap();
  field.centre = {centre.x(), centre.y()};
  return {field, drawsHeat(store) ? -change : change};
}

void placeDesignedWells(Manager& store) {
  const WellModel& table = *store.wellModel();
  const DesignedWells design = designedWells(store, table.rowCount());
  if (design.field.betweenRows == 0)
    return;
  const std::vector<PlanePoint> places = placeWells(design.field);
  std::vector<WellModel::Cell> cells;
  for (int row = 0; row < table.rowCount(); ++row) {
    const double rate = editNumber(table, row, WellModel::Rate);
    cells.push_back({row, WellModel::X, places[row].x});
    cells.push_back({row, WellModel::Y, places[row].y});
    if (rate > 0) { // a temperature change counts only beside a rate that is set
      cells.push_back({row, WellModel::Rate, rate});
      cells.push_back({row, WellModel::TemperatureChange, design.temperatureChange});
    }
  }
  setCells(FileTableKind::Well, cells, store);
}

} // namespace TVR::Data
