#pragma once

#include <QScrollArea>

namespace TVR::GUI {

/// Scrolls what is longer than its page. Texts that are broken into lines get the height that they
/// need at the width that there is. Assistive technology may ask for a part of it that has just
/// gone, such as a scroll bar.
class PageScrollArea : public QScrollArea {
  Q_OBJECT

public:
  explicit PageScrollArea(QWidget* parent = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void giveHeight();
};

} // namespace TVR::GUI
