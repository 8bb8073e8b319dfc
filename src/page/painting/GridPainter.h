#pragma once

#include <QRectF>

class QPainter;

namespace TVR::Page {

struct GridDataItem;
struct PlotItem;

/// Draws the cells of a grid in the colours of their values, through which a map below stays to be
/// seen, and its mesh lines and nodes where it shows them. A device of pixels gets one colour per
/// pixel, a file of vectors an image of 300 dots per inch: cells drawn one by one would leave seams
/// between them.
void paintCells(QPainter& painter, const GridDataItem& grid, const PlotItem& plot);

/// Fills a box with the colours of the grid's values, from the lowest at the left, or at the bottom
/// of a box that is higher than wide, to the highest.
void paintColours(QPainter& painter, const GridDataItem& grid, const QRectF& box);

} // namespace TVR::Page
