#include "page/SamplePage.h"

#include "contour/IsolineTracing.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace TVR::Page::Sample {

namespace {

using namespace Sketra_lib::Property;

const QPointF origin(681200, 227450);
const QPointF pumpingWell = origin + QPointF(-18, -6);
const QPointF injectionWell = origin + QPointF(18, 6);

int nextId() {
  static int id = 0;
  return ++id;
}

template <typename Kind>
std::unique_ptr<Kind> makeItem(const QString& name, const QRectF& tenths) {
  auto item = std::make_unique<Kind>(nextId());
  item->name = name;
  item->position = tenths.topLeft() / 10;
  item->size = tenths.size() / 10;
  return item;
}

std::unique_ptr<TextItem> makeText(const QString& name, const QRectF& tenths, const QString& html,
                                   bool framed = true) {
  auto item = makeItem<TextItem>(name, tenths);
  item->html = html;
  item->margin = 1;
  if (!framed)
    item->pen = Qt::NoPen;
  return item;
}

/// Borders of cells that grow from the middle outwards.
std::vector<double> gradedAxis(int cells, double halfLength) {
  std::vector<double> axis;
  for (int i = 0; i <= cells; ++i) {
    const double share = 2. * i / cells - 1;
    axis.push_back(halfLength * share * (0.25 + 0.75 * share * share));
  }
  return axis;
}

double temperatureAt(const QPointF& place) {
  const QPointF fromWell = QTransform().rotate(20).inverted().map(place - injectionWell);
  const double along = std::max(fromWell.x(), 0.) + 6;
  const double width = 5 + 0.3 * std::sqrt(along) * 3;
  const double upstream = fromWell.x() < 0 ? std::exp(fromWell.x() / 5) : 1;
  return 4 * std::exp(-along / 90) * upstream * std::exp(-std::pow(fromWell.y() / width, 2));
}

double drawdownAt(const QPointF& place) {
  const auto logDistance = [&](const QPointF& well) {
    const QPointF away = place - well;
    return std::log(std::max(std::hypot(away.x(), away.y()), 0.5));
  };
  return 0.25 * (logDistance(pumpingWell) - logDistance(injectionWell));
}

std::unique_ptr<IsolineItem> isoline(const GridDataItem& grid, int set, double level) {
  auto line = std::make_unique<IsolineItem>(nextId());
  line->dataSet = set;
  line->line = Contour::traceIsoline(grid.mesh, grid.sets[set].values, level);
  line->legendFont = QFont("Arial", 11);
  if (set == Drawdowns) {
    line->name = QString("Isohypse (%1 m change)").arg(level);
    line->legendText = "Isohypse (%1 m)";
    line->labelsVisible = false;
    line->pen = QPen(Qt::darkGray, 0.15);
  } else {
    line->name = QString("Isotherm (%1K change)").arg(level);
    line->legendText = QString("Isotherm (%1K)").arg(level);
    line->pen = QPen(level == 1 ? Qt::blue : level == 3 ? Qt::red : Qt::green, 0.25);
  }
  return line;
}

QImage backgroundMap() {
  QImage image(2400, 2000, QImage::Format_RGB32);
  image.fill(QColor(245, 243, 235));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(200, 190, 170), 40));
  painter.drawLine(0, 600, 2400, 900);
  painter.drawLine(900, 0, 1200, 2000);
  painter.setPen(QPen(Qt::gray, 3));
  painter.setBrush(QColor(220, 210, 200));
  for (int i = 0; i < 60; ++i)
    painter.drawRect(100 + 370 * (i % 6), 60 + 190 * (i / 6), 160, 110);
  return image;
}

QPolygonF steps(const std::vector<double>& values) {
  QPolygonF points;
  for (std::size_t i = 0; i < values.size(); ++i) {
    points.append({2. * i, values[i]});
    points.append({2. * (i + 1), values[i]});
  }
  return points;
}

std::unique_ptr<CurveItem> stepCurve(const QString& name, const std::vector<double>& values,
                                     const QColor& colour) {
  auto curve = std::make_unique<CurveItem>(nextId());
  curve->name = name;
  curve->style = Steps;
  curve->points = steps(values);
  curve->pen = QPen(colour, 0.3);
  return curve;
}

std::unique_ptr<PlotItem> demandPlot(const QString& name) {
  auto plot = makeItem<PlotItem>(name, QRectF(1875, 1325, 1000, 425));
  plot->margins = {15, 5, 13, 10};
  plot->gridPen = Qt::NoPen;
  plot->x.maximum = 12;
  plot->x.wholeTicks = true;
  plot->y.maximum = 100;
  plot->y.wholeTicks = true;
  return plot;
}

} // namespace

void fillGrid(GridDataItem& grid, int columns, int rows) {
  grid.name = "Simulation results";
  grid.inLegend = true;
  const std::vector<double> xAxis = gradedAxis(columns, 250);
  const std::vector<double> yAxis = gradedAxis(rows, 200);
  const QTransform turn = QTransform().translate(origin.x(), origin.y()).rotate(20);
  for (const double y : yAxis)
    for (const double x : xAxis)
      grid.mesh.nodes.push_back(turn.map(QPointF(x, y)));
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      const int node = j * (columns + 1) + i;
      grid.mesh.cells.push_back({node, node + 1, node + columns + 2, node + columns + 1});
      const QPointF centre = (grid.mesh.nodes[node] + grid.mesh.nodes[node + columns + 2]) / 2;
      grid.mesh.centres.push_back(centre);
      grid.sets[Temperature].values.push_back(temperatureAt(centre));
      grid.sets[Drawdowns].values.push_back(drawdownAt(centre));
    }
}

