#pragma once

#include <QObject>
#include <QString>

namespace BrenvikApp {

/// The project that a plug-in has open, for a host that names it in its title and guards its
/// changes. It is a QObject among the plug-in's children, so that a host finds it by casting them;
/// its signal `changed()` says that one of the answers below may be another one now.
class ProjectDocument {
public:
  /// The name that the user gave to the project; may be empty.
  virtual QString title() const = 0;
  /// The file that it was opened from or last saved to; empty if there is none.
  virtual QString fileName() const = 0;
  /// Whether the project differs from what its file holds, or from an empty project.
  virtual bool isModified() const = 0;
  /// Saves to the project's file, or asks for a name if it has none. False, and the user knows, if
  /// that is called off or fails.
  virtual bool saveChanges() = 0;
  /// Before the project is given up: asks about unsaved changes, if there are any, and saves them
  /// if the user wants that. False: the project is to stay.
  virtual bool mayBeLeft() = 0;
  /// Offers the user what earlier programs left unsaved when they ended without notice.
  virtual void offerRecovery() = 0;

protected:
  ~ProjectDocument() = default;
};

} // namespace BrenvikApp

#define BRENVIK_PROJECT_DOCUMENT_IID "venlor.BrenvikApplication.ProjectDocument/1.0"
Q_DECLARE_INTERFACE(BrenvikApp::ProjectDocument, BRENVIK_PROJECT_DOCUMENT_IID)
