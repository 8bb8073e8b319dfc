#include "gui/RecentProjectDelegate.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace TVR::GUI {

namespace {

constexpr int padding = 6;
constexpr int iconSize = 28;
constexpr double faint = 0.75;

QFont titleFont(const QStyleOptionViewItem& option) {
  QFont font = option.font;
  font.setBold(true);
  return font;
}

/// A project without a title goes by the name of its file.
QString titleOf(const QModelIndex& index) {
  const QString title = index.data(RecentProjectDelegate::TitleRole).toString();
  return title.isEmpty()
             ? QFileInfo(index.data(RecentProjectDelegate::PathRole).toString()).fileName()
             : title;
}

} // namespace

void RecentProjectDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QStyle& style = *(item.widget ? item.widget->style() : QApplication::style());
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

  QRect area = item.rect.adjusted(padding, padding, -padding, -padding);
  const QRect picture(area.left(), area.center().y() - iconSize / 2, iconSize, iconSize);
  item.icon.paint(painter, picture);
  area.setLeft(picture.right() + padding);

  const QFont bold = titleFont(item);
  const QFontMetrics titleMetrics(bold);
  QRect line = area;
  line.setHeight(titleMetrics.height());
  painter->save();
  painter->setPen(item.palette.color(item.state & QStyle::State_Selected ? QPalette::HighlightedText
                                                                         : QPalette::Text));
  painter->setFont(bold);
  painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                    titleMetrics.elidedText(titleOf(index), Qt::ElideRight, line.width()));
  line.setRect(area.left(), line.bottom() + 1, area.width(), item.fontMetrics.height());
  painter->setOpacity(faint);
  painter->setFont(item.font);
  const QString path = QDir::toNativeSeparators(index.data(PathRole).toString());
  painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                    item.fontMetrics.elidedText(path, Qt::ElideMiddle, line.width()));
  painter->restore();
}

QSize RecentProjectDelegate::sizeHint(const QStyleOptionViewItem& option,
                                      const QModelIndex&) const {
  const int text = QFontMetrics(titleFont(option)).height() + option.fontMetrics.height();
  return {0, qMax(text, iconSize) + 2 * padding};
}

} // namespace TVR::GUI
