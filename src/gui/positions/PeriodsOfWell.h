#pragma once

#include <QSortFilterProxyModel>

namespace TVR {
class WellDemandModel;
}

namespace TVR::GUI {

/// The demand periods of one well: the rows of a WellDemandModel, its source, that belong to it.
/// Until a well is chosen, the rows that the filter string lets through.
class PeriodsOfWell : public QSortFilterProxyModel {
  Q_OBJECT

public:
  PeriodsOfWell(WellDemandModel* wells, QObject* parent);

  /// Shows the periods of the well in row `well` of the table of wells, whose name becomes the
  /// filter string. Its row decides: names may be alike, or be part of others.
  void showWell(int well, const QString& name);

protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
  const WellDemandModel* wells_;
  int well_ = -1;
};

} // namespace TVR::GUI
