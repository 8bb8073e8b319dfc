#include "gui/editor/EditorRows.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "project/ParameterTable.h"
#include "project/ProjectReader.h"

#include <algorithm>

namespace TVR::GUI {

using namespace Parameter;

namespace {

using Kind = EditorKind;
using Form = EditorForm;

constexpr int top = 0;
constexpr int heatingAndCooling = 2; ///< the first such type of energy demand
constexpr double dispersivity = 5.0; ///< [m]

constexpr EditorRow group(int id, int within = top) {
  return {.id = id, .group = within, .kind = Kind::Group};
}

// clang-format off
constexpr EditorRow rows[] = {
    group(GeneralWizardDone),
    {.id = ProjectName, .group = GeneralWizardDone, .kind = Kind::Text},

    group(EnergyWizardDone),
    group(HeadingCoolingSpecification, EnergyWizardDone),
    {.id = CoolingDemand, .group = HeadingCoolingSpecification, .kind = Kind::Count, .most = 1e8, .step = 100},
    {.id = CoolingPeakLoadDuration, .group = HeadingCoolingSpecification, .kind = Kind::Count, .most = 8766, .step = 24},
    {.id = CoolingPower, .group = HeadingCoolingSpecification, .kind = Kind::Count, .most = 1e5, .step = 100},
    {.id = CoolingTemperatureChange, .group = HeadingCoolingSpecification, .kind = Kind::Number, .least = -100, .most = 100, .step = 1, .decimals = 1},
    group(HeadingHeatingSpecification, EnergyWizardDone),
    {.id = HeatingDemand, .group = HeadingHeatingSpecification, .kind = Kind::Count, .most = 1e8, .step = 100, .idOfHeating = EnergyDemand},
    {.id = HeatingPeakLoadDuration, .group = HeadingHeatingSpecification, .kind = Kind::Count, .most = 8766, .step = 24},
    {.id = HeatingPower, .group = HeadingHeatingSpecification, .kind = Kind::Count, .most = 1e5, .step = 100, .idOfHeating = Power},
    {.id = HeatingTemperatureChange, .group = HeadingHeatingSpecification, .kind = Kind::Number, .least = -100, .most = 100, .step = 1, .decimals = 1, .idOfHeating = UsedTemperatureChange},
    {.id = SystemCop, .group = HeadingHeatingSpecification, .kind = Kind::Number, .most = 10, .step = 1, .decimals = 1},

    group(WellWizardDone),
    {.id = GroundwaterGradient, .group = WellWizardDone, .kind = Kind::Number, .most = 100, .decimals = 4},
    {.id = HydraulicConductivity, .group = WellWizardDone, .kind = Kind::Number, .most = 1, .decimals = 5},
    {.id = EffectivePorosity, .group = WellWizardDone, .kind = Kind::Number, .most = 100, .decimals = 2, .form = Form::ShownUnit, .labelId = AquiferPorosity},
    {.id = AquiferUnconfined, .group = WellWizardDone, .kind = Kind::Truth},
    {.id = AquiferThickness, .group = WellWizardDone, .kind = Kind::Number, .least = 1, .most = 1000, .decimals = 2},
    {.id = GroundwaterTable, .group = WellWizardDone, .kind = Kind::Number, .most = 1000, .decimals = 2},
    {.id = AquiferBasis, .group = WellWizardDone, .kind = Kind::Number, .most = 1000, .decimals = 2},

    group(GraphicWizardDone),
    {.id = BackgroundImage, .group = GraphicWizardDone, .kind = Kind::Truth},
    group(ViewOrigin, GraphicWizardDone),
    {.id = ViewX, .group = ViewOrigin, .kind = Kind::Number, .most = 1e8, .decimals = 2, .hasUnit = false},
    {.id = ViewY, .group = ViewOrigin, .kind = Kind::Number, .most = 1e8, .decimals = 2, .hasUnit = false},

    group(SimulationWizardDone),
    {.id = NumberOfWells, .group = SimulationWizardDone, .kind = Kind::Count, .least = 1, .most = 1e4, .step = 1},
    {.id = NumberOfDemandsPerYear, .group = SimulationWizardDone, .kind = Kind::Count, .least = 1, .most = 1e4, .step = 1},
    {.id = GroundwaterFlowDirection, .group = SimulationWizardDone, .kind = Kind::Count, .most = 360, .step = 1},
    {.id = SimulationTime, .group = SimulationWizardDone, .kind = Kind::Number, .least = 0.1, .most = 1e4, .step = 1, .decimals = 2, .form = Form::ShownUnit},
    {.id = ExchangeCaprock, .group = SimulationWizardDone, .kind = Kind::Truth},
    {.id = ExchangeBedrock, .group = SimulationWizardDone, .kind = Kind::Truth},
    {.id = ClosedLoop, .group = SimulationWizardDone, .kind = Kind::Truth},
    {.id = ThermalDispersivity, .group = SimulationWizardDone, .kind = Kind::Truth, .form = Form::Dispersion},

    group(HeadingNumericalParameter),
    {.id = UsedNumberOfElements, .group = HeadingNumericalParameter, .kind = Kind::Count, .least = 1, .most = 1e7, .step = 100},
    {.id = MinElementLength, .group = HeadingNumericalParameter, .kind = Kind::Number, .least = 0.25, .most = 10, .step = 0.1, .decimals = 1},
    {.id = MaxElementLength, .group = HeadingNumericalParameter, .kind = Kind::Number, .most = 1e4, .step = 1, .decimals = 0},
    {.id = CellIncreaseFactor, .group = HeadingNumericalParameter, .kind = Kind::Count, .least = 1, .most = 100, .step = 10},
    group(HeadingGroundwaterModel, HeadingNumericalParameter),
    {.id = RelTolGroundwater, .group = HeadingGroundwaterModel, .kind = Kind::Number, .least = 1e-10, .most = 1, .decimals = 10},
    {.id = AbsTolGroundwater, .group = HeadingGroundwaterModel, .kind = Kind::Number, .least = 1e-10, .most = 1, .decimals = 10},
    group(HeadingHeatModel, HeadingNumericalParameter),
    {.id = RelTolHeat, .group = HeadingHeatModel, .kind = Kind::Number, .least = 1e-10, .most = 1, .decimals = 10},
    {.id = AbsTolHeat, .group = HeadingHeatModel, .kind = Kind::Number, .least = 1e-10, .most = 1, .decimals = 10},

    group(HeadingLastResults),
    {.id = MaximumExtent3K, .group = HeadingLastResults, .kind = Kind::Number, .decimals = 2, .isResult = true},
};
// clang-format on

/// What a project without a use for the row shows.
bool isShownAsNothing(const EditorRow& row, const ProjectReader& project) {
  if (row.group == HeadingCoolingSpecification)
    return !isHeatingAndCooling(project);
  return row.group == HeadingHeatingSpecification && project.flag(CoolingOnly);
}

QVariant asKind(EditorKind kind, double number) {
  switch (kind) {
  case Kind::Truth:
    return number != 0;
  case Kind::Count:
    return wholeNumber(number);
  default:
    return number;
  }
}

} // namespace

std::span<const EditorRow> editorRows() {
  return rows;
}

const EditorRow* editorRow(int id) {
  const auto* const found = std::ranges::find_if(rows, [id](const EditorRow& row) {
    return row.id == id || (row.idOfHeating != 0 && row.idOfHeating == id);
  });
  return found == std::end(rows) ? nullptr : found;
}

bool isHeatingAndCooling(const ProjectReader& project) {
  return project.number(EnergyDemandType) >= heatingAndCooling;
}

int shownParameter(const EditorRow& row, const ProjectReader& project) {
  return row.idOfHeating != 0 && !isHeatingAndCooling(project) ? row.idOfHeating : row.id;
}

QString editorLabel(const EditorRow& row, int id) {
  return ParameterName::label(row.labelId != 0 ? row.labelId : id);
}

QString editorUnit(const EditorRow& row) {
  const QString unit = row.hasUnit ? shownUnit(parameterRow(row.id)) : QString();
  return unit.isEmpty() ? unit : ' ' + unit;
}

QVariant treeValue(const EditorRow& row, const ProjectReader& project) {
  if (row.kind == Kind::Group)
    return {};
  if (isShownAsNothing(row, project))
    return asKind(row.kind, 0);
  const int id = shownParameter(row, project);
  if (row.kind == Kind::Text)
    return project.text(id);
  if (row.kind == Kind::Truth && row.form == Form::Stored)
    return project.flag(id);
  const double number = project.number(id);
  if (row.form == Form::Dispersion)
    return number > 0;
  return asKind(row.kind, row.form == Form::ShownUnit ? parameterRow(id).toShown(number) : number);
}

QVariant storedValue(const EditorRow& row, const QVariant& treeValue) {
  switch (row.form) {
  case Form::ShownUnit:
    return parameterRow(row.id).toStored(treeValue.toDouble());
  case Form::Dispersion:
    // Required oddity: a length that had been typed elsewhere is lost.
    return treeValue.toBool() ? dispersivity : 0.0;
  default:
    return treeValue;
  }
}

std::set<int> hiddenParameters(const ProjectReader& project) {
  std::set<int> hidden;
  if (isHeatingAndCooling(project)) {
    const auto hideOne = [&](int duration, int power) {
      hidden.insert(project.number(duration) > 0 ? power : duration);
    };
    if (project.flag(CoolingOnly))
      hidden.insert(HeadingHeatingSpecification);
    hideOne(HeatingPeakLoadDuration, HeatingPower);
    hideOne(CoolingPeakLoadDuration, CoolingPower);
  } else {
    hidden = {HeadingCoolingSpecification, HeatingPeakLoadDuration};
  }
  if (project.flag(AquiferUnconfined))
    hidden.insert(AquiferThickness);
  else
    hidden.insert({GroundwaterTable, AquiferBasis});
  return hidden;
}

} // namespace TVR::GUI
