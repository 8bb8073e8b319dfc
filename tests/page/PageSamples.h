#pragma once

#include "page/model/Canvas.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>

/// Pages that the tests of the canvas start from.
namespace Samples {

constexpr int map = 3;
constexpr int summary = 6;
constexpr int legend = 15;
constexpr int logo = 18;

inline QPolygonF line(std::initializer_list<QPointF> points) {
  return QPolygonF(QVector<QPointF>(points));
}

/// A page with these items, as a document.
inline QByteArray page(const QString& items) {
  return ("<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\" NextItemId=\"19\"><Items>" +
          items + "</Items></CanvasEx>")
      .toUtf8();
}

inline QString item(int id, const QString& type, const QString& name,
                    const QString& more = QString()) {
  return QString(R"(<Item id="%1" Type="%2"><Name>%3</Name><Position X="75" Y="80"/>)"
                 R"(<Size Width="1800" Height="1675"/><Children/>%4</Item>)")
      .arg(id)
      .arg(type, name, more);
}

/// A page with the plot "Map view", the text "Summary", a legend and a picture.
inline QByteArray smallPage() {
  return page(
      item(map, "GraphicsPlotItem", "Map view") + item(summary, "GraphicsTextItem", "Summary") +
      item(legend, "GraphicsLegendItem", "Map legend") + item(logo, "GraphicsPixmapItem", "Logo"));
}

/// A grid of `columns` by `rows` cells of one metre under the map, whose drawdowns rise from 0 at
/// the left by one per metre; built as the result page builds its mesh. Returns its id.
inline int addGrid(TVR::Page::Canvas& canvas, int columns, int rows) {
  using namespace Sketra_lib::Property;
  const int grid = canvas.addGridData(map);
  canvas.beginUpdate();
  canvas.setProperty(grid, NodeCount, (columns + 1) * (rows + 1));
  canvas.setProperty(grid, CellShape, QSize(columns * rows, 4));
  canvas.setProperty(grid, CellCount, columns * rows);
  canvas.setProperty(grid, ValueCount, columns * rows);
  for (int row = 0; row <= rows; ++row)
    for (int column = 0; column <= columns; ++column)
      canvas.setProperty(grid, Node,
                         QVariantList{row * (columns + 1) + column, 1.0 * column, 1.0 * row});
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      const int cell = row * columns + column;
      const int node = row * (columns + 1) + column;
      canvas.setProperty(
          grid, Cell, QVariantList{cell, node, node + 1, node + columns + 2, node + columns + 1});
      canvas.setProperty(grid, SelectedSet, StartValues);
      canvas.setProperty(grid, Value, QVariantList{cell, column + 0.5, row + 0.5, 100});
      canvas.setProperty(grid, SelectedSet, Drawdowns);
      canvas.setProperty(grid, Value, QVariantList{cell, column + 0.5, row + 0.5, column + 0.5});
      canvas.setProperty(grid, SelectedSet, Temperature);
      canvas.setProperty(grid, Value, QVariantList{cell, column + 0.5, row + 0.5, 0.0});
    }
  canvas.setProperty(grid, SelectedSet, Drawdowns);
  canvas.endUpdate();
  canvas.redraw(grid);
  return grid;
}

} // namespace Samples
