#pragma once

#include "study/plan/Plan.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Journal.h"
#include "study/work/Record.h"
#include "study/work/StudyFolder.h"

#include <QByteArray>
#include <QHash>

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace TVR::Study {

/// Keeps the records of a shard as they come: in its journal at first, and when a part of the plan
/// is whole, in a file of the part. What was kept before counts, whoever kept it.
class RecordKeeper {
public:
  /// All outlive this.
  RecordKeeper(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout,
               const Shard& shard);

  /// Takes up what is there. To be called once, before anything else.
  Journal::Opening open();

  /// The runs of the shard, by their places in the plan, that nobody has computed yet.
  const std::vector<std::size_t>& missing() const { return missing_; }
  /// How many runs the shard has.
  std::size_t runs() const { return runs_; }

  /// Keeps a record; `line` is its line with maps. False if that can't be written.
  bool keep(const Record& record, const QByteArray& line);

private:
  using Lines = QHash<QByteArray, QByteArray>; ///< by name of the run

  Lines journalLines() const;
  bool takePart(std::size_t part, Lines& lines);
  bool closePart(std::size_t part);
  bool tidyJournal();

  const StudyFolder& folder_;
  const Plan& plan_;
  const ResultLayout& layout_;
  const Shard shard_;
  const QByteArray layoutId_;
  Journal journal_;
  QHash<QByteArray, std::size_t> partOf_;       ///< of the runs of unfinished parts, by name
  std::unordered_map<std::size_t, Lines> open_; ///< of the unfinished parts that have records
  QByteArrayList foreign_; ///< lines of the journal that belong to no part of the shard
  std::vector<std::size_t> missing_;
  std::size_t runs_ = 0;
};

} // namespace TVR::Study
