#include "data/FileLimits.h"

#include "data/Manager.h"
#include "tables/DemandModel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Data::FileLimits {

namespace {

int cut(double wanted, int most) {
  constexpr double lowest = std::numeric_limits<int>::min();
  return std::isnan(wanted) ? 0 : static_cast<int>(std::clamp(wanted, lowest, double(most)));
}

int mostBeside(int others, int most) {
  return std::clamp(maxWellPeriods / std::max(others, 1), 1, most);
}

QString tooMany(double found, const char* what, int most) {
  return std::trunc(found) > most ? QStringLiteral("expected at most %1 %2, found %3")
                                        .arg(most)
                                        .arg(what)
                                        .arg(found, 0, 'g', 10)
                                  : QString();
}

} // namespace

QString excess(double wells, double periods) {
  QString text = tooMany(wells, "wells", maxWells);
  if (text.isEmpty())
    text = tooMany(periods, "demand periods", maxPeriods);
  if (text.isEmpty())
    text = tooMany(wells * periods, "pairs of well and demand period", maxWellPeriods);
  return text;
}

int maxRows(FileTableKind kind) {
  switch (kind) {
  case FileTableKind::Demand:
    return maxPeriods;
  case FileTableKind::Well:
    return maxWells;
  case FileTableKind::WellDemand:
    return maxWellPeriods;
  }
  return 0;
}

int wells(double wanted, Manager& store) {
  const int rows = store.hasDemandModel() ? store.demandModel()->rowCount() : 0;
  const int others = std::max(rows, store.count(Parameter::NumberOfDemandsPerYear));
  return cut(wanted, mostBeside(others, maxWells));
}

int periods(double wanted, Manager& store) {
  return cut(wanted, mostBeside(store.count(Parameter::NumberOfWells), maxPeriods));
}

QVariant allowed(int id, const QVariant& value, Manager& store) {
  if (id != Parameter::NumberOfWells && id != Parameter::NumberOfDemandsPerYear)
    return value;
  const double wanted = value.toDouble();
  const int possible =
      id == Parameter::NumberOfWells ? wells(wanted, store) : periods(wanted, store);
  return std::trunc(wanted) > possible ? QVariant(possible) : value;
}

} // namespace TVR::Data::FileLimits
