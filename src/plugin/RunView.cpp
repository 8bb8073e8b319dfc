#include "plugin/RunView.h"

#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "project/TimeUnits.h"
#include "results/ResultGrid.h"
#include "results/ResultText.h"
#include "results/SummaryTable.h"
#include "simulation/Simulation.h"
#include "simulator/models/FVGeothermSite.h"

#include <optional>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

constexpr int statusDuration = 10000; // [ms]
constexpr int phaseDuration = 1000;   // [ms]
constexpr int noEnd = -1;             // patience of a lock

} // namespace

BrenvikApp::ApplicationInterface* TVRPlugin::RunView::host() const {
  return isInteractive() ? AppInterface::instance() : nullptr;
}

/// Says where an interactive run stands: in the panel, or else in the status line.
void TVRPlugin::RunView::say(const QString& text) const {
  if (QLabel* const message = plugin_.progress_.message)
    message->setText(text);
  else if (BrenvikApp::ApplicationInterface* const application = AppInterface::instance())
    application->showStatusMessage(text, statusDuration);
}

void TVRPlugin::RunView::tellStatus(const QString& text, int milliseconds) const {
  if (host())
    host()->showStatusMessage(text, milliseconds);
}

void TVRPlugin::RunView::tellProgress(int value, int maximum) const {
  if (host())
    host()->setProgress(value, maximum);
}

QString TVRPlugin::RunView::atTime(const QString& text, double time) const {
  const QString unit =
      plugin_.graphic_.frame().countsYears() ? ResultText::tr("a") : ResultText::tr("cycle");
  return text.arg(inYears(time), 0, 'f', 2).arg(unit);
}

void TVRPlugin::RunView::initialising(bool batch) {
  plugin_.unwrittenFiles_.clear();
  if (batch)
    return;
  plugin_.progress_.setVisible(true);
  say(ResultText::tr("Initialise Simulation"));
  plugin_.progress_.setRange(plugin_.progress_.work, 0); // busy
}

void TVRPlugin::RunView::outputTimesMade() {
  plugin_.setupDemandPlot();
}

void TVRPlugin::RunView::starting(int cells, int outputTimes) {
  if (!isInteractive())
    return;
  const QString text = ResultText::tr("Using %1 nodes ...").arg(cells);
  if (plugin_.progress_.message)
    say(text);
  tellStatus(text, statusDuration);
  plugin_.progress_.setRange(plugin_.progress_.outputTimes, outputTimes);
  plugin_.progress_.reset(plugin_.progress_.work);
  plugin_.updateCurrentGraphicWindow();
}

void TVRPlugin::RunView::setOff() {
  plugin_.graphic_.takeMesh();
  say(atTime(ResultText::tr("Simulate t = %1 %2"), 0));
}

void TVRPlugin::RunView::stepReached(int step, int count, double time) {
  if (!isInteractive())
    return;
  say(atTime(ResultText::tr("Simulate t = %1 %2"), time));
  if (QProgressBar* const bar = plugin_.progress_.outputTimes)
    bar->setValue(step);
  tellProgress(step + 1, count);
}

std::vector<double> TVRPlugin::RunView::heads() const {
  std::vector<double> values(plugin_.run_.mesh()->elements.size());
  plugin_.run_.simulation()->getDrawdowns(values);
  return values;
}

/// A list of `count` values; what lies behind the cells of the aquifer stays 0.
std::vector<double> TVRPlugin::RunView::temperatures(std::size_t count) const {
  std::vector<double> values(count);
  plugin_.run_.simulation()->getTemperatures(values);
  return values;
}

void TVRPlugin::RunView::headsReached() {
  plugin_.graphic_.showValues(Head, heads());
}

void TVRPlugin::RunView::temperaturesReached(double time) {
  const std::size_t count = plugin_.run_.simulation()->model()->heat.elementCount();
  plugin_.graphic_.showValues(Temperature, temperatures(count));
  plugin_.calculateIsotherms(time);
}

void TVRPlugin::RunView::resultsReached() {
  if (!isInteractive())
    return;
  const int rows = plugin_.run_.mesh()->ny;
  const int count = static_cast<int>(plugin_.run_.outputTimes().times.size());
  say(ResultText::tr("Finished ..."));
  plugin_.progress_.reset(plugin_.progress_.outputTimes);
  plugin_.progress_.setRange(plugin_.progress_.outputTimes, rows);
  tellProgress(count + 1, count);
  tellStatus(ResultText::tr("Fill-up the resulting mesh element on graphic ..."), phaseDuration);
  fillPage(plugin_.graphic_.access());
  plugin_.graphic_.updateMapView();
  plugin_.progress_.setBarsVisible(false);
}

/// Fills the active page, if there is one. The user hears what is done in any case.
void TVRPlugin::RunView::fillPage(const PageAccess& page) const {
  const std::vector<double> lastHeads = heads();
  const int rows = plugin_.run_.mesh()->ny;
  std::optional<PageLock> lock;
  if (page.window) {
    lock.emplace(page.mutex, noEnd);
    page.window->redrawItem(0);
    ResultGrid(page).fill(lastHeads, temperatures(lastHeads.size()));
  }
  tellProgress(rows + 1, rows);
  tellStatus(ResultText::tr("Calculate isohypses ..."), phaseDuration);
  plugin_.progress_.reset(plugin_.progress_.outputTimes);
  ResultGrid(page).chooseIsohypses(lastHeads);
  tellStatus(ResultText::tr("Calculate isotherms ..."), phaseDuration);
  plugin_.updateIsotherms(plugin_.run_.simulation()->currentTime());
  if (page.window) {
    page.window->setItemProperty(page.items.mapView, XAutoScale, true);
    page.window->setItemProperty(page.items.mapView, YAutoScale, true);
    page.window->redrawItem(page.items.mapView);
  }
  plugin_.updateIsobars();
}

void TVRPlugin::RunView::completing() {
  if (!isInteractive())
    return;
  plugin_.progress_.setVisible(false);
  const PageAccess page = plugin_.graphic_.access();
  if (!page.showsPage())
    return;
  {
    const PageLock lock(page.mutex);
    if (!lock)
      return;
    const auto& times = plugin_.run_.outputTimes().times;
    const double reached = plugin_.run_.simulation()->currentTime();
    const bool wasCancelled = !plugin_.running() && !times.empty() && times.back() > reached;
    showSummary(page, plugin_.graphic_.summary(wasCancelled ? reached : -1.0));
    if (QWidget* const widget = page.window->widget())
      widget->update();
  }
  page.window->redrawItem(page.items.mapView);
}

void TVRPlugin::RunView::beginCellTables() {
  plugin_.XYZ_export(1, 0.0);
}

void TVRPlugin::RunView::continueCellTables(double time) {
  // Required oddity: the page still shows the step before, and isohypses only at the end of a run.
  plugin_.shpExport(time);
  plugin_.XYZ_export(2, time);
}

void TVRPlugin::RunView::failed(double time, const QString& text) {
  if (!host())
    return;
  say(atTime(ResultText::tr("Error at t = %1 %2"), time));
  plugin_.progress_.setRange(plugin_.progress_.work, 1);
  plugin_.progress_.reset(plugin_.progress_.work);
  plugin_.progress_.setVisible(false);
  tellUser(Severity::Critical, programTitle,
           ResultText::tr("<b>An error occured during the simulation:</b><br>") + text,
           Qt::RichText);
}

} // namespace TVR
