#pragma once

#include <QAbstractItemModel>

namespace TVR {

/// The number that stands in a cell of a table for editing, not as it is shown; 0 where there is no
/// number.
inline double editNumber(const QAbstractItemModel& model, int row, int column) {
  return model.index(row, column).data(Qt::EditRole).toDouble();
}

} // namespace TVR
