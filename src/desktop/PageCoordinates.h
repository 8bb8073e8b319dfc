#pragma once

#include <QEvent>
#include <QLabel>
#include <QPointer>

namespace TVR::Page {
class PageWindow;
}

namespace TVR::Desktop {

/// The place of the mouse on the map of the active page.
class PageCoordinates final : public QLabel {
  Q_OBJECT

public:
  explicit PageCoordinates(QWidget* parent = nullptr);

  /// From now on follows this page; none if it is null.
  void follow(Page::PageWindow* page);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void tell(double x, double y);

  QPointer<Page::PageWindow> page_;
};

} // namespace TVR::Desktop
