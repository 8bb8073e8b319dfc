#pragma once

#include <QEvent>
#include <QWidget>

namespace TVR::Page {

/// Counts how often a widget is painted.
class CountedPaints : public QObject {
public:
  explicit CountedPaints(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    paints += event->type() == QEvent::Paint;
    return false;
  }
  int paints = 0;
};

} // namespace TVR::Page
