#pragma once

#include <QAbstractTableModel>
#include <QMap>
#include <QPolygonF>
#include <QSet>
#include <QString>
#include <QVariant>

#include <vector>

namespace TVR {

class ParameterAccess;

/// One row per well: name, position [m], mean annual rate and temperature change [K].
/// Rates are kept in [m³/s], positive into the aquifer: a negative rate makes a withdrawal well,
/// any other an injection well. What the user has not set is derived from the parameters, with the
/// first half of the rows as withdrawal wells. Changes emit `updateGraphic` or `ratesModified`,
/// never `dataChanged`. User interface thread only.
class WellModel : public QAbstractTableModel {
  Q_OBJECT

public:
  enum Column { Name, X, Y, Rate, TemperatureChange, ColumnCount };
  /// Values of one quantity by demand period.
  using ByStep = QMap<int, double>;

  /// `wells` holds one point per well and is edited in place; it and `parameters` belong to the
  /// caller and must outlive the model. Writes the used well distance at once.
  WellModel(QPolygonF& wells, ParameterAccess& parameters, QObject* parent = nullptr);

  /// The parameter `_number_of_wells`, read on every call, but never below 0; the polygon is not
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

  /// The value of one cell, as `setData` takes it with the edit role.
  struct Cell {
    int row;
    int column;
    QVariant value;
  };
  /// Sets one cell after the other as `setData` does, but looks for the largest distance and emits
  /// `updateGraphic` only once, with the last coordinate. Cells that do not exist are passed over.
  void setCells(const std::vector<Cell>& cells);

  /// Rate of a well in a demand period, in [m³/h] for the display role and [m³/s] for the edit
  /// role. Without an entry the first period has the mean annual rate, all further ones 0; a well
  /// beyond rowCount() has no mean annual rate, so that its first period has 0 as well.
  double stepRate(int well, int step, int role) const;
  /// Temperature change [K] of a well in a demand period; 0 while the well withdraws, and for a
  /// well beyond rowCount() for which no period was set.
  double stepTemperatureChange(int well, int step, int role) const;
  /// Stores a rate [m³/s] for a demand period and emits nothing. False while not editable.
  bool setStepRate(int well, int step, double value);
  /// Stores a temperature change [K] for a demand period and emits nothing. False while not
  /// editable.
  bool setStepTemperatureChange(int well, int step, double value);

  /// Forgets all names, rates and temperature changes; the positions stay. Emits nothing.
  void clear();

  /// Whether this well was given its place, by a file or by the user. Any other well
  /// stands where the program put it, and may be moved by it.
  bool hasGivenPlace(int row) const { return givenPlaces_.contains(row); }
  /// All wells stand where they were put on purpose, coordinates that nobody set included.
  void giveAllPlaces();
  /// The wells from this row on, if there are any, stand where the program put them.
  void forgetGivenPlaces(int firstRow);

  /// While not editable every change is refused and no cell has flags. True at construction.
  bool isEditable() const { return editable_; }
  void setEditable(bool editable) { editable_ = editable; }

  /// The entries that were set, by row; a row without an entry has a derived value.
  const QMap<int, QString>& wellNames() const { return wellNames_; }
  const QMap<int, double>& wellRates() const { return wellRates_; }
  const QMap<int, ByStep>& wellStepRates() const { return wellStepRates_; }
  const QMap<int, double>& wellTemperatureChanges() const { return wellTemperatureChanges_; }
  const QMap<int, ByStep>& wellStepTemperatureChanges() const {
    return wellStepTemperatureChanges_;
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
  /// Takes over `wells` and fits the entries to the new number of rows, `oldSize` being the former
  /// one. Entries keep their row; rows that are lost lose their entries. On growing, an entry at
  /// `oldSize` moves to the key behind the last row; for the names an empty or missing one removes
  /// the entry there.
  void revert(QPolygonF& wells, int oldSize = 0);

private:
  int numberOfWells() const;
  QVariant coordinate(int row, int column) const;
  double rate(int row) const;
  double temperatureChange(int row) const;

  QMap<int, QString> wellNames_;
  QPolygonF* wellPositions_;
  QMap<int, double> wellRates_;
  QMap<int, ByStep> wellStepRates_;
  QMap<int, double> wellTemperatureChanges_;
  QMap<int, ByStep> wellStepTemperatureChanges_;
  QSet<int> givenPlaces_;
  bool editable_ = true;
  bool movesQuietly_ = false;
  ParameterAccess& parameters_;
};

} // namespace TVR
