#include "study/page/PageFiles.h"

#include "messages/Translators.h"
#include "page/model/Canvas.h"
#include "page/painting/PageExport.h"
#include "results/ShapefileSet.h"
#include "study/page/BandsShapefile.h"
#include "study/page/PlumeBands.h"
#include "study/page/ProbabilityMap.h"
#include "study/page/StudyFindings.h"
#include "study/page/StudyPage.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"

#include <cstdint>

namespace TVR::Study {

namespace {

/// How many runs have results, repeats included.
std::uint64_t runsWithResults(const Results& results) {
  std::uint64_t runs = 0;
  results.eachRecord([&](const Record& record) {
    runs += record.hasFailed() ? 0 : static_cast<std::uint64_t>(record.repeats);
  });
  return runs;
}

} // namespace

QList<QStringList> namesOf(const PageFiles& files) {
  QList<QStringList> names;
  for (const QString& page : files.pages)
    names << QStringList{page};
  if (!files.shapefile.isEmpty())
    names << shapefileNames(files.shapefile);
  return names;
}

QStringList writePages(const StudySetup& study, const StudyFolder& folder, const Results& results,
                       const PageFiles& files) {
  QStringList faults;
  const std::vector<ProbabilityMap> maps =
      probabilityMaps(study.layout, results.counts(), runsWithResults(results));
  if (!files.shapefile.isEmpty() && !writeBandsShapefile(files.shapefile, plumeBands(maps)))
    faults << QStringLiteral("%1 could not be written").arg(files.shapefile);
  if (files.pages.isEmpty())
    return faults;
  const SpokenLanguage language(files.language);
  Page::Canvas canvas;
  layOutStudyPage(canvas, studyFindings(study, folder, results, maps));
  for (const QString& file : files.pages)
    if (!Page::exportPage(canvas, file))
      faults << QStringLiteral("%1 could not be written").arg(file);
  return faults;
}

} // namespace TVR::Study
