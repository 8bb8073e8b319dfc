#pragma once

#include "project/ProjectTables.h"

#include <QAbstractTableModel>

namespace TVR {

class DemandModel;
class WellModel;

/// One row per well and demand period, the periods of a well one after the other: well name,
/// duration of the period, rate and temperature change of the well in it. Keeps nothing itself but
/// reads and writes the two models that it is given.
class WellDemandModel : public QAbstractTableModel {
  Q_OBJECT

public:
  using Column = WellDemandColumns::Column;
  using enum WellDemandColumns::Column;

  /// Row of the well model and row of the demand model that make up one row of this model.
  struct WellAndStep {
    int well;
    int step;
  };

  /// Neither model is owned; both must outlive this one. A reset of either resets this model.
  WellDemandModel(WellModel* wells, DemandModel* demand, QObject* parent = nullptr);

  /// Product of the row counts of the two models, at most the largest int.
  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  /// The display role gives durations in [h] and rates in [m³/h], the edit role in [s] and [m³/s].
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Takes durations in [s], rates in [m³/s] and temperature changes in [K], as numbers or as text
  /// in the C locale; what is no number counts as 0. Refuses the name column and other roles than
  /// the edit role.
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  /// For any row from 0 on, whether it is there or not.
  WellAndStep wellAndStep(int row) const;

public slots:
  /// Tells the views that anything may have changed.
  void resetModel();

private:
  WellModel* wellModel_;
  DemandModel* demandModel_;
};

} // namespace TVR
