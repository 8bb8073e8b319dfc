#pragma once

#include "project/ProjectTables.h"
#include "project/WellReader.h"

#include <QAbstractTableModel>
#include <QPolygonF>

#include <vector>

namespace TVR {

class ChangeKeeper;
class ParameterAccess;

/// One row per well: name, position [m], mean annual rate and temperature change [K].
/// Rates are kept in [m³/s], positive into the aquifer: a negative rate makes a withdrawal well,
/// any other an injection well. What the user has not set is derived (WellReader). Keeps nothing
/// itself, but edits the wells that it is given. Changes emit `updateGraphic` or `ratesModified`,
/// never `dataChanged`. User interface thread only.
class WellModel : public QAbstractTableModel {
  Q_OBJECT

public:
  using Column = WellColumns::Column;
  using enum WellColumns::Column;
  using ByStep = ByPeriod;
  using Cell = TableCell;

  /// `wells` and `parameters` belong to the caller and must outlive the model. Writes the used well
  /// distance at once.
  WellModel(Wells& wells, ParameterAccess& parameters, QObject* parent = nullptr);

  /// Tells `keeper` of every change of the wells; null for nobody.
  void setKeeper(ChangeKeeper* keeper) { keeper_ = keeper; }

  /// The parameter `_number_of_wells`, read on every call, but never below 0; the positions are not
  /// consulted.
  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  /// The display role gives rates in [m³/h], the edit role in [m³/s]; all else is the same in both
  /// roles. A row without a point gives invalid coordinates and a line of debug output.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Takes coordinates in [m], rates in [m³/s] and temperature changes in [K], as numbers or as
  /// text in the C locale. Refuses null values, other roles than the edit role, rows without a
  /// point in the coordinate columns, and everything while not editable.
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  /// Sets one cell after the other as `setData` does, but looks for the largest distance and emits
  /// `updateGraphic` only once, with the last coordinate. Cells that do not exist are passed over.
  void setCells(const std::vector<Cell>& cells);

  /// Rate of a well in a demand period, in [m³/h] for the display role and [m³/s] for the edit
  /// role; see WellReader::rate.
  double stepRate(int well, int step, int role) const;
  /// Temperature change [K] of a well in a demand period; see WellReader::temperatureChange.
  double stepTemperatureChange(int well, int step, int role) const;
  /// Stores a rate [m³/s] for a demand period and emits nothing. False while not editable.
  bool setStepRate(int well, int step, double value);
  /// Stores a temperature change [K] for a demand period and emits nothing. False while not
  /// editable.
  bool setStepTemperatureChange(int well, int step, double value);

  /// Forgets all names, rates and temperature changes; the positions stay. Emits nothing.
  void clear();

  /// All wells stand where they were put on purpose, coordinates that nobody set included.
  void giveAllPlaces();

  /// While not editable every change is refused and no cell has flags. True at construction.
  bool isEditable() const { return editable_; }
  void setEditable(bool editable) { editable_ = editable; }

  /// The entries that were set, by row; a row without an entry has a derived value.
  const QMap<int, QString>& wellNames() const { return wells_.names; }
  const QMap<int, double>& wellRates() const { return wells_.rates; }
  const QMap<int, ByStep>& wellStepRates() const { return wells_.periodRates; }
  const QMap<int, double>& wellTemperatureChanges() const { return wells_.temperatureChanges; }
  const QMap<int, ByStep>& wellStepTemperatureChanges() const {
    return wells_.periodTemperatureChanges;
  }

signals:
  /// A well was moved.
  void updateGraphic();
  /// A mean annual rate was set.
  void ratesModified();

public slots:
  /// Tells the views that anything may have changed.
  void revert() override;
  /// Writes to `_d_min_used` the largest distance [m] between a withdrawal and an injection well,
  /// 0 if there is no such pair. A point beyond rowCount() has no rate and counts as injection.
  void calculateMinDistance();
  /// Takes over the places in `wells` and fits the entries to their number, `oldSize` being the
  /// former one; see Wells::fitEntries.
  void revert(QPolygonF& wells, int oldSize = 0);

private:
  WellReader reader() const;
  QVariant coordinate(int row, int column) const;

  Wells& wells_;
  bool editable_ = true;
  bool movesQuietly_ = false;
  ParameterAccess& parameters_;
  ChangeKeeper* keeper_ = nullptr;
};

} // namespace TVR
