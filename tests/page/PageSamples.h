#pragma once

#include "page/Canvas.h"

#include <QByteArray>
#include <QString>

/// Pages that the tests of the canvas start from.
namespace Samples {

/// A page with a plot (id 3, "Map view"), a text (id 6, "Summary"), a legend (id 15, "Map legend")
/// and a picture (id 18, "Logo").
inline QByteArray smallPage() {
  const auto item = [](int id, const char* type, const char* name) {
    return QString(R"(<Item id="%1" Type="%2"><Name>%3</Name><Position X="75" Y="80"/>)"
                   R"(<Size Width="1800" Height="1675"/><Children/></Item>)")
        .arg(id)
        .arg(type, name);
  };
  return ("<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\" NextItemId=\"19\"><Items>" +
          item(3, "GraphicsPlotItem", "Map view") + item(6, "GraphicsTextItem", "Summary") +
          item(15, "GraphicsLegendItem", "Map legend") + item(18, "GraphicsPixmapItem", "Logo") +
          "</Items></CanvasEx>")
      .toUtf8();
}

constexpr int map = 3;
constexpr int summary = 6;
constexpr int legend = 15;
constexpr int logo = 18;

} // namespace Samples
