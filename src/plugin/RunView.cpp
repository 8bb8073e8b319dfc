#include "plugin/RunView.h"

#include "data/TimeUnits.h"
#include "data/UserMessages.h"
#include "plugin/AppInterface.h"

namespace TVR {

namespace {

constexpr int statusDuration = 10000; // [ms]

}

BrenvikApp::ApplicationInterface* TVRPlugin::RunView::host() const {
  return plugin_.run_.isBatch() ? nullptr : AppInterface::instance();
}

void TVRPlugin::RunView::outputTimesMade() {
  plugin_.setupDemandPlot();
}

void TVRPlugin::RunView::starting(int cells, int outputTimes) {
  Q_UNUSED(outputTimes)
  if (host())
    host()->showStatusMessage(tr("Using %1 nodes ...").arg(cells), statusDuration);
  if (!plugin_.run_.isBatch())
    plugin_.updateCurrentGraphicWindow();
}

void TVRPlugin::RunView::stepReached(int step, int count, double time) {
  Q_UNUSED(time)
  if (host())
    host()->setProgress(step + 1, count);
}

void TVRPlugin::RunView::beginCellTables() {
  plugin_.XYZ_export(1, 0.0);
}

void TVRPlugin::RunView::continueCellTables(double time) {
  plugin_.shpExport(time);
  plugin_.XYZ_export(2, time);
}

void TVRPlugin::RunView::failed(double time, const QString& text) {
  if (!host())
    return;
  const QString unit = plugin_.run_.cycleLength() < 13 ? tr("a") : tr("cycle");
  host()->showStatusMessage(tr("Error at t = %1 %2").arg(inYears(time), 0, 'f', 2).arg(unit),
                            statusDuration);
  tellUser(Severity::Critical, programTitle,
           tr("<b>An error occured during the simulation:</b><br>") + text);
}

} // namespace TVR
