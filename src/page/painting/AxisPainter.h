#pragma once

#include <Qt>

class QPainter;

namespace TVR::Page {

struct AxisTicks;
struct PlotItem;

/// The ticks of the x axis (Qt::Horizontal) or y axis of a plot over the whole of its area: at the
/// axis's own distance if that suits its range, else where their labels find room.
AxisTicks plotTicks(const PlotItem& plot, Qt::Orientation direction);

/// Draws the lines across the area at the major ticks of both axes, in the grid pen.
void paintGridLines(QPainter& painter, const PlotItem& plot);

/// Draws the frame of the area, and ticks, numbers and description of the axes that are not hidden.
/// They stay in the box of the plot: numbers that the margin is too narrow for are made smaller,
/// and what would touch its neighbour is left out.
void paintAxes(QPainter& painter, const PlotItem& plot);

} // namespace TVR::Page
