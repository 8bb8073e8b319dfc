#pragma once

#include <QObject>
#include <QString>

namespace BrenvikApp {

/// The steps of the user in the open project, for a host that offers to undo and redo them. It is a
/// QObject among the plug-in's children, so that a host finds it by casting them; its signal
/// `changed()` says that one of the answers below may be another one now.
class ProjectHistory {
public:
  /// What the step is called that undo() takes back, such as "Move wells"; empty if nothing can be
  /// undone now.
  virtual QString undoName() const = 0;
  /// The same of redo().
  virtual QString redoName() const = 0;
  /// Takes the last step back, with all that followed from it; nothing if there is none.
  virtual void undo() = 0;
  /// Takes the last step again that was undone.
  virtual void redo() = 0;

protected:
  ~ProjectHistory() = default;
};

} // namespace BrenvikApp

#define BRENVIK_PROJECT_HISTORY_IID "venlor.BrenvikApplication.ProjectHistory/1.0"
Q_DECLARE_INTERFACE(BrenvikApp::ProjectHistory, BRENVIK_PROJECT_HISTORY_IID)
