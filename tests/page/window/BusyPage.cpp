#include "page/window/BusyPage.h"

#include "page/SamplePage.h"
#include "page/window/PageWindow.h"

#include <QPixmap>

namespace TVR::Page {

namespace {

using namespace Sketra_lib::Property;

struct Box {
  int id;
  const char* type;
  const char* name;
  QRect tenths;
};

const Box boxes[] = {
    {1, "GraphicsTextItem", "Program identification", {100, 1975, 2900, 50}},
    {2, "GraphicsTextItem", "Project address", {75, 1750, 700, 225}},
    {3, "GraphicsPlotItem", "Map view", {75, 75, 1800, 1675}},
    {6, "GraphicsTextItem", "Summary", {1875, 75, 1000, 1250}},
    {7, "GraphicsPlotItem", "Demand plot (rates)", {1875, 1325, 1000, 425}},
    {10, "GraphicsPlotItem", "Demand plot (temperature)", {1875, 1325, 1000, 425}},
    {15, "GraphicsLegendItem", "Map legend", {775, 1750, 1200, 225}},
    {16, "GraphicsTextItem", "Map scale", {1975, 1750, 675, 135}},
    {17, "GraphicsTextItem", "Date", {1975, 1885, 675, 90}},
    {18, "GraphicsPixmapItem", "Logo", {2650, 1750, 225, 225}},
};

QByteArray document() {
  QString items;
  for (const Box& box : boxes)
    items += QString(R"(<Item id="%1" Type="%2"><Name>%3</Name><Position X="%4" Y="%5"/>)"
                     R"(<Size Width="%6" Height="%7"/><Children/></Item>)")
                 .arg(box.id)
                 .arg(box.type, box.name)
                 .arg(box.tenths.x())
                 .arg(box.tenths.y())
                 .arg(box.tenths.width())
                 .arg(box.tenths.height());
  return (R"(<!DOCTYPE GraphicWidgetExport><CanvasEx Version="1.2" NextItemId="19">)"
          R"(<Pagesize Width="29.7" Height="21" Orientation="1" Format="0"/><Items>)" +
          items + "</Items></CanvasEx>")
      .toUtf8();
}

void addCurve(PageWindow& window, const PlotItem& plot, const CurveItem& curve) {
  const int id = window.addCurve(plot.id, curve.points, 1, 0);
  window.setItemProperty(id, Name, curve.name);
  window.setItemProperty(id, CurveStyle, curve.style);
  window.setItemProperty(id, LineColour, curve.pen.color());
  window.setItemProperty(id, Brush, curve.brush);
  window.setItemProperty(id, Symbol,
                         QVariantMap{{"Width", curve.symbolSize.width()},
                                     {"Height", curve.symbolSize.height()},
                                     {"Type", curve.symbol}});
  window.setItemProperty(id, Visible, curve.visible);
}

void addPicture(PageWindow& window, const PlotItem& plot, const PictureItem& picture) {
  const QPointF corner = picture.position / 10;
  const QSizeF size = picture.size / 10;
  const int id = window.addPicture(plot.id, corner.x(), corner.y(), size.width(), size.height());
  window.setItemProperty(id, InMapCoordinates, 1);
  window.setItemProperty(id, FramePen, QPen(Qt::NoPen));
  window.setItemProperty(id, Pixmap, QPixmap::fromImage(picture.image));
  window.moveToBackground(id);
}

void addGrid(PageWindow& window, const PlotItem& plot, const GridDataItem& grid) {
  const int id = window.addGridData(plot.id, 0);
  auto& shown = *window.canvas().item<GridDataItem>(id);
  shown.mesh = grid.mesh;
  shown.sets[Drawdowns].values = grid.sets[Drawdowns].values;
  shown.sets[Temperature].values = grid.sets[Temperature].values;
  window.setItemProperty(id, SelectedSet, Drawdowns);
  window.setItemProperty(id, Levels,
                         QVariantList{-0.7, -0.5, -0.3, -0.2, -0.1, 0.1, 0.2, 0.3, 0.5, 0.7});
  window.setItemProperty(id, SelectedSet, Temperature);
  window.setItemProperty(id, Levels, QVariantList{0.5, 1.0, 3.0});
}

/// The plot takes over what it looks like and what lies in it.
void furnish(PageWindow& window, PlotItem& plot, const PlotItem& model) {
  plot.margins = model.margins;
  plot.uniformScale = model.uniformScale;
  plot.x = model.x;
  plot.y = model.y;
  plot.x.automatic = plot.y.automatic = false;
  plot.gridPen = model.gridPen;
  plot.brush = model.brush;
  plot.legendText = model.legendText;
  for (const auto& child : model.children) {
    if (const auto* curve = dynamic_cast<const CurveItem*>(child.get()))
      addCurve(window, plot, *curve);
    else if (const auto* picture = dynamic_cast<const PictureItem*>(child.get()))
      addPicture(window, plot, *picture);
    else if (const auto* grid = dynamic_cast<const GridDataItem*>(child.get()))
      addGrid(window, plot, *grid);
  }
}

} // namespace

void showBusyPage(PageWindow& window, int columns, int rows) {
  window.setContents(document());
  window.beginUpdate();
  for (const auto& model : Sample::page(columns, rows, 1000, true)) {
    const int id = window.itemByName(model->name, 0);
    if (const auto* text = dynamic_cast<const TextItem*>(model.get()))
      window.setItemProperty(id, Html, text->html);
    else if (const auto* plot = dynamic_cast<const PlotItem*>(model.get()))
      furnish(window, *window.canvas().item<PlotItem>(id), *plot);
    else if (const auto* picture = dynamic_cast<const PictureItem*>(model.get()))
      window.setItemProperty(id, Pixmap, QPixmap::fromImage(picture->image));
  }
  window.endUpdate();
}

} // namespace TVR::Page
