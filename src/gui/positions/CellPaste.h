#pragma once

#include "gui/positions/CellBlock.h"
#include "project/ProjectTables.h"

#include <QString>

#include <functional>
#include <vector>

class QModelIndex;
class QTableView;

namespace TVR::GUI {

/// What a pasted block would set: values in the edit role, by row and column of the view's model;
/// or why nothing of it can be, as plain text that names the cell.
struct CellPaste {
  std::vector<TableCell> cells;
  QString refusal;
};

/// What to do where a table has too few rows, for the number of rows that it should have.
using RowAdvice = std::function<QString(int rows)>;

/// Lays a block over the visible columns of a view, from `start` on, with numbers in the units that
/// its delegate shows. A number that a cell shows already stands for the value in it, with all its
/// digits. Changes nothing.
CellPaste pasteOf(const CellBlock& block, const QTableView& view, const QModelIndex& start,
                  const RowAdvice& advice);

/// The selected cells of a view as it shows them, within the smallest block around them.
CellBlock selectedCells(const QTableView& view);

} // namespace TVR::GUI
