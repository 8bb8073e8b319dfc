#include "gui/mapping/CompassWidget.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace TVR::GUI {

namespace {

constexpr int fullCircle = 360;

/// The same direction from 0 to 359.
int withinCircle(int degrees) {
  return (degrees % fullCircle + fullCircle) % fullCircle;
}

/// A compass as assistive technologies see it: a dial with a value that they can set.
class AccessibleCompass : public QAccessibleWidget, public QAccessibleValueInterface {
public:
  explicit AccessibleCompass(CompassWidget* compass)
      : QAccessibleWidget(compass, QAccessible::Dial), compass_(*compass) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? compass_.directionText() : QAccessibleWidget::text(kind);
  }

  QVariant currentValue() const override { return compass_.angle(); }
  void setCurrentValue(const QVariant& value) override {
    compass_.setAngle(value.toInt());
    emit compass_.angleChanged(value.toInt());
  }
  QVariant minimumValue() const override { return 0; }
  QVariant maximumValue() const override { return 360; }
  QVariant minimumStepSize() const override { return 1; }

private:
  CompassWidget& compass_;
};

QAccessibleInterface* accessibleCompass(const QString&, QObject* object) {
  auto* const compass = qobject_cast<CompassWidget*>(object);
  return compass ? new AccessibleCompass(compass) : nullptr;
}

} // namespace

QString compassPoint(int degrees) {
  const std::array<QString, 8> names{CompassWidget::tr("N"), CompassWidget::tr("NE"),
                                     CompassWidget::tr("E"), CompassWidget::tr("SE"),
                                     CompassWidget::tr("S"), CompassWidget::tr("SW"),
                                     CompassWidget::tr("W"), CompassWidget::tr("NW")};
  constexpr int sector = fullCircle / 8;
  return names[static_cast<std::size_t>((2 * withinCircle(degrees) + sector) / (2 * sector) % 8)];
}

CompassWidget::CompassWidget(QWidget* parent, bool reversed, Qt::WindowFlags flags)
    : QWidget(parent, flags), rose_(":/TVR/images/compass_rose.png"), reversed_(reversed) {
  setFocusPolicy(Qt::StrongFocus);
  QAccessible::installFactory(accessibleCompass); // once, however often it is called
}

QString CompassWidget::directionText() const {
  const bool isOnDial = angle_ >= 0 && angle_ <= fullCircle;
  return tr("%1° %2").arg(isOnDial ? angle_ : withinCircle(angle_)).arg(compassPoint(angle_));
}

QSize CompassWidget::sizeHint() const {
  return {150, 150};
}

QSize CompassWidget::minimumSizeHint() const {
  return {80, 80};
}

void CompassWidget::setAngle(int angle) {
  if (angle == angle_)
    return;
  angle_ = angle;
  update();
  QAccessibleValueChangeEvent changed(this, angle_);
  QAccessible::updateAccessibility(&changed);
}

void CompassWidget::paintEvent(QPaintEvent*) {
  const int r = std::min(width(), height()) / 2;
  QPainter painter(this);
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignBottom, directionText());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(middle());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 255, 191));
  painter.drawImage(-r, -r, rose_.scaled(size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
  painter.rotate(angle_);
  if (reversed_)
    painter.rotate(180);
  const QPoint needle[] = {{0, r}, {3, -r}, {-3, -r}};
  painter.drawConvexPolygon(needle, 3);
}

QPoint CompassWidget::middle() const {
  return {width() / 2, height() / 2};
}

int CompassWidget::angleOf(const QPoint& point) const {
  const double dx = point.x() - middle().x();
  const double dy = middle().y() - point.y();
  const double a = std::atan(dx / dy) * 180.0 / 3.1415926;
  double angle = a + 180;
  if (dy >= 0)
    angle = dx > 0 ? a : a + 360;
  // Required oddity: in the centre there is no angle, and the platform makes an integer of that;
  // straight up is 360.
  return static_cast<int>(angle);
}

void CompassWidget::mousePressEvent(QMouseEvent* event) {
  choose(angleOf(event->pos()));
}

void CompassWidget::mouseMoveEvent(QMouseEvent* event) {
  const bool isCentre = event->pos() == middle();
  if (event->buttons() & Qt::LeftButton && !isCentre)
    choose(angleOf(event->pos()));
}

void CompassWidget::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  wheelRest_ += event->angleDelta().y();
  const int steps = wheelRest_ / QWheelEvent::DefaultDeltasPerStep;
  wheelRest_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  turnBy(steps);
  event->accept();
}

void CompassWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Right:
  case Qt::Key_Up:
    return turnBy(1);
  case Qt::Key_Left:
  case Qt::Key_Down:
    return turnBy(-1);
  case Qt::Key_PageUp:
    return turnBy(10);
  case Qt::Key_PageDown:
    return turnBy(-10);
  case Qt::Key_Home:
    return choose(0);
  default:
    QWidget::keyPressEvent(event);
  }
}

void CompassWidget::turnBy(int degrees) {
  if (degrees != 0)
    choose(withinCircle(withinCircle(angle_) + degrees));
}

void CompassWidget::choose(int angle) {
  setAngle(angle);
  emit angleChanged(angle);
}

} // namespace TVR::GUI
