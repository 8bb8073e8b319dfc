#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace TVR::GUI {

/// A key for the widget that has the focus.
inline void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

inline void keys(const QString& text) {
  QTest::keyClicks(QApplication::focusWidget(), text);
}

/// Goes with the Tab key to the widget of this name; false if it cannot be reached.
inline bool tabTo(const QString& widget) {
  constexpr int most = 40;
  for (int i = 0; i < most; ++i) {
    if (QApplication::focusWidget()->objectName() == widget)
      return true;
    hit(Qt::Key_Tab);
  }
  return false;
}

} // namespace TVR::GUI
