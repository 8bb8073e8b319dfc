#pragma once

#include <QAbstractTableModel>
#include <QMap>

namespace TVR {

/// One row per demand period of the year, with its duration in the only column: hours in the
/// display role, seconds in the edit role. Durations are kept in [s]; their sum need not be a year.
class DemandModel : public QAbstractTableModel {
  Q_OBJECT

public:
  /// Makes `periods` periods of equal length that add up to a year.
  explicit DemandModel(int periods, QObject* parent = nullptr);

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
  const QMap<int, double>& durations() const { return durations_; }

public slots:
  /// Sets the number of periods. Periods that remain keep their durations; each new one lasts a
  /// year divided by `size`. A size of 0 or less leaves no period.
  void resize(int size);

private:
  QMap<int, double> durations_;
};

} // namespace TVR
