#include "gui/positions/SpreadsheetView.h"

#include "gui/positions/SpokenTable.h"

#include <QAbstractProxyModel>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMetaProperty>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace TVR::GUI {

namespace {

QVariant typedIn(const QWidget& editor) {
  return editor.property(editor.metaObject()->userProperty().name());
}

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
}

bool isVerticalMove(const QKeyEvent& event) {
  switch (event.key()) {
  case Qt::Key_Up:
  case Qt::Key_Down:
  case Qt::Key_PageUp:
  case Qt::Key_PageDown:
    return true;
  default:
    return false;
  }
}

QAccessibleInterface* spokenTable(const QString& /*className*/, QObject* object) {
  auto* const view = qobject_cast<SpreadsheetView*>(object);
  return view ? new SpokenTable(view) : nullptr;
}

bool holdsSeveralCells(const QString& text) {
  const CellBlock block(text);
  return block.rows() > 1 || block.columns() > 1;
}

} // namespace

SpreadsheetView::SpreadsheetView(QWidget* parent) : QTableView(parent) {
  QLocale plain = QLocale::c(); // numbers have a point in every language
  plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
  setLocale(plain);
  QAccessible::installFactory(spokenTable); // once, however often it is called
}

void SpreadsheetView::pasteBy(Writer writer, RowAdvice advice) {
  writer_ = std::move(writer);
  advice_ = std::move(advice);
}

bool SpreadsheetView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  QWidget* const before = indexWidget(index);
  const bool isEdited = QTableView::edit(index, trigger, event);
  QWidget* const editor = indexWidget(index);
  if (editor && editor != before) {
    editor->installEventFilter(this);
    edited_ = index;
    // The key that opens an editor is typed in it at once.
    untouched_ = trigger == AnyKeyPressed ? QVariant() : typedIn(*editor);
  }
  return isEdited;
}

void SpreadsheetView::commitData(QWidget* editor) {
  if (auto* const box = qobject_cast<QAbstractSpinBox*>(editor))
    box->interpretText();
  if (edited_.isValid() && typedIn(*editor) == untouched_)
    return;
  QTableView::commitData(editor);
  viewport()->update(); // the models do not tell of what depends on the cell
}

void SpreadsheetView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  const bool isForward = hint == QAbstractItemDelegate::EditNextItem;
  const bool isTab = isForward || hint == QAbstractItemDelegate::EditPreviousItem;
  const bool leaves = isTab && isLastCell(isForward);
  // To revert what the model has not stored yet would be to lose the current cell for nothing.
  const bool keepsCell = leaves || hint == QAbstractItemDelegate::RevertModelCache;
  QTableView::closeEditor(editor, keepsCell ? QAbstractItemDelegate::NoHint : hint);
  if (leaves)
    leave(isForward);
  else if (hint == QAbstractItemDelegate::SubmitModelCache)
    setCurrentIndex(moveCursor(MoveDown, Qt::NoModifier));
}

void SpreadsheetView::fitColumns() {
  QHeaderView& header = *horizontalHeader();
  header.setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
  QFont font = header.font();
  font.setBold(true); // as it is above selected cells
  const QFontMetrics metrics(font);
  const int margin = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header) + 4;
  const auto heading = [this](int column) {
    return model()->headerData(column, Qt::Horizontal).toString();
  };
  const auto widestWord = [&](int column) {
    int widest = 0;
    for (const QString& word : heading(column).split(' '))
      widest = std::max(widest, metrics.horizontalAdvance(word));
    return widest + margin;
  };
  int height = 0;
  header.setMinimumSectionSize(widestWord(model()->columnCount() - 1)); // it may get no more
  for (int column = 0; column < model()->columnCount(); ++column) {
    const int width =
        std::max({sizeHintForColumn(column) + 1, widestWord(column), header.minimumSectionSize()});
    setColumnWidth(column, width);
    const QRect room(0, 0, width - margin, maximumHeight());
    height = std::max(
        height, metrics.boundingRect(room, Qt::TextWordWrap, heading(column)).height() + margin);
  }
  header.setFixedHeight(height);
}

void SpreadsheetView::refresh() {
  QWidget* const editor = edited_.isValid() ? indexWidget(edited_) : nullptr;
  if (editor && typedIn(*editor) == untouched_) {
    itemDelegate()->setEditorData(editor, edited_);
    untouched_ = typedIn(*editor);
  }
  viewport()->update();
}

bool SpreadsheetView::isLastCell(bool forward) {
  const QModelIndex next = moveCursor(forward ? MoveNext : MovePrevious, Qt::NoModifier);
  const QModelIndex present = currentIndex();
  // Behind the last cell the base class goes on with the first one.
  return !next.isValid() || next == present ||
         (forward ? next.row() < present.row() : next.row() > present.row());
}

bool SpreadsheetView::focusNextPrevChild(bool next) {
  return isLastCell(next) ? leave(next) : QTableView::focusNextPrevChild(next);
}

bool SpreadsheetView::leave(bool forward) {
  setTabKeyNavigation(false);
  const bool hasLeft = QTableView::focusNextPrevChild(forward);
  setTabKeyNavigation(true);
  return hasLeft;
}

