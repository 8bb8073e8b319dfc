#include "gui/wizard/PageScrollArea.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QLayout>

namespace TVR::GUI {

namespace {

/// What the library has for scroll areas reads beyond its list when it is asked for a child that it
/// no longer has.
QAccessibleInterface* accessibleScrollArea(const QString&, QObject* object) {
  auto* const area = qobject_cast<PageScrollArea*>(object);
  return area ? new QAccessibleWidget(area) : nullptr;
}

} // namespace

PageScrollArea::PageScrollArea(QWidget* parent) : QScrollArea(parent) {
  QAccessible::installFactory(accessibleScrollArea); // once, however often it is called
}

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
