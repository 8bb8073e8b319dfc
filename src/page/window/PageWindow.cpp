#include "page/window/PageWindow.h"

#include "page/document/PageDocument.h"
#include "page/painting/Inch.h"
#include "page/window/Drag.h"
#include "page/window/MapNavigation.h"
#include "page/window/PictureHandles.h"

#include <QAction>
#include <QDomElement>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace TVR::Page {

namespace {

constexpr double border = 18;        ///< around the fitted sheet [pixel]
constexpr double stillClick = 3;     ///< how far the mouse may move in a click [pixel]
constexpr double exactFrame = 10;    ///< a page that is drawn so fast is always drawn anew [ms]
constexpr int restTime = 120;        ///< after which a moved page is drawn anew [ms]
constexpr double stepOfKey = 0.1;    ///< of the map's sides, by an arrow key
constexpr double zoomOfKey = 1.25;   ///< by + and -
constexpr double zoomOfNotch = 1.2;  ///< by a notch of the wheel
constexpr double scrollOfNotch = 60; ///< by a notch of the wheel, or by a key [pixel]
constexpr double notch = 120;        ///< of a wheel [eighth of a degree]

} // namespace

PageWindow::PageWindow(QWidget* parent)
    : QWidget(parent), fitSheet_(new QAction(this)), actualSize_(new QAction(this)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(fitSheet_, &QAction::triggered, this, &PageWindow::fitSheet);
  connect(actualSize_, &QAction::triggered, this, &PageWindow::showActualSize);
  addActions({fitSheet_, actualSize_});
  retranslate();

  rest_.setSingleShot(true);
  connect(&rest_, &QTimer::timeout, this, &PageWindow::refresh);
  connect(&canvas_, &Canvas::changed, this, &PageWindow::showChange);
}

PageWindow::~PageWindow() = default;

void PageWindow::nameByNumber(int number) {
  number_ = number;
  retranslate();
}

void PageWindow::retranslate() {
  fitSheet_->setText(tr("Fit page"));
  actualSize_->setText(tr("Actual size"));
  if (number_ > 0)
    setWindowTitle(tr("Graphic %1").arg(number_));
}

void PageWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    retranslate();
  QWidget::changeEvent(event);
}

void PageWindow::clearContents() {
  forgetMouse();
  setCurrentItem(0);
  preview_.end(); // whose map is gone
  canvas_.clear();
}

void PageWindow::setCurrentItem(int item) {
  if (item == currentItem_)
    return;
  const bool endsDrag = dragsOnPage();
  forgetMouse();
  currentItem_ = item;
  update();
  if (endsDrag)
    emit modified();
}

void PageWindow::forgetMouse() {
  press_ = Press::None;
  drag_.reset();
  hovered_ = {};
}

int PageWindow::addPicture(int plot, double x, double y, double width, double height) {
  return canvas_.addPicture(plot, QPointF(x, y) * 10, QSizeF(width, height) * 10);
}

int PageWindow::addCurve(int plot, const QPolygonF& points, int connected, int /*flag*/) {
  return canvas_.addCurve(plot, points, connected != 0);
}

int PageWindow::addGridData(int plot, int /*flag*/) {
  return canvas_.addGridData(plot);
}

int PageWindow::importItem(int plot, const QDomElement& item, double /*version*/) {
  return Page::importItem(canvas_, plot, item);
}

void PageWindow::removeItem(int item, int /*flag*/) {
  canvas_.removeItem(item);
}

int PageWindow::itemByName(const QString& name, int /*flag*/) const {
  return canvas_.itemByName(name);
}

void PageWindow::setContents(const QByteArray& page) {
  forgetMouse();
  setCurrentItem(0);
  preview_.end(); // whose map is gone
  readPage(canvas_, page);
  adaptView();
}

QByteArray PageWindow::contents() const {
  return writePage(canvas_);
}

