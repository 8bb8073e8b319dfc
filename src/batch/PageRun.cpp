#include "batch/PageRun.h"

#include "batch/FileInspection.h"
#include "batch/HeadlessHost.h"
#include "batch/StopSignals.h"
#include "design/ParameterId.h"
#include "page/painting/PageExport.h"
#include "page/window/PageWindow.h"
#include "plugin/AppInterface.h"
#include "plugin/TVRPlugin.h"
#include "results/DrawingExport.h"
#include "results/DxfExport.h"
#include "results/ShapefileExport.h"
#include "store/Manager.h"

#include <QEventLoop>
#include <QMap>
#include <QVariant>

namespace TVR::Batch {

namespace {

/// Lets events come until the run is over.
class RunEnd : public RunObserver {
public:
  void failed(double, const QString& text) override {
    error = text;
    loop_.quit();
  }
  void abandoned() override { loop_.quit(); }
  void finished(const RunSummary&) override {
    error.clear();
    loop_.quit();
  }
  void wait() { loop_.exec(); }

  QString error = QStringLiteral("the simulation could not be started");

private:
  QEventLoop loop_;
};

/// Lets a run write its table although the project does not ask for it. The names of this run are
/// not the project's.
class TableWanted {
public:
  explicit TableWanted(const QString& file) {
    for (const int id :
         {Parameter::WriteWellOutput, Parameter::WellOutputFile, Parameter::BatchOutputFile})
      former_[id] = store_.value(id);
    store_.setValue(Parameter::WriteWellOutput, true);
    store_.setValue(Parameter::WellOutputFile, file);
  }
  ~TableWanted() {
    for (auto value = former_.begin(); value != former_.end(); ++value)
      store_.setValue(value.key(), value->isValid() ? *value : QVariant(QString()));
  }
  TableWanted(const TableWanted&) = delete;
  TableWanted& operator=(const TableWanted&) = delete;

private:
  Data::Manager& store_ = *Data::Manager::instance();
  QMap<int, QVariant> former_;
};

/// What went wrong; empty if nothing did.
QString simulate(TVRPlugin& plugin, const QString& tableFile) {
  const TableWanted wanted(tableFile);
  RunEnd end;
  plugin.simulationRun().addObserver(&end);
  plugin.startSimulation();
  if (plugin.running())
    end.wait();
  plugin.simulationRun().removeObserver(&end);
  return end.error;
}

/// Gives the plug-in a host for as long as the object lives.
class Hosting {
public:
  explicit Hosting(TVRPlugin& plugin) : plugin_(plugin) { plugin_.setAppInterface(&host); }
  ~Hosting() {
    plugin_.setAppInterface(nullptr);
    AppInterface::setGraphicsInterface(nullptr);
  }
  Hosting(const Hosting&) = delete;
  Hosting& operator=(const Hosting&) = delete;

  HeadlessHost host;

private:
  TVRPlugin& plugin_;
};

QString notWritten(const QString& file) {
  return QStringLiteral("%1 could not be written").arg(file);
}

/// A signal ends the program between two files, never within one.
bool goesOn() {
  return StopSignals::received() == 0;
}

QStringList writeFiles(TVRPlugin& plugin, HeadlessHost& host, const PageFiles& files) {
  QStringList errors;
  if (!host.page())
    return {"no page was made"};
  const PageAccess page = plugin.resultGraphic().access();
  for (const QString& file : files.pages)
    if (goesOn() && !Page::exportPage(host.page()->canvas(), file))
      errors << notWritten(file);
  if (goesOn() && !files.shapefile.isEmpty() && !ShapefileExport(page).write(files.shapefile))
    errors << notWritten(files.shapefile);
  if (goesOn() && !files.dxf.isEmpty() && !DrawingExport(page).write(files.dxf))
    errors << notWritten(files.dxf);
  if (goesOn() && !files.dxfText.isEmpty() && !DxfExport(page).write(files.dxfText, true, true))
    errors << notWritten(files.dxfText);
  if (goesOn() && !files.project.isEmpty() && !plugin.writeProject(files.project))
    errors << notWritten(files.project);
  return errors;
}

} // namespace

QStringList runToPage(TVRPlugin& plugin, const QString& fileName, const QString& tableFile,
                      const PageFiles& files) {
  Hosting hosting(plugin);
  if (!plugin.readProject(fileName))
    return {QStringLiteral("%1 could not be read").arg(fileName)};
  if (const QString error = simulate(plugin, tableFile); !error.isEmpty())
    return {error};
  if (!isProjectFile(fileName) || !plugin.resultGraphic().showsAllWells())
    plugin.resultGraphic().fitView(); // a batch file knows of no view
  return writeFiles(plugin, hosting.host, files);
}

} // namespace TVR::Batch
