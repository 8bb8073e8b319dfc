#include "tables/WellModel.h"

#include "design/ParameterAccess.h"
#include "design/ParameterId.h"
#include "project/ChangeScope.h"
#include "project/Units.h"
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

} // namespace

WellModel::WellModel(Wells& wells, ParameterAccess& parameters, QObject* parent)
    : QAbstractTableModel(parent), wells_(wells), parameters_(parameters) {
  calculateMinDistance();
}

WellReader WellModel::reader() const {
  return {wells_, parameters_};
}

int WellModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : reader().count();
}

int WellModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant WellModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !isDataRole(role))
    return {};
  const int row = index.row();
  switch (index.column()) {
  case Name:
    return reader().name(row);
  case X:
  case Y:
    return coordinate(row, index.column());
  case Rate:
    return inUnitOfRole(reader().rate(row), role);
  case TemperatureChange:
    return reader().temperatureChange(row);
  default:
    return {};
  }
}

QVariant WellModel::coordinate(int row, int column) const {
  if (!reader().hasPlace(row)) {
    qDebug("ERROR: no information for pumping well %d", row);
    return {};
  }
  const QPointF place = reader().place(row);
  return column == X ? place.x() : place.y();
}

QVariant WellModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole ? tableHeader("WellModel", headers, section, orientation)
                                 : QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags WellModel::flags(const QModelIndex& index) const {
  if (!editable_)
    return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
  if (index.column() == TemperatureChange && reader().rate(index.row()) < 0.0)
    flags.setFlag(Qt::ItemIsEditable, false);
  return flags;
}

bool WellModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!editable_ || value.isNull() || role != Qt::EditRole || !index.isValid())
    return false;
  const ChangeScope change(keeper_, ChangedWells);
  const int row = index.row();
  switch (index.column()) {
  case Name:
    if (const QString name = value.toString(); wells_.names.value(row) != name)
      wells_.names[row] = name;
    return true;
  case X:
  case Y: {
    if (!reader().hasPlace(row))
      return false;
    QPointF& position = wells_.positions[row];
    (index.column() == X ? position.rx() : position.ry()) = value.toDouble();
    wells_.givenPlaces.insert(row);
    if (!movesQuietly_) {
      calculateMinDistance();
      emit updateGraphic();
    }
    return true;
  }
  case Rate:
    wells_.rates[row] = value.toDouble();
    emit ratesModified();
    return true;
  case TemperatureChange:
    wells_.temperatureChanges[row] = value.toDouble();
    return true;
  default:
    return false;
  }
}

void WellModel::setCells(const std::vector<Cell>& cells) {
  const ChangeScope change(keeper_, ChangedWells);
  const auto moves = [this](const Cell& cell) {
    return (cell.column == X || cell.column == Y) && !cell.value.isNull() &&
           index(cell.row, cell.column).isValid() && reader().hasPlace(cell.row);
  };
  const auto lastMove = std::find_if(cells.rbegin(), cells.rend(), moves);
  for (auto cell = cells.begin(); cell != cells.end(); ++cell) {
    movesQuietly_ = cell + 1 < lastMove.base();
    setData(index(cell->row, cell->column), cell->value, Qt::EditRole);
  }
  movesQuietly_ = false;
}

double WellModel::stepRate(int well, int step, int role) const {
  return inUnitOfRole(reader().rate(well, step), role);
}

double WellModel::stepTemperatureChange(int well, int step, int) const {
  return reader().temperatureChange(well, step);
}

bool WellModel::setStepRate(int well, int step, double value) {
  if (!editable_)
    return false;
  const ChangeScope change(keeper_, ChangedWells);
  wells_.periodRates[well][step] = value;
  return true;
}

bool WellModel::setStepTemperatureChange(int well, int step, double value) {
  if (!editable_)
    return false;
  const ChangeScope change(keeper_, ChangedWells);
  wells_.periodTemperatureChanges[well][step] = value;
  return true;
}

void WellModel::clear() {
  const ChangeScope change(keeper_, ChangedWells);
  wells_.clearEntries();
}

void WellModel::giveAllPlaces() {
  const ChangeScope change(keeper_, ChangedWells);
  for (int row = 0; row < reader().count(); ++row)
    wells_.givenPlaces.insert(row);
}

void WellModel::revert() {
  beginResetModel();
  endResetModel();
}

void WellModel::calculateMinDistance() {
  std::vector<QPointF> pumping;
  std::vector<QPointF> injecting;
  for (int row = 0; row < wells_.positions.size(); ++row) {
    const bool pumps = data(index(row, Rate)).toDouble() < 0.0;
    (pumps ? pumping : injecting).push_back(wells_.positions.at(row));
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
  const ChangeScope change(keeper_, ChangedWells);
  beginResetModel();
  wells_.positions = wells;
  wells_.fitEntries(oldSize);
  calculateMinDistance();
  endResetModel();
}

} // namespace TVR
