#include "desktop/WheelGuard.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <gtest/gtest.h>

namespace TVR::Desktop {
namespace {

/// Counts the wheel events that reach it.
class Form : public QWidget {
public:
  int wheels = 0;

protected:
  void wheelEvent(QWheelEvent*) override { ++wheels; }
};

class WheelGuardTest : public testing::Test {
protected:
  WheelGuardTest() {
    qApp->installEventFilter(&guard);
    auto* column = new QVBoxLayout(&form);
    column->addWidget(&spinBox);
    column->addWidget(&comboBox);
    column->addWidget(&other);
    spinBox.setRange(0, 100);
    spinBox.setValue(50);
    comboBox.addItems({"a", "b", "c"});
    comboBox.setCurrentIndex(1);
    form.show();
    QApplication::setActiveWindow(&form);
    other.setFocus();
  }

  static void turnWheel(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle.toPoint()), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // others do not go on to a parent
    qApp->notify(&widget, &event);
  }

  WheelGuard guard;
  Form form;
  QDoubleSpinBox spinBox;
  QComboBox comboBox;
  QLineEdit other;
};

TEST_F(WheelGuardTest, aSpinBoxWithoutTheFocusKeepsItsValue) {
  turnWheel(spinBox);
  EXPECT_EQ(spinBox.value(), 50);
  EXPECT_FALSE(spinBox.hasFocus());
}

TEST_F(WheelGuardTest, aComboBoxWithoutTheFocusKeepsItsChoice) {
  turnWheel(comboBox);
  EXPECT_EQ(comboBox.currentIndex(), 1);
  EXPECT_FALSE(comboBox.hasFocus());
}

TEST_F(WheelGuardTest, theWheelGoesOnToTheFormAroundTheBox) {
  turnWheel(spinBox);
  EXPECT_EQ(form.wheels, 1);
}

TEST_F(WheelGuardTest, aBoxThatHasTheFocusFollowsTheWheel) {
  spinBox.setFocus();
  turnWheel(spinBox);
  EXPECT_EQ(spinBox.value(), 51);
  comboBox.setFocus();
  turnWheel(comboBox);
  EXPECT_EQ(comboBox.currentIndex(), 0);
}

} // namespace
} // namespace TVR::Desktop
