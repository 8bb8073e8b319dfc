#include "plugin/RunView.h"

#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/ProgressPanel.h"
#include "plugin/ResultGraphic.h"
#include "plugin/StepExport.h"
#include "project/Units.h"
#include "results/ResultGrid.h"
#include "results/SummaryTable.h"
#include "simulation/OutputTimes.h"
#include "simulation/RunRequest.h"
#include "simulation/Simulation.h"
#include "simulator/models/FVGeothermSite.h"

#include <optional>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

constexpr int statusDuration = 10000;  // [ms]
constexpr int phaseDuration = 1000;    // [ms]
constexpr int noEnd = -1;              // patience of a lock
constexpr int isothermPatience = 1000; // at the end of a run [ms]

std::vector<double> drawdownsOf(const Simulation& simulation) {
  std::vector<double> values(simulation.mesh().elements.size());
  simulation.getDrawdowns(values);
  return values;
}

/// A list of `count` values; what lies behind the cells of the aquifer stays 0.
std::vector<double> temperaturesOf(const Simulation& simulation, std::size_t count) {
  std::vector<double> values(count);
  simulation.getTemperatures(values);
  return values;
}

} // namespace

BrenvikApp::ApplicationInterface* RunView::host() const {
  return isInteractive_ ? AppInterface::instance() : nullptr;
}

/// Says where an interactive run stands: in the panel, or else in the status line.
void RunView::say(const QString& text) const {
  if (QLabel* const message = progress_.message)
    message->setText(text);
  else if (BrenvikApp::ApplicationInterface* const application = AppInterface::instance())
    application->showStatusMessage(text, statusDuration);
}

void RunView::tellStatus(const QString& text, int milliseconds) const {
  if (host())
    host()->showStatusMessage(text, milliseconds);
}

void RunView::tellProgress(int value, int maximum) const {
  if (host())
    host()->setProgress(value, maximum);
}

QString RunView::atTime(const QString& text, double time) const {
  const QString unit =
      graphic_.frame().countsYears() ? PluginText::tr("a") : PluginText::tr("cycle");
  return text.arg(inYears(time), 0, 'f', 2).arg(unit);
}

void RunView::initialising(const RunRequest& request) {
  isInteractive_ = request.isInteractive;
  steps_.forgetUnwrittenFiles();
  if (!isInteractive_)
    return;
  progress_.setVisible(true);
  say(PluginText::tr("Initialise Simulation"));
  progress_.setRange(progress_.work, 0); // busy
}

void RunView::outputTimesMade() {
  graphic_.setupDemandPlot();
}

void RunView::starting(const RunStart& start) {
  if (!isInteractive_)
    return;
  const QString text = PluginText::tr("Using %1 nodes ...").arg(start.cells);
  if (progress_.message)
    say(text);
  tellStatus(text, statusDuration);
  progress_.setRange(progress_.outputTimes, start.outputTimes);
  progress_.reset(progress_.work);
  graphic_.update();
}

void RunView::setOff() {
  graphic_.takeMesh();
  say(atTime(PluginText::tr("Simulate t = %1 %2"), 0));
}

void RunView::stepReached(const RunStep& step) {
  if (!isInteractive_)
    return;
  say(atTime(PluginText::tr("Simulate t = %1 %2"), step.time));
  if (QProgressBar* const bar = progress_.outputTimes)
    bar->setValue(step.index);
  tellProgress(step.index + 1, step.count);
}

void RunView::drawdownsReached(const RunStep& step) {
  graphic_.showValues(Drawdowns, drawdownsOf(step.simulation));
}

void RunView::temperaturesReached(const RunStep& step) {
  const std::size_t count = step.simulation.model()->heat.elementCount();
  graphic_.showValues(Temperature, temperaturesOf(step.simulation, count));
  graphic_.calculateIsotherms(step.time);
}

void RunView::resultsReached(const RunResults& results) {
  if (!isInteractive_)
    return;
  const int rows = results.simulation.mesh().ny;
  const int count = static_cast<int>(results.outputTimes.times.size());
  say(PluginText::tr("Finished ..."));
  progress_.reset(progress_.outputTimes);
  progress_.setRange(progress_.outputTimes, rows);
  tellProgress(count + 1, count);
  tellStatus(PluginText::tr("Fill-up the resulting mesh element on graphic ..."), phaseDuration);
  fillPage(graphic_.access(), results.simulation);
  graphic_.updateMapView();
  progress_.setBarsVisible(false);
}

/// Fills the active page, if there is one. The user hears what is done in any case.
void RunView::fillPage(const PageAccess& page, const Simulation& simulation) const {
  const std::vector<double> lastDrawdowns = drawdownsOf(simulation);
  const int rows = simulation.mesh().ny;
  std::optional<PageLock> lock;
  if (page.window) {
    lock.emplace(page.mutex, noEnd);
    page.window->redrawItem(0);
    ResultGrid(page).fill(lastDrawdowns, temperaturesOf(simulation, lastDrawdowns.size()));
  }
  tellProgress(rows + 1, rows);
  tellStatus(PluginText::tr("Calculate isohypses ..."), phaseDuration);
  progress_.reset(progress_.outputTimes);
  ResultGrid(page).chooseIsohypses(lastDrawdowns);
  tellStatus(PluginText::tr("Calculate isotherms ..."), phaseDuration);
  graphic_.updateIsotherms(simulation.currentTime(), isothermPatience);
  if (page.window) {
    page.window->setItemProperty(page.items.mapView, XAutoScale, true);
    page.window->setItemProperty(page.items.mapView, YAutoScale, true);
    page.window->redrawItem(page.items.mapView);
  }
  graphic_.updateIsohypses();
}

void RunView::completing(const RunResults& results) {
  if (!isInteractive_)
    return;
  progress_.setVisible(false);
  const PageAccess page = graphic_.access();
  if (!page.showsPage())
    return;
  {
    const PageLock lock(page.mutex);
    if (!lock)
      return;
    const double reached = results.simulation.currentTime();
    showSummary(page, graphic_.summary(results.wasCancelled ? reached : -1.0));
    if (QWidget* const widget = page.window->widget())
      widget->update();
  }
  page.window->redrawItem(page.items.mapView);
  graphic_.followPlume();
}

void RunView::beginCellTables(const FVMesh& mesh) {
  steps_.beginTables(mesh);
}

void RunView::continueCellTables(const RunStep& step) {
  // Required oddity: the page still shows the step before, and isohypses only at the end of a run.
  steps_.writeIsolines(step.time);
  steps_.continueTables(step.simulation, step.time);
}

void RunView::failed(double time, const QString& text) {
  if (!host())
    return;
  say(atTime(PluginText::tr("Error at t = %1 %2"), time));
  progress_.setRange(progress_.work, 1);
  progress_.reset(progress_.work);
  progress_.setVisible(false);
  tellUser(Severity::Critical, programTitle,
           PluginText::tr("<b>An error occured during the simulation:</b><br>") + text,
           Qt::RichText);
}

} // namespace TVR
