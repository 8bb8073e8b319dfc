#include "tables/WellModel.h"

#include "design/ParameterAccess.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "project/TimeUnits.h"
#include "tables/TableHeader.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace TVR {

namespace {

constexpr const char* headers[] = {QT_TRANSLATE_NOOP("WellModel", "Well"),
                                   QT_TRANSLATE_NOOP("WellModel", "X coordinate"),
                                   QT_TRANSLATE_NOOP("WellModel", "Y coordinate"),
                                   QT_TRANSLATE_NOOP("WellModel", "Mean annual rate"),
                                   QT_TRANSLATE_NOOP("WellModel", "Temperature change")};
static_assert(std::size(headers) == WellModel::ColumnCount);

double inUnitOfRole(double rate, int role) {
  return role == Qt::DisplayRole ? rate * secondsPerHour : rate;
}

bool isDataRole(int role) {
  return role == Qt::DisplayRole || role == Qt::EditRole;
}

template <typename Map>
void moveEntry(Map& map, int from, int to) {
  if (map.contains(from))
    map.insert(to, map.take(from));
}

template <typename Map>
void removeRows(Map& map, int first, int end) {
  for (int row = first; row < end; ++row)
    map.remove(row);
}

template <typename Map>
void shrinkRows(Map& map, int oldSize, int size) {
  removeRows(map, size, oldSize);
  for (int row = oldSize; row < 2 * oldSize; ++row)
    moveEntry(map, row, row - oldSize + size);
  removeRows(map, size, oldSize);
}

} // namespace

WellModel::WellModel(QPolygonF& wells, ParameterAccess& parameters, QObject* parent)
    : QAbstractTableModel(parent), wellPositions_(&wells), parameters_(parameters) {
  calculateMinDistance();
}

int WellModel::numberOfWells() const {
  return std::max(wholeNumber(parameters_.number(Parameter::NumberOfWells)), 0);
}

int WellModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : numberOfWells();
}

int WellModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant WellModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !isDataRole(role))
    return {};
  const int row = index.row();
  switch (index.column()) {
  case Name: {
    const auto name = wellNames_.constFind(row);
    return name != wellNames_.cend()
               ? *name
               : QCoreApplication::translate("WellModel", "Well %1").arg(row + 1);
  }
  case X:
  case Y:
    return coordinate(row, index.column());
  case Rate:
    return inUnitOfRole(rate(row), role);
  case TemperatureChange:
    return temperatureChange(row);
  default:
    return {};
  }
}

QVariant WellModel::coordinate(int row, int column) const {
  if (row >= wellPositions_->size()) {
    qDebug("ERROR: no information for pumping well %d", row);
    return {};
  }
  const QPointF& position = wellPositions_->at(row);
  return column == X ? position.x() : position.y();
}

double WellModel::rate(int row) const {
  const auto entry = wellRates_.constFind(row);
  if (entry != wellRates_.cend())
    return *entry;
  const double sign = row < numberOfWells() / 2 ? -2.0 : 2.0;
  return parameters_.number(Parameter::MeanFlowRate) * sign /
         parameters_.number(Parameter::NumberOfWells);
}

double WellModel::temperatureChange(int row) const {
  if (rate(row) < 0.0)
    return 0.0;
  const double usual = parameters_.number(Parameter::UsedTemperatureChange);
  return wellRates_.contains(row) ? wellTemperatureChanges_.value(row, usual) : usual;
}

QVariant WellModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole ? tableHeader("WellModel", headers, section, orientation)
                                 : QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags WellModel::flags(const QModelIndex& index) const {
  if (!editable_)
    return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
  if (index.column() == TemperatureChange && rate(index.row()) < 0.0)
    flags.setFlag(Qt::ItemIsEditable, false);
  return flags;
}

bool WellModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!editable_ || value.isNull() || role != Qt::EditRole || !index.isValid())
    return false;
  const int row = index.row();
  switch (index.column()) {
  case Name:
    if (const QString name = value.toString(); wellNames_.value(row) != name)
      wellNames_[row] = name;
    return true;
  case X:
  case Y: {
    if (row >= wellPositions_->size())
      return false;
    QPointF& position = (*wellPositions_)[row];
    (index.column() == X ? position.rx() : position.ry()) = value.toDouble();
    givenPlaces_.insert(row);
    if (!movesQuietly_) {
      calculateMinDistance();
      emit updateGraphic();
    }
    return true;
  }
  case Rate:
    wellRates_[row] = value.toDouble();
    emit ratesModified();
    return true;
  case TemperatureChange:
    wellTemperatureChanges_[row] = value.toDouble();
    return true;
  default:
    return false;
  }
}

