#include "study/page/Diagrams.h"

#include "page/model/Items.h"
#include "page/painting/LabelPainter.h"
#include "page/painting/PageText.h"
#include "study/page/PageMaker.h"
#include "study/page/SeriesBand.h"
#include "study/page/StudyFindings.h"
#include "study/page/StudyPageText.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
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

/// Names of lines that end at `x`, from the highest line to the lowest. Where the lines end closer
/// to each other than their names are high, the names stand apart, with a leader each.
void nameEnds(PageMaker& page, PlotItem& plot, double x, const std::array<double, 3>& ends) {
  constexpr std::array<const char*, 3> names{"P90", "P50", "P10"};
  constexpr double leader = 1.5; // [mm]
  const double height = 1.05 * labelRoom(names[0], labelFont(plot)).height();
  std::array<QPointF, 3> places;
  for (std::size_t i = 0; i < places.size(); ++i)
    places[i] = plot.toPage({x, ends[i]}) + QPointF(leader, 0);
  const QRectF area = plot.area();
  const double middle =
      std::clamp(places[1].y(), area.top() + 1.6 * height, area.bottom() - 1.6 * height);
  places[0].setY(std::min(places[0].y(), middle - height));
  places[1].setY(middle);
  places[2].setY(std::max(places[2].y(), middle + height));
  auto& curve = page.addTo<CurveItem>(plot);
  curve.name = "Names";
  curve.style = Sketra_lib::Property::SymbolsOnly;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const QPointF place = plot.fromPage(places[i]);
    curve.points.append(place);
    curve.marks.push_back({names[i], CurveItem::NoSymbol, {}});
    addLine(page, plot, QPolygonF() << QPointF(x, ends[i]) << place, QPen(strongColour, 0.1));
  }
}

/// A frame with a sentence in the place of a diagram.
void addNote(PageMaker& page, const QRectF& box, const QString& title, const QString& note) {
  page.addText(box, {}, 8).pen = QPen(Qt::black, 0.15);
  addTitle(page, box, title);
  constexpr double height = 8;
  page.addText({box.left(), box.center().y() - height / 2, box.width(), height},
               QStringLiteral("<p align=\"center\">%1</p>").arg(note.toHtmlEscaped()), 8);
}

QString noAnswer() {
  return StudyPageText::tr("Nothing to show: no run has this answer");
}

void drawBand(PageMaker& page, const QRectF& box, const QString& title, const QString& quantity,
              const SeriesBand& band) {
  auto& plot = addPlot(page, box, {16, titleHeight + 1, 4, 9});
  plot.name = title;
  addTitle(page, box, title);
  plot.x.description = StudyPageText::tr("Time [a]");
  plot.y.description = quantity;
  constexpr double roomForNames = 0.1; // behind the last time
  setRange(plot.x, {0, band.times.back() * (1 + roomForNames)});
  setRange(plot.y, roomyRange(*std::min_element(band.low.begin(), band.low.end()),
                              *std::max_element(band.high.begin(), band.high.end()), 0.1));
  const QPolygonF low = lineOf(band.times, band.low);
  QPolygonF outline = lineOf(band.times, band.high);
  for (int i = low.size(); i > 0; --i)
    outline.append(low[i - 1]);
  addArea(page, plot, outline, paleColour);
  addLine(page, plot, low, QPen(strongColour, 0.2));
  addLine(page, plot, lineOf(band.times, band.high), QPen(strongColour, 0.2));
  addLine(page, plot, lineOf(band.times, band.middle), QPen(lineColour, 0.4));
  nameEnds(page, plot, band.times.back(), {band.high.back(), band.middle.back(), band.low.back()});
}

/// A bar on each side, or one above the other; the longer one lies below.
void addBars(PageMaker& page, PlotItem& plot, const TornadoBar& bar, double median, double middle) {
  constexpr double halfBar = 0.36; // of the distance of two bars
  const auto add = [&](double end, const QColor& colour) {
    const QRectF area(QPointF(median, middle - halfBar), QPointF(end, middle + halfBar));
    addArea(page, plot, QPolygonF(area), colour);
  };
  const bool isDarkLonger = std::abs(bar.atHighest - median) > std::abs(bar.atLowest - median);
  if (isDarkLonger)
    add(bar.atHighest, strongColour);
  add(bar.atLowest, paleColour);
  if (!isDarkLonger)
    add(bar.atHighest, strongColour);
}

