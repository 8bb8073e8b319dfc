#pragma once

#include <QPolygonF>

#include <vector>

class QPainter;

namespace TVR::Page {

struct CurveItem;
struct PlotItem;

/// Writes the texts of a curve's points beside them, clear of the outlines on the page in `taken`,
/// to which those of the texts are added. One that finds no place near its point is left out.
void paintPointLabels(QPainter& painter, const CurveItem& curve, const PlotItem& plot,
                      std::vector<QPolygonF>& taken);

} // namespace TVR::Page
