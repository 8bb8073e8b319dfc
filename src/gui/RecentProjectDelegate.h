#pragma once

#include <QStyledItemDelegate>

namespace TVR::GUI {

/// Draws a project of a list in two lines: its title, and below it where its file lies.
class RecentProjectDelegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  /// What an item has beside its text.
  enum Role { PathRole = Qt::UserRole, TitleRole };

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace TVR::GUI
