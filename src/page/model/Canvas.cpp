#include "page/model/Canvas.h"

#include "contour/FinitePoints.h"
#include "contour/IsolineTracing.h"
#include "page/model/AxisTicks.h"
#include "page/model/ItemProperties.h"

#include <QScopeGuard>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

/// An axis that grows takes in a round length: a range of about so many of them.
constexpr double roundStepsOfAxis = 10;
/// Part of the range that an axis that grows leaves free beside its contents.
constexpr double freePartOfAxis = 1 / 8.;

/// More levels than this have no line: nobody could tell them apart.
constexpr size_t mostLevels = 1000;

/// The levels that are numbers. A text that is none has no line.
std::vector<double> numericLevels(const QVariantList& levels) {
  std::vector<double> numbers;
  for (const QVariant& level : levels) {
    bool isNumber = false;
    const double number = level.toDouble(&isNumber);
    if (isNumber && std::isfinite(number) && numbers.size() < mostLevels)
      numbers.push_back(number);
  }
  return numbers;
}

/// The points that an item in a plot has there [plot units].
std::vector<QPointF> extentOf(const Item& item) {
  if (const auto* curve = dynamic_cast<const CurveItem*>(&item))
    return {curve->points.begin(), curve->points.end()};
  if (const auto* grid = dynamic_cast<const GridDataItem*>(&item))
    return grid->mesh.nodes;
  const auto* picture = dynamic_cast<const PictureItem*>(&item);
  if (picture && picture->inMapCoordinates)
    return {picture->position,
            picture->position + QPointF(picture->size.width(), -picture->size.height())};
  return {};
}

struct AxisRange {
  double low;
  double high;
};

/// The range of an axis whose scale is free, grown around contents: an end that they pass goes to a
/// round number with room beside them, for at the very edge they would hide in the frame.
AxisRange roomyRange(const Axis& axis, const AxisRange& contents) {
  const AxisRange all{std::min(axis.minimum, contents.low), std::max(axis.maximum, contents.high)};
  AxisRange grown = all;
  const double roomyLow = contents.low - freePartOfAxis * (all.high - contents.low);
  if (contents.low < axis.minimum || (axis.grownMinimum == axis.minimum && roomyLow < grown.low))
    grown.low = roomyLow;
  const double roomyHigh = contents.high + freePartOfAxis * (contents.high - all.low);
  if (contents.high > axis.maximum || (axis.grownMaximum == axis.maximum && roomyHigh > grown.high))
    grown.high = roomyHigh;
  const double step = niceStep((grown.high - grown.low) / roundStepsOfAxis, false);
  if (!(step > 0))
    return grown;
  if (grown.low < axis.minimum)
    grown.low = std::floor(grown.low / step) * step;
  if (grown.high > axis.maximum)
    grown.high = std::ceil(grown.high / step) * step;
  return grown;
}

/// Properties whose new value bears on the isolines of a grid.
bool concernsIsolines(int number) {
  return number == Levels || number == Values;
}

/// Properties that are long lists: not compared where nobody listens.
bool isBulky(int number) {
  return number == Values || number == Points;
}

} // namespace

Canvas::Canvas(QObject* parent) : QObject(parent) {}

Canvas::~Canvas() = default;

Item* Canvas::item(int id) const {
  return itemsById_.value(id);
}

int Canvas::itemByName(const QString& name) const {
  for (const Item* item : itemsById_)
    if (item->name == name)
      return item->id;
  return 0;
}

QList<int> Canvas::childItems(int id) const {
  QList<int> ids;
  if (const Item* parent = item(id))
    for (const std::unique_ptr<Item>& child : parent->children)
      ids.append(child->id);
  return ids;
}

template <typename Kind>
Kind& Canvas::add(Item* parent) {
  auto created = std::make_unique<Kind>(page_.nextItemId++);
  Kind& item = *created;
  item.parent = parent;
  itemsById_[item.id] = &item;
  (parent ? parent->children : page_.items).push_back(std::move(created));
  return item;
}

int Canvas::addPicture(int plot, const QPointF& topLeft, const QSizeF& size) {
  auto* parent = item<PlotItem>(plot);
  if (!parent)
    return 0;
  auto& picture = add<PictureItem>(parent);
  setItemProperty(picture, Position, topLeft);
  setItemProperty(picture, Size, size);
  touch();
  return picture.id;
}

int Canvas::addCurve(int plot, const QPolygonF& points, bool connected) {
  auto* parent = item<PlotItem>(plot);
  if (!parent)
    return 0;
  const UpdateScope update(*this);
  auto& curve = add<CurveItem>(parent);
  curve.points = Contour::finitePoints(points);
  curve.style = connected ? Lines : SymbolsOnly;
  const int id = curve.id;
  growAxes(*parent);
  touch();
  return id;
}

