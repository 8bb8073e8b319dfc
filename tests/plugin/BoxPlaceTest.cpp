#include "boxes/MessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace TVR {
namespace {

/// Asks a question with `look` as what happens while its box is open.
bool agreesWhile(const std::function<void(QMessageBox&)>& look) {
  bool isSeen = false;
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
      return;
    isSeen = true;
    look(*box);
  });
  const bool agrees = MessageBoxes().agrees("Tevrane", "Go on?");
  EXPECT_TRUE(isSeen);
  return agrees;
}

void show(QWidget& window) {
  window.show();
  QApplication::setActiveWindow(&window);
}

TEST(BoxPlace, aBoxBelongsToTheWindowInUse) {
  QWidget window;
  show(window);
  EXPECT_TRUE(agreesWhile([&](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &window);
    EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QTest::keyClick(&box, Qt::Key_Return);
  }));
}

TEST(BoxPlace, aBoxBelongsToTheDialogThatHoldsTheOtherWindows) {
  QWidget window;
  QDialog dialog;
  dialog.setModal(true);
  show(dialog);
  show(window);
  EXPECT_TRUE(agreesWhile([&](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &dialog);
    QTest::keyClick(&box, Qt::Key_Return);
  }));
}

TEST(BoxPlace, aBoxStaysAboveAWindowThatStaysOnTop) {
  QWidget wizard(nullptr, Qt::WindowStaysOnTopHint);
  wizard.show();
  QWidget window;
  show(window);
  EXPECT_TRUE(agreesWhile([&](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &window);
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(box.windowType(), Qt::Dialog);
    QTest::keyClick(&box, Qt::Key_Return);
  }));
}

TEST(BoxPlace, aBoxThatGoesWithItsWindowIsNotAgreedTo) {
  auto window = std::make_unique<QWidget>();
  show(*window);
  EXPECT_FALSE(agreesWhile([&](QMessageBox& box) {
    const QPointer<QMessageBox> shown = &box;
    window.reset();
    EXPECT_FALSE(shown);
    if (shown)
      shown->close();
  }));
}

} // namespace
} // namespace TVR