void PageWindow::showPreview(int map, int replaced,
                             std::shared_ptr<const Sketra_lib::ResultPreview> results,
                             const QString& mark) {
  preview_.show(map, replaced, results, mark);
  refresh(); // also while something moves: what is kept of the drawing is of other results
}

void PageWindow::endPreview() {
  preview_.end();
  refresh();
}

void PageWindow::showNotice(int map, const QString& notice, const QString& inFull) {
  setAccessibleDescription(inFull);
  if (notice == preview_.notice())
    return;
  preview_.setNotice(map, notice);
  update();
}

/// What moves is drawn out of the kept drawing until it rests.
void PageWindow::showChange() {
  if (!rest_.isActive())
    frame_.drop();
  update();
}

void PageWindow::refresh() {
  rest_.stop();
  frame_.drop();
  update();
}

void PageWindow::fitSheet() {
  setFit(Fit::Sheet);
}

void PageWindow::fitWidth() {
  setFit(Fit::Width);
}

void PageWindow::showActualSize() {
  showScale(logicalDpiX() / millimetresPerInch);
}

void PageWindow::showScale(double scale) {
  view_.scale = scale;
  setFit(Fit::Centre);
}

void PageWindow::zoomIn() {
  zoomByKey(zoomOfKey, true);
}

void PageWindow::zoomOut() {
  zoomByKey(1 / zoomOfKey, true);
}

void PageWindow::setFit(Fit fit) {
  fit_ = fit;
  adaptView();
}

/// Lays the sheet into the window as the fit says.
void PageWindow::adaptView() {
  switch (fit_) {
  case Fit::Sheet:
    view_ = fittedView(canvas_.paperSize(), size(), border);
    break;
  case Fit::Width:
    view_ = widthView(canvas_.paperSize(), size(), border);
    break;
  case Fit::Centre:
    view_ = centredView(canvas_.paperSize(), size(), view_.scale);
    break;
  case Fit::Nothing:
    break;
  }
  viewMoved();
}

void PageWindow::zoomSheet(double factor, const QPointF& pixel) {
  fit_ = Fit::Nothing;
  view_ = zoomedView(view_, factor, pixel);
  viewMoved();
}

void PageWindow::viewMoved() {
  if (fit_ == Fit::Nothing)
    view_ = keptInSight(view_, canvas_.paperSize(), size());
  keepMoving();
}

void PageWindow::panSheet(const QPointF& by) {
  fit_ = Fit::Nothing;
  view_.origin += by;
  viewMoved();
}

void PageWindow::showOnMap(const PlotItem& map, const MapRange& range) {
  keepMoving();
  if (range == rangeOf(map))
    return;
  showRange(canvas_, map.id, range);
  emit modified();
}

void PageWindow::zoomMap(const PlotItem& map, double factor, const QPointF& fixed) {
  showOnMap(map, zoomedRange(rangeOf(map), factor, fixed));
}

int PageWindow::movingCurve() const {
  const int item = press_ == Press::Moving && drag_ ? drag_->movingItem() : 0;
  return canvas_.item<CurveItem>(item) ? item : 0;
}

/// Frames are made of the kept drawing until nothing has moved for a while; in a long movement it
/// is made anew now and then, unless a curve moves, which needs no other.
void PageWindow::keepMoving() {
  if (!rest_.isActive() || movingCurve())
    rest_.start(std::max(restTime, static_cast<int>(4 * frame_.cost())));
  update();
}

void PageWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const LaidPreview laid(canvas_, preview_);
  const int lifted = movingCurve();
  if (rest_.isActive() && frame_.cost() > exactFrame) {
    frame_.paintMoved(painter, canvas_, view_, size(), lifted);
  } else {
    if (rest_.isActive())
      frame_.drop();
    frame_.paint(painter, canvas_, view_, size(), lifted);
  }
  paintMarks(painter);
  painter.setTransform(view_.transform(), true);
  preview_.paintMark(painter, canvas_);
}

