#pragma once

#include "project/Wells.h"

#include <QAbstractTableModel>

namespace TVR {

class ChangeKeeper;

/// One row per demand period of the year, with its duration in the only column: hours in the
/// display role, seconds in the edit role. Keeps nothing itself, but edits the durations [s] that
/// it is given; their sum need not be a year.
class DemandModel : public QAbstractTableModel {
  Q_OBJECT

public:
  /// Brings `durations`, which belong to the caller and must outlive the model, to `periods`.
  DemandModel(ByPeriod& durations, int periods, QObject* parent = nullptr);

  /// Tells `keeper` of every change of the periods; null for nobody.
  void setKeeper(ChangeKeeper* keeper) { keeper_ = keeper; }

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  /// A row that is gone has the duration 0.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Takes a duration in [s], as a number or as text in the C locale; what is no number counts as
  /// 0. Refuses other roles than the edit role. Emits `dataChanged`.
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  /// Durations [s] by demand period, keys 0 to rowCount() - 1.
  const ByPeriod& durations() const { return durations_; }

  /// Tells the views that anything may have changed.
  void refresh();

public slots:
  /// Sets the number of periods. Periods that remain keep their durations; each new one lasts a
  /// year divided by `size`. A size of 0 or less leaves no period.
  void resize(int size);

private:
  ByPeriod& durations_;
  ChangeKeeper* keeper_ = nullptr;
};

} // namespace TVR
