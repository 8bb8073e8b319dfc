#pragma once

#include <QScrollArea>

namespace TVR::GUI {

/// Scrolls what is longer than its page. Texts that are broken into lines get the height that they
/// need at the width that there is.
class PageScrollArea : public QScrollArea {
  Q_OBJECT

public:
  using QScrollArea::QScrollArea;

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void giveHeight();
};

} // namespace TVR::GUI
