#pragma once

#include "host/ProjectDocument.h"
#include "host/ProjectHistory.h"
#include "host/RunState.h"
#include "host/TVRInterface.h"

#include <QObject>
#include <QString>

namespace TVR::Desktop {

/// The plug-in as the desktop drives it: by its interfaces, by the slots of its meta-object, and by
/// what it offers among its children.
class Plugin {
public:
  /// `object` implements TVRInterface and outlives this one.
  explicit Plugin(QObject& object);

  QObject& object() const { return object_; }
  TVRInterface* operator->() const { return &face_; }

  /// Calls a slot by its name, a private one too; false if there is none such.
  bool call(const char* slot) const;
  bool call(const char* slot, const QString& argument) const;
  /// "en", "de" or "fr".
  void setLanguage(const QString& language) const;

  /// The open project; null as long as the plug-in knows none.
  BrenvikApp::ProjectDocument* document() const { return child<BrenvikApp::ProjectDocument>(); }
  /// The steps of its user; null as long as the plug-in keeps none.
  BrenvikApp::ProjectHistory* history() const { return child<BrenvikApp::ProjectHistory>(); }
  bool isRunning() const;
  /// Ends a run and waits for its last results, but not long.
  void stopRun() const;
  /// Connects the signal `changed()` of the open project to one slot of `receiver`, and of its
  /// history and the state of its run to another (SLOT() texts). What the plug-in does not have is
  /// left out.
  void watch(QObject& receiver, const char* documentChanged, const char* situationChanged) const;

private:
  template <typename Face>
  Face* child() const {
    for (QObject* one : object_.children())
      if (auto* face = qobject_cast<Face*>(one))
        return face;
    return nullptr;
  }

  QObject& object_;
  TVRInterface& face_;
};

} // namespace TVR::Desktop
