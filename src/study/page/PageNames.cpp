#include "study/page/PageNames.h"

#include "design/ParameterId.h"
#include "project/ParameterTable.h"
#include "quantities/MeshConvergence.h"
#include "study/page/BaseSite.h"
#include "study/page/StudyPageText.h"
#include "study/plan/ResultLayout.h"
#include "study/plan/StudyKey.h"

namespace TVR::Study {

namespace {

QString titleOf(const KeyCell& cell, const BaseSite& base) {
  if (cell.table == ProjectTable::Demand)
    return StudyPageText::tr("Duration of demand period %1").arg(cell.row + 1);
  if (cell.table == ProjectTable::WellDemand) {
    const int well = cell.row / base.periods;
    const int period = cell.row % base.periods + 1;
    const QString text = cell.column == WellDemandColumns::Rate
                             ? StudyPageText::tr("Flow rate of %1 in demand period %2")
                             : StudyPageText::tr("Temperature change of %1 in demand period %2");
    return text.arg(base.wellName(well), QString::number(period));
  }
  switch (cell.column) {
  case WellColumns::X:
    return StudyPageText::tr("X coordinate of %1").arg(base.wellName(cell.row));
  case WellColumns::Y:
    return StudyPageText::tr("Y coordinate of %1").arg(base.wellName(cell.row));
  case WellColumns::Rate:
    return StudyPageText::tr("Mean annual flow rate of %1").arg(base.wellName(cell.row));
  default:
    return StudyPageText::tr("Temperature change of %1").arg(base.wellName(cell.row));
  }
}

} // namespace

QString titleOf(const StudyKey& key, const BaseSite& base) {
  if (key.cell)
    return titleOf(*key.cell, base);
  if (key.parameter == Parameter::WellRadius) // of which the key is the double
    return StudyPageText::tr("Well diameter");
  const bool isPorosity = key.parameter == Parameter::EffectivePorosity; // it has no label
  const QString label =
      ParameterName::label(isPorosity ? Parameter::AquiferPorosity : key.parameter);
  return label.isEmpty() ? key.name : label;
}

QString titleOf(const Scalar& scalar, const ResultLayout& layout, const BaseSite& base) {
  const QString level = scalar.level ? QString::number(layout.levels[*scalar.level]) : QString();
  const QString time = scalar.time ? QString::number(layout.times[*scalar.time]) : QString();
  const BaseWell* const found = scalar.well ? base.resultWell(*scalar.well) : nullptr;
  const QString well = found ? found->name : QString();
  switch (scalar.quantity) {
  case Quantity::PlumeLength:
    return StudyPageText::tr("Length of the plume of %1 K after %2 a [m]").arg(level, time);
  case Quantity::PlumeWidth:
    return StudyPageText::tr("Width of the plume of %1 K after %2 a [m]").arg(level, time);
  case Quantity::PlumeArea:
    return StudyPageText::tr("Area of the plume of %1 K after %2 a [m²]").arg(level, time);
  case Quantity::DrawdownMax:
    return StudyPageText::tr("Greatest drawdown after %1 a [m]").arg(time);
  case Quantity::Drawdown:
    return StudyPageText::tr("Drawdown at %1 after %2 a [m]").arg(well, time);
  case Quantity::Temperature:
    return StudyPageText::tr("Temperature of %1 after %2 a [°C]").arg(well, time);
  case Quantity::TemperatureMin:
    return StudyPageText::tr("Lowest temperature of %1 [°C]").arg(well);
  case Quantity::TemperatureMax:
    break;
  }
  return StudyPageText::tr("Highest temperature of %1 [°C]").arg(well);
}

QString titleOf(const Quantities::SiteFigure& figure, const BaseSite& base) {
  using Quantities::SiteFigure;
  switch (figure.kind) {
  case SiteFigure::PlumeLength:
    return StudyPageText::tr("length of the plume of %1 K").arg(figure.level);
  case SiteFigure::PlumeWidth:
    return StudyPageText::tr("width of the plume of %1 K").arg(figure.level);
  case SiteFigure::Temperature:
    return StudyPageText::tr("temperature of %1").arg(base.wellName(figure.well));
  case SiteFigure::GreatestDrawdown:
    break;
  }
  return StudyPageText::tr("greatest drawdown");
}

QString unitText(const QString& unit) {
  return unit == "degrees" ? QStringLiteral("°") : unit;
}

} // namespace TVR::Study
