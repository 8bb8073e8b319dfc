#pragma once

#include <QString>
#include <QVariant>

namespace TVR {

class ProjectReader;
enum class ProjectTable;

/// The most wells, demand periods of a year, and pairs of both that a project may have: all that
/// the wizard's pages can ask for, hours of a year, and little enough for the store to hold and to
/// write again. Where nothing can be refused a larger count becomes the largest.
namespace ProjectLimits {

inline constexpr int maxWells = 20'000;
inline constexpr int maxPeriods = 10'000;
inline constexpr int maxWellPeriods = 200'000;

/// What is too much in so many wells and demand periods, as a sentence with the limit; empty if a
/// project may have them. Nothing beyond is run or written, and a project file beyond is not read.
QString excess(double wells, double periods);

/// The most rows of a table.
int maxRows(ProjectTable table);

/// Number of wells that is left beside the demand periods of a project, for a wanted number. Cut
/// towards zero; what is no number counts as 0.
int wells(double wanted, const ProjectReader& project);
/// The same for demand periods, beside the wells of a project.
int periods(double wanted, const ProjectReader& project);

/// The value that a file holds for a parameter, as it may be stored: unchanged unless it is one of
/// the two counts and too large.
QVariant allowed(int id, const QVariant& value, const ProjectReader& project);

} // namespace ProjectLimits
} // namespace TVR
