#include "propertybrowser/PropertyTreeView.h"

#include "propertybrowser/PropertyTreeModel.h"

#include <QKeyEvent>

namespace {

QModelIndex valueOf(const QModelIndex& index) {
  return index.siblingAtColumn(PropertyTreeModel::ValueColumn);
}

bool isReturn(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

PropertyTreeView::PropertyTreeView(QWidget* parent) : QTreeView(parent) {
  setSelectionBehavior(SelectRows);
  setUniformRowHeights(true);
  setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
}

bool PropertyTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  return QTreeView::edit(valueOf(index), trigger, event);
}

QModelIndex PropertyTreeView::nextEditable(bool forwards) const {
  QModelIndex index = currentIndex();
  do
    index = forwards ? indexBelow(index) : indexAbove(index);
  while (index.isValid() && !valueOf(index).flags().testFlag(Qt::ItemIsEditable));
  return valueOf(index);
}

QModelIndex PropertyTreeView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (action == MoveNext || action == MovePrevious)
    return nextEditable(action == MoveNext);
  return valueOf(QTreeView::moveCursor(action, modifiers));
}

void PropertyTreeView::keyPressEvent(QKeyEvent* event) {
  if (isReturn(*event) && state() != EditingState && edit(currentIndex(), EditKeyPressed, event)) {
    event->accept();
    return;
  }
  QTreeView::keyPressEvent(event);
}
