#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <vector>

namespace TVR::GUI {

/// A block of cells as spreadsheets put it on the clipboard: rows end with a line feed, with or
/// without a carriage return, and cells with a tabulator. A cell that holds one of these is in
/// quotes, with each quote within it doubled.
class CellBlock {
public:
  CellBlock() = default;
  /// Reads a text; never fails. A line feed at the end begins no further row, short rows are filled
  /// with empty cells, and quotes that do not enclose a cell are part of it.
  explicit CellBlock(const QString& text);

  int rows() const { return static_cast<int>(rows_.size()); }
  /// Of the widest row.
  int columns() const;
  const QString& cell(int row, int column) const { return rows_.at(row).at(column); }

  void addRow(const QStringList& cells) { rows_.push_back(cells); }
  /// The block as a spreadsheet reads it.
  QString text() const;

private:
  std::vector<QStringList> rows_;
};

/// What stands in a cell that should hold a number.
struct CellNumber {
  enum Fault { None, Empty, Grouped, NoNumber };
  Fault fault = None;
  double value = 0;
  QChar decimalMark; ///< null for a number that has none
};

/// Reads a number with a decimal point or comma. One with separators of thousands is not guessed
/// at, but `Grouped`.
CellNumber readNumber(const QString& cell);

/// All digits of a number, with a decimal point and without an exponent.
QString numberText(double value);

} // namespace TVR::GUI