bool SpreadsheetView::leavesBy(const QKeyEvent& event) {
  if (!event.modifiers().testFlag(Qt::ControlModifier) ||
      (event.key() != Qt::Key_Tab && event.key() != Qt::Key_Backtab))
    return false;
  finishEditing();
  leave(event.key() == Qt::Key_Tab);
  return true;
}

void SpreadsheetView::finishEditing() {
  if (QWidget* const editor = edited_.isValid() ? indexWidget(edited_) : nullptr) {
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
  }
}

void SpreadsheetView::dropEditing() {
  if (QWidget* const editor = edited_.isValid() ? indexWidget(edited_) : nullptr)
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool SpreadsheetView::eventFilter(QObject* object, QEvent* event) {
  auto* const editor = qobject_cast<QWidget*>(object);
  const bool isOfEditor = editor && edited_.isValid() && editor == indexWidget(edited_);
  if (isOfEditor && event->type() == QEvent::KeyPress &&
      handleEditorKey(*editor, static_cast<QKeyEvent&>(*event)))
    return true;
  return QTableView::eventFilter(object, event);
}

bool SpreadsheetView::handleEditorKey(QWidget& editor, QKeyEvent& event) {
  if (leavesBy(event))
    return true;
  if (isVerticalMove(event)) {
    finishEditing();
    QTableView::keyPressEvent(&event);
    return true;
  }
  if (event.text() == "," && qobject_cast<QAbstractSpinBox*>(&editor)) {
    // Refused, it would leave a number behind that is a hundred times larger.
    QKeyEvent point(event.type(), Qt::Key_Period, event.modifiers(), ".");
    QApplication::sendEvent(&editor, &point);
    return true;
  }
  // A name is a text of its own; numbers are copied and pasted by the rules of the table.
  const bool isName = qobject_cast<QLineEdit*>(&editor) != nullptr;
  if (event.matches(QKeySequence::Copy) &&
      (!isName || selectionModel()->selectedIndexes().size() > 1)) {
    copy();
    return true;
  }
  if (event.matches(QKeySequence::Paste) &&
      (!isName || holdsSeveralCells(QApplication::clipboard()->text()))) {
    paste();
    return true;
  }
  return false;
}

bool SpreadsheetView::handleTableKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy))
    copy();
  else if (event.matches(QKeySequence::Paste))
    paste();
  else if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace)
    emit refused(tr("A cell cannot be emptied. Type another value instead."));
  else if (isEnter(event))
    setCurrentIndex(moveCursor(MoveDown, Qt::NoModifier));
  else
    return false;
  return true;
}

void SpreadsheetView::keyPressEvent(QKeyEvent* event) {
  if (leavesBy(*event) || (state() == EditingState && isEnter(*event)))
    return;
  if (state() == EditingState || !handleTableKey(*event))
    QTableView::keyPressEvent(event);
}

QModelIndex SpreadsheetView::cellTowards(const QPoint& place) const {
  const QRect seen = viewport()->rect();
  const QModelIndex nearest =
      indexAt({qBound(0, place.x(), seen.right()), qBound(0, place.y(), seen.bottom())});
  const int further = place.y() > seen.bottom() ? 1 : place.y() < 0 ? -1 : 0;
  const QModelIndex hidden = nearest.sibling(nearest.row() + further, nearest.column());
  return hidden.isValid() ? hidden : nearest;
}

void SpreadsheetView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    QTableView::mouseMoveEvent(event);
    return;
  }
  // The press has opened an editor, and each cell on the way would open one as it became current.
  const QModelIndex begin = currentIndex();
  const QModelIndex end = cellTowards(event->pos());
  const bool isAtPress = end == begin && selectionModel()->selectedIndexes().size() <= 1;
  if (!begin.isValid() || !end.isValid() || isAtPress)
    return;
  finishEditing();
  selectionModel()->select({begin, end}, QItemSelectionModel::ClearAndSelect);
  scrollTo(end);
}

void SpreadsheetView::copy() {
  finishEditing();
  QApplication::clipboard()->setText(selectedCells(*this).text());
}

QModelIndex SpreadsheetView::firstSelected() const {
  QModelIndex first = currentIndex();
  for (const QModelIndex& cell : selectionModel()->selectedIndexes())
    first =
        model()->index(std::min(first.row(), cell.row()), std::min(first.column(), cell.column()));
  return first;
}

void SpreadsheetView::paste() {
  dropEditing();
  if (!writer_ || !model())
    return;
  const CellPaste block =
      pasteOf(CellBlock(QApplication::clipboard()->text()), *this, firstSelected(), advice_);
  if (!block.refusal.isEmpty()) {
    emit refused(tr("Nothing was pasted. %1").arg(block.refusal));
    return;
  }
  std::vector<TableCell> cells = block.cells;
  if (const auto* const filter = qobject_cast<QAbstractProxyModel*>(model()))
    for (TableCell& cell : cells)
      cell.row = filter->mapToSource(filter->index(cell.row, cell.column)).row();
  writer_(cells);
  viewport()->update();
  emit pasted();
}

} // namespace TVR::GUI
