#include "page/painting/AxisPainter.h"

#include "page/model/AxisTicks.h"
#include "page/model/Items.h"
#include "page/painting/LinePainter.h"
#include "page/painting/PageText.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace TVR::Page {

namespace {

// Lengths in [mm].
constexpr double majorTick = 1.2;
constexpr double minorTick = 0.7;
constexpr double labelGap = 0.5;
constexpr double labelDistance = 2.5; // between two numbers side by side
constexpr double edge = 0.2;          // that nothing is written in
constexpr double descriptionEdge = 1; // between a description and the box of the plot
constexpr double narrowestMargin = 3; // for numbers

/// The descriptions of the axes in the templates, for the translators.
[[maybe_unused]] constexpr const char* templateTexts[] = {
    QT_TRANSLATE_NOOP("PageTemplate", "Months"), QT_TRANSLATE_NOOP("PageTemplate", "E [m]"),
    QT_TRANSLATE_NOOP("PageTemplate", "N [m]")};

/// One axis as it stands at the edge of the area.
class AxisLayout {
public:
  AxisLayout(const PlotItem& plot, Qt::Orientation direction)
      : plot_(plot), horizontal_(direction == Qt::Horizontal), axis_(horizontal_ ? plot.x : plot.y),
        area_(plot.area()) {
    const QPointF low = plot.fromPage(area_.bottomLeft());
    const QPointF high = plot.fromPage(area_.topRight());
    minimum_ = horizontal_ ? low.x() : low.y();
    maximum_ = horizontal_ ? high.x() : high.y();
  }

  const Axis& axis() const { return axis_; }

  AxisTicks ticks() const {
    const double length = horizontal_ ? area_.width() : area_.height();
    const double step = fittingStep(maximum_ - minimum_, length, axis_.step, axis_.wholeTicks,
                                    [this](double at) { return labelRoom(at); });
    return axisTicks(minimum_, maximum_, step, axis_.subTicks, axis_.wholeTicks);
  }

  /// The point on the axis at a value.
  QPointF place(double value) const {
    const QPointF onPage = plot_.toPage({value, value});
    if (horizontal_)
      return {onPage.x(), axis_.opposite ? area_.top() : area_.bottom()};
    return {axis_.opposite ? area_.right() : area_.left(), onPage.y()};
  }

  /// The line across the area at a value.
  QLineF across(double value) const {
    const QPointF at = place(value);
    return horizontal_ ? QLineF(at.x(), area_.top(), at.x(), area_.bottom())
                       : QLineF(area_.left(), at.y(), area_.right(), at.y());
  }

  /// Points away from the area.
  QPointF outwards() const {
    const double sign = axis_.opposite == horizontal_ ? -1 : 1;
    return horizontal_ ? QPointF(0, sign) : QPointF(sign, 0);
  }

  void paint(QPainter& painter) const {
    const AxisTicks marks = ticks();
    paintLine(painter, QLineF(place(minimum_), place(maximum_)), plot_.axisPen);
    for (const double value : marks.major)
      paintLine(painter, QLineF(place(value), place(value) + majorTick * outwards()),
                plot_.axisPen);
    for (const double value : marks.minor)
      paintLine(painter, QLineF(place(value), place(value) + minorTick * outwards()),
                plot_.axisPen);
    painter.setPen(plot_.axisPen.color());
    if (margin() >= narrowestMargin)
      paintLabels(painter, marks);
    paintDescription(painter);
  }

private:
  double margin() const {
    const QMarginsF& margins = plot_.margins;
    if (horizontal_)
      return axis_.opposite ? margins.top() : margins.bottom();
    return axis_.opposite ? margins.right() : margins.left();
  }

  double lineHeight() const { return textSize("0", plot_.font).height(); }

  double widestLabel(double step) const {
    return std::max(textSize(tickLabel(minimum_, step), plot_.font).width(),
                    textSize(tickLabel(maximum_, step), plot_.font).width());
  }

