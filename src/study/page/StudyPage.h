#pragma once

namespace TVR::Page {
class Canvas;
}

namespace TVR::Study {

struct StudyFindings;

/// Puts the page of a study on a canvas, in the place of what is there: a sheet of A4, across, with
/// a map, diagrams and what was varied.
void layOutStudyPage(Page::Canvas& canvas, const StudyFindings& findings);

} // namespace TVR::Study
