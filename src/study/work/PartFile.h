#pragma once

#include "study/work/Exceedance.h"
#include "study/work/Record.h"

#include <QString>

#include <optional>
#include <vector>

namespace TVR::Study {

struct ResultLayout;

/// The results of some runs of a study.
///
/// As a file they are lines of JSON: a head with the version of the format and of the program, and
/// with the layout; a record for each run, without its maps; the counts of exceedance, each map as
/// 32-bit numbers, the lowest byte first, compressed, in base64; and a check sum (SHA-256) of all
/// lines before it.
struct Part {
  std::vector<Record> records; ///< sorted by name, without maps
  ExceedanceCounts counts;     ///< of all runs, each as often as it is repeated
  std::vector<qint64> offsets; ///< of the lines of the records in the file that was read
};

/// Folds the maps of records into counts, and sorts the records.
Part foldedPart(std::vector<Record> records, const ResultLayout& layout);

/// Puts records, with their maps, in the place of those of runs that had failed. Other runs of the
/// part stay as they are.
void mend(Part& part, const std::vector<Record>& records);

/// How many runs of a part have failed.
std::size_t failedRuns(const Part& part);

/// Writes a part aside and puts it in place. False if it can't be written.
bool writePart(const QString& fileName, const Part& part, const ResultLayout& layout);

/// Whether a file is there and as it was written, to the last byte.
bool isWholePart(const QString& fileName);

/// None if the file is no whole part of that layout.
std::optional<Part> readPart(const QString& fileName, const ResultLayout& layout);

} // namespace TVR::Study
