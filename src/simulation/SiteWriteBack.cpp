#include "simulation/SiteWriteBack.h"

#include "design/ParameterId.h"
#include "project/ProjectTarget.h"

#include <utility>

namespace TVR {

using namespace Parameter;

void makeTables(ProjectTarget& project) {
  project.makeTable(ProjectTable::Demand);
  project.makeTable(ProjectTable::Well);
  if (project.periods().size() > 1)
    project.makeTable(ProjectTable::WellDemand);
}

// The order is required. No rule hangs on any of these parameters, so that a write changes no other
// one: but the largest width of a cell, which follows from the least where none was entered, and
// which `readSite` has read as it will be then.
void storeUsedSite(ProjectTarget& project, const UsedSite& used) {
  if (used.wellDistance)
    project.setValue(DMinUsed, *used.wellDistance);
  if (used.lengths) {
    project.setValue(AMin, used.lengths->a);
    project.setValue(BMin, used.lengths->b);
    project.setValue(DMin, used.lengths->d);
  }
  if (used.dispersivity)
    project.setValue(ThermalDispersivity, *used.dispersivity);
  project.setValue(MinElementLength, used.cellWidth);
}

void storeMesh(ProjectTarget& project, const FVMesh& mesh) {
  project.setValue(UsedNumberOfElements, mesh.nx * mesh.ny);
  for (const int result : {MaximumExtent3K, TimeOfMaximumExtent3K})
    project.setValue(result, 0.0);
}

SiteSetup setUpSite(ProjectTarget& project, const OutputTimes& outputTimes) {
  makeTables(project);
  const SiteInput site = readSite(project);
  SitePlan plan = planSite(site, outputTimes);
  storeUsedSite(project, plan.used);
  SiteSetup setup = makeSite(site, outputTimes, std::move(plan));
  storeMesh(project, *setup.mesh);
  return setup;
}

} // namespace TVR
