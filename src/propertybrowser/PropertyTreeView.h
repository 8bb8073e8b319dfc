#pragma once

#include <QTreeView>

/// The view of a property tree. Keys, typing and clicks anywhere in a row mean its value, and the
/// way from one open editor to the next passes by what cannot be edited.
class PropertyTreeView final : public QTreeView {
  Q_OBJECT

public:
  explicit PropertyTreeView(QWidget* parent = nullptr);

protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  QModelIndex nextEditable(bool forwards) const;
};
