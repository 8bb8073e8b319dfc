#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace TVR::GUI {

/// A key for the widget that has the focus.
inline void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// A text for whatever has the focus at each of its letters: the first one may open an editor.
inline void keys(const QString& text) {
  for (const QChar letter : text)
    QTest::keyClicks(QApplication::focusWidget(), letter);
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

/// Goes there in the same way and types a text in the place of what is there.
inline void retypeAt(const QString& widget, const QString& text) {
  ASSERT_TRUE(tabTo(widget)) << widget.toStdString();
  hit(Qt::Key_A, Qt::ControlModifier);
  keys(text);
}

} // namespace TVR::GUI
