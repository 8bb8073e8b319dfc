#pragma once

class QRectF;

namespace TVR::Page {
class Canvas;
struct PlotItem;
} // namespace TVR::Page

namespace TVR::Study {

class PageMaker;
struct StudyFindings;

/// The map of the page of a study: the probability in colour with its lines P10, P50 and P90, and
/// the wells. `box` is its place on the sheet [mm]. Returns the id of its grid, 0 without a plume.
int addMap(PageMaker& page, const QRectF& box, const StudyFindings& findings);

/// Traces the lines of a map, once it lies on the canvas.
void addProbabilityLines(Page::Canvas& canvas, int grid, double level);

} // namespace TVR::Study
