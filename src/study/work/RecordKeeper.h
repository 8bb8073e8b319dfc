#pragma once

#include "study/plan/Plan.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Journal.h"
#include "study/work/Record.h"
#include "study/work/StudyFolder.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace TVR::Study {

/// What becomes of runs that had failed when records are taken up again.
enum class FailedRuns { Stay, AreRetried };

/// Keeps the records of a shard as they come: in its journal at first, and when a part of the plan
/// is whole and has no room for more runs, in a file of the part. What was kept before counts,
/// whoever kept it; of two records of a run the one with results. A failed run that is retried
/// keeps its failure until its new record is there.
class RecordKeeper {
public:
  /// All outlive this.
  RecordKeeper(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout,
               const Shard& shard);

  /// Takes up what is there. To be called once, before anything else.
  Journal::Opening open(FailedRuns failed = FailedRuns::Stay);

  /// The runs of the shard, by their places in the plan, that nobody has computed yet, and those
  /// that are retried.
  const std::vector<std::size_t>& missing() const { return missing_; }
  /// How many runs the shard has.
  std::size_t runs() const { return runs_; }

  /// Keeps a record; `line` is its line with maps. False if that can't be written.
  bool keep(const Record& record, const QByteArray& line);

private:
  struct KeptLine {
    QByteArray line;
    bool hasFailed = false;
  };
  using Lines = QHash<QByteArray, KeptLine>; ///< by name of the run

  Lines journalLines() const;
  bool takePart(std::size_t part, Lines& lines);
  bool takeFinishedPart(std::size_t part, const Lines& lines);
  void takeRun(std::size_t part, std::size_t run, const KeptLine& line);
  QString fileOf(std::size_t part) const;
  bool closePart(std::size_t part);
  bool tidyJournal();

  const StudyFolder& folder_;
  const Plan& plan_;
  const ResultLayout& layout_;
  const Shard shard_;
  const QByteArray layoutId_;
  Journal journal_;
  FailedRuns failed_ = FailedRuns::Stay;
  QHash<QByteArray, std::size_t> awaited_; ///< the parts of the missing runs, by name
  std::unordered_map<std::size_t, std::size_t> missingOf_; ///< how many, by part; no zeros
  QHash<QByteArray, QByteArray> pending_; ///< lines that stand in no part yet, by name of the run
  QByteArrayList foreign_; ///< lines of the journal that belong to no part of the shard
  std::vector<std::size_t> missing_;
  std::size_t runs_ = 0;
};

} // namespace TVR::Study
