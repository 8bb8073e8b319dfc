#pragma once

#include "host/MainWindowPluginInterface.h"

#include <QString>

/// What the plug-in offers to its host and to a batch driver, beyond what every plug-in does.
class TVRInterface : public BrenvikApp::MainWindowPluginInterface {
public:
  virtual void openWelcomeWindow() = 0;
  /// Shortcut of the language of use: "en", "de" or "fr".
  virtual QString language() = 0;
  /// With `batch` reads a batch file and runs its simulation to the end on the calling thread;
  /// errors of the simulator come through as exceptions. Without it opens a project.
  virtual void computeInput(const QString& name, bool batch) = 0;
  /// The copyright notice as HTML.
  virtual QString copyright() = 0;
  virtual void cancelSimulation() = 0;
};

#define TVR_PLUGIN_IID "venlor.BrenvikApplication.TVRPlugin/1.0"
Q_DECLARE_INTERFACE(TVRInterface, TVR_PLUGIN_IID)
