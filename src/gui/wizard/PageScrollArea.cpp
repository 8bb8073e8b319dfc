#include "gui/wizard/PageScrollArea.h"

#include <QEvent>
#include <QLayout>

namespace TVR::GUI {

bool PageScrollArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest)
    giveHeight();
  return QScrollArea::eventFilter(watched, event);
}

void PageScrollArea::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  giveHeight();
}

void PageScrollArea::giveHeight() {
  if (!widget() || !widget()->layout() || !widget()->layout()->hasHeightForWidth())
    return;
  const int height = widget()->layout()->totalHeightForWidth(viewport()->width());
  if (widget()->minimumHeight() != height)
    widget()->setMinimumHeight(height);
}

} // namespace TVR::GUI
