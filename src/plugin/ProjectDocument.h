#pragma once

#include "host/ProjectDocument.h"
#include "project/Project.h"
#include "simulation/RunObserver.h"
#include "store/Journal.h"

#include <functional>

namespace TVR {

namespace Data {
class Manager;
}

class SimulationRun;

/// How a document is saved. Both end in a call of ProjectDocument::saved() unless they are called
/// off or fail, which they tell the user.
struct DocumentCommands {
  std::function<void(const QString&)> save; ///< into this file
  std::function<void()> saveAs;             ///< asks for the file
};

/// The project in the store, with its page, as a document: the file that it belongs to, and whether
/// it differs from what that file holds. Values count as isSameWork compares them: put back, they
/// are no change any more. The page counts as changed once its user or a run has changed it.
/// Without watch() it looks at nothing, and nothing is ever modified. Lives on the main thread.
class ProjectDocument final : public QObject,
                              public BrenvikApp::ProjectDocument,
                              private Data::Journal,
                              private RunObserver {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::ProjectDocument)

public:
  /// `store` and `run` outlive this object.
  ProjectDocument(Data::Manager& store, SimulationRun& run, DocumentCommands commands,
                  QObject* parent);
  ~ProjectDocument() override;

  /// Begins to watch the store and the run, or ends it.
  void watch(bool watches);

  /// The store holds what this file does, as it was read; with an empty name a new project.
  void opened(const QString& fileName);
  /// This file holds what the store does, as it was written.
  void saved(const QString& fileName);

  QString title() const override;
  QString fileName() const override { return fileName_; }
  bool isModified() const override { return isPageModified_ || areValuesModified_; }
  bool saveChanges() override;
  bool mayBeLeft() override;
  void offerRecovery() override {}

public slots:
  /// The page differs from what the file holds.
  void pageModified();

signals:
  void changed();

private:
  void record(const Data::JournalEntry& entry) override;

  // A run changes the page from its beginning on, however it ends.
  void setOff() override { pageModified(); }
  void stepReached(const RunStep& /*step*/) override { pageModified(); }
  void failed(double /*time*/, const QString& /*text*/) override { pageModified(); }
  void finished(const RunSummary& /*summary*/) override { pageModified(); }

  /// The project as it is now is the one of the file.
  void settle(const QString& fileName);
  void tellChanges();

  /// What a host shows of the document.
  struct Face {
    QString title;
    QString fileName;
    bool isModified = false;
    bool operator==(const Face& other) const = default;
  };

  Data::Manager& store_;
  SimulationRun& run_;
  const DocumentCommands commands_;
  bool isWatching_ = false;
  QString fileName_;
  Project kept_; ///< what the file holds
  bool areValuesModified_ = false;
  bool isPageModified_ = false;
  bool isSaved_ = false; ///< since saveChanges() began
  Face shown_;           ///< when `changed` was last emitted
};

} // namespace TVR
