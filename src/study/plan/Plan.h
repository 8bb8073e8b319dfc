#pragma once

#include "inspection/Findings.h"
#include "study/plan/StudyFile.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace TVR::Study {

/// One run of a study.
struct PlannedRun {
  QByteArray name;            ///< of what it computes: see runName
  std::vector<double> values; ///< one for each key of the plan
  int repeats = 1;            ///< how often the sample holds these values
};

/// The runs of a study, each once, in the order of the sample. They are computed and kept in parts:
/// runs that follow each other. How many make one does not depend on the number of runs: a study
/// that gets more of them keeps its parts.
struct Plan {
  std::vector<StudyKey> keys;
  std::vector<PlannedRun> runs;
  std::size_t runsPerPart = 1;
  bool canGrow = false; ///< a study with more runs has these in front of them

  std::size_t parts() const { return (runs.size() + runsPerPart - 1) / runsPerPart; }
  std::size_t firstOf(std::size_t part) const { return part * runsPerPart; }
  std::size_t endOf(std::size_t part) const;
  /// Whether more runs may come into the last part.
  bool hasRoom(std::size_t part) const {
    return canGrow && endOf(part) - firstOf(part) < runsPerPart;
  }
};

/// Samples the values of a study, whose base has this digest (`digestOf`). What is wrong with a
/// table of values is told in `findings`.
Plan makePlan(const StudyFile& study, const QByteArray& baseDigest, Findings& findings);

/// The values of all runs as a CSV table that a study with the sampler `table` reads: a row of
/// keys, and a row for each run, as often as the sample holds it.
QByteArray sampleTable(const Plan& plan);

/// Of the content of a base, for the names of runs.
QByteArray digestOf(const QByteArray& baseContent);

/// A number as it is written to a batch file: the shortest text that reads as the same number.
QString exactText(double number);

/// The name of a run follows from what decides its results and from nothing else: the base, the
/// values by key, in whatever order, and the version of the program. 32 hexadecimal digits.
QByteArray runName(const QByteArray& baseDigest, const std::vector<StudyKey>& keys,
                   const std::vector<double>& values, const QByteArray& version = TEVRANE_VERSION);

/// The name of a part of a plan follows from its runs and from what they answer (`layoutId`).
QByteArray partName(const Plan& plan, std::size_t part, const QByteArray& layoutId);

} // namespace TVR::Study
