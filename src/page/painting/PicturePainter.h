#pragma once

#include <QRectF>

class QPainter;

namespace TVR::Page {

struct PictureItem;
struct PlotItem;

/// Draws a picture on the sheet, as large as its box allows at its own proportions, and its frame.
void paintPicture(QPainter& painter, const PictureItem& picture);

/// Draws a picture that lies in a plot, stretched to its extent there.
void paintPicture(QPainter& painter, const PictureItem& picture, const PlotItem& plot);

} // namespace TVR::Page
