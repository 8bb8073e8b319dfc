#pragma once

#include "results/PageAccess.h"

#include <QPolygonF>

#include <vector>

namespace TVR {

/// What a well does in one demand period.
struct WellPeriod {
  double duration;          ///< [s]
  double rate;              ///< [m3/s], positive into the aquifer
  double temperatureChange; ///< [K]
};

/// The steps of a well over the year, two points for each demand period; x in [months].
struct WellSteps {
  QPolygonF rates;              ///< [l/min]
  QPolygonF temperatureChanges; ///< [K]
};

/// One flat step after the other for the periods of a well.
WellSteps stepsOfPeriods(const std::vector<WellPeriod>& periods);

/// One flat step of `months` for a well without periods; a well that withdraws changes nothing.
WellSteps stepsOfYear(double rate, double temperatureChange, int months);

/// End of the time axis [months] for demand periods of these durations [s]: a year, or their whole
/// months if they last longer.
int monthsOfPeriods(const std::vector<double>& durations);

/// The axis end, grown in factors of ten until it reaches `top`. An end that is not above 0 stays.
double grownAxisEnd(double end, double top);

/// Draws what each well of the project does over the year on the two demand plots, in place of what
/// stands there. `months`, the end of the time axis, is raised if the demand periods last longer.
/// Without a page nothing is drawn and `months` stays.
void showDemandPlot(const PageAccess& page, int& months);

} // namespace TVR
