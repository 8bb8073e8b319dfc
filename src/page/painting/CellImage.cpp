#include "page/painting/CellImage.h"

#include "contour/GridMesh.h"

#include <QImage>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace TVR::Page {

namespace {

using Quadrilateral = std::array<QPointF, 4>;

/// The pixel whose centre is the first at or behind `place`.
int firstPixel(double place, int end) {
  // Rounded up by hand: this runs for each row of each cell, and std::ceil is a call.
  const double behind = std::clamp(place - 0.5, 0., static_cast<double>(end));
  const int whole = static_cast<int>(behind);
  return whole + (whole < behind ? 1 : 0);
}

/// Fills the pixels of a row between the crossings of the outline with the row's centre line. Ends
/// are half open, so that an edge shared by two cells belongs to one of them.
void fillRow(QRgb* row, int width, std::array<double, 4>& crossings, int count, QRgb colour) {
  for (int k = 1; k < count; ++k)
    for (int i = k; i > 0 && crossings[i] < crossings[i - 1]; --i)
      std::swap(crossings[i], crossings[i - 1]);
  for (int k = 0; k + 1 < count; k += 2) {
    const int first = firstPixel(crossings[k], width);
    const int end = firstPixel(crossings[k + 1], width);
    std::fill(row + first, row + std::max(first, end), colour);
  }
}

void fillCell(QImage& image, QRgb* pixels, const Quadrilateral& corners, QRgb colour) {
  const auto [top, bottom] =
      std::minmax({corners[0].y(), corners[1].y(), corners[2].y(), corners[3].y()});
  const auto [left, right] =
      std::minmax({corners[0].x(), corners[1].x(), corners[2].x(), corners[3].x()});
  const int width = image.width();
  const int firstRow = firstPixel(top, image.height());
  const int endRow = firstPixel(bottom, image.height());
  if (firstRow >= endRow || firstPixel(left, width) >= firstPixel(right, width))
    return;
  std::array<double, 4> slopes;
  for (int i = 0; i < 4; ++i) {
    const QPointF edge = corners[(i + 1) % 4] - corners[i];
    slopes[i] = edge.y() != 0 ? edge.x() / edge.y() : 0;
  }
  for (int rowIndex = firstRow; rowIndex < endRow; ++rowIndex) {
    const double y = rowIndex + 0.5;
    std::array<double, 4> crossings;
    int count = 0;
    for (int i = 0; i < 4; ++i) {
      const QPointF& from = corners[i];
      const QPointF& to = corners[(i + 1) % 4];
      if ((from.y() <= y) == (to.y() <= y))
        continue;
      // From the lower end of the edge, so that both cells at it round alike.
      const QPointF& low = from.y() < to.y() ? from : to;
      crossings[count++] = low.x() + (y - low.y()) * slopes[i];
    }
    fillRow(pixels + static_cast<std::ptrdiff_t>(rowIndex) * width, width, crossings, count,
            colour);
  }
}

} // namespace

QImage cellImage(const Contour::GridMesh& mesh, const std::vector<QRgb>& colours,
                 const QTransform& toPixels, const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull())
    return image;
  image.fill(Qt::transparent);
  std::vector<QPointF> nodes(mesh.nodes.size());
  std::transform(mesh.nodes.begin(), mesh.nodes.end(), nodes.begin(),
                 [&](const QPointF& node) { return toPixels.map(node); });
  // Rows of 32 bit pixels follow each other without a gap.
  QRgb* pixels = reinterpret_cast<QRgb*>(image.bits());
  const int nodeCount = static_cast<int>(nodes.size());
  const std::size_t cells = std::min(mesh.cells.size(), colours.size());
  for (std::size_t cell = 0; cell < cells; ++cell) {
    const std::array<int, 4>& corners = mesh.cells[cell];
    if (qAlpha(colours[cell]) == 0 || std::any_of(corners.begin(), corners.end(), [&](int node) {
          return node < 0 || node >= nodeCount;
        }))
      continue;
    const Quadrilateral places = {nodes[corners[0]], nodes[corners[1]], nodes[corners[2]],
                                  nodes[corners[3]]};
    const QPointF sum = places[0] + places[1] + places[2] + places[3];
    if (std::isfinite(sum.x()) && std::isfinite(sum.y()))
      fillCell(image, pixels, places, colours[cell]);
  }
  return image;
}

} // namespace TVR::Page
