#pragma once

#include "data/FileTables.h"
#include "project/ProjectLimits.h"

#include <QVariant>

namespace TVR::Data {

class Manager;

/// What files and settings may ask for: ProjectLimits. Where nothing can be refused a larger count
/// becomes the largest.
namespace FileLimits {

using namespace ProjectLimits;

/// What is too much in so many wells and demand periods, as a sentence with the limit; empty if a
/// project may have them. Nothing beyond is run or written, and a project file beyond is not read.
QString excess(double wells, double periods);

/// The most rows of a table.
int maxRows(FileTableKind kind);

/// Number of wells that is left beside the demand periods of the store, for a wanted number. Cut
/// towards zero; what is no number counts as 0.
int wells(double wanted, Manager& store);
/// The same for demand periods, beside the wells of the store.
int periods(double wanted, Manager& store);

/// The value that a file holds for a parameter, as it may be stored: unchanged unless it is one of
/// the two counts and too large.
QVariant allowed(int id, const QVariant& value, Manager& store);

} // namespace FileLimits
} // namespace TVR::Data