int Canvas::addGridData(int plot) {
  auto* parent = item<PlotItem>(plot);
  if (!parent)
    return 0;
  const int id = add<GridDataItem>(parent).id;
  touch();
  return id;
}

int Canvas::addItem(int plot, std::unique_ptr<Item> item) {
  auto* parent = this->item<PlotItem>(plot);
  if (!parent)
    return 0;
  const UpdateScope update(*this);
  const int id = item->id;
  item->parent = parent;
  adopt(*item);
  parent->children.push_back(std::move(item));
  growAxes(*parent);
  touch();
  return id;
}

void Canvas::setContents(PageContents contents) {
  const UpdateScope update(*this);
  clear();
  page_ = std::move(contents);
  for (const std::unique_ptr<Item>& item : page_.items)
    adopt(*item);
}

std::vector<std::unique_ptr<Item>>& Canvas::siblings(const Item& item) {
  return item.parent ? item.parent->children : page_.items;
}

void Canvas::forget(const Item& item) {
  itemsById_.remove(item.id);
  observers_.remove(item.id);
  for (const std::unique_ptr<Item>& child : item.children)
    forget(*child);
}

void Canvas::adopt(Item& item) {
  itemsById_[item.id] = &item;
  page_.nextItemId = std::max(page_.nextItemId, item.id + 1);
  for (const std::unique_ptr<Item>& child : item.children)
    adopt(*child);
}

void Canvas::removeItem(int id) {
  Item* gone = item(id);
  if (!gone)
    return;
  if (const auto* isoline = dynamic_cast<IsolineItem*>(gone))
    if (auto* grid = dynamic_cast<GridDataItem*>(gone->parent)) {
      GridDataItem::DataSet& set = grid->sets[isoline->dataSet];
      set.linesAreStale = true;
      set.isolines.erase(std::remove(set.isolines.begin(), set.isolines.end(), id),
                         set.isolines.end());
    }
  forget(*gone);
  std::vector<std::unique_ptr<Item>>& row = siblings(*gone);
  row.erase(std::find_if(row.begin(), row.end(),
                         [gone](const std::unique_ptr<Item>& item) { return item.get() == gone; }));
  touch();
}

void Canvas::moveToBackground(int id) {
  Item* moved = item(id);
  if (!moved)
    return;
  std::vector<std::unique_ptr<Item>>& row = siblings(*moved);
  const auto place =
      std::find_if(row.begin(), row.end(),
                   [moved](const std::unique_ptr<Item>& item) { return item.get() == moved; });
  std::rotate(row.begin(), place, place + 1);
  touch();
}

void Canvas::clear() {
  itemsById_.clear();
  observers_.clear();
  page_.items.clear();
  touch();
}

QVariant Canvas::property(int id, int number) const {
  const Item* read = item(id);
  return read ? itemProperty(*read, number) : QVariant();
}

void Canvas::setProperty(int id, int number, const QVariant& value) {
  Item* written = item(id);
  if (!written)
    return;
  const UpdateScope update(*this);
  const bool isHeard = notifies_ && observers_.contains(id);
  const bool compares = isReadable(written->kind, number) && (isHeard || !isBulky(number));
  const QVariant before = compares ? itemProperty(*written, number) : QVariant();
  if (!setItemProperty(*written, number, value))
    return;
  auto* grid = dynamic_cast<GridDataItem*>(written);
  if (grid && concernsIsolines(number))
    traceStaleLines(*grid);
  if (compares && itemProperty(*written, number) == before)
    return;
  touch();
  notify(id, number);
}

void Canvas::redraw(int id) {
  Item* drawn = item(id);
  if (!drawn)
    return;
  const UpdateScope update(*this);
  if (auto* grid = dynamic_cast<GridDataItem*>(drawn))
    traceStaleLines(*grid);
  auto* plot = dynamic_cast<PlotItem*>(drawn);
  if (!plot)
    plot = dynamic_cast<PlotItem*>(drawn->parent);
  if (plot)
    growAxes(*plot);
  touch();
}

void Canvas::movePoint(int curve, int index, const QPointF& point) {
  auto* moved = item<CurveItem>(curve);
  if (!moved || index < 0 || index >= moved->points.size() || !Contour::isFinite(point))
    return;
  moved->points[index] = point;
  touch();
  notify(curve, PointMoved);
}

void Canvas::beginUpdate() {
  ++updateDepth_;
}

