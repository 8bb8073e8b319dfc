#include "gui/positions/PeriodsOfWell.h"

#include "tables/WellDemandModel.h"

namespace TVR::GUI {

PeriodsOfWell::PeriodsOfWell(WellDemandModel* wells, QObject* parent)
    : QSortFilterProxyModel(parent), wells_(wells) {
  setSourceModel(wells);
  setFilterRole(Qt::DisplayRole);
  setFilterKeyColumn(WellDemandModel::Name);
  setDynamicSortFilter(true);
  setFilterFixedString(QStringLiteral("-")); // in the name of no well that nobody named
}

void PeriodsOfWell::showWell(int well, const QString& name) {
  well_ = well;
  setFilterKeyColumn(WellDemandModel::Name);
  setFilterFixedString(name);
}

bool PeriodsOfWell::filterAcceptsRow(int row, const QModelIndex& parent) const {
  return well_ < 0 ? QSortFilterProxyModel::filterAcceptsRow(row, parent)
                   : wells_->wellAndStep(row).well == well_;
}

} // namespace TVR::GUI
