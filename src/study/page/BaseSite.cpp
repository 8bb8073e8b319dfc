#include "study/page/BaseSite.h"

#include "design/ParameterId.h"
#include "results/WellMarks.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteSetup.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/StudyFolder.h"
#include "study/work/StudySetup.h"

#include <QFile>

#include <algorithm>

namespace TVR::Study {

namespace {

std::vector<BaseWell> wellsOf(const ProjectReader& project, int periods) {
  const WellReader wells = project.wells();
  const QVariantList marks = wellMarks(wells, periods);
  std::vector<BaseWell> result;
  for (int row = 0; row < wells.count(); ++row) {
    const QVariantMap mark = marks[row].toMap();
    const WellUse use = wellUse(wells, row, periods);
    result.push_back({mark["Text"].toString(), wells.place(row),
                      use == WellUse::Withdrawal || use == WellUse::Alternating,
                      mark["Symbol"].toInt(), mark["Legend"].toString()});
  }
  return result;
}

} // namespace

QString BaseSite::wellName(int row) const {
  const bool isThere = row >= 0 && row < static_cast<int>(wells.size());
  return isThere ? wells[static_cast<std::size_t>(row)].name : QString();
}

const BaseWell* BaseSite::resultWell(std::size_t place) const {
  const int row = place < resultRows.size() ? resultRows[place] : -1;
  const bool isThere = row >= 0 && row < static_cast<int>(wells.size());
  return isThere ? &wells[static_cast<std::size_t>(row)] : nullptr;
}

BaseSite baseSite(const StudySetup& study, const StudyFolder& folder) {
  const QString kept = folder.base(study.file.base);
  RunInput input(QFile::exists(kept) ? kept : study.file.base, {});
  input.read({});
  const Data::Manager& store = *Data::Manager::instance();
  const SiteInput site = readSite(store);
  const OutputTimes times = outputTimes(outputTimeInput(store, usualCycleLength));
  BaseSite result;
  result.periods = std::max(1, store.count(Parameter::NumberOfDemandsPerYear));
  result.wells = wellsOf(store, result.periods);
  for (const auto& well : planSite(site, times).wells)
    result.resultRows.push_back(well->id());
  result.mesh = meshQuality(site, times, digestOf(input.content()), folder);
  return result;
}

} // namespace TVR::Study
