#pragma once

#include <optional>

class QRectF;
class QString;

namespace TVR::Study {

class PageMaker;
struct SeriesBand;
struct Tornado;

// The diagrams of the page of a study; `box` is their place on the sheet [mm].

/// The median over time in the band from P10 to P90. `quantity`, with its unit, stands at its axis.
/// Without a band or with an empty one it says so.
void addBandPlot(PageMaker& page, const QRectF& box, const QString& title, const QString& quantity,
                 const std::optional<SeriesBand>& band);

/// A bar for each key, from the median of all runs to both ends: that of the tenth of the runs with
/// the lowest values of the key is pale. Where there is nothing to draw it says why.
void addTornado(PageMaker& page, const QRectF& box, const Tornado& tornado);

} // namespace TVR::Study
