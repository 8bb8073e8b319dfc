#include "plugin/ProjectCommands.h"

#include "design/ParameterId.h"
#include "files/RecentProjects.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/MainWindowParts.h"
#include "plugin/ProjectDocument.h"
#include "plugin/ResultGraphic.h"
#include "plugin/RunQuestions.h"
#include "plugin/WizardCommands.h"
#include "results/FileDialogs.h"
#include "store/Manager.h"

#include <QFileInfo>

namespace TVR {

namespace {

constexpr char projectEnding[] = ".tvr";
constexpr char batchEnding[] = ".tbat";

void tellUnableToOpen(const QString& file) {
  tellUser(Severity::Critical, programTitle, PluginText::tr("Unable to open:%1").arg(file));
}

bool isReadableFile(const QString& file) {
  const QFileInfo info(file);
  return info.isFile() && info.isReadable();
}

} // namespace

ProjectCommands::ProjectCommands(Data::Manager& store, const SimulationRun& run,
                                 ResultGraphic& graphic, ProjectDocument& document,
                                 WizardCommands& wizards, MainWindowParts& parts)
    : store_(store), run_(run), graphic_(graphic), document_(document), wizards_(wizards),
      parts_(parts) {}

void ProjectCommands::newProject() {
  if (refusesDuringRun(run_) || !document_.mayBeLeft())
    return;
  // Required oddity: what is offered to be saved below is the project after the reset.
  store_.reset();
  graphic_.renew();
  document_.opened({});
  parts_.showFile(QString());
  parts_.refreshPanel();
  if (wizards_.wizard()) {
    if (userSaves(programTitle,
                  PluginText::tr("Should the open project saved before opening a new project?")))
      save();
    wizards_.discardWizard();
    parts_.refreshPanel();
  }
  wizards_.openNewProject(
      userSaysYes(Severity::Information, programTitle,
                  PluginText::tr("Should the project only include the simulation part?")));
}

QString ProjectCommands::askForFile() const {
  if (refusesDuringRun(run_))
    return {};
  return fileToOpen(AppInterface::instance(), PluginText::tr("Open TVR project file"),
                    PluginText::tr("TVR project files (*.tvr)"));
}

bool ProjectCommands::read(const QString& file, const QString& belongsTo) {
  if (refusesDuringRun(run_))
    return false;
  graphic_.clear();
  QMap<QString, int> fieldIds;
  const bool isRead = store_.read(file, fieldIds);
  if (isRead)
    store_.setFileName(belongsTo);
  parts_.showFile(store_.fileName());
  parts_.refreshPanel();
  if (!isRead) {
    document_.opened({});
    tellUnableToOpen(file);
    return false;
  }
  graphic_.takeOver(fieldIds);
  document_.opened(belongsTo);
  return true;
}

void ProjectCommands::open(const QString& file) {
  if (refusesDuringRun(run_))
    return;
  if (!isReadableFile(file)) {
    tellUnableToOpen(file); // what is open stays
    return;
  }
  if (!document_.mayBeLeft() || !read(file, file))
    return;
  remember(file);
  const QString title = store_.value(Parameter::ProjectName).toString();
  tellUserDone(programTitle,
               PluginText::tr("<b>TVR project &laquo;%1&raquo; ready to use.</b>")
                   .arg(title.toHtmlEscaped()),
               PluginText::tr("read from file: %1").arg(file), ":/TVR/images/smiley_done.png");
}

void ProjectCommands::remember(const QString& file) const {
  addRecentProject(
      {store_.value(Parameter::ProjectName).toString(), QFileInfo(file).absoluteFilePath()});
}

QString ProjectCommands::askForNewFile(const QString& proposal) {
  QString file =
      fileToSave(AppInterface::instance(), PluginText::tr("Save TVR project file"),
                 PluginText::tr("TVR project file (*.tvr);;TVR batch file (*.tbat)"), proposal);
  if (file.isEmpty() || file.endsWith(projectEnding) || file.endsWith(batchEnding))
    return file;
  file += projectEnding;
  // The dialog has asked about the name without its ending only.
  const bool mayBeWritten =
      !QFileInfo::exists(file) ||
      userSaysYes(Severity::Warning, programTitle,
                  PluginText::tr("%1 already exists.\nDo you want to replace it?").arg(file));
  return mayBeWritten ? file : QString();
}

void ProjectCommands::save() {
  saveAs(parts_.panel() ? parts_.panel()->shownFile() : QString());
}

void ProjectCommands::saveAs(const QString& proposal) {
  if (const QString file = askForNewFile(proposal); !file.isEmpty())
    save(file);
}

void ProjectCommands::save(const QString& file) {
  if (write(file)) {
    remember(file);
    parts_.showFile(file);
    store_.setFileName(file);
    document_.saved(file);
  } else {
    tellUser(Severity::Critical, programTitle, PluginText::tr("Unable to create:%1").arg(file));
  }
}

bool ProjectCommands::write(const QString& file) {
  return store_.write(file, graphic_.windowToSave(), graphic_.items().fieldIds());
}

} // namespace TVR