void WellModel::setCells(const std::vector<Cell>& cells) {
  const auto moves = [this](const Cell& cell) {
    return (cell.column == X || cell.column == Y) && !cell.value.isNull() &&
           index(cell.row, cell.column).isValid() && cell.row < wellPositions_->size();
  };
  const auto lastMove = std::find_if(cells.rbegin(), cells.rend(), moves);
  for (auto cell = cells.begin(); cell != cells.end(); ++cell) {
    movesQuietly_ = cell + 1 < lastMove.base();
    setData(index(cell->row, cell->column), cell->value, Qt::EditRole);
  }
  movesQuietly_ = false;
}

double WellModel::stepRate(int well, int step, int role) const {
  const auto steps = wellStepRates_.constFind(well);
  if (steps != wellStepRates_.cend() && steps->contains(step))
    return inUnitOfRole(steps->value(step), role);
  return step == 0 ? data(index(well, Rate), role).toDouble() : 0.0;
}

double WellModel::stepTemperatureChange(int well, int step, int role) const {
  if (stepRate(well, step, Qt::DisplayRole) < 0.0)
    return 0.0;
  const auto steps = wellStepTemperatureChanges_.constFind(well);
  if (steps != wellStepTemperatureChanges_.cend() && steps->contains(step))
    return steps->value(step);
  if (step != 0)
    return 0.0;
  return steps != wellStepTemperatureChanges_.cend()
             ? parameters_.number(Parameter::UsedTemperatureChange)
             : data(index(well, TemperatureChange), role).toDouble();
}

bool WellModel::setStepRate(int well, int step, double value) {
  if (!editable_)
    return false;
  wellStepRates_[well][step] = value;
  return true;
}

bool WellModel::setStepTemperatureChange(int well, int step, double value) {
  if (!editable_)
    return false;
  wellStepTemperatureChanges_[well][step] = value;
  return true;
}

void WellModel::clear() {
  wellTemperatureChanges_.clear();
  wellRates_.clear();
  wellNames_.clear();
  wellStepTemperatureChanges_.clear();
  wellStepRates_.clear();
}

void WellModel::giveAllPlaces() {
  for (int row = 0; row < numberOfWells(); ++row)
    givenPlaces_.insert(row);
}

void WellModel::forgetGivenPlaces(int firstRow) {
  for (auto row = givenPlaces_.begin(); row != givenPlaces_.end();)
    row = *row >= firstRow ? givenPlaces_.erase(row) : std::next(row);
}

void WellModel::revert() {
  beginResetModel();
  endResetModel();
}

void WellModel::calculateMinDistance() {
  std::vector<QPointF> pumping;
  std::vector<QPointF> injecting;
  for (int row = 0; row < wellPositions_->size(); ++row) {
    const bool pumps = data(index(row, Rate)).toDouble() < 0.0;
    (pumps ? pumping : injecting).push_back(wellPositions_->at(row));
  }
  double largestSquare = 0.0;
  for (const QPointF& from : pumping) {
    for (const QPointF& to : injecting) {
      const QPointF difference = to - from;
      largestSquare = std::max(largestSquare, QPointF::dotProduct(difference, difference));
    }
  }
  parameters_.write(Parameter::DMinUsed, largestSquare > 0.0 ? std::sqrt(largestSquare) : 0.0);
}

void WellModel::revert(QPolygonF& wells, int oldSize) {
  const int size = wells.size();
  if (oldSize > size) {
    shrinkRows(wellNames_, oldSize, size);
    shrinkRows(wellRates_, oldSize, size);
    shrinkRows(wellTemperatureChanges_, oldSize, size);
    shrinkRows(wellStepRates_, oldSize, size);
    shrinkRows(wellStepTemperatureChanges_, oldSize, size);
  } else if (oldSize < size) {
    // The target is the row behind the last one: oldSize + (size - oldSize).
    if (wellNames_.value(oldSize).isEmpty())
      wellNames_.remove(size);
    else
      moveEntry(wellNames_, oldSize, size);
    moveEntry(wellRates_, oldSize, size);
    moveEntry(wellTemperatureChanges_, oldSize, size);
    moveEntry(wellStepRates_, oldSize, size);
    moveEntry(wellStepTemperatureChanges_, oldSize, size);
  }
  beginResetModel();
  *wellPositions_ = wells;
  calculateMinDistance();
  endResetModel();
}

} // namespace TVR
