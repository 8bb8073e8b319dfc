#include "gui/editor/ValueRemark.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "gui/editor/EditorRows.h"
#include "project/NearWells.h"
#include "project/ParameterTable.h"
#include "project/ProjectReader.h"

#include <QCoreApplication>

#include <algorithm>

namespace TVR::GUI {

using namespace Parameter;

namespace {

struct Text {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::ValueRemark)
};

/// The bounds that a verdict speaks of, as far as they can be typed into the row.
QString boundsRemark(const EditorRow& row, const ParameterRange& range, RangeVerdict verdict) {
  const bool isOuter = verdict == RangeVerdict::Impossible;
  const double least = std::max(isOuter ? range.least : range.usualLeast, row.least);
  const double most = std::min(isOuter ? range.most : range.usualMost, row.most);
  const QString unit = editorUnit(row);
  const QString text =
      isOuter ? Text::tr("Impossible: expected %1 to %2") : Text::tr("Unusual: usual is %1 to %2");
  return text.arg(QString::number(least), QString::number(most) + (unit == " -" ? "" : unit));
}

/// `value` is in the stored unit of the parameter. Empty for a usual one.
QString remarkOn(const EditorRow& row, int id, double value) {
  const ParameterRow& parameter = parameterRow(id);
  const RangeVerdict verdict = judge(parameter.range, value);
  if (verdict == RangeVerdict::Usual)
    return {};
  return boundsRemark(row, parameter.range.inUnitOf(parameter.toShown(1)), verdict);
}

/// What lies between the groundwater table and the base of an unconfined aquifer.
QString thicknessRemark(const ProjectReader& project) {
  const double thickness = aquiferThickness(project);
  if (!(thickness > 0))
    return Text::tr("Impossible: the base has to lie below the groundwater table");
  const QString remark = remarkOn(*editorRow(AquiferThickness), AquiferThickness, thickness);
  return remark.isEmpty() ? remark
                          : Text::tr("Water-filled thickness of %1 m. %2")
                                .arg(QString::number(thickness), remark);
}

QString pairRemark(const NearWells& pair, const ProjectReader& project) {
  const WellReader wells = project.wells();
  const QString distance = QString::number(pair.distance, 'g', 3);
  if (!pair.shareACell)
    return Text::tr("Unusual: \"%1\" and \"%2\" stand only %3 m apart")
        .arg(wells.name(pair.one), wells.name(pair.other), distance);
  return Text::tr("Impossible: \"%1\" and \"%2\" stand only %3 m apart, within one cell of the "
                  "mesh (%4 m wide)")
      .arg(wells.name(pair.one), wells.name(pair.other), distance,
           QString::number(wellCellWidth(project)));
}

/// The worst that is to be said of wells that stand near each other, and how many more do.
QString nearWellsRemark(const ProjectReader& project) {
  const std::vector<NearWells> pairs = nearWells(project);
  if (pairs.empty())
    return {};
  const auto worst = std::ranges::find_if(pairs, &NearWells::shareACell);
  const QString remark = pairRemark(worst == pairs.end() ? pairs.front() : *worst, project);
  return pairs.size() == 1 ? remark
                           : Text::tr("%1. Further pairs of near wells: %2")
                                 .arg(remark, QString::number(pairs.size() - 1));
}

} // namespace

QString valueRemark(const EditorRow& row, const ProjectReader& project) {
  if (!row.isNumber() || row.isResult)
    return {};
  const int id = shownParameter(row, project);
  const QString remark = remarkOn(row, id, project.number(id));
  if (!remark.isEmpty())
    return remark;
  if (id == NumberOfWells)
    return nearWellsRemark(project);
  return id == AquiferBasis && project.flag(AquiferUnconfined) ? thicknessRemark(project) : remark;
}

} // namespace TVR::GUI
