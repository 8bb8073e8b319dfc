#pragma once

#include <QString>

namespace TVR {

namespace Data {
class Manager;
}

class MainWindowParts;
class ProjectDocument;
class ResultGraphic;
class SimulationRun;
class WizardCommands;

/// What the user does to the project as a whole: start one, open one, save it.
class ProjectCommands {
public:
  /// Everything that is given outlives this object.
  ProjectCommands(Data::Manager& store, const SimulationRun& run, ResultGraphic& graphic,
                  ProjectDocument& document, WizardCommands& wizards, MainWindowParts& parts);

  /// Starts a new project with its wizard.
  void newProject();
  /// Asks for the file of a project to open; empty if the user gives up.
  QString askForFile() const;
  /// Reads a project or batch file with its page, as the project of the file that it belongs to,
  /// which is another one for what was saved automatically. False, and the user is told, if it
  /// can't be read or a simulation runs.
  bool read(const QString& file, const QString& belongsTo);
  /// Opens a file as the user asks for it, if it can be read: not before changes of the open
  /// project are saved or given up; the project is remembered as one of the recent ones, and the
  /// user is told that it is there.
  void open(const QString& file);
  /// Asks for a file and saves the project in it. The one that the dock names is proposed.
  void save();
  /// The same with another proposal, or none.
  void saveAs(const QString& proposal);
  /// Saves the project and remembers it as one of the recent ones; the user is told if that fails.
  void save(const QString& file);
  /// Writes the project with its page; false if the file can't be written or has another ending
  /// than ".tvr" and ".tbat".
  bool write(const QString& file);

private:
  static QString askForNewFile(const QString& proposal);
  void remember(const QString& file) const;

  Data::Manager& store_;
  const SimulationRun& run_;
  ResultGraphic& graphic_;
  ProjectDocument& document_;
  WizardCommands& wizards_;
  MainWindowParts& parts_;
};

} // namespace TVR
