#pragma once

#include <QRgb>

#include <vector>

class QImage;
class QSize;
class QTransform;

namespace TVR::Contour {
struct GridMesh;
}

namespace TVR::Page {

/// An image of the cells of a mesh in which each pixel has the colour of the cell that its centre
/// lies in, so that neighbours meet without seam or overlap; transparent outside of them.
/// `colours` holds one premultiplied colour per cell, a missing or wholly transparent one leaves
/// the cell out; `toPixels` leads from the mesh to the pixels of the image. Cells outside of it
/// cost next to nothing, and a cell that names a node that is not there is left out.
QImage cellImage(const Contour::GridMesh& mesh, const std::vector<QRgb>& colours,
                 const QTransform& toPixels, const QSize& size);

} // namespace TVR::Page
