#pragma once

#include "project/Project.h"
#include "simulation/OutputTimes.h"
#include "simulation/RunObserver.h"
#include "simulation/SiteInput.h"
#include "store/Journal.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>
#include <set>

namespace TVR {

namespace Data {
class Manager;
}

class ProjectDocument;
class SimulationRun;

/// Whether the results that are there still are those of the project: what a run would read of it
/// now is held against what the last one read, so that changes of a title or of the map's view do
/// not count, and what is put back does no more. Results of a file are those of its project if it
/// says so (`__simulation_uptodate`), and that note follows the answer while the project is open.
/// Without watch() results are never outdated. Lives on the main thread.
class OutdatedResults final : public QObject, private Data::Journal, private RunObserver {
  Q_OBJECT

public:
  /// Everything that is given outlives this object.
  OutdatedResults(Data::Manager& store, SimulationRun& run, const ProjectDocument& document,
                  QObject* parent = nullptr);
  ~OutdatedResults() override;

  /// Begins to watch the project, or ends it.
  void watch(bool watches);
  /// Whether there are results, and they are outdated.
  bool areThere() const { return areThere_; }
  /// What of the project has changed since the run, a line each in the language of the moment: what
  /// was written, not what rules made of it, unless only that is left. Empty if nobody knows.
  QStringList changes() const;

signals:
  /// One of the answers above may be another one now.
  void changed();

private:
  /// What decides on the results of a run.
  struct Input {
    SiteInput site;
    OutputTimeInput times;
    bool operator==(const Input&) const = default;
  };
  struct Simulated {
    Project project;
    Input input;
  };

  void record(const Data::JournalEntry& entry) override;
  void setOff() override { begin(true); }
  /// Another project is there.
  void opened();
  /// Changes count from now on.
  void begin(bool areUpToDate);
  void update();
  Input inputOf(const Project& project) const;
  void noteInProject();

  Data::Manager& store_;
  SimulationRun& run_;
  std::optional<Simulated> simulated_; ///< that the results are of; none if nobody knows
  std::set<int> edited_;               ///< parameters that another input has come from since
  bool isWatching_ = false;
  bool areThere_ = false;
  QTimer update_; ///< one action may change much
};

} // namespace TVR
