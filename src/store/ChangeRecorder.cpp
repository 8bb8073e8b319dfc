#include "store/ChangeRecorder.h"

#include "design/ParameterId.h"
#include "store/Journal.h"

#include <algorithm>
#include <utility>

namespace TVR::Data {

ChangeRecorder::Writer::Writer(ChangeRecorder& recorder, ValueOrigin origin)
    : writer_(recorder.change_.writer), before_(std::exchange(writer_, origin)) {}

void ChangeRecorder::addJournal(Journal* journal) {
  journals_.push_back(journal);
}

void ChangeRecorder::removeJournal(Journal* journal) {
  const auto found = std::find(journals_.begin(), journals_.end(), journal);
  if (found == journals_.end())
    return;
  const auto index = static_cast<std::size_t>(found - journals_.begin());
  journals_.erase(found);
  if (index < change_.journals)
    --change_.journals;
  for (Change& change : suspendedChanges_)
    if (index < change.journals)
      --change.journals;
}

void ChangeRecorder::beginChange(int what) {
  if (change_.depth++ > 0)
    return;
  change_.what = what;
  change_.journals = journals_.size();
  if (change_.journals > 0)
    change_.before = project_;
}

void ChangeRecorder::endChange() {
  if (--change_.depth == 0)
    record();
}

void ChangeRecorder::record() {
  if (const WrittenValues written = std::exchange(change_.written, {}); !written.empty())
    for (std::size_t index = 0; index < change_.journals; ++index)
      journals_[index]->wrote(written, project_);
  JournalEntry entry{change_.what, {}, {}, !suspendedChanges_.empty()};
  swap(entry.before, change_.before);
  const bool isTable = change_.what == MadeTable;
  const bool isNone = entry.before == project_ && !(isTable && entry.before.made != project_.made);
  if (change_.journals == 0 || isNone)
    return;
  entry.after = project_;
  for (std::size_t index = 0; index < change_.journals; ++index)
    isTable ? journals_[index]->tableMade(entry) : journals_[index]->record(entry);
}

void ChangeRecorder::writing(int id, const QVariant& value) {
  if (change_.journals == 0)
    return;
  const auto written = change_.written.emplace(id, change_.writer).first;
  // A reader of files writes a computed value again to set off the rule of its parameter.
  const bool isAgain = written->second == ValueOrigin::Rule &&
                       change_.writer == ValueOrigin::File &&
                       isSameValue(project_.values.value(id), value);
  if (!isAgain)
    written->second = change_.writer;
}

void ChangeRecorder::writingDefaults() {
  for (int id = 0; change_.journals > 0 && id < Parameter::Count; ++id)
    change_.written[id] = ValueOrigin::ReferenceDatabase;
}

void ChangeRecorder::beginStep(const StepName& name) {
  if (openSteps_++ > 0)
    return;
  isStepTold_ = change_.depth == 0 && suspendedChanges_.empty();
  if (isStepTold_)
    for (Journal* const journal : journals_)
      journal->beginStep(name);
}

void ChangeRecorder::endStep() {
  if (--openSteps_ == 0 && isStepTold_)
    for (Journal* const journal : journals_)
      journal->endStep();
}

// A change that the work lies within is recorded in two parts, before the work and after it.
void ChangeRecorder::beginProgramWork() {
  if (change_.depth > 0)
    record();
  suspendedChanges_.push_back(std::move(change_));
  change_ = {};
  change_.writer = ValueOrigin::Program;
}

void ChangeRecorder::endProgramWork() {
  change_ = std::move(suspendedChanges_.back());
  suspendedChanges_.pop_back();
  if (change_.journals > 0)
    change_.before = project_;
}

} // namespace TVR::Data
