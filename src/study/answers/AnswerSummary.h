#pragma once

#include "study/answers/Sensitivity.h"
#include "study/answers/Statistics.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"

#include <QJsonObject>

#include <optional>
#include <vector>

namespace TVR::Study {

class Results;
struct StudySetup;

/// What a varied key does to a quantity, as far as it can be told; see Sensitivity.h.
struct Influence {
  std::optional<Swing> swing;
  std::optional<double> firstOrder;
  std::optional<double> total;
};

/// How likely something is, from how many runs have it.
struct Probability {
  double value;
  ConfidenceInterval interval;
};

/// A scalar of all runs that did not fail.
struct QuantitySummary {
  Scalar scalar;
  Spread spread;
  std::optional<Probability> plume;  ///< that there is one; of extents of plumes only
  std::vector<Influence> influences; ///< by key of the layout
  double explained = 0;              ///< see ChaosIndices
};

/// Where the failed runs lie among the values of a key.
struct FailedRange {
  double least;
  double median;
  double greatest;
};

/// A study in figures. The same for the same records, whoever computed them.
struct AnswerSummary {
  std::size_t runs = 0;                    ///< that are there, each once
  std::uint64_t repeats = 0;               ///< the same, as often as the sample holds them
  std::vector<QuantitySummary> quantities; ///< by scalar of the layout
  std::vector<std::vector<Spread>> series; ///< by series of the layout, then by time
  std::size_t failed = 0;
  std::vector<Record> failures;          ///< the first `mostFailures` by name
  std::vector<FailedRange> failedRanges; ///< by key; empty without failures

  static constexpr std::size_t mostFailures = 1000;
};

/// Reads all records as often as it takes to keep no more than `mostNumbers` numbers at a time,
/// besides the values of the keys.
AnswerSummary summaryOf(const Results& results, const StudySetup& setup,
                        std::size_t mostNumbers = 8'000'000);

/// As docs/studies.md describes it.
QJsonObject toJson(const AnswerSummary& summary, const StudySetup& setup);

} // namespace TVR::Study
