#pragma once

#include <QLabel>
#include <QPointer>
#include <QProgressBar>

namespace TVR {

/// The widgets that show how an interactive run goes on: a line of text, a bar for the work at hand
/// and one for the output times, and the button that ends the run. Each may be null. None is owned.
struct ProgressPanel {
  QPointer<QLabel> message;
  QPointer<QProgressBar> work;
  QPointer<QProgressBar> outputTimes;
  QPointer<QWidget> stopButton;

  void setVisible(bool visible) const {
    for (QWidget* widget : {static_cast<QWidget*>(message.data()), stopButton.data()})
      if (widget)
        widget->setVisible(visible);
    setBarsVisible(visible);
  }
  static void setRange(QProgressBar* bar, int maximum) {
    if (bar)
      bar->setRange(0, maximum);
  }
  static void reset(QProgressBar* bar) {
    if (bar)
      bar->reset();
  }
  void setBarsVisible(bool visible) const {
    for (QProgressBar* bar : {work.data(), outputTimes.data()})
      if (bar)
        bar->setVisible(visible);
  }
};

} // namespace TVR
