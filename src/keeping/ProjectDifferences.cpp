#include "keeping/ProjectDifferences.h"

#include "design/ParameterId.h"
#include "project/ParameterTable.h"
#include "project/Project.h"
#include "project/ProjectReader.h"
#include "project/UserWork.h"

#include <algorithm>

namespace TVR {

using namespace Parameter;

namespace {

constexpr int shownDigits = 6;

/// Whether a parameter is shown as such: not the counts of rows, which have lines of their own, and
/// not what is only put together from others.
bool isCompared(int id) {
  return isUserWork(id) && id != NumberOfWells && id != NumberOfDemandsPerYear &&
         id != UserAddress && id != ProjectAddress;
}

QString labelOf(int id) {
  const QString label = ParameterName::label(id);
  return label.isEmpty() ? QString::fromUtf8(parameterRow(id).key) : label;
}

QString shownNumber(const ParameterRow& row, double stored) {
  const QString number = QString::number(row.toShown(stored), 'g', shownDigits);
  const QString unit = shownUnit(row);
  return unit.isEmpty() || unit == "-" ? number : number + ' ' + unit;
}

QString shown(int id, const QVariant& value) {
  const ParameterRow& row = parameterRow(id);
  if (row.kind == ParameterKind::Flag)
    return value.toBool() ? ProjectDifferences::tr("yes") : ProjectDifferences::tr("no");
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  const bool isShownAsNumber =
      row.kind == ParameterKind::Number || row.kind == ParameterKind::Count;
  return isShownAsNumber && isNumber ? shownNumber(row, number) : value.toString();
}

QString counted(int count) {
  return QString::number(count);
}

/// The rows that both projects have and that differ.
template <typename Differs>
int changedRows(int before, int after, Differs differs) {
  int changed = 0;
  for (int row = 0; row < std::min(before, after); ++row)
    changed += differs(row) ? 1 : 0;
  return changed;
}

void compareRows(QList<Difference>& differences, int before, int after, int changed,
                 const QString& what, const QString& ofThem) {
  if (before != after)
    differences.append({what, counted(before), counted(after)});
  if (changed > 0)
    differences.append({ofThem, QString(), counted(changed)});
}

} // namespace

QList<Difference> ProjectDifferences::between(const Project& before, const Project& after) {
  return between(before, after, [](int) { return true; });
}

QList<Difference> ProjectDifferences::between(const Project& before, const Project& after,
                                              const std::function<bool(int id)>& counts) {
  QList<Difference> differences;
  for (int id = 0; id < Parameter::Count; ++id) {
    const QVariant one = before.values.value(id);
    const QVariant other = after.values.value(id);
    if (isCompared(id) && counts(id) && !isSameEntry(id, one, other))
      differences.append({labelOf(id), shown(id, one), shown(id, other)});
  }
  const ProjectView from(before);
  const ProjectView to(after);
  const int wells = from.wells().count();
  const int newWells = to.wells().count();
  compareRows(
      differences, wells, newWells,
      changedRows(wells, newWells, [&](int row) { return !isSameWell(before, after, row); }),
      tr("Wells"), tr("Wells with other values"));
  const std::vector<double> periods = from.periods();
  const std::vector<double> newPeriods = to.periods();
  compareRows(differences, static_cast<int>(periods.size()), static_cast<int>(newPeriods.size()),
              changedRows(static_cast<int>(periods.size()), static_cast<int>(newPeriods.size()),
                          [&](int row) { return periods[row] != newPeriods[row]; }),
              tr("Demand periods"), tr("Demand periods of another length"));
  return differences;
}

} // namespace TVR
