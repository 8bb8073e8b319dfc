#pragma once

#include "host/GraphicsInterface.h"
#include "host/PreviewInterface.h"
#include "page/model/Canvas.h"
#include "page/window/Grip.h"
#include "page/window/PageFrame.h"
#include "page/window/SheetView.h"
#include "page/window/ShownPreview.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace TVR::Page {

class Drag;

/// A window of the workspace with a page: the face of a Canvas for the plug-in, and for the user a
/// view of it that follows the mouse.
///
/// The sheet lies fitted in the window until the user zooms it (wheel with Control, +/- with
/// Control) or pans it (middle button, or space and left button); Home fits it again. On a map, a
/// plot with a uniform scale, the wheel zooms around the mouse and the left button pans; arrow keys
/// and +/- do the same. What the current item is, decides what else the left button takes hold of;
/// Escape puts back what is being dragged.
class PageWindow : public QWidget,
                   public Sketra_lib::GraphicsWorkspaceWindow,
                   public Sketra_lib::PreviewInterface {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::WorkspaceWindow Sketra_lib::PreviewInterface)

public:
  explicit PageWindow(QWidget* parent = nullptr);
  ~PageWindow() override;

  Canvas& canvas() { return canvas_; }
  const Canvas& canvas() const { return canvas_; }
  /// How the sheet lies in the window now.
  const SheetView& view() const { return view_; }
  /// What of the view follows the size of the window.
  enum class Fit {
    Nothing, ///< it was panned or zoomed
    Sheet,   ///< all of the sheet is seen
    Width,   ///< the sheet is as wide as the window
    Centre   ///< the sheet lies in the middle, at a scale that stays
  };
  Fit fit() const { return fit_; }
  int currentItem() const { return currentItem_; }
  /// What the window shows beside its page.
  const ShownPreview& preview() const { return preview_; }

  QWidget* widget() override { return this; }
  QString windowType() const override { return QStringLiteral("GraphicsWindow"); }

  void clearContents() override;
  void setCurrentItem(int item) override;
  void moveToBackground(int item) override { canvas_.moveToBackground(item); }
  /// Position and size are in tens of the map's units, as callers of the library give them.
  int addPicture(int plot, double x, double y, double width, double height) override;
  int addCurve(int plot, const QPolygonF& points, int connected, int flag) override;
  int addGridData(int plot, int flag) override;
  int importItem(int plot, const QDomElement& item, double version) override;
  void setItemProperty(int item, int property, const QVariant& value) override {
    canvas_.setProperty(item, property, value);
  }
  QVariant itemProperty(int item, int property) const override {
    return canvas_.property(item, property);
  }
  void removeItem(int item, int flag) override;
  void redrawItem(int item) override { canvas_.redraw(item); }
  void beginUpdate() override { canvas_.beginUpdate(); }
  void endUpdate() override { canvas_.endUpdate(); }
  QList<int> childItems(int item) const override { return canvas_.childItems(item); }
  int itemByName(const QString& name, int flag) const override;
  void attachObserver(int item, DATA::DataObserver* observer) override {
    canvas_.attachObserver(item, observer);
  }
  void detachObserver(int item, DATA::DataObserver* observer) override {
    canvas_.detachObserver(item, observer);
  }
  int lastChangedItem() const override { return canvas_.lastChangedItem(); }
  int lastChangedProperty() const override { return canvas_.lastChangedProperty(); }
  void setNotificationsEnabled(bool enabled) override { canvas_.setNotificationsEnabled(enabled); }
  void setContents(const QByteArray& page) override;
  QByteArray contents() const override;

  void showPreview(int map, int replaced, std::shared_ptr<const Sketra_lib::ResultPreview> results,
                   const QString& mark) override;
  void endPreview() override;
  void showNotice(int map, const QString& notice, const QString& inFull) override;

  QSize sizeHint() const override { return {960, 720}; }
  /// Gives the window a title that has this number, above 0, and follows the language.
  void nameByNumber(int number);

public slots:
  /// The whole sheet in the window; it stays so when the window changes its size.
  void fitSheet();
  /// The sheet as wide as the window; it stays so when the window changes its size.
  void fitWidth();
  /// The sheet as large as on paper, in the middle.
  void showActualSize();
  /// The sheet in the middle at a scale [pixel/mm].
  void showScale(double scale);
  /// The sheet a step larger or smaller around the middle of the window.
  void zoomIn();
  void zoomOut();
  /// Draws the page anew.
  void refresh();

signals:
  /// The mouse is at this place of the map [map units].
  void currentCoordinates(double x, double y, QEvent::Type type, Qt::MouseButton button);
  /// The user has changed the page: at the end of a drag, and by the wheel or a key on a map. Where
  /// the sheet lies in the window is no part of the page.
  void modified();

protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  enum class Press { None, Still, Moving }; ///< Still as long as it may become a click

  void retranslate();
  void showChange();
  void setFit(Fit fit);
  void adaptView();
  void tellCoordinates(const QMouseEvent& event);
  void startPress(const QMouseEvent& event);
  void drag(const QPointF& pixel, Qt::KeyboardModifiers modifiers);
  bool dragsOnPage() const;
  void endPress();
  void click(const QPointF& pixel);
  void hover(const QPointF& pixel);
  bool escape();
  void forgetMouse();
  void zoomSheet(double factor, const QPointF& pixel);
  void panSheet(const QPointF& by);
  void showOnMap(const PlotItem& map, const MapRange& range);
  void zoomMap(const PlotItem& map, double factor, const QPointF& fixed);
  void zoomByKey(double factor, bool ofSheet);
  void panByKey(const QPointF& direction);
  void viewMoved();
  int movingCurve() const;
  void keepMoving();
  void paintMarks(QPainter& painter) const;

  QAction* const fitSheet_;
  QAction* const actualSize_;
  int number_ = 0; ///< in the title; 0 for a title of its own
  Canvas canvas_;
  SheetView view_;
  Fit fit_ = Fit::Sheet;
  int currentItem_ = 0;
  ShownPreview preview_;
  PageFrame frame_;
  QTimer rest_; ///< runs while something moves

  Press press_ = Press::None;
  Qt::MouseButton button_ = Qt::NoButton; ///< that was pressed
  QPointF pressed_;                       ///< where [pixel]
  std::shared_ptr<Drag> drag_;
  bool spaceHeld_ = false;
  Grip hovered_;
};

} // namespace TVR::Page
