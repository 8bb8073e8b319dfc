#pragma once

#include "inspection/Findings.h"
#include "study/plan/StudyKey.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace TVR::Study {

/// The values of the runs of a study, a column for each key, all of one length.
struct ValueTable {
  std::vector<StudyKey> keys;
  std::vector<std::vector<double>> columns;

  std::size_t rows() const { return columns.empty() ? 0 : columns.front().size(); }
};

/// Reads a CSV table (see CsvReader) with one run a row, under a row of keys of batch files. What
/// is wrong, more rows included, is told with line, key and what was expected; the table is then
/// empty.
ValueTable readValueTable(const QString& fileName, std::size_t mostRows, Findings& findings);

} // namespace TVR::Study
