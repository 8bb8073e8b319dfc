#pragma once

#include "host/PageProperty.h"
#include "page/window/MapNavigation.h"
#include "page/window/PageWindow.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>
#include <vector>

/// A sheet of A4 with the plot "Map view" (id 3), a text (id 6) and a picture (id 18).
inline QByteArray pageWithMap() {
  const auto item = [](int id, const char* type, const char* name, const QRect& box) {
    return QString(R"(<Item id="%1" Type="%2"><Name>%3</Name><Position X="%4" Y="%5"/>)"
                   R"(<Size Width="%6" Height="%7"/><Children/></Item>)")
        .arg(id)
        .arg(type, name)
        .arg(box.x())
        .arg(box.y())
        .arg(box.width())
        .arg(box.height());
  };
  return (R"(<!DOCTYPE GraphicWidgetExport><CanvasEx Version="1.2" NextItemId="19">)"
          R"(<Pagesize Width="29.7" Height="21" Orientation="1" Format="0"/><Items>)" +
          item(3, "GraphicsPlotItem", "Map view", {75, 75, 1800, 1675}) +
          item(6, "GraphicsTextItem", "Summary", {1875, 75, 1000, 1250}) +
          item(18, "GraphicsPixmapItem", "Logo", {2650, 1750, 225, 225}) + "</Items></CanvasEx>")
      .toUtf8();
}

/// What an observer heard, in order: item and property, as the window named them.
class HeardChanges : public DATA::DataObserver {
public:
  explicit HeardChanges(const Sketra_lib::GraphicsWorkspaceWindow& window) : window_(window) {}
  void update(DATA::DataObject*) override {
    changes.emplace_back(window_.lastChangedItem(), window_.lastChangedProperty());
  }
  bool has(int item, int property) const {
    return std::count(changes.begin(), changes.end(), std::pair(item, property)) > 0;
  }

  std::vector<std::pair<int, int>> changes;

private:
  const Sketra_lib::GraphicsWorkspaceWindow& window_;
};

/// A window with a map at 1 : 500 of the place 680000 / 226000, and the mouse and keys of its user.
struct ShownPage {
  static constexpr int map = 3;
  static constexpr int summary = 6;
  static constexpr int logo = 18;

  ShownPage() {
    using namespace Sketra_lib::Property;
    window.resize(1000, 720);
    window.setContents(pageWithMap());
    const std::vector<std::pair<int, QVariant>> properties = {
        {MarginLeft, 18},     {MarginRight, 10},     {MarginTop, 10},      {MarginBottom, 10},
        {XAutoScale, false},  {YAutoScale, false},   {UniformScale, true}, {XMaximum, 680076.0},
        {XMinimum, 680000.0}, {YMaximum, 226073.75}, {YMinimum, 226000.0}};
    for (const auto& [number, value] : properties)
      window.setItemProperty(map, number, value);
    window.show();
    QApplication::processEvents();
  }

  TVR::Page::PlotItem& plot() { return *window.canvas().item<TVR::Page::PlotItem>(map); }
  TVR::MapRange range() { return TVR::Page::rangeOf(plot()); }

  /// Two wells near the middle of the map.
  int addWells() {
    const int curve =
        window.addCurve(map, QPolygonF(QVector<QPointF>{{680030, 226040}, {680050, 226030}}), 1, 0);
    window.setItemProperty(curve, Sketra_lib::Property::CurveStyle, 4);
    window.setItemProperty(curve, Sketra_lib::Property::Symbol,
                           QVariantMap{{"Width", 25.0}, {"Height", 25.0}, {"Type", 2}});
    window.setItemProperty(curve, Sketra_lib::Property::Visible, false);
    return curve;
  }
  /// A red picture of 20 m by 10 m with its lower left corner at 680020 / 226010.
  int addMapPicture() {
    const int picture = window.addPicture(map, 68002.0, 22602.0, 2.0, 1.0);
    window.setItemProperty(picture, Sketra_lib::Property::InMapCoordinates, 1);
    QPixmap pixmap(40, 20);
    pixmap.fill(Qt::red);
    window.setItemProperty(picture, Sketra_lib::Property::Pixmap, pixmap);
    return picture;
  }

  /// A place of the map in the window [pixel].
  QPointF pixelOf(const QPointF& mapPoint) {
    return window.view().toWindow(plot().toPage(mapPoint));
  }
  QPointF mapPointAt(const QPointF& pixel) { return plot().fromPage(window.view().toPage(pixel)); }

  void mouse(QEvent::Type type, const QPointF& pixel, Qt::MouseButton button,
             Qt::KeyboardModifiers modifiers = {}) {
    if (type == QEvent::MouseButtonPress)
      held_ |= button;
    if (type == QEvent::MouseButtonRelease)
      held_ &= ~Qt::MouseButtons(button);
    QMouseEvent event(type, pixel, pixel, pixel, button, held_, modifiers);
    QApplication::sendEvent(&window, &event);
  }
  void press(const QPointF& pixel, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonPress, pixel, button);
  }
  void move(const QPointF& pixel, Qt::KeyboardModifiers modifiers = {}) {
    mouse(QEvent::MouseMove, pixel, Qt::NoButton, modifiers);
  }
  void release(const QPointF& pixel, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonRelease, pixel, button);
  }
  void click(const QPointF& pixel) {
    press(pixel);
    release(pixel);
  }
  void drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers = {},
            Qt::MouseButton button = Qt::LeftButton) {
    press(from, button);
    move((from + to) / 2, modifiers);
    move(to, modifiers);
    release(to, button);
  }
  void wheel(const QPointF& pixel, int notches, Qt::KeyboardModifiers modifiers = {}) {
    QWheelEvent event(pixel, pixel, {}, {0, 120 * notches}, held_, modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&window, &event);
  }
  void key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(&window, &event);
  }
  void type(int keyCode, Qt::KeyboardModifiers modifiers = {}) {
    key(QEvent::KeyPress, keyCode, modifiers);
    key(QEvent::KeyRelease, keyCode, modifiers);
  }

  TVR::Page::PageWindow window;

private:
  Qt::MouseButtons held_;
};
