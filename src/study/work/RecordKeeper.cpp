#include "study/work/RecordKeeper.h"

#include "study/work/PartFile.h"

#include <QSet>

namespace TVR::Study {

RecordKeeper::RecordKeeper(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout,
                           const Shard& shard)
    : folder_(folder), plan_(plan), layout_(layout), shard_(shard), layoutId_(idOf(layout)),
      journal_(folder.journal(layoutId_, shard.name())) {}

Journal::Opening RecordKeeper::open() {
  const Journal::Opening opening = journal_.open();
  if (opening != Journal::Opening::Done)
    return opening;
  Lines lines = journalLines();
  bool isKept = true;
  for (std::size_t part = 0; part < plan_.parts(); ++part)
    if (shard_.has(part))
      isKept = takePart(part, lines) && isKept;
  const QByteArrayList rest = lines.values();
  const QSet<QByteArray> unused(rest.begin(), rest.end());
  for (const QByteArray& line : Journal::linesOf(journal_.fileName()))
    if (unused.contains(line))
      foreign_ << line;
  return isKept && tidyJournal() ? Journal::Opening::Done : Journal::Opening::Failed;
}

RecordKeeper::Lines RecordKeeper::journalLines() const {
  Lines lines;
  for (const QString& journal : folder_.journals(layoutId_))
    for (const QByteArray& line : Journal::linesOf(journal))
      if (const auto record = recordFromLine(line, layout_))
        lines.insert(record->run, line);
  return lines;
}

/// Takes the lines of a part out of all lines.
bool RecordKeeper::takePart(std::size_t part, Lines& lines) {
  const bool isThere = isWholePart(folder_.part(partName(plan_, part, layoutId_)));
  const std::size_t first = plan_.firstOf(part);
  const std::size_t end = plan_.endOf(part);
  Lines kept;
  for (std::size_t i = first; i < end; ++i) {
    const QByteArray& name = plan_.runs[i].name;
    const QByteArray line = lines.take(name);
    if (isThere)
      continue;
    partOf_.insert(name, part);
    if (line.isEmpty())
      missing_.push_back(i);
    else
      kept.insert(name, line);
  }
  runs_ += end - first;
  const bool isWhole = static_cast<std::size_t>(kept.size()) == end - first;
  if (!kept.isEmpty())
    open_.emplace(part, std::move(kept));
  return !isWhole || closePart(part);
}

bool RecordKeeper::keep(const Record& record, const QByteArray& line) {
  if (!journal_.append(line))
    return false;
  const std::size_t part = partOf_[record.run];
  Lines& lines = open_[part];
  lines.insert(record.run, line);
  const bool isWhole =
      static_cast<std::size_t>(lines.size()) == plan_.endOf(part) - plan_.firstOf(part);
  return !isWhole || (closePart(part) && tidyJournal());
}

bool RecordKeeper::closePart(std::size_t part) {
  const Lines& lines = open_[part];
  std::vector<Record> records;
  for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i) {
    const PlannedRun& run = plan_.runs[i];
    records.push_back(*recordFromLine(lines[run.name], layout_));
    records.back().repeats = run.repeats;
    partOf_.remove(run.name);
  }
  open_.erase(part);
  return writePart(folder_.part(partName(plan_, part, layoutId_)),
                   foldedPart(std::move(records), layout_), layout_);
}

/// Leaves out of the journal what stands in a part by now: whoever is killed before finds both.
bool RecordKeeper::tidyJournal() {
  QByteArrayList rest = foreign_;
  for (const auto& [other, kept] : open_)
    rest += kept.values();
  return journal_.replace(rest);
}

} // namespace TVR::Study