/// Writes beside a bar what is varied, in as many lines as it needs.
void nameBar(PageMaker& page, const PlotItem& plot, const QString& name, double middle) {
  constexpr double width = keyWidth - 3;
  const QFont font("Arial", 7);
  constexpr double slack = 1.03; // a line breaks later on the page than it is measured to
  const QRectF room(0, 0, slack * width / textDot, 1e6);
  const double needed =
      textDot * QFontMetricsF(pageFont(font)).boundingRect(room, Qt::TextWordWrap, name).height();
  const double height = std::min(needed, plot.scale().height());
  const double top = plot.toPage({0, middle}).y() - height / 2;
  auto& text = page.addText({plot.position.x() + 1, top, width, height},
                            QStringLiteral("<p align=\"right\">%1</p>").arg(name.toHtmlEscaped()),
                            font.pointSizeF());
  text.margin = 0;
}

/// Draws the bars that there are, and how wide they reach is `range`.
void drawTornado(PageMaker& page, const QRectF& box, const QString& title, const Tornado& tornado,
                 const Range& range) {
  constexpr std::size_t fewestRows = 5; // of fewer the bars don't fill the frame
  auto& plot = addPlot(page, box, {keyWidth, titleHeight + 1, 5, 9});
  plot.name = "Tornado";
  addTitle(page, box, title);
  constexpr double noteHeight = 5;
  page.addText(
      {box.left(), box.bottom() - noteHeight, box.width(), noteHeight},
      QStringLiteral("<p align=\"right\">%1</p>")
          .arg(StudyPageText::tr("Median; pale: lowest tenth of what is varied, dark: highest")
                   .toHtmlEscaped()),
      7);
  plot.y.hidden = true;
  const auto rows = static_cast<double>(std::max(fewestRows, tornado.bars.size()));
  setRange(plot.y, {-rows, 0});
  setRange(plot.x, roomyRange(range.low, range.high, 0.05));
  for (std::size_t i = 0; i < tornado.bars.size(); ++i) {
    const double middle = -static_cast<double>(i) - 0.5;
    addBars(page, plot, tornado.bars[i], tornado.median, middle);
    nameBar(page, plot, tornado.bars[i].key, middle);
  }
  addLine(page, plot, lineOf({tornado.median, tornado.median}, {-rows, 0}), QPen(lineColour, 0.3));
}

Range rangeOf(const Tornado& tornado) {
  Range range{tornado.median, tornado.median};
  for (const TornadoBar& bar : tornado.bars) {
    range.low = std::min({range.low, bar.atLowest, bar.atHighest});
    range.high = std::max({range.high, bar.atLowest, bar.atHighest});
  }
  return range;
}

} // namespace

void addBandPlot(PageMaker& page, const QRectF& box, const QString& title, const QString& quantity,
                 const std::optional<SeriesBand>& band) {
  if (band && !band->times.empty())
    drawBand(page, box, title, quantity, *band);
  else
    addNote(page, box, title.isEmpty() ? quantity : title, noAnswer());
}

void addTornado(PageMaker& page, const QRectF& box, const Tornado& tornado) {
  constexpr std::size_t mostBars = 10;
  const QString title = StudyPageText::tr("What makes the difference: %1").arg(tornado.answer);
  Tornado shown = tornado;
  shown.bars.resize(std::min(mostBars, shown.bars.size()));
  const Range range = rangeOf(shown);
  if (shown.bars.empty())
    addNote(page, box, title, noAnswer());
  else if (range.low == range.high)
    addNote(page, box, title,
            StudyPageText::tr("Nothing makes a difference: the median is %1 everywhere")
                .arg(shown.median));
  else
    drawTornado(page, box, title, shown, range);
}

} // namespace TVR::Study
