#include "gui/positions/CellPaste.h"

#include "gui/delegates/QuantityDelegate.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QRect>
#include <QTableView>

#include <algorithm>
#include <optional>

namespace TVR::GUI {

namespace {

struct Text {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::CellPaste)
};

std::vector<int> visibleColumns(const QTableView& view) {
  std::vector<int> columns;
  for (int place = 0; place < view.horizontalHeader()->count(); ++place)
    if (const int column = view.horizontalHeader()->logicalIndex(place);
        !view.isColumnHidden(column))
      columns.push_back(column);
  return columns;
}

std::optional<CellQuantity> quantityOf(const QTableView& view, int column) {
  const auto* const delegate = qobject_cast<const QuantityDelegate*>(view.itemDelegate());
  return delegate ? delegate->quantity(column) : std::nullopt;
}

bool holdsText(const QModelIndex& index) {
  return index.data(Qt::EditRole).userType() == QMetaType::QString;
}

QString textOf(const QModelIndex& index, const std::optional<CellQuantity>& quantity) {
  if (holdsText(index))
    return index.data(Qt::EditRole).toString();
  if (!quantity)
    return numberText(index.data(Qt::EditRole).toDouble());
  if (quantity->ofInjection && !index.flags().testFlag(Qt::ItemIsEditable))
    return {};
  return numberText(quantity->shown(index.data(quantity->role).toDouble()));
}

/// Reads the cells of a block one after the other, up to the first that cannot be taken.
class PasteReader {
public:
  explicit PasteReader(const QTableView& view) : view_(view) {}

  /// What is wrong with the text of a cell; empty if its value has been taken.
  QString take(const QModelIndex& index, const QString& text) {
    const auto quantity = quantityOf(view_, index.column());
    if (quantity && quantity->ofInjection && !injects(index))
      return lacksAnything(text)
                 ? QString()
                 : Text::tr("a withdrawal well has no temperature change. Leave the cell empty.");
    if (!index.flags().testFlag(Qt::ItemIsEditable) && !(quantity && quantity->ofInjection))
      return text.trimmed() == textOf(index, quantity)
                 ? QString()
                 : Text::tr("the cell cannot be changed here.");
    if (holdsText(index))
      return takeName(index, text);
    return takeNumber(index, text, quantity);
  }

  const std::vector<TableCell>& cells() const { return cells_; }

private:
  static bool lacksAnything(const QString& text) {
    const CellNumber number = readNumber(text);
    return number.fault == CellNumber::Empty ||
           (number.fault == CellNumber::None && number.value == 0);
  }

  /// Whether a well injects once the rate before this cell has been pasted.
  bool injects(const QModelIndex& index) const {
    if (!cells_.empty() && cells_.back().row == index.row() &&
        cells_.back().column == index.column() - 1)
      return cells_.back().value.toDouble() >= 0.0;
    return index.flags().testFlag(Qt::ItemIsEditable);
  }

  QString takeName(const QModelIndex& index, const QString& text) {
    const QString name = text.simplified();
    if (name.isEmpty())
      return Text::tr("the name is empty.");
    cells_.push_back({index.row(), index.column(), name});
    return {};
  }

  QString takeNumber(const QModelIndex& index, const QString& text,
                     const std::optional<CellQuantity>& quantity) {
    const CellNumber number = readNumber(text);
    if (const QString fault = faultOf(number, text); !fault.isEmpty())
      return fault;
    if (quantity && ((quantity->minimum && number.value < *quantity->minimum) ||
                     (quantity->maximum && number.value > *quantity->maximum)))
      return rangeFault(*quantity, text);
    const QVariant present = index.data(Qt::EditRole);
    const bool isShown =
        present.isValid() && readNumber(textOf(index, quantity)).value == number.value;
    const double value = quantity ? quantity->stored(number.value) : number.value;
    cells_.push_back({index.row(), index.column(), isShown ? present : QVariant(value)});
    return {};
  }

  QString faultOf(const CellNumber& number, const QString& text) {
    const QString shown = text.simplified();
    switch (number.fault) {
    case CellNumber::Empty:
      return Text::tr("a number is missing.");
    case CellNumber::Grouped:
      return Text::tr("\"%1\" has separators of thousands. Copy it without them.").arg(shown);
    case CellNumber::NoNumber:
      return Text::tr("\"%1\" is no number.").arg(shown);
    case CellNumber::None:
      break;
    }
    if (decimalMark_.isNull())
      decimalMark_ = number.decimalMark;
    if (!number.decimalMark.isNull() && number.decimalMark != decimalMark_)
      return Text::tr("\"%1\" has another decimal mark than the cells before it.").arg(shown);
    return {};
  }

  static QString rangeFault(const CellQuantity& quantity, const QString& text) {
    const QString shown = text.simplified();
    if (!quantity.maximum)
      return Text::tr("\"%1\" is below %2 %3.")
          .arg(shown, numberText(*quantity.minimum), quantity.unit);
    return Text::tr("\"%1\" is not between %2 and %3 %4.")
        .arg(shown, numberText(*quantity.minimum), numberText(*quantity.maximum), quantity.unit);
  }

  const QTableView& view_;
  std::vector<TableCell> cells_;
  QChar decimalMark_;
};

} // namespace

CellPaste pasteOf(const CellBlock& block, const QTableView& view, const QModelIndex& start,
                  const RowAdvice& advice) {
  if (block.rows() == 0)
    return {{}, Text::tr("There is no text to paste.")};
  if (!start.isValid())
    return {{}, Text::tr("Choose the cell where the block begins first.")};
  const std::vector<int> columns = visibleColumns(view);
  const auto first = std::find(columns.begin(), columns.end(), start.column());
  const int columnsLeft = static_cast<int>(columns.end() - first);
  if (block.columns() > columnsLeft)
    return {{},
            Text::tr("The block has %1 columns, but from the chosen cell on there are %2.")
                .arg(block.columns())
                .arg(columnsLeft)};
  if (const int rows = start.row() + block.rows(); rows > view.model()->rowCount())
    return {{}, advice(rows)};

  PasteReader reader(view);
  for (int row = 0; row < block.rows(); ++row)
    for (int column = 0; column < block.columns(); ++column) {
      const QModelIndex index = start.sibling(start.row() + row, *(first + column));
      const QString fault = reader.take(index, block.cell(row, column));
      if (!fault.isEmpty())
        return {
            {},
            Text::tr("Row %1, column \"%2\": %3")
                .arg(index.row() + 1)
                .arg(view.model()->headerData(index.column(), Qt::Horizontal).toString(), fault)};
    }
  return {reader.cells(), {}};
}

CellBlock selectedCells(const QTableView& view) {
  const QModelIndexList selected = view.selectionModel()->selectedIndexes();
  CellBlock block;
  if (selected.isEmpty())
    return block;
  QRect around;
  for (const QModelIndex& index : selected)
    around |= QRect(index.column(), index.row(), 1, 1);
  for (int row = around.top(); row <= around.bottom(); ++row) {
    QStringList cells;
    for (const int column : visibleColumns(view)) {
      const QModelIndex index = view.model()->index(row, column);
      if (column >= around.left() && column <= around.right())
        cells << (selected.contains(index) ? textOf(index, quantityOf(view, column)) : QString());
    }
    block.addRow(cells);
  }
  return block;
}

} // namespace TVR::GUI
