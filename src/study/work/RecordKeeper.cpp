#include "study/work/RecordKeeper.h"

#include "study/work/PartFile.h"

#include <optional>
#include <utility>

namespace TVR::Study {

RecordKeeper::RecordKeeper(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout,
                           const Shard& shard)
    : folder_(folder), plan_(plan), layout_(layout), shard_(shard), layoutId_(idOf(layout)),
      journal_(folder.journal(layoutId_, shard.name())) {}

Journal::Opening RecordKeeper::open(FailedRuns failed) {
  failed_ = failed;
  const Journal::Opening opening = journal_.open();
  if (opening != Journal::Opening::Done)
    return opening;
  Lines lines = journalLines();
  bool isKept = true;
  for (std::size_t part = 0; part < plan_.parts(); ++part)
    if (shard_.has(part))
      isKept = takePart(part, lines) && isKept;
  QSet<QByteArray> unused;
  for (const KeptLine& rest : lines)
    unused.insert(rest.line);
  for (const QByteArray& line : Journal::linesOf(journal_.fileName()))
    if (unused.contains(line))
      foreign_ << line;
  return isKept && tidyJournal() ? Journal::Opening::Done : Journal::Opening::Failed;
}

RecordKeeper::Lines RecordKeeper::journalLines() const {
  Lines lines;
  for (const QString& journal : folder_.journals(layoutId_))
    for (const QByteArray& line : Journal::linesOf(journal))
      if (const auto record = recordFromLine(line, layout_)) {
        const auto known = lines.constFind(record->run);
        if (known == lines.constEnd() || known->hasFailed || !record->hasFailed())
          lines.insert(record->run, {line, record->hasFailed()});
      }
  return lines;
}

/// Takes the lines of a part out of all lines.
bool RecordKeeper::takePart(std::size_t part, Lines& lines) {
  Lines own;
  for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i)
    if (const auto found = lines.find(plan_.runs[i].name); found != lines.end()) {
      own.insert(found.key(), found.value());
      lines.erase(found);
    }
  runs_ += plan_.endOf(part) - plan_.firstOf(part);
  if (isWholePart(fileOf(part)))
    return takeFinishedPart(part, own);
  for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i)
    takeRun(part, i, own.value(plan_.runs[i].name));
  return missingOf_.count(part) > 0 || closePart(part);
}

/// Whoever is killed while it retries leaves a finished part with failed runs, and a journal that
/// has some of them with results.
bool RecordKeeper::takeFinishedPart(std::size_t part, const Lines& lines) {
  const bool isRetried = failed_ == FailedRuns::AreRetried;
  const auto finished =
      isRetried || !lines.isEmpty() ? readPart(fileOf(part), layout_) : std::nullopt;
  if (!finished)
    return true;
  QSet<QByteArray> failed;
  for (const Record& record : finished->records)
    if (record.hasFailed())
      failed.insert(record.run);
  bool isBetter = false;
  for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i) {
    const QByteArray& name = plan_.runs[i].name;
    const KeptLine line = lines.value(name);
    const bool hasResults = !line.line.isEmpty() && !line.hasFailed;
    if (!failed.contains(name) || !(hasResults || isRetried))
      continue;
    takeRun(part, i, hasResults ? line : KeptLine());
    isBetter = isBetter || hasResults;
  }
  return !isBetter || missingOf_.count(part) > 0 || closePart(part);
}

/// `line` is what is there of a run, if anything.
void RecordKeeper::takeRun(std::size_t part, std::size_t run, const KeptLine& line) {
  const QByteArray& name = plan_.runs[run].name;
  if (!line.line.isEmpty())
    pending_.insert(name, line.line);
  const bool isRetried = line.hasFailed && failed_ == FailedRuns::AreRetried;
  if (!line.line.isEmpty() && !isRetried)
    return;
  missing_.push_back(run);
  awaited_.insert(name, part);
  ++missingOf_[part];
}

QString RecordKeeper::fileOf(std::size_t part) const {
  return folder_.part(partName(plan_, part, layoutId_));
}

bool RecordKeeper::keep(const Record& record, const QByteArray& line) {
  if (!journal_.append(line))
    return false;
  const auto awaited = awaited_.find(record.run);
  if (awaited == awaited_.end())
    return true;
  const std::size_t part = *awaited;
  awaited_.erase(awaited);
  pending_.insert(record.run, line);
  if (--missingOf_[part] > 0)
    return true;
  missingOf_.erase(part);
  return closePart(part) && tidyJournal();
}

bool RecordKeeper::closePart(std::size_t part) {
  if (plan_.hasRoom(part))
    return true; // with more runs it will be another part, which needs the maps of these
  std::vector<Record> records;
  for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i)
    if (const QByteArray line = pending_.take(plan_.runs[i].name); !line.isEmpty()) {
      records.push_back(*recordFromLine(line, layout_));
      records.back().repeats = plan_.runs[i].repeats;
    }
  auto finished = readPart(fileOf(part), layout_);
  if (finished)
    mend(*finished, records);
  else
    finished = foldedPart(std::move(records), layout_);
  return writePart(fileOf(part), *finished, layout_);
}

/// Leaves out of the journal what stands in a part by now: whoever is killed before finds both.
bool RecordKeeper::tidyJournal() {
  QByteArrayList rest = foreign_;
  rest += pending_.values();
  return journal_.replace(rest);
}

} // namespace TVR::Study
