#include "study/page/Diagrams.h"

#include "page/model/Items.h"
#include "study/page/PageMaker.h"
#include "study/page/SeriesBand.h"
#include "study/page/StudyFindings.h"

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

using namespace Page;

// Lengths in [mm].
constexpr double titleHeight = 5.5;
constexpr double keyWidth = 46;

const QColor strongColour(31, 97, 150);
const QColor paleColour(164, 200, 226);
const QColor lineColour(10, 40, 80);

struct Range {
  double low;
  double high;
};

/// The range of numbers with some room on both sides. Numbers that hardly differ stay a flat line.
Range roomyRange(double least, double greatest, double room) {
  constexpr double leastSpan = 0.03; // of the size of the numbers
  const double size = std::max({std::abs(least), std::abs(greatest), 1e-3});
  const double span = greatest - least;
  const double beside = std::max(room * span, (leastSpan * size - span) / 2);
  return {least - beside, greatest + beside};
}

void setRange(Axis& axis, const Range& range) {
  axis.automatic = false;
  axis.minimum = range.low;
  axis.maximum = range.high;
}

void addTitle(PageMaker& page, const QRectF& box, const QString& title) {
  page.addText({box.left(), box.top(), box.width(), titleHeight},
               "<b>" + title.toHtmlEscaped() + "</b>", 8);
}

PlotItem& addPlot(PageMaker& page, const QRectF& box, const QMarginsF& margins) {
  auto& plot = page.add<PlotItem>(box);
  plot.margins = margins;
  plot.font = QFont("Arial", 7);
  return plot;
}

CurveItem& addLine(PageMaker& page, PlotItem& plot, const QPolygonF& points, const QPen& pen) {
  auto& line = page.addTo<CurveItem>(plot);
  line.points = points;
  line.pen = pen;
  return line;
}

void addArea(PageMaker& page, PlotItem& plot, QPolygonF outline, const QColor& colour) {
  outline.append(outline.first());
  addLine(page, plot, outline, Qt::NoPen).brush = colour;
}

QPolygonF lineOf(const std::vector<double>& x, const std::vector<double>& y) {
  QPolygonF line;
  for (std::size_t i = 0; i < x.size(); ++i)
    line.append({x[i], y[i]});
  return line;
}

/// Writes at the last point of a line what it is.
void nameEnd(CurveItem& line, const QString& name) {
  line.marks.resize(static_cast<std::size_t>(line.points.size()));
  line.marks.back().text = name;
}

} // namespace

void addBandPlot(PageMaker& page, const QRectF& box, const QString& title, const QString& quantity,
                 const SeriesBand& band) {
  auto& plot = addPlot(page, box, {16, titleHeight + 1, 4, 9});
  plot.name = title;
  addTitle(page, box, title);
  plot.x.description = QStringLiteral("Time [a]");
  plot.y.description = QStringLiteral("%1 [%2]").arg(quantity, band.unit);
  constexpr double roomForNames = 0.07; // behind the last time
  setRange(plot.x, {0, band.times.back() * (1 + roomForNames)});
  setRange(plot.y, roomyRange(*std::min_element(band.low.begin(), band.low.end()),
                              *std::max_element(band.high.begin(), band.high.end()), 0.1));
  const QPolygonF low = lineOf(band.times, band.low);
  QPolygonF outline = lineOf(band.times, band.high);
  for (int i = low.size(); i > 0; --i)
    outline.append(low[i - 1]);
  addArea(page, plot, outline, paleColour);
  nameEnd(addLine(page, plot, low, QPen(strongColour, 0.2)), "P10");
  nameEnd(addLine(page, plot, lineOf(band.times, band.high), QPen(strongColour, 0.2)), "P90");
  nameEnd(addLine(page, plot, lineOf(band.times, band.middle), QPen(lineColour, 0.4)), "P50");
}

void addTornado(PageMaker& page, const QRectF& box, const Tornado& tornado) {
  constexpr std::size_t mostBars = 10;
  constexpr double halfBar = 0.36; // of the distance of two bars
  const std::size_t count = std::min(mostBars, tornado.bars.size());
  auto& plot = addPlot(page, box, {keyWidth, titleHeight + 1, 5, 9});
  plot.name = "Tornado";
  addTitle(page, box, QStringLiteral("What makes the difference: %1").arg(tornado.answer));
  plot.x.description = QStringLiteral("Median; pale: lowest tenth of a key, dark: highest");
  plot.y.hidden = true;
  setRange(plot.y, {-static_cast<double>(count), 0});
  double least = tornado.median;
  double greatest = tornado.median;
  for (std::size_t i = 0; i < count; ++i) {
    const TornadoBar& bar = tornado.bars[i];
    least = std::min({least, bar.atLowest, bar.atHighest});
    greatest = std::max({greatest, bar.atLowest, bar.atHighest});
  }
  setRange(plot.x, roomyRange(least, greatest, 0.05));
  for (std::size_t i = 0; i < count; ++i) {
    const double middle = -static_cast<double>(i) - 0.5;
    const auto addBar = [&](double end, const QColor& colour) {
      const QRectF bar(QPointF(tornado.median, middle - halfBar), QPointF(end, middle + halfBar));
      addArea(page, plot, QPolygonF(bar), colour);
    };
    addBar(tornado.bars[i].atLowest, paleColour);
    addBar(tornado.bars[i].atHighest, strongColour);
    const double y = plot.toPage({0, middle}).y();
    constexpr double height = 4.5;
    page.addText(
        {box.left(), y - height / 2, keyWidth - 2, height},
        QStringLiteral("<p align=\"right\">%1</p>").arg(tornado.bars[i].key.toHtmlEscaped()), 7);
  }
  addLine(page, plot, lineOf({tornado.median, tornado.median}, {-static_cast<double>(count), 0}),
          QPen(lineColour, 0.3));
}

} // namespace TVR::Study
