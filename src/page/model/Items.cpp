#include "page/model/Items.h"

#include <algorithm>
#include <cmath>

namespace TVR::Page {

using namespace Sketra_lib::Property;

QSizeF PlotItem::scale() const {
  const double xRange = x.maximum - x.minimum;
  const double yRange = y.maximum - y.minimum;
  if (!(xRange > 0) || !(yRange > 0))
    return {0, 0};
  const QRectF plotting = area();
  const QSizeF scale(plotting.width() / xRange, plotting.height() / yRange);
  if (!uniformScale)
    return scale;
  const double tighter = std::min(scale.width(), scale.height());
  return {tighter, tighter};
}

QPointF PlotItem::toPage(const QPointF& point) const {
  const QSizeF unit = scale();
  const QPointF origin = area().bottomLeft();
  return {origin.x() + (point.x() - x.minimum) * unit.width(),
          origin.y() - (point.y() - y.minimum) * unit.height()};
}

QPointF PlotItem::fromPage(const QPointF& point) const {
  const QSizeF unit = scale();
  if (unit.width() == 0 || unit.height() == 0)
    return {x.minimum, y.minimum};
  const QPointF origin = area().bottomLeft();
  return {x.minimum + (point.x() - origin.x()) / unit.width(),
          y.minimum + (origin.y() - point.y()) / unit.height()};
}

QTransform PlotItem::pageTransform() const {
  const QSizeF unit = scale();
  // Around the corner of the area: map coordinates are large.
  return QTransform::fromTranslate(-x.minimum, -y.minimum) *
         QTransform::fromScale(unit.width(), -unit.height()) *
         QTransform::fromTranslate(area().left(), area().bottom());
}

int CurveItem::symbolOf(int point) const {
  const bool isMarked = point >= 0 && point < static_cast<int>(marks.size());
  return isMarked && marks[point].symbol != NoSymbol ? marks[point].symbol : symbol;
}

double CurveItem::symbolRadius() const {
  return std::max(symbolSize.width(), symbolSize.height()) / 10 / 2;
}

bool GridDataItem::DataSet::hasChange() const {
  return std::any_of(values.begin(), values.end(),
                     [](double value) { return std::abs(value) > leastChange; });
}

bool GridDataItem::keepsItsTemperature() const {
  return !sets[Temperature].values.empty() && !sets[Temperature].hasChange();
}

int GridDataItem::colouredQuantity() const {
  for (const int set : {Temperature, Drawdowns}) {
    const std::vector<double>& values = sets[set].values;
    const bool isUneven =
        std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>()) != values.end();
    if (isUneven && sets[set].hasChange())
      return set;
  }
  return StartValues;
}

const GridDataItem::DataSet* GridDataItem::colouredSet() const {
  const int quantity = colouredQuantity();
  return quantity == StartValues ? nullptr : &sets[quantity];
}

QString GridDataItem::colouredUnit() const {
  return unit.isEmpty() ? unitOfDataSet(colouredQuantity()) : unit;
}

QString unitOfDataSet(int dataSet) {
  return dataSet == Temperature ? "K" : "m";
}

const PlotItem* plotOf(const Item& item) {
  return dynamic_cast<const PlotItem*>(item.parent);
}

} // namespace TVR::Page
