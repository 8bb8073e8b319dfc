#include "page/painting/GridPainter.h"

#include "page/model/GridColours.h"
#include "page/model/Items.h"
#include "page/painting/CellImage.h"
#include "page/painting/Inch.h"
#include "page/painting/LinePainter.h"

#include <QImage>
#include <QLinearGradient>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace TVR::Page {

namespace {

constexpr double vectorResolution =
    300 / millimetresPerInch; // pixels per millimetre in a file of vectors

/// From the page to the pixels that the cells are drawn in.
QTransform pixelTransform(const QPainter& painter) {
  const QTransform device = painter.deviceTransform();
  if (painter.paintEngine()->type() == QPaintEngine::Raster &&
      device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0)
    return device;
  return QTransform::fromScale(vectorResolution, vectorResolution);
}

/// The part of the area of the plot that the mesh may colour [mm].
QRectF coveredArea(const Contour::GridMesh& mesh, const PlotItem& plot) {
  const auto [left, right] =
      std::minmax_element(mesh.nodes.begin(), mesh.nodes.end(),
                          [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
  const auto [low, high] =
      std::minmax_element(mesh.nodes.begin(), mesh.nodes.end(),
                          [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
  if (mesh.nodes.empty())
    return {};
  const QRectF extent(plot.toPage({left->x(), high->y()}), plot.toPage({right->x(), low->y()}));
  return extent.intersected(plot.area());
}

void paintColouredCells(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  QRectF covered = coveredArea(grid.mesh, plot);
  if (painter.hasClipping())
    covered &= painter.clipBoundingRect();
  const std::optional<GridColours> colours = GridColours::of(grid);
  if (covered.isEmpty() || !colours)
    return;
  const QTransform toPixels = pixelTransform(painter);
  const QRect pixels = toPixels.mapRect(covered).toAlignedRect();
  const QTransform toImage = toPixels * QTransform::fromTranslate(-pixels.left(), -pixels.top());
  const QImage image = cellImage(grid.mesh, colours->pixels(grid.colouredSet()->values),
                                 plot.pageTransform() * toImage, pixels.size());
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.setWorldTransform(toImage.inverted(), true);
  painter.drawImage(QPointF(0, 0), image);
  painter.restore();
}

void paintMesh(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  painter.setPen(QPen(grid.meshColour, 0.05));
  painter.setBrush(Qt::NoBrush);
  const QTransform toPage = plot.pageTransform();
  const QRectF area = plot.area();
  const int nodeCount = static_cast<int>(grid.mesh.nodes.size());
  for (const std::array<int, 4>& cell : grid.mesh.cells) {
    QPolygonF outline;
    for (const int node : cell)
      if (node >= 0 && node < nodeCount)
        outline.append(toPage.map(grid.mesh.nodes[node]));
    if (outline.boundingRect().intersects(area))
      painter.drawPolygon(outline);
  }
}

void paintNodes(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  painter.setPen(QPen(grid.meshColour, 0.3, Qt::SolidLine, Qt::RoundCap));
  for (const QPointF& node : grid.mesh.nodes)
    if (const QPointF place = plot.toPage(node); plot.area().contains(place))
      painter.drawPoint(place);
}

/// The opaque colour that a translucent one has on white paper. Not all files keep the opacities of
/// a gradient.
QColor onWhite(const QColor& colour) {
  const auto mixed = [&](int channel) { return 255 - (255 - channel) * colour.alpha() / 255; };
  return {mixed(colour.red()), mixed(colour.green()), mixed(colour.blue())};
}

} // namespace

void paintCells(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  paintColouredCells(painter, grid, plot);
  if (grid.showsMesh)
    paintMesh(painter, grid, plot);
  if (grid.showsNodes)
    paintNodes(painter, grid, plot);
}

void paintColours(QPainter& painter, const GridDataItem& grid, const QRectF& box) {
  const std::optional<GridColours> colours = GridColours::of(grid);
  if (!colours)
    return;
  const bool isUpright = box.height() > box.width();
  QLinearGradient gradient(box.bottomLeft(), isUpright ? box.topLeft() : box.bottomRight());
  constexpr int stops = 32;
  for (int k = 0; k <= stops; ++k) {
    const double share = static_cast<double>(k) / stops;
    const double value = colours->minimum() + share * (colours->maximum() - colours->minimum());
    gradient.setColorAt(share, onWhite(colours->colour(value)));
  }
  painter.setPen(QPen(Qt::darkGray, 0.1));
  painter.setBrush(gradient);
  painter.drawRect(box);
}

} // namespace TVR::Page
