#include "gui/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace TVR::GUI {

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("…")), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip)
    return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect area = contentsRect();
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width());
  style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                        shown, foregroundRole());
}

} // namespace TVR::GUI
