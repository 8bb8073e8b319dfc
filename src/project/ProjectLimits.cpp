#include "project/ProjectLimits.h"

#include "design/ParameterId.h"
#include "project/ProjectReader.h"
#include "project/ProjectTables.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::ProjectLimits {

namespace {

int cut(double wanted, int most) {
  constexpr double lowest = std::numeric_limits<int>::min();
  return std::isnan(wanted) ? 0 : static_cast<int>(std::clamp(wanted, lowest, double(most)));
}

int mostBeside(int others, int most) {
  return std::clamp(maxWellPeriods / std::max(others, 1), 1, most);
}

QString tooMany(double found, const char* text, int most) {
  return std::trunc(found) > most
             ? QCoreApplication::translate("ProjectLimits", text).arg(most).arg(found, 0, 'g', 10)
             : QString();
}

} // namespace

QString excess(double wells, double periods) {
  QString text = tooMany(
      wells, QT_TRANSLATE_NOOP("ProjectLimits", "expected at most %1 wells, found %2"), maxWells);
  if (text.isEmpty())
    text = tooMany(
        periods, QT_TRANSLATE_NOOP("ProjectLimits", "expected at most %1 demand periods, found %2"),
        maxPeriods);
  if (text.isEmpty())
    text =
        tooMany(wells * periods,
                QT_TRANSLATE_NOOP("ProjectLimits", "expected at most %1 pairs of well and demand "
                                                   "period, found %2"),
                maxWellPeriods);
  return text;
}

int maxRows(ProjectTable table) {
  switch (table) {
  case ProjectTable::Demand:
    return maxPeriods;
  case ProjectTable::Well:
    return maxWells;
  case ProjectTable::WellDemand:
    return maxWellPeriods;
  }
  return 0;
}

int wells(double wanted, const ProjectReader& project) {
  const int others =
      std::max(project.enteredDurations().size(), project.count(Parameter::NumberOfDemandsPerYear));
  return cut(wanted, mostBeside(others, maxWells));
}

int periods(double wanted, const ProjectReader& project) {
  return cut(wanted, mostBeside(project.count(Parameter::NumberOfWells), maxPeriods));
}

QVariant allowed(int id, const QVariant& value, const ProjectReader& project) {
  if (id != Parameter::NumberOfWells && id != Parameter::NumberOfDemandsPerYear)
    return value;
  const double wanted = value.toDouble();
  const int possible =
      id == Parameter::NumberOfWells ? wells(wanted, project) : periods(wanted, project);
  return std::trunc(wanted) > possible ? QVariant(possible) : value;
}

} // namespace TVR::ProjectLimits
