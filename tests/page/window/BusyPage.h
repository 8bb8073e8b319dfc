#pragma once

namespace TVR::Page {

class PageWindow;

/// Gives a window the A4 page of a finished project: a map view with a background map, `columns` by
/// `rows` coloured cells, isolines and two wells, both demand plots, summary, legend and labels.
/// The map view has the id 3.
void showBusyPage(PageWindow& window, int columns, int rows);

} // namespace TVR::Page
