#pragma once

#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteSetup.h"

#include <QStringList>

namespace TVR::Study {

/// What a run would set up of a project, before it has a mesh.
struct PlannedSite {
  SiteInput site;
  OutputTimes times;
  SitePlan plan;

  /// The wells that take part, in their order.
  std::vector<SiteWell> wells() const;
  QStringList wellNames() const;
};

/// Of the project in the store. Throws SetupError if no well has a rate.
PlannedSite plannedSite();

} // namespace TVR::Study