std::unique_ptr<PlotItem> mapView(int columns, int rows, double scale, bool picture) {
  auto map = makeItem<PlotItem>("Map view", QRectF(75, 75, 1800, 1675));
  map->margins = {18, 10, 10, 10};
  map->uniformScale = true;
  map->legendText = "Legend";
  map->x.minimum = origin.x() - 0.35 * scale * 0.152;
  map->x.maximum = map->x.minimum + scale * 0.152;
  map->y.minimum = origin.y() - 0.4 * scale * 0.1475;
  map->y.maximum = map->y.minimum + scale * 0.1475;
  if (picture) {
    auto image = std::make_unique<PictureItem>(nextId());
    image->image = backgroundMap();
    image->inMapCoordinates = true;
    image->pen = Qt::NoPen;
    image->position = origin + QPointF(-120, 110);
    image->size = {240, 200};
    map->children.push_back(std::move(image));
  }
  auto wells = std::make_unique<CurveItem>(nextId());
  wells->name = "Wells";
  wells->style = SymbolsOnly;
  wells->visible = false;
  wells->points = QPolygonF(QVector<QPointF>{pumpingWell, injectionWell});
  wells->symbol = CurveItem::Circle;
  wells->symbolSize = {25, 25};
  wells->brush = Qt::blue;
  map->children.push_back(std::move(wells));
  auto grid = std::make_unique<GridDataItem>(nextId());
  fillGrid(*grid, columns, rows);
  for (const double level : {-0.7, -0.5, -0.3, -0.2, -0.1, 0.1, 0.2, 0.3, 0.5, 0.7})
    grid->children.push_back(isoline(*grid, Drawdowns, level));
  for (const double level : {0.5, 1., 3.})
    grid->children.push_back(isoline(*grid, Temperature, level));
  map->children.push_back(std::move(grid));
  return map;
}

std::unique_ptr<PlotItem> ratePlot() {
  auto plot = demandPlot("Demand plot (rates)");
  plot->children.push_back(
      stepCurve("Well 1", {-80, -60, -20, -10, -50, -80}, QColor(110, 165, 165)));
  plot->children.push_back(stepCurve("Well 2", {80, 60, 20, 10, 50, 80}, QColor(110, 165, 165)));
  return plot;
}

std::unique_ptr<PlotItem> temperaturePlot() {
  auto plot = demandPlot("Demand plot (temperature)");
  plot->x.hidden = true;
  plot->y.opposite = true;
  plot->y.minimum = -5;
  plot->y.maximum = 5;
  plot->children.push_back(stepCurve("Well 2", {-4, -4, -2, 3, -2, -4}, QColor(255, 170, 0)));
  return plot;
}

QString summaryTable(int rows) {
  QString table = "<table width=\"100%\" border=\"0\" cellpadding=\"1\" "
                  "style=\"font-size:9pt;font-family:Arial\">";
  const char* labels[] = {"Heating demand", "Horizontal hydraulic conductivity",
                          "Maximum drawdown in withdrawal wells", "Groundwater gradient",
                          "Distance between the wells"};
  const char* values[] = {"123456", "5.0e-03", "0.45", "0.25", "38"};
  const char* units[] = {"kWh/a", "m/s", "m<sup>3</sup>/h", "m/100m", "m bgl"};
  for (int i = 0; i < rows; ++i)
    table += QString("<tr><td>%1: </td><td align=\"right\">%2</td><td>%3</td></tr>")
                 .arg(labels[i % 5], values[i % 5], units[i % 5]);
  return table + "</table>";
}

std::vector<std::unique_ptr<Item>> page(int columns, int rows, double scale, bool picture) {
  std::vector<std::unique_ptr<Item>> items;
  items.push_back(makeText("Program identification", QRectF(100, 1975, 2900, 50),
                           "<span style=\" font-size:6pt; \">Tevrane 2.0.7 : Office for "
                           "groundwater, Riverside 7, 8000 Somewhere</span>",
                           false));
  items.back()->position.ry() += 0;
  items.push_back(makeText("Project address", QRectF(75, 1750, 700, 225),
                           "<b>School house</b><br>Meadow lane 12<br>8000 Somewhere"));
  items.push_back(mapView(columns, rows, scale, picture));
  items.push_back(makeText("Summary", QRectF(1875, 75, 1000, 1250), summaryTable(25)));
  items.push_back(ratePlot());
  items.push_back(temperaturePlot());
  static_cast<PlotItem&>(*items[4]).y.minimum = -100;
  items.push_back(makeText("Rate label", QRectF(1895, 1660, 125, 90),
                           "<font color=\"#6EA5A5\"><b>l/min</b></font>", false));
  items.push_back(makeText("Temperature label", QRectF(2810, 1660, 80, 90), "<b>K</b>", false));
  static_cast<TextItem&>(*items.back()).colour = QColor(255, 170, 0);
  auto legend = makeItem<LegendItem>("Map legend", QRectF(775, 1750, 1200, 225));
  legend->columns = 2;
  items.push_back(std::move(legend));
  items.push_back(makeText("Map scale", QRectF(1975, 1750, 675, 135),
                           QString("<b>Map scale 1:%1</b>").arg(scale)));
  items.push_back(makeText("Date", QRectF(1975, 1885, 675, 90), "21.11.2026"));
  auto logo = makeItem<PictureItem>("Logo", QRectF(2650, 1750, 225, 225));
  logo->image = QImage(300, 200, QImage::Format_RGB32);
  logo->image.fill(QColor(60, 120, 160));
  items.push_back(std::move(logo));
  return items;
}

} // namespace TVR::Page::Sample
