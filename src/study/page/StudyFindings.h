#pragma once

#include "study/page/BaseSite.h"
#include "study/page/ProbabilityMap.h"
#include "study/page/SeriesBand.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace TVR::Study {

class Results;
class StudyFolder;
struct StudySetup;

/// What a key does to an answer: see Swing.
struct TornadoBar {
  QString key; ///< what it means
  double atLowest;
  double atHighest;
};

/// The bars of the keys, the longest first, and the median of all runs between their ends; without
/// bars if no run has the answer.
struct Tornado {
  QString answer; ///< with its unit
  double median = 0;
  std::vector<TornadoBar> bars;
};

/// A row of the table of what was varied.
struct VariedRow {
  QString meaning;
  QString key;
  QString distribution;
  QString unit;
};

/// What the page of a study shows, in the language of the moment.
struct StudyFindings {
  QString title;
  QString runs; ///< how many, of which sample, and how many of them failed
  std::vector<VariedRow> varied;
  BaseSite base;
  QString mesh;                      ///< how good that of the base is
  std::optional<ProbabilityMap> map; ///< none if no run reaches any of the levels
  std::optional<SeriesBand> temperature;
  QString temperatureTitle;
  std::optional<SeriesBand> drawdown;
  QString drawdownTitle;
  Tornado tornado;
};

/// Puts together what is there of a study.
StudyFindings studyFindings(const StudySetup& study, const StudyFolder& folder,
                            const Results& results, const std::vector<ProbabilityMap>& maps);

/// The map that a page shows: of the last time with a plume the one of the level next to 0; of two
/// such levels the one whose plume is more likely over all cells. None if all are empty.
std::optional<ProbabilityMap> shownMap(const std::vector<ProbabilityMap>& maps);

} // namespace TVR::Study
