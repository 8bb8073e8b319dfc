#pragma once

#include "gui/delegates/QuantityDelegate.h"

class QAbstractItemView;

namespace TVR {

/// Shows and edits the table of wells by demand period (WellDemandModel): durations in hours, days
/// or months, rates in l/min, temperature changes in K.
class WellDemandModelDelegate : public QuantityDelegate {
  Q_OBJECT

public:
  /// The actions of `viewOfUnits` choose the unit of durations: the data of each is "h", "d" or
  /// "M". Null for a view without them; else it outlives the delegate.
  WellDemandModelDelegate(QObject* parent, QAbstractItemView* viewOfUnits);

  std::optional<CellQuantity> quantity(int column) const override;

public slots:
  /// To be connected with `toggled` of the view's actions: the sender's unit from now on, if
  /// `checked`; all other actions lose their check mark.
  void timeUnitChanged(bool checked);

private:
  QAbstractItemView* view;
  QString timeUnit = QStringLiteral("h");
  double timeUnitSeconds;
};

} // namespace TVR