/// Handles of the current picture, and a ring around the point under the mouse.
void PageWindow::paintMarks(QPainter& painter) const {
  const QColor accent(0x1f, 0x78, 0xb4);
  painter.setRenderHint(QPainter::Antialiasing);
  if (const auto* picture = canvas_.item<PictureItem>(currentItem_)) {
    if (!picture->visible)
      return;
    if (const auto* plot = plotOf(*picture))
      painter.setClipRect(view_.toWindow(plot->area()).adjusted(-4, -4, 4, 4));
    const QRectF frame = view_.toWindow(pictureOnPage(*picture));
    painter.setPen(QPen(accent, 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.setPen(QPen(accent, 1));
    painter.setBrush(Qt::white);
    for (const QPointF& handle : handlesOf(frame))
      painter.drawRect(QRectF(handle - QPointF(3.5, 3.5), QSizeF(7, 7)));
  } else if (const auto* curve = canvas_.item<CurveItem>(currentItem_)) {
    const auto* plot = plotOf(*curve);
    if (!plot || hovered_.kind != Grip::Point || hovered_.index >= curve->points.size())
      return;
    const double radius = curve->symbolRadius() * view_.scale + 4;
    painter.setPen(QPen(accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(view_.toWindow(plot->toPage(curve->points[hovered_.index])), radius,
                        radius);
  }
}

void PageWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  adaptView();
}

void PageWindow::tellCoordinates(const QMouseEvent& event) {
  const QPointF page = view_.toPage(event.localPos());
  if (const PlotItem* map = mapAt(canvas_, page)) {
    const QPointF point = map->fromPage(page);
    emit currentCoordinates(point.x(), point.y(), event.type(), event.button());
  }
}

void PageWindow::mousePressEvent(QMouseEvent* event) {
  tellCoordinates(*event);
  if (press_ == Press::None)
    startPress(*event);
}

void PageWindow::startPress(const QMouseEvent& event) {
  const QPointF pixel = event.localPos();
  const bool left = event.button() == Qt::LeftButton;
  if (!left && event.button() != Qt::MiddleButton)
    return;
  if (!left || spaceHeld_) {
    drag_ = startSheetDrag(view_, pixel);
  } else {
    hovered_ = gripAt(canvas_, view_, currentItem_, pixel);
    drag_ = startDrag(canvas_, view_, hovered_, pixel);
  }
  press_ = Press::Still;
  button_ = event.button();
  pressed_ = pixel;
}

void PageWindow::mouseMoveEvent(QMouseEvent* event) {
  const QPointF pixel = event->localPos();
  if (press_ == Press::Still && (pixel - pressed_).manhattanLength() > stillClick)
    press_ = Press::Moving;
  if (press_ == Press::None)
    hover(pixel);
  else if (press_ == Press::Moving)
    drag(pixel, event->modifiers());
  tellCoordinates(*event);
}

void PageWindow::drag(const QPointF& pixel, Qt::KeyboardModifiers modifiers) {
  // An observer may end the drag while it is told of it.
  const std::shared_ptr<Drag> drag = drag_;
  if (!drag)
    return;
  setCursor(drag->cursor());
  keepMoving();
  drag->moveTo(pixel, modifiers);
}

void PageWindow::mouseReleaseEvent(QMouseEvent* event) {
  tellCoordinates(*event);
  if (press_ == Press::None || event->button() != button_)
    return;
  const bool isClick = press_ == Press::Still && button_ == Qt::LeftButton && !spaceHeld_;
  const bool endsDrag = dragsOnPage();
  endPress();
  if (endsDrag)
    emit modified();
  if (isClick)
    click(event->localPos());
  hover(event->localPos());
}

bool PageWindow::dragsOnPage() const {
  return press_ == Press::Moving && drag_ && drag_->changesPage();
}

void PageWindow::endPress() {
  press_ = Press::None;
  drag_.reset();
  if (fit_ == Fit::Nothing)
    view_ = keptInSight(view_, canvas_.paperSize(), size());
}

/// A click picks a picture on a map, or none, unless something else takes the mouse.
void PageWindow::click(const QPointF& pixel) {
  if (currentItem_ == 0 || canvas_.item<PictureItem>(currentItem_))
    setCurrentItem(pictureAt(canvas_, view_, pixel));
}

void PageWindow::hover(const QPointF& pixel) {
  const Grip former = std::exchange(hovered_, gripAt(canvas_, view_, currentItem_, pixel));
  setCursor(spaceHeld_ ? Qt::OpenHandCursor : cursorOf(hovered_));
  if (hovered_.kind != former.kind || hovered_.index != former.index)
    update();
}

/// Puts back what is dragged, or else lets go of the current picture. False if there is neither.
bool PageWindow::escape() {
  if (press_ == Press::Moving && drag_) {
    const std::shared_ptr<Drag> drag = drag_;
    endPress();
    keepMoving();
    drag->undo();
    return true;
  }
  if (!canvas_.item<PictureItem>(currentItem_))
    return false;
  setCurrentItem(0);
  return true;
}

void PageWindow::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (press_ != Press::None)
    return;
  const QPointF pixel = event->position();
  const QPointF page = view_.toPage(pixel);
  const double factor = std::pow(zoomOfNotch, event->angleDelta().y() / notch);
  if (event->modifiers() & Qt::ControlModifier)
    zoomSheet(factor, pixel);
  else if (const PlotItem* map = mapAt(canvas_, page))
    zoomMap(*map, 1 / factor, map->fromPage(page));
  else
    panSheet(QPointF(event->angleDelta()) * (scrollOfNotch / notch));
}

void PageWindow::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers() & Qt::ControlModifier;
  bool done = true;
  switch (event->key()) {
  case Qt::Key_Escape:
    done = escape();
    break;
  case Qt::Key_Space:
    spaceHeld_ = true;
    setCursor(Qt::OpenHandCursor);
    break;
  case Qt::Key_Home:
    fitSheet();
    break;
  case Qt::Key_Plus:
  case Qt::Key_Equal:
    zoomByKey(zoomOfKey, control);
    break;
  case Qt::Key_Minus:
    zoomByKey(1 / zoomOfKey, control);
    break;
  case Qt::Key_Left:
    panByKey({-1, 0});
    break;
  case Qt::Key_Right:
    panByKey({1, 0});
    break;
  case Qt::Key_Up:
    panByKey({0, 1});
    break;
  case Qt::Key_Down:
    panByKey({0, -1});
    break;
  default:
    done = false;
  }
  if (!done)
    QWidget::keyPressEvent(event);
}

void PageWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    spaceHeld_ = false;
    if (press_ == Press::None)
      setCursor(cursorOf(hovered_));
  }
  QWidget::keyReleaseEvent(event);
}

void PageWindow::focusOutEvent(QFocusEvent* event) {
  spaceHeld_ = false;
  QWidget::focusOutEvent(event);
}

void PageWindow::zoomByKey(double factor, bool ofSheet) {
  const PlotItem* map = firstMap(canvas_);
  if (ofSheet || !map)
    zoomSheet(factor, QRectF(rect()).center());
  else if (press_ == Press::None)
    zoomMap(*map, 1 / factor, map->fromPage(map->area().center()));
}

/// `direction` points to the east and to the north.
void PageWindow::panByKey(const QPointF& direction) {
  if (press_ != Press::None)
    return;
  if (const PlotItem* map = firstMap(canvas_)) {
    const MapRange range = rangeOf(*map);
    showOnMap(*map, movedRange(range, {direction.x() * stepOfKey * range.width(),
                                       direction.y() * stepOfKey * range.height()}));
  } else {
    panSheet(QPointF(-direction.x(), direction.y()) * scrollOfNotch);
  }
}

} // namespace TVR::Page