  /// How much smaller the numbers are made to stay in the margin.
  double labelScale(double step) const {
    const double description = axis_.description.isEmpty() ? edge : lineHeight() + descriptionEdge;
    const double room = margin() - majorTick - labelGap - description;
    const double needed = horizontal_ ? lineHeight() : widestLabel(step);
    return std::clamp(room / needed, 0.4, 1.);
  }

  double labelRoom(double step) const {
    return horizontal_ ? widestLabel(step) * labelScale(step) + labelDistance
                       : lineHeight() * labelScale(step) * 1.1;
  }

  Qt::Alignment labelAlignment() const {
    if (horizontal_)
      return Qt::AlignHCenter | (axis_.opposite ? Qt::AlignBottom : Qt::AlignTop);
    return Qt::AlignVCenter | (axis_.opposite ? Qt::AlignLeft : Qt::AlignRight);
  }

  void paintLabels(QPainter& painter, const AxisTicks& marks) const {
    const QRectF box = plot_.box().adjusted(edge, edge, -edge, -edge);
    const double scale = labelScale(marks.step);
    double freeFrom = -std::numeric_limits<double>::infinity();
    for (const double value : marks.major) {
      const QString text = tickLabel(value, marks.step);
      const QSizeF size = textSize(text, plot_.font) * scale;
      const double half = (horizontal_ ? size.width() : size.height()) / 2;
      QPointF at = place(value) + (majorTick + labelGap) * outwards();
      // The axes go opposite ways on the page: both are walked from their low end.
      double& along = horizontal_ ? at.rx() : at.ry();
      along = horizontal_ ? keptWithin(along, box.left() + half, box.right() - half)
                          : keptWithin(along, box.top() + half, box.bottom() - half);
      const double walked = horizontal_ ? along : -along;
      if (walked - half < freeFrom)
        continue;
      freeFrom = walked + half;
      drawText(painter, at, labelAlignment(), text, plot_.font, scale);
    }
  }

  static double keptWithin(double value, double low, double high) {
    return std::max(low, std::min(value, high));
  }

  /// In the language of use, where the text is one that the templates have.
  void paintDescription(QPainter& painter) const {
    if (axis_.description.isEmpty())
      return;
    const QString description =
        QCoreApplication::translate("PageTemplate", axis_.description.toUtf8().constData());
    const QRectF box = plot_.box();
    if (horizontal_) {
      const double y =
          axis_.opposite ? box.top() + descriptionEdge : box.bottom() - descriptionEdge;
      drawText(painter, {area_.center().x(), y},
               Qt::AlignHCenter | (axis_.opposite ? Qt::AlignTop : Qt::AlignBottom), description,
               plot_.font);
      return;
    }
    const double x = axis_.opposite ? box.right() - descriptionEdge : box.left() + descriptionEdge;
    drawText(painter, {x, area_.center().y()},
             Qt::AlignHCenter | (axis_.opposite ? Qt::AlignBottom : Qt::AlignTop), description,
             plot_.font, 1, -90);
  }

  const PlotItem& plot_;
  bool horizontal_;
  const Axis& axis_;
  QRectF area_;
  double minimum_;
  double maximum_;
};

} // namespace

AxisTicks plotTicks(const PlotItem& plot, Qt::Orientation direction) {
  return AxisLayout(plot, direction).ticks();
}

void paintGridLines(QPainter& painter, const PlotItem& plot) {
  if (plot.gridPen.style() == Qt::NoPen || plot.scale().isEmpty())
    return;
  for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
    const AxisLayout layout(plot, direction);
    if (layout.axis().hidden)
      continue;
    for (const double value : layout.ticks().major)
      paintLine(painter, layout.across(value), plot.gridPen);
  }
}

void paintAxes(QPainter& painter, const PlotItem& plot) {
  if (plot.axisPen.style() == Qt::NoPen || plot.area().isEmpty())
    return;
  if (!plot.x.hidden) // else the plot below has a frame, and curves along it
    paintFrame(painter, plot.area(), plot.axisPen);
  if (plot.scale().isEmpty())
    return;
  for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical})
    if (const AxisLayout layout(plot, direction); !layout.axis().hidden)
      layout.paint(painter);
}

} // namespace TVR::Page
