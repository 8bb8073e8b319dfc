#pragma once

class QPainter;

namespace TVR::Page {

struct PlotItem;

/// Draws a plot: its background, the pictures, coloured cells, isolines and curves in it in this
/// order, its axes and its frame.
void paintPlot(QPainter& painter, const PlotItem& plot);

} // namespace TVR::Page
