#pragma once

#include "results/PageAccess.h"

#include <QString>

#include <vector>

namespace TVR {

class ProjectReader;
struct RunFrame;

/// The main figures of the project and of its simulation, whose frame is given, as an HTML table.
/// `time` [s] is the time that was simulated; a negative one stands for the end of the simulation,
/// the last of `stepTimes` [s] or else the parameter `simulation_time`. `extension` [m] is that of
/// the 3 K isotherm; a negative one stands for the stored one.
QString createSummaryTable(const ProjectReader& project, const RunFrame& frame,
                           const std::vector<double>& stepTimes, double time, double extension);

/// Puts a table on the page, if it has an item for it. The caller holds the lock.
void showSummary(const PageAccess& page, const QString& table);

} // namespace TVR
