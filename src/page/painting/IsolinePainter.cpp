#include "page/painting/IsolinePainter.h"

#include "page/model/ItemWalk.h"
#include "page/painting/IsolineLabels.h"
#include "page/painting/LabelPainter.h"
#include "page/painting/LineClip.h"
#include "page/painting/LinePainter.h"

#include <algorithm>

namespace TVR::Page {

namespace {

/// Whether a line lies below one of the boxes. What stands out by less than the widths of both pens
/// cannot be told from the rim of the symbol.
bool isHidden(const QPolygonF& line, const std::vector<QPolygonF>& boxes) {
  constexpr double penWidths = 0.3; // [mm]
  return std::any_of(boxes.begin(), boxes.end(), [&](const QPolygonF& box) {
    const QRectF covered =
        box.boundingRect().adjusted(-penWidths, -penWidths, penWidths, penWidths);
    return std::all_of(line.begin(), line.end(),
                       [&](const QPointF& point) { return covered.contains(point); });
  });
}

/// Writes the labels of the isolines of a grid.
class LabelWriter {
public:
  LabelWriter(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
              std::vector<QPolygonF>& taken)
      : painter_(painter), grid_(grid), plot_(plot), taken_(taken), font_(labelFont(plot)),
        area_(plot.area().adjusted(0.5, 0.5, -0.5, -0.5)), lines_(linesBut(nullptr)) {}

  void write(const IsolineItem& isoline) {
    const QString text = isolineLabel(isoline);
    const QColor colour = isolinePen(isoline).color();
    const double distance = 10. * std::max(1, isoline.labelDensity); // from [cm]
    const std::vector<QPolygonF> parts = isolineParts(isoline, plot_);
    // A name could be that of any line that it stands on; numbers follow from those around.
    const bool isNamed = !isoline.labelText.isEmpty();
    const std::vector<QPolygonF> others = isNamed ? linesBut(&isoline) : std::vector<QPolygonF>();
    bool isLabelled = false;
    for (const QPolygonF& part : parts)
      for (const LabelPlace& place :
           placeLabels(part, labelRoom(text, font_), distance, area_, taken_, others)) {
        writeLabel(painter_, place, text, font_, colour);
        isLabelled = true;
      }
    if (!isLabelled)
      writeAside(parts, text, colour);
  }

private:
  /// The lines of the grid but those of one isoline.
  std::vector<QPolygonF> linesBut(const IsolineItem* left) const {
    std::vector<QPolygonF> lines;
    forVisible<IsolineItem>(grid_.children, [&](const IsolineItem& isoline) {
      if (&isoline != left)
        for (QPolygonF& part : isolineParts(isoline, plot_))
          lines.push_back(std::move(part));
    });
    return lines;
  }

  /// The label of a level whose pieces are all too short to bear one, or too close to others, off
  /// the longest of them. A loop below a well is not to be seen and has none.
  void writeAside(const std::vector<QPolygonF>& parts, const QString& text, const QColor& colour) {
    const auto longest =
        std::max_element(parts.begin(), parts.end(), [](const QPolygonF& a, const QPolygonF& b) {
          return lengthOf(a) < lengthOf(b);
        });
    if (longest == parts.end() || isHidden(*longest, taken_))
      return;
    const auto place = placeOffLine(*longest, labelRoom(text, font_), area_, lines_, taken_);
    if (place)
      writeLabelBeside(painter_, *place, text, font_, colour);
  }

  QPainter& painter_;
  const GridDataItem& grid_;
  const PlotItem& plot_;
  std::vector<QPolygonF>& taken_;
  QFont font_;
  QRectF area_;
  std::vector<QPolygonF> lines_; ///< of all isolines
};

} // namespace

QPen isolinePen(const IsolineItem& isoline) {
  QPen pen = isoline.pen;
  if (!pen.color().isValid())
    pen.setColor(Qt::darkRed);
  pen.setJoinStyle(Qt::RoundJoin);
  const auto* grid = dynamic_cast<const GridDataItem*>(isoline.parent);
  if (grid && grid->isImported)
    pen.setStyle(pen.style() == Qt::SolidLine ? Qt::DashDotLine : Qt::DotLine);
  return pen;
}

std::vector<QPolygonF> isolineParts(const IsolineItem& isoline, const PlotItem& plot) {
  std::vector<QPolygonF> parts;
  for (QVector<QPointF>& piece : Contour::pieces(isoline.line)) {
    std::transform(piece.begin(), piece.end(), piece.begin(),
                   [&](const QPointF& point) { return plot.toPage(point); });
    for (QPolygonF& part : clippedLine(piece, plot.area()))
      parts.push_back(std::move(part));
  }
  return parts;
}

QString isolineLabel(const IsolineItem& isoline) {
  if (!isoline.labelText.isEmpty())
    return isoline.labelText;
  return QString::number(isoline.shownLevel.value_or(isoline.line.level)) + " " +
         unitOfDataSet(isoline.dataSet);
}

void paintIsolines(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  forVisible<IsolineItem>(grid.children, [&](const IsolineItem& isoline) {
    for (const QPolygonF& part : isolineParts(isoline, plot))
      paintLine(painter, part, isolinePen(isoline));
  });
}

void paintIsolineLabels(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                        std::vector<QPolygonF>& taken) {
  LabelWriter writer(painter, grid, plot, taken);
  forVisible<IsolineItem>(grid.children, [&](const IsolineItem& isoline) {
    if (isoline.labelsVisible || isoline.shownLevel)
      writer.write(isoline);
  });
}

} // namespace TVR::Page
