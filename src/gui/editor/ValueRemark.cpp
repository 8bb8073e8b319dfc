#include "gui/editor/ValueRemark.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "gui/editor/EditorRows.h"
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

} // namespace

QString valueRemark(const EditorRow& row, const ProjectReader& project) {
  if (!row.isNumber() || row.isResult)
    return {};
  const int id = shownParameter(row, project);
  const QString remark = remarkOn(row, id, project.number(id));
  if (!remark.isEmpty() || id != AquiferBasis || !project.flag(AquiferUnconfined))
    return remark;
  return thicknessRemark(project);
}

} // namespace TVR::GUI