void Canvas::endUpdate() {
  if (updateDepth_ == 0 || --updateDepth_ > 0 || !changedInUpdate_)
    return;
  changedInUpdate_ = false;
  emit changed();
}

void Canvas::touch() {
  if (updateDepth_ > 0)
    changedInUpdate_ = true;
  else
    emit changed();
}

void Canvas::attachObserver(int id, DATA::DataObserver* observer) {
  if (!item(id) || !observer)
    return;
  detachObserver(id, observer);
  auto* object = dynamic_cast<QObject*>(observer);
  observers_[id].push_back({observer, object != nullptr, object});
}

void Canvas::detachObserver(int id, DATA::DataObserver* observer) {
  const auto entry = observers_.find(id);
  if (entry == observers_.end())
    return;
  std::vector<Observer>& list = *entry;
  list.erase(std::remove_if(
                 list.begin(), list.end(),
                 [observer](const Observer& attached) { return attached.observer == observer; }),
             list.end());
  if (list.empty())
    observers_.erase(entry);
}

void Canvas::notify(int id, int number) {
  if (!notifies_ || !observers_.contains(id))
    return;
  const auto restore = qScopeGuard([this, item = changedItem_, property = changedProperty_] {
    changedItem_ = item;
    changedProperty_ = property;
  });
  // An observer may detach itself or others, and remove the item.
  const std::vector<Observer> listeners = observers_[id];
  for (const Observer& listener : listeners) {
    const std::vector<Observer> attached = observers_.value(id);
    const bool isAttached =
        std::any_of(attached.begin(), attached.end(), [&listener](const Observer& other) {
          return other.observer == listener.observer;
        });
    Item* changedItem = item(id);
    if (!changedItem || !isAttached || (listener.isObject && !listener.object))
      continue;
    changedItem_ = id;
    changedProperty_ = number;
    listener.observer->update(changedItem);
  }
}

void Canvas::growAxes(PlotItem& plot) {
  const auto grow = [this, id = plot.id](Axis PlotItem::*which, int minimumNumber,
                                         int maximumNumber, auto coordinate) {
    auto* grown = item<PlotItem>(id); // observers of the other axis may have removed it
    if (!grown || !(grown->*which).automatic)
      return;
    Axis& axis = grown->*which;
    AxisRange contents{std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity()};
    for (const std::unique_ptr<Item>& child : grown->children)
      for (const QPointF& point : extentOf(*child)) {
        contents.low = std::min(contents.low, coordinate(point));
        contents.high = std::max(contents.high, coordinate(point));
      }
    if (!(contents.low <= contents.high))
      return;
    const AxisRange range = grown->uniformScale ? AxisRange{std::min(axis.minimum, contents.low),
                                                            std::max(axis.maximum, contents.high)}
                                                : roomyRange(axis, contents);
    if (range.low < axis.minimum)
      axis.grownMinimum = range.low;
    if (range.high > axis.maximum)
      axis.grownMaximum = range.high;
    setProperty(id, minimumNumber, range.low);
    setProperty(id, maximumNumber, range.high);
  };
  grow(&PlotItem::x, XMinimum, XMaximum, [](const QPointF& point) { return point.x(); });
  grow(&PlotItem::y, YMinimum, YMaximum, [](const QPointF& point) { return point.y(); });
}

void Canvas::traceStaleLines(GridDataItem& grid) {
  for (int number = 0; number < DataSetCount; ++number) {
    GridDataItem::DataSet& set = grid.sets[number];
    if (!set.linesAreStale)
      continue;
    const std::vector<double> levels = numericLevels(set.levels);
    matchIsolines(grid, number, levels);
    set.linesAreStale = false;
    if (levels.empty())
      continue;
    std::vector<Contour::Isoline> lines = Contour::traceIsolines(grid.mesh, set.values, levels);
    for (size_t line = 0; line < levels.size(); ++line)
      item<IsolineItem>(set.isolines[line])->line = std::move(lines[line]);
  }
}

void Canvas::matchIsolines(GridDataItem& grid, int set, const std::vector<double>& levels) {
  std::vector<int>& ids = grid.sets[set].isolines;
  while (ids.size() > levels.size())
    removeItem(ids.back());
  while (ids.size() < levels.size()) {
    auto& isoline = add<IsolineItem>(&grid);
    isoline.dataSet = set;
    isoline.line.level = levels[ids.size()];
    ids.push_back(isoline.id);
  }
  for (size_t line = 0; line < levels.size(); ++line) {
    auto& isoline = *item<IsolineItem>(ids[line]);
    if (isoline.line.level == levels[line])
      continue;
    isoline.line.level = levels[line];
    isoline.shownLevel.reset();
  }
}

} // namespace TVR::Page
