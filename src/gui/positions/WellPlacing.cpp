#include "gui/positions/WellPlacing.h"

#include "design/ParameterId.h"
#include "project/DesignedWells.h"
#include "store/Manager.h"
#include "tables/WellModel.h"

#include <algorithm>
#include <vector>

namespace TVR::GUI {

namespace {

bool isSamePlace(const QPointF& one, const QPointF& other) {
  return one.x() == other.x() && one.y() == other.y(); // QPointF compares fuzzily
}

/// The rows of the wells, those that pump before those that inject.
std::vector<int> rowsPumpingFirst(const WellReader& wells) {
  std::vector<int> rows(static_cast<std::size_t>(wells.count()));
  for (int row = 0; row < wells.count(); ++row)
    rows[static_cast<std::size_t>(row)] = row;
  std::stable_partition(rows.begin(), rows.end(),
                        [&wells](int row) { return wells.rate(row) < 0; });
  return rows;
}

} // namespace

bool WellPlacing::isPossible() const {
  return designedWells(store_, 2).field.betweenRows > 0;
}

int WellPlacing::wellsPlacedByHand() const {
  const QPointF start = store_.value(Parameter::DefaultWellPosition).toPointF();
  const QVector<QPointF>& positions = store_.wellPositions();
  int count = 0;
  for (int row = 0; row < positions.size(); ++row) {
    const bool isOnDefault = isSamePlace(positions.at(row), start);
    const bool isAsPlaced = row < placed_.size() && isSamePlace(positions.at(row), placed_.at(row));
    count += isOnDefault || isAsPlaced ? 0 : 1;
  }
  return count;
}

void WellPlacing::place() {
  WellModel& model = *store_.wellModel();
  const std::vector<int> rows = rowsPumpingFirst(store_.wells());
  WellField field = designedWells(store_, model.rowCount()).field;
  field.withdrawing = static_cast<int>(std::count_if(
      rows.begin(), rows.end(), [this](int row) { return store_.wells().rate(row) < 0; }));
  const std::vector<PlanePoint> places = placeWells(field);
  std::vector<TableCell> cells;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    cells.push_back({rows[i], WellColumns::X, places[i].x});
    cells.push_back({rows[i], WellColumns::Y, places[i].y});
  }
  positionsBefore_ = store_.wellPositions();
  givenBefore_ = store_.enteredWells().givenPlaces;
  model.setCells(cells);
  placed_ = store_.wellPositions();
}

bool WellPlacing::canUndo() const {
  const QVector<QPointF>& present = store_.wellPositions();
  return !placed_.isEmpty() &&
         std::equal(present.begin(), present.end(), placed_.begin(), placed_.end(), isSamePlace);
}

void WellPlacing::undo() {
  if (!canUndo())
    return;
  Project project = store_.project();
  project.wells.positions = positionsBefore_;
  project.wells.givenPlaces = givenBefore_;
  forget();
  store_.setProject(project);
  store_.wellModel()->calculateMinDistance();
}

} // namespace TVR::GUI
