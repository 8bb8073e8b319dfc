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

/// The parts of the isoline in the area of the plot [mm].
std::vector<QPolygonF> isolineParts(const IsolineItem& isoline, const PlotItem& plot);

/// The pen of an isoline on the page: one of an imported grid is dotted. An invalid colour, which
/// stands for a level beyond all that have a colour, is drawn as the darkest red.
QPen isolinePen(const IsolineItem& isoline);

/// What is written along an isoline: its level with the unit.
QString isolineLabel(const IsolineItem& isoline);

/// Draws the visible isolines of a grid.
void paintIsolines(QPainter& painter, const GridDataItem& grid, const PlotItem& plot);

/// Writes the levels along the isolines that ask for it or were given one to show, or beside those
/// whose pieces are all too short for that; the name of a line (IsolineItem::labelText) stands
/// beside it, with a leader, where it would stand on others too; clear of the outlines on the page
/// in `taken`, to which those of the labels are added.
void paintIsolineLabels(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                        std::vector<QPolygonF>& taken);

} // namespace TVR::Page
