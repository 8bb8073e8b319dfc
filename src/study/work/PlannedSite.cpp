#include "study/work/PlannedSite.h"

#include "store/Manager.h"

#include <utility>

namespace TVR::Study {

std::vector<SiteWell> PlannedSite::wells() const {
  std::vector<SiteWell> result;
  for (const auto& well : plan.wells)
    result.push_back(site.wells[static_cast<std::size_t>(well->id())]);
  return result;
}

QStringList PlannedSite::wellNames() const {
  QStringList names;
  for (const SiteWell& well : wells())
    names << well.name;
  return names;
}

PlannedSite plannedSite() {
  const Data::Manager& store = *Data::Manager::instance();
  SiteInput site = readSite(store);
  OutputTimes times = outputTimes(outputTimeInput(store, usualCycleLength));
  SitePlan plan = planSite(site, times);
  return {std::move(site), std::move(times), std::move(plan)};
}

} // namespace TVR::Study
