#pragma once

#include "host/ProjectHistory.h"

#include <QObject>

#include <memory>

namespace TVR {

namespace Data {
class Manager;
class UndoHistory;
} // namespace Data

class MainWindowParts;
class ProjectDocument;
class ResultGraphic;
class RunWatch;
class WizardCommands;

/// The steps of the user in the project in the store, and how page, panel and open wizard follow
/// when one is undone. While a simulation runs none can be. Without watch() there are none. Lives
/// on the main thread.
class ProjectHistory final : public QObject, public BrenvikApp::ProjectHistory {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::ProjectHistory)

public:
  /// Everything that is given outlives this object.
  ProjectHistory(Data::Manager& store, const RunWatch& run, const ProjectDocument& document,
                 ResultGraphic& graphic, MainWindowParts& parts, WizardCommands& wizards,
                 QObject* parent);
  ~ProjectHistory() override;

  /// Begins to keep steps, or forgets them all.
  void watch(bool watches);
  /// What the user drags is let go: another drag is another step.
  void endAction();
  /// Another project is there.
  void clear();

  QString undoName() const override;
  QString redoName() const override;
  void undo() override;
  void redo() override;

signals:
  void changed();

private:
  void runChanged();
  void move(void (Data::UndoHistory::*step)());

  Data::Manager& store_;
  const RunWatch& run_;
  ResultGraphic& graphic_;
  MainWindowParts& parts_;
  WizardCommands& wizards_;
  std::unique_ptr<Data::UndoHistory> history_; ///< null while nobody watches
};

} // namespace TVR
