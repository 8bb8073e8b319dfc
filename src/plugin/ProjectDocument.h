#pragma once

#include "host/ProjectDocument.h"
#include "keeping/Autosave.h"
#include "plugin/ProjectRecovery.h"
#include "project/Project.h"
#include "simulation/RunObserver.h"
#include "store/Journal.h"

#include <functional>

namespace TVR {

namespace Data {
class Manager;
}

class SimulationRun;

/// What a document has done for it. Those that save end in a call of ProjectDocument::saved(), and
/// opening in one of opened(), unless they are called off or fail, which they tell the user.
struct DocumentCommands {
  std::function<void(const QString& file)> save;
  /// Asks for the file, and proposes one unless the name is empty.
  std::function<void(const QString& proposal)> saveAs;
  /// Opens a project as one that belongs to another file, which may be none.
  std::function<bool(const QString& file, const QString& belongsTo)> open;
  /// Writes the project with its page and tells nobody.
  AutosaveFolder::WriteProject write;
};

/// The project in the store, with its page, as a document: the file that it belongs to, and whether
/// it differs from what that file holds. Values count as isSameWork compares them: put back, they
/// are no change any more. The page counts as changed once its user or a run has changed it. What
/// is changed is saved automatically (Autosave), also before a run begins. Without watch() it looks
/// at nothing, and nothing is ever modified. Lives on the main thread.
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

  /// Begins to watch the store and the run, or ends it: changes that nobody was asked about are
  /// then kept for the next program.
  void watch(bool watches);

  /// The store holds what this file does, as it was read; with an empty name a new project.
  void opened(const QString& fileName);
  /// This file holds what the store does, as it was written, and the page unless it is a batch
  /// file.
  void saved(const QString& fileName);

  QString title() const override;
  QString fileName() const override { return fileName_; }
  bool isModified() const override { return isPageModified_ || areValuesModified_; }
  bool saveChanges() override;
  bool mayBeLeft() override;
  void offerRecovery() override;

  Autosave& autosave() { return autosave_; }

public slots:
  /// The user has changed the page.
  void pageModified();

signals:
  void changed();
  /// See opened().
  void projectOpened();

private:
  void record(const Data::JournalEntry& entry) override;

  void initialising(const RunRequest& /*request*/) override { autosave_.keepNow(); }
  // A run changes the page from its beginning on, however it ends. Only the user begins one: what
  // was discarded since stays so.
  void setOff() override { pageModified(); }
  void stepReached(const RunStep& /*step*/) override { notePage(); }
  void failed(double /*time*/, const QString& /*text*/) override { notePage(); }
  void finished(const RunSummary& /*summary*/) override { notePage(); }

  /// The values as they are now are those of the file; its page may be another one.
  void settle(const QString& fileName, bool isPageModified = false);
  /// The page differs from what the file holds.
  void notePage();
  void noteChange();
  void tellChanges();
  bool writeAutosave(const QString& file) const;
  void tellFailure(const QString& directory) const;
  ProjectRecovery::Outcome recover(const AutosaveFolder& leftover);

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
  std::optional<Project> kept_; ///< what the file holds, if that is known
  bool areValuesModified_ = false;
  bool isPageModified_ = false;
  bool isGivenUp_ = false; ///< the user wants the present changes discarded
  bool isSaved_ = false;   ///< since saveChanges() began
  Autosave autosave_;
  ProjectRecovery recovery_;
  Face shown_; ///< when `changed` was last emitted
};

} // namespace TVR
