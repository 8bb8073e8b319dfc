#pragma once

#include "project/Project.h"
#include "store/Journal.h"

#include <QObject>
#include <QString>

#include <deque>
#include <optional>

namespace TVR::Data {

class Manager;

/// The steps of the user since the project was opened or made, to undo and redo them one by one. A
/// UserStep is one, and so is each change outside of any. What follows belongs to no step of its
/// own and goes with the step before it: values that only change their form, as a text becomes a
/// number, entries that say what was derived before, tables that are made, and which wizards are
/// done.
///
/// What a step changed is put back, and nothing else: what the program has written meanwhile
/// (ProgramWork) stays, and so does the language. Results of a run stay too, but once a step is
/// undone or redone they count as up to date (`__simulation_uptodate`) only while the project is
/// the one that they come from. As many steps are kept as the limit has room for; the oldest go
/// first. Lives on the thread of the store.
class UndoHistory final : public QObject, private Journal {
  Q_OBJECT

public:
  static constexpr qint64 usualLimit = qint64{64} * 1024 * 1024; // [bytes]

  /// Begins with the project that is there. The last step is kept even if it is larger than `limit`
  /// [bytes]. `store` outlives the history.
  explicit UndoHistory(Manager& store, qint64 limit = usualLimit, QObject* parent = nullptr);
  ~UndoHistory() override;

  bool canUndo() const { return position_ > 0; }
  bool canRedo() const { return position_ < steps_.size(); }
  /// The name of the step that would be undone or redone; empty if there is none.
  QString undoName() const;
  QString redoName() const;
  void undo();
  void redo();

  /// Forgets all steps: another project is there. A project that is read or reset does so itself.
  void clear();
  /// The action that goes on (StepName::goesOn) is over: the next step is one of its own.
  void endAction() { actionGoesOn_ = false; }
  /// The results that are there come from the project as it is now.
  void resultsMade();

  std::size_t size() const { return steps_.size(); }
  /// What the steps take [bytes], estimated: what projects share is counted once.
  qint64 bytes() const;

signals:
  /// One of the answers above may be another one now.
  void changed();

private:
  /// What led from one project to another.
  struct Change {
    Project before;
    Project after;

    /// Another change comes on top, whatever else has happened since.
    void add(const Change& next);
  };
  struct Step {
    StepName name;
    int what; ///< names the step if its own name is empty; see JournalEntry
    Change change;
    qint64 bytes = 0; ///< beyond what is shared with the step before
  };
  /// The step that is under way.
  struct OpenStep {
    StepName name;
    std::optional<int> what; ///< the first that was changed itself, not by a rule
    bool hasSeveral = false; ///< of those
    bool isSeen = false;     ///< any change, also by a rule
    std::optional<Change> change;

    void add(const JournalEntry& entry);
    /// What the program does within a step is no part of it.
    void leaveOut(const JournalEntry& entry);
  };

  void record(const JournalEntry& entry) override;
  void tableMade(const JournalEntry& entry) override { note(entry); }
  void beginStep(const StepName& name) override;
  void endStep() override;

  void note(const JournalEntry& entry);
  void take(Step step);
  bool goesOn(const StepName& name) const;
  void goOn(const Change& change);
  void goWithStepBefore(const Change& change);
  void push(Step step);
  void takeHead();
  void measure(std::size_t index);
  void move(std::size_t index, Project Change::*from, Project Change::*to);
  void markResults(Project& project) const;
  QString nameOf(const Step& step) const;

  Manager& store_;
  const qint64 limit_;
  std::deque<Step> steps_;
  std::size_t position_ = 0;   ///< steps that are done; those behind are undone
  std::optional<Change> head_; ///< that no step was there to go with
  std::optional<OpenStep> openStep_;
  std::optional<Project> resultsOf_; ///< the project that up-to-date results come from
  bool actionGoesOn_ = false;
  bool isApplying_ = false;
};

} // namespace TVR::Data
