#pragma once

#include <QImage>
#include <QWidget>

namespace TVR::GUI {

/// Name of the direction of a compass that is next to an angle [degrees, clockwise from north, any
/// number]: N, NE, E and so on, in the user's language.
QString compassPoint(int degrees);

/// A dial for a direction. It is set by a press or a drag of the mouse, by the wheel and the arrow
/// keys (a degree), and by Page Up and Page Down (ten); Home is north. The wheel works only with
/// focus, so that a page can be scrolled across it.
class CompassWidget : public QWidget {
  Q_OBJECT

public:
  /// With `reversed` the needle is drawn turned by 180 degrees: where the flow comes from.
  explicit CompassWidget(QWidget* parent = nullptr, bool reversed = false,
                         Qt::WindowFlags flags = {});

  /// Degrees, clockwise from north; 360 is possible.
  int angle() const { return angle_; }
  /// The angle and its name, as shown: "90° E".
  QString directionText() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

public slots:
  /// Stores and shows an angle; nothing is emitted.
  void setAngle(int angle);

signals:
  /// The user has chosen an angle.
  void angleChanged(int angle);

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  void choose(int angle);
  void turnBy(int degrees);
  QPoint middle() const;
  int angleOf(const QPoint& point) const;

  const QImage rose_;
  int angle_ = 0;
  const bool reversed_;
  int wheelRest_ = 0; ///< of a wheel that turns in less than whole steps [eighths of a degree]
};

} // namespace TVR::GUI
