#pragma once

#include "project/ChangeScope.h"
#include "project/Project.h"
#include "store/ValueOrigin.h"

#include <QVariant>

#include <cstddef>
#include <vector>

namespace TVR::Data {

class Journal;
struct StepName;

/// Tells journals what becomes of a project: each outermost change with what it was before and
/// after, who wrote its values, where an action of the user begins and ends, and what of it is the
/// program's own work. It changes nothing itself: whoever does opens a ChangeScope around it.
class ChangeRecorder final : public ChangeKeeper {
public:
  /// `project` is the one that is changed, and outlives the recorder.
  explicit ChangeRecorder(const Project& project) : project_(project) {}

  /// See Manager::addJournal.
  void addJournal(Journal* journal);
  void removeJournal(Journal* journal);

  void beginChange(int what) override;
  void endChange() override;

  /// A value is about to be written, within a change.
  void writing(int id, const QVariant& value);
  /// The values of all parameters are about to be replaced by the defaults, within a change or not.
  void writingDefaults();

  /// Values are written on behalf of this origin while it lives.
  class Writer {
  public:
    Writer(ChangeRecorder& recorder, ValueOrigin origin);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { writer_ = before_; }

  private:
    ValueOrigin& writer_;
    const ValueOrigin before_;
  };

private:
  friend class UserStep;
  friend class ProgramWork;

  /// The outermost change that is under way.
  struct Change {
    int depth = 0; ///< changes that lie within each other; 0 for none
    int what = 0;
    std::size_t journals = 0; ///< the first so many hear of it
    Project before;
    ValueOrigin writer = ValueOrigin::Typed; ///< on whose behalf values are written at the moment
    WrittenValues written;
  };

  void beginStep(const StepName& name);
  void endStep();
  void beginProgramWork();
  void endProgramWork();
  void record();

  const Project& project_;
  std::vector<Journal*> journals_;
  Change change_;
  std::vector<Change> suspendedChanges_; ///< that the program's own work lies within
  int openSteps_ = 0;
  bool isStepTold_ = false; ///< the journals know of the outermost step
};

} // namespace TVR::Data
