#pragma once

#include <QMap>
#include <QString>

namespace TVR {
class WellDemandModel;
class WellModel;
} // namespace TVR

namespace TVR::GUI {

/// Rates [m3/s] by demand period, summed over the wells that pump and over those that inject, both
/// positive. A period without such a well has no entry.
struct RateSums {
  QMap<int, double> injection;
  QMap<int, double> pumping;
};

/// The mean annual rates where there is one demand period, else those of each period.
RateSums rateSums(const WellModel& wells, const WellDemandModel& periods);

/// What is said of rates. Both texts are markup.
struct RateVerdict {
  QString errors; ///< refuse the rates
  QString notes;  ///< belong beside errors
  bool differsFromDesign = false;
};

/// Holds the sums of each period in which wells inject against each other and against the mean flow
/// rate of the design [m3/s], to one percent. A surplus is no error.
RateVerdict checkRates(const RateSums& sums, double required);

} // namespace TVR::GUI
