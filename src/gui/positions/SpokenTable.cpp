#include "gui/positions/SpokenTable.h"

#include "gui/delegates/QuantityDelegate.h"

#include <QPointer>
#include <QTableView>

#include <utility>

namespace TVR::GUI {

namespace {

constexpr int heading = -1; ///< as row or column

QAbstractItemModel* modelOf(const QTableView* view) {
  return view ? view->model() : nullptr;
}

/// What a cell shows.
QString shownText(const QTableView& view, const QModelIndex& index) {
  const auto* const delegate = qobject_cast<const QuantityDelegate*>(view.itemDelegate());
  return delegate ? delegate->shownText(index) : index.data().toString();
}

/// A cell of a table, or the heading of a column or row.
class SpokenCell final : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
  SpokenCell(QTableView& view, int row, int column) : view_(&view), row_(row), column_(column) {}

  bool isValid() const override {
    const QAbstractItemModel* const model = modelOf(view_);
    return model && row_ < model->rowCount() && column_ < model->columnCount();
  }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(view_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !isValid())
      return {};
    if (!isHeading())
      return shownText(*view_, index());
    const auto orientation = row_ == heading ? Qt::Horizontal : Qt::Vertical;
    const int section = row_ == heading ? column_ : row_;
    return section == heading ? QString()
                              : view_->model()->headerData(section, orientation).toString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    if (!isValid() || isHeading())
      return {};
    const QRect place = view_->visualRect(index());
    return {view_->viewport()->mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override {
    if (!isHeading())
      return QAccessible::Cell;
    return row_ == heading ? QAccessible::ColumnHeader : QAccessible::RowHeader;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid || isHeading())
      return state;
    const Qt::ItemFlags flags = index().flags();
    state.selectable = flags.testFlag(Qt::ItemIsSelectable);
    state.editable = flags.testFlag(Qt::ItemIsEditable);
    state.selected = isSelected();
    state.focusable = true;
    state.focused = view_->hasFocus() && view_->currentIndex() == index();
    state.offscreen = !view_->viewport()->rect().intersects(view_->visualRect(index()));
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool isCell = type == QAccessible::TableCellInterface && !isHeading();
    return isCell ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
  }

  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return row_; }
  bool isSelected() const override {
    return isValid() && view_->selectionModel()->isSelected(index());
  }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    return isValid() ? QList{parent()->child(column_ + 1)} : QList<QAccessibleInterface*>();
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  QAccessibleInterface* table() const override { return parent(); }

private:
  bool isHeading() const { return row_ == heading || column_ == heading; }
  QModelIndex index() const { return view_->model()->index(row_, column_); }

  const QPointer<QTableView> view_;
  const int row_;
  const int column_;
};

} // namespace

SpokenTable::SpokenTable(QTableView* view)
    : QAccessibleWidget(view, QAccessible::Table), view_(*view) {}

SpokenTable::~SpokenTable() {
  forgetCells();
}

void SpokenTable::forgetCells() {
  for (const QAccessible::Id id : std::as_const(cells_))
    QAccessible::deleteAccessibleInterface(id);
  cells_.clear();
}

void* SpokenTable::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                             : QAccessibleWidget::interface_cast(type);
}

int SpokenTable::rowCount() const {
  return view_.model() ? view_.model()->rowCount() : 0;
}

int SpokenTable::columnCount() const {
  return view_.model() ? view_.model()->columnCount() : 0;
}

int SpokenTable::childCount() const {
  return (rowCount() + 1) * (columnCount() + 1);
}

QAccessibleInterface* SpokenTable::child(int index) const {
  if (index < 0 || index >= childCount() || !view_.model())
    return nullptr;
  if (!cells_.contains(index)) {
    const int columns = columnCount() + 1;
    auto* const cell = new SpokenCell(view_, index / columns - 1, index % columns - 1);
    // The library owns it from now on. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    cells_.insert(index, QAccessible::registerAccessibleInterface(cell));
  }
  return QAccessible::accessibleInterface(cells_.value(index));
}

int SpokenTable::indexOfChild(const QAccessibleInterface* child) const {
  return child ? cells_.key(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child)), -1)
               : -1;
}

QAccessibleInterface* SpokenTable::childAt(int x, int y) const {
  const QModelIndex index = view_.indexAt(view_.viewport()->mapFromGlobal({x, y}));
  return index.isValid() ? cellAt(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* SpokenTable::cellAt(int row, int column) const {
  const bool isThere = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
  return isThere ? child((row + 1) * (columnCount() + 1) + column + 1) : nullptr;
}

QString SpokenTable::columnDescription(int column) const {
  return view_.model() ? view_.model()->headerData(column, Qt::Horizontal).toString() : QString();
}

QString SpokenTable::rowDescription(int row) const {
  return view_.model() ? view_.model()->headerData(row, Qt::Vertical).toString() : QString();
}

int SpokenTable::selectedCellCount() const {
  return view_.selectionModel() ? view_.selectionModel()->selectedIndexes().size() : 0;
}

QList<QAccessibleInterface*> SpokenTable::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  if (view_.selectionModel())
    for (const QModelIndex& index : view_.selectionModel()->selectedIndexes())
      cells << cellAt(index.row(), index.column());
  return cells;
}

QList<int> SpokenTable::selectedColumns() const {
  QList<int> columns;
  for (int column = 0; view_.selectionModel() && column < columnCount(); ++column)
    if (view_.selectionModel()->isColumnSelected(column, {}))
      columns << column;
  return columns;
}

QList<int> SpokenTable::selectedRows() const {
  QList<int> rows;
  for (int row = 0; view_.selectionModel() && row < rowCount(); ++row)
    if (view_.selectionModel()->isRowSelected(row, {}))
      rows << row;
  return rows;
}

void SpokenTable::modelChange(QAccessibleTableModelChangeEvent* event) {
  if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
    forgetCells();
}

} // namespace TVR::GUI
