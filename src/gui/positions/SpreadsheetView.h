#pragma once

#include "gui/positions/CellPaste.h"

#include <QTableView>
#include <QVariant>

namespace TVR::GUI {

/// A table that is used by keyboard as a spreadsheet is. Enter takes what was typed and goes down,
/// Tab to the next cell and behind the last one out of the table, Ctrl+Tab out of it at once; the
/// arrows move, up and down also while a cell is edited. A drag of the mouse selects a block.
/// Ctrl+C copies the selected cells as they are shown, with a decimal point, and Ctrl+V pastes a
/// block from the first of them on: all of it, or nothing. An editor in which nothing was typed
/// writes nothing.
class SpreadsheetView : public QTableView {
  Q_OBJECT

public:
  /// Sets cells by row and column of the table's own model, not of one that filters it.
  using Writer = std::function<void(const std::vector<TableCell>& cells)>;

  explicit SpreadsheetView(QWidget* parent = nullptr);

  /// Without a writer nothing can be pasted.
  void pasteBy(Writer writer, RowAdvice advice);
  /// Makes all columns as wide as what is in them, with headings of several lines.
  void fitColumns();
  /// Shows the values of the models again, also in an editor in which nothing was typed.
  void refresh();

signals:
  /// Nothing of what was asked for was done; `reason` is plain text for the user.
  void refused(const QString& reason);
  /// A block was pasted.
  void pasted();

protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

protected slots:
  void commitData(QWidget* editor) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
  bool handleEditorKey(QWidget& editor, QKeyEvent& event);
  bool handleTableKey(const QKeyEvent& event);
  bool leavesBy(const QKeyEvent& event);
  bool leave(bool forward);
  bool isLastCell(bool forward);
  void finishEditing();
  /// The cell at a place of the viewport, or next to it where it is seen no more.
  QModelIndex cellTowards(const QPoint& place) const;
  /// The upper left corner of what is selected, or else the current cell.
  QModelIndex firstSelected() const;
  void dropEditing();
  void copy();
  void paste();

  Writer writer_;
  RowAdvice advice_;
  QPersistentModelIndex edited_;
  QVariant untouched_; ///< what the editor showed before anything was typed
};

} // namespace TVR::GUI
