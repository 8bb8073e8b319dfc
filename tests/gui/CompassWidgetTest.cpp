#include "gui/mapping/CompassWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace TVR::GUI {
namespace {

class CompassWidgetTest : public testing::Test {
protected:
  CompassWidgetTest() {
    compass.resize(100, 100);
    compass.setFixedSize(100, 100);
  }

  void press(int x, int y) { QTest::mousePress(&compass, Qt::LeftButton, {}, QPoint(x, y)); }
  int emitted() const { return chosen.isEmpty() ? -1 : chosen.last().first().toInt(); }
  bool turnWheel(int eighths) {
    QWheelEvent event(QPointF(50, 50), QPointF(50, 50), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&compass, &event);
    return event.isAccepted();
  }
  void focus() {
    compass.show();
    QApplication::setActiveWindow(&compass);
    compass.setFocus();
    ASSERT_TRUE(compass.hasFocus());
  }
  static QImage picture(CompassWidget& widget) {
    QImage picture(widget.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
  }
  /// Whether the needle covers a point.
  static bool isBlue(CompassWidget& widget, int x, int y) {
    const QColor colour = picture(widget).pixelColor(x, y);
    return colour.blue() > 200 && colour.red() < 120;
  }

  CompassWidget compass;
  QSignalSpy chosen{&compass, &CompassWidget::angleChanged};
};

TEST_F(CompassWidgetTest, itStartsAtNorth) {
  EXPECT_EQ(compass.angle(), 0);
}

TEST_F(CompassWidgetTest, anAngleThatIsSetIsNotEmitted) {
  compass.setAngle(123);
  EXPECT_EQ(compass.angle(), 123);
  EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(CompassWidgetTest, aPressSetsTheAngleOfItsPlace) {
  // The pi that is used is a little too small, and the angle is cut to whole degrees.
  const struct {
    int x;
    int y;
    int angle;
  } places[] = {{80, 20, 45}, {80, 80, 134}, {20, 80, 225}, {20, 20, 314}, {50, 90, 180}};
  for (const auto& place : places) {
    press(place.x, place.y);
    EXPECT_EQ(compass.angle(), place.angle);
    EXPECT_EQ(emitted(), place.angle);
  }
}

TEST_F(CompassWidgetTest, aPressStraightUpGivesAFullCircle) {
  press(50, 10);
  EXPECT_EQ(emitted(), 360);
  EXPECT_EQ(compass.directionText(), "360° N");
}

TEST_F(CompassWidgetTest, aPressAtTheHeightOfTheCentreDividesByZero) {
  press(90, 50);
  EXPECT_EQ(emitted(), 90);
  press(10, 50);
  EXPECT_EQ(emitted(), 269); // again for that pi
}

TEST_F(CompassWidgetTest, aPressInTheCentreGivesWhatThePlatformMakesOfNoNumber) {
  const volatile double noNumber = std::numeric_limits<double>::quiet_NaN();
  const double read = noNumber;
  compass.setAngle(17);
  press(50, 50);
  EXPECT_EQ(chosen.size(), 1);
  EXPECT_EQ(emitted(), static_cast<int>(read));
  EXPECT_EQ(compass.angle(), static_cast<int>(read));
  EXPECT_FALSE(compass.directionText().startsWith('-'));
}

TEST_F(CompassWidgetTest, aDragGoesAlong) {
  press(80, 20);
  QMouseEvent move(QEvent::MouseMove, QPointF(80, 80), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&compass, &move);
  EXPECT_EQ(emitted(), 134);
  QMouseEvent across(QEvent::MouseMove, QPointF(50, 50), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&compass, &across);
  EXPECT_EQ(compass.angle(), 134);
  QMouseEvent hover(QEvent::MouseMove, QPointF(20, 80), Qt::NoButton, Qt::NoButton, {});
  QCoreApplication::sendEvent(&compass, &hover);
  EXPECT_EQ(compass.angle(), 134);
}

TEST_F(CompassWidgetTest, theWheelTurnsItOnlyWithFocus) {
  compass.setAngle(20);
  EXPECT_FALSE(turnWheel(120));
  EXPECT_EQ(compass.angle(), 20);
  focus();
  EXPECT_TRUE(turnWheel(120));
  EXPECT_EQ(emitted(), 21);
  turnWheel(-240);
  EXPECT_EQ(emitted(), 19);
  EXPECT_NE(compass.focusPolicy() & Qt::WheelFocus, Qt::WheelFocus);
}

TEST_F(CompassWidgetTest, partsOfAStepOfTheWheelAddUp) {
  focus();
  turnWheel(60);
  EXPECT_TRUE(chosen.isEmpty());
  turnWheel(60);
  EXPECT_EQ(emitted(), 1);
}

TEST_F(CompassWidgetTest, keysTurnItAroundTheCircle) {
  compass.setAngle(359);
  QTest::keyClick(&compass, Qt::Key_Right);
  EXPECT_EQ(emitted(), 0);
  QTest::keyClick(&compass, Qt::Key_Left);
  EXPECT_EQ(emitted(), 359);
  QTest::keyClick(&compass, Qt::Key_Up);
  QTest::keyClick(&compass, Qt::Key_Up);
  EXPECT_EQ(emitted(), 1);
  QTest::keyClick(&compass, Qt::Key_Down);
  EXPECT_EQ(emitted(), 0);
  QTest::keyClick(&compass, Qt::Key_PageUp);
  EXPECT_EQ(emitted(), 10);
  QTest::keyClick(&compass, Qt::Key_PageDown);
  QTest::keyClick(&compass, Qt::Key_PageDown);
  EXPECT_EQ(emitted(), 350);
  QTest::keyClick(&compass, Qt::Key_Home);
  EXPECT_EQ(emitted(), 0);
  compass.setAngle(360);
  QTest::keyClick(&compass, Qt::Key_Right);
  EXPECT_EQ(emitted(), 1);
}

TEST_F(CompassWidgetTest, directionsHaveNames) {
  const struct {
    int degrees;
    const char* name;
  } directions[] = {{0, "N"},    {22, "N"},  {23, "NE"},  {45, "NE"}, {90, "E"},
                    {135, "SE"}, {180, "S"}, {225, "SW"}, {270, "W"}, {315, "NW"},
                    {337, "NW"}, {338, "N"}, {360, "N"},  {-90, "W"}, {450, "E"}};
  for (const auto& direction : directions)
    EXPECT_EQ(compassPoint(direction.degrees), direction.name) << direction.degrees;
}

TEST_F(CompassWidgetTest, theBaseOfTheNeedleLiesWhereTheAngleIs) {
  EXPECT_TRUE(isBlue(compass, 51, 2));
  EXPECT_FALSE(isBlue(compass, 51, 97));
  compass.setAngle(90);
  EXPECT_TRUE(isBlue(compass, 97, 51));
  EXPECT_FALSE(isBlue(compass, 2, 51));
}

TEST_F(CompassWidgetTest, theNeedleLetsAQuarterOfTheRoseShowThrough) {
  const QColor covered = picture(compass).pixelColor(50, 3);
  compass.setAngle(90);
  const QColor rose = picture(compass).pixelColor(50, 3);
  constexpr double cover = 191 / 255.0;
  EXPECT_NEAR(covered.red(), rose.red() * (1 - cover), 2);
  EXPECT_NEAR(covered.green(), rose.green() * (1 - cover), 2);
  EXPECT_NEAR(covered.blue(), 255 * cover + rose.blue() * (1 - cover), 2);
}

TEST_F(CompassWidgetTest, theRoseStandsStillWhileTheNeedleTurns) {
  const QImage north = picture(compass);
  compass.setAngle(45);
  const QImage northEast = picture(compass);
  int inked = 0;
  for (int y = 0; y < 80; ++y) // above the name of the direction
    for (int x = 0; x < 100; ++x) {
      const bool isOnNeedle = std::abs(x - 50) < 8 || std::abs(x - 50 + y - 50) < 12;
      if (isOnNeedle)
        continue;
      EXPECT_EQ(north.pixel(x, y), northEast.pixel(x, y)) << x << ' ' << y;
      inked += north.pixelColor(x, y) != Qt::white;
    }
  EXPECT_GT(inked, 100);
}

TEST_F(CompassWidgetTest, theRoseFillsTheSmallerSideFromTheTopLeftOfItsSquare) {
  compass.setFixedSize(160, 100);
  const QImage wide = picture(compass);
  const auto isInked = [&wide](int x) {
    for (int y = 0; y < 80; ++y)
      if (wide.pixelColor(x, y) != Qt::white)
        return true;
    return false;
  };
  EXPECT_TRUE(isInked(34) || isInked(36));
  EXPECT_TRUE(isInked(126) || isInked(124));
  EXPECT_FALSE(isInked(28));
  EXPECT_FALSE(isInked(132));
}

TEST_F(CompassWidgetTest, aReversedNeedleIsTurnedAround) {
  CompassWidget reversed(nullptr, true);
  reversed.setFixedSize(100, 100);
  EXPECT_TRUE(isBlue(reversed, 51, 97));
  EXPECT_FALSE(isBlue(reversed, 51, 2));
  QTest::mousePress(&reversed, Qt::LeftButton, {}, QPoint(80, 20));
  EXPECT_EQ(reversed.angle(), 45);
}

TEST_F(CompassWidgetTest, itIsADialToAssistiveTechnologies) {
  compass.setAccessibleName("Direction");
  compass.setAngle(90);
  QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&compass);
  ASSERT_TRUE(face);
  EXPECT_EQ(face->role(), QAccessible::Dial);
  EXPECT_EQ(face->text(QAccessible::Name), "Direction");
  EXPECT_EQ(face->text(QAccessible::Value), "90° E");
  ASSERT_TRUE(face->valueInterface());
  EXPECT_EQ(face->valueInterface()->currentValue(), 90);
  EXPECT_EQ(face->valueInterface()->minimumValue(), 0);
  EXPECT_EQ(face->valueInterface()->maximumValue(), 360);
  face->valueInterface()->setCurrentValue(45);
  EXPECT_EQ(emitted(), 45);
}

} // namespace
} // namespace TVR::GUI
