#pragma once

#include <QPen>
#include <QPolygonF>
#include <QString>

#include <vector>

class QPainter;

namespace TVR::Page {

struct GridDataItem;
struct IsolineItem;
struct PlotItem;

/// The pen of an isoline on the page. An invalid colour, which stands for a level beyond all that
/// have a colour, is drawn as the darkest red.
QPen isolinePen(const IsolineItem& isoline);

/// What is written along an isoline.
QString isolineLabel(const IsolineItem& isoline);

/// Draws the visible isolines of a grid.
void paintIsolines(QPainter& painter, const GridDataItem& grid, const PlotItem& plot);

/// Writes the levels along the isolines that ask for it, clear of the outlines on the page in
/// `taken`, to which those of the labels are added.
void paintIsolineLabels(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                        std::vector<QPolygonF>& taken);

} // namespace TVR::Page
