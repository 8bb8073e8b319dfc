#include "page/painting/PointLabels.h"

#include "page/model/Items.h"
#include "page/painting/IsolineLabels.h"
#include "page/painting/LabelPainter.h"

#include <QPainter>

#include <algorithm>

namespace TVR::Page {

void paintPointLabels(QPainter& painter, const CurveItem& curve, const PlotItem& plot,
                      std::vector<QPolygonF>& taken) {
  const QFont font = labelFont(plot);
  const double radius = curve.symbolRadius();
  const int count = std::min(
      {curve.points.size(), static_cast<int>(curve.marks.size()), CurveItem::mostMarksShown});
  for (int point = 0; point < count; ++point) {
    const QString& text = curve.marks[point].text;
    const QPointF place = plot.toPage(curve.points[point]);
    if (text.isEmpty() || !plot.area().contains(place))
      continue;
    if (const auto beside = placeBeside(place, radius + curve.pen.widthF() / 2, 0,
                                        labelRoom(text, font), plot.area(), taken))
      writeLabelBeside(painter, *beside, text, font, Qt::black);
  }
}

} // namespace TVR::Page
