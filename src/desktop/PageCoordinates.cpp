#include "desktop/PageCoordinates.h"

#include "page/window/PageWindow.h"

namespace TVR::Desktop {

PageCoordinates::PageCoordinates(QWidget* parent) : QLabel(parent) {
  setObjectName("coordinates");
  setAlignment(Qt::AlignCenter);
  setMinimumWidth(fontMetrics().horizontalAdvance("X 0000000.00   Y 0000000.00"));
}

void PageCoordinates::follow(Page::PageWindow* page) {
  if (page_ == page)
    return;
  if (page_) {
    page_->disconnect(this);
    page_->removeEventFilter(this);
  }
  page_ = page;
  clear();
  if (!page_)
    return;
  connect(page_, &Page::PageWindow::currentCoordinates, this,
          [this](double x, double y) { tell(x, y); });
  page_->installEventFilter(this);
}

void PageCoordinates::tell(double x, double y) {
  setText(tr("X %1   Y %2").arg(x, 0, 'f', 2).arg(y, 0, 'f', 2));
}

bool PageCoordinates::eventFilter(QObject* watched, QEvent* event) {
  if (watched == page_ && event->type() == QEvent::Leave)
    clear();
  return QLabel::eventFilter(watched, event);
}

} // namespace TVR::Desktop
