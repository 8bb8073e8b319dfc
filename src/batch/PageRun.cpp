#include "batch/PageRun.h"

#include "batch/HeadlessHost.h"
#include "inspection/FileInspection.h"
#include "page/painting/PageExport.h"
#include "page/window/PageWindow.h"
#include "plugin/AppInterface.h"
#include "plugin/TVRPlugin.h"
#include "results/DrawingExport.h"
#include "results/DxfExport.h"
#include "results/ShapefileExport.h"
#include "terminal/StopSignals.h"

#include <QEventLoop>

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

/// What went wrong; empty if nothing did.
QString simulate(TVRPlugin& plugin, const RunRequest& request) {
  RunEnd end;
  plugin.simulationRun().addObserver(&end);
  plugin.runOnPage(request);
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

QStringList runToPage(TVRPlugin& plugin, const QString& fileName, const StoredPage& stored,
                      const RunRequest& request, const PageFiles& files) {
  Hosting hosting(plugin);
  plugin.showProject(stored);
  if (const QString error = simulate(plugin, request); !error.isEmpty())
    return {error};
  if (!isProjectFile(fileName) || !plugin.resultGraphic().showsAllWells())
    plugin.resultGraphic().fitView(); // a batch file knows of no view
  return writeFiles(plugin, hosting.host, files);
}

} // namespace TVR::Batch
