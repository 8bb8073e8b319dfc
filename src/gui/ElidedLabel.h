#pragma once

#include <QLabel>

namespace TVR::GUI {

/// A line of plain text that leaves out its middle where there is no room for all of it, such as
/// the name of a file in a narrow panel. The whole text is its tool tip.
class ElidedLabel : public QLabel {
  Q_OBJECT

public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override;

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

} // namespace TVR::GUI
