#include "gui/EveryPage.h"

#include <QComboBox>
#include <QGroupBox>
#include <QIcon>
#include <QToolButton>

#include <algorithm>
#include <map>

namespace TVR::GUI {
namespace {

/// A widget of a page with the text that names it and the one behind it, such as its unit.
struct Named {
  const char* page;
  const char* widget;
  const char* label;
  const char* behind = "";
};

constexpr Named widgets[] = {
    {"UserWizardPage", "toolButtonLogoFileSelection", "..."},
    {"EnergyDemandFeatureWizardPage", "ReplaceHeating",
     "Replacement of an existing heating installation (e.g. oil or gas fueled)"},
    {"EnergyDemandFeatureWizardPage", "NewHeating", "Install a new system for heating"},
    {"EnergyDemandFeatureWizardPage", "NewCoolingAndHeating",
     "Install a new system for cooling and heating"},
    {"CoolingAndHeatingInstallationWizardPage", "CoolingDemandYear", "Cooling demand per year",
     "kWh/a"},
    {"CoolingAndHeatingInstallationWizardPage", "use_cooling_VLZ",
     "Coefficient of full load hours"},
    {"CoolingAndHeatingInstallationWizardPage", "use_cooling_power", "Cooling power"},
    // Required oddity: the spelling.
    {"CoolingAndHeatingInstallationWizardPage", "C_DeltaT", "Mean temperatur change", "K"},
    {"CoolingAndHeatingInstallationWizardPage", "HeatingGroupBox", "Heating specification"},
    {"CoolingAndHeatingInstallationWizardPage", "HeatingDemandYear", "Heating demand per year",
     "kWh/a"},
    {"CoolingAndHeatingInstallationWizardPage", "use_heating_VLZ",
     "Coefficient of full load hours"},
    {"CoolingAndHeatingInstallationWizardPage", "use_heating_power", "Heating power"},
    {"CoolingAndHeatingInstallationWizardPage", "H_DeltaT", "Mean temperature change", "K"},
    {"CoolingAndHeatingInstallationWizardPage", "H_NrYearWorking", "Coefficient of performance",
     "best guess 3.5"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemand0", "Fuel oil"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemandOil", "Fuel oil", "l/a"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemand1", "Natural gas"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemandGas", "Natural gas", "m<sup>3</sup>/a"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemand2", "Electric power"},
    {"EnergyConsumptionWizardPage", "OldEnergyDemandCurrent", "Electric power", "kWh/a"},
    {"EnergyDemandDefinitionWizardPage", "DemandDetermined",
     "The energy demand has been determined already (e.g. by the architect)"},
    {"EnergyDemandDefinitionWizardPage", "DemandApproximated",
     "Approximation based on the size and location of the installation"},
    {"EnergyDemandDeterminationWizardPage", "NewRequirement", "Calculated energy demand", "kWh/a"},
    {"EnergyDemandApproximationWizardPage", "HeatedFootSize", "Heated floor space",
     "m<sup>2</sup>"},
    {"EnergyDemandApproximationWizardPage", "HotwaterProvided",
     "Including the supply of hot water"},
    {"EnergyDemandApproximationWizardPage", "ClosestLocation",
     "In which vicinity is the project located?"},
    // Required oddity: the hint is German.
    {"HeatPumpSpecificationWizardPage", "NrYearWorking", "Coefficient of performance",
     "Referenzwert 3.5"},
    {"HeatPumpSpecificationWizardPage", "DeltaT", "Mean temperature change", "K"},
    {"EnergyDemandResultWizardPage", "EnergyDemandRes", "Annual energy demand", "kWh/a"},
    {"EnergyDemandResultWizardPage", "PowerRes", "Heating/cooling power", "kW"},
    {"EnergyDemandResultWizardPage", "TemperatureChangeRes",
     "Mean temperature change of the groundwater", "K"},
    {"EnergyDemandResultWizardPage", "MaximumRateRes", "Maximum groundwater withdrawal rate",
     "m<sup>3</sup>/h"},
    {"EnergyDemandResultWizardPage", "AnnualRateRes", "Annual groundwater withdrawal rate",
     "m<sup>3</sup>/h"},
    {"AquiferWizardPage", "GW_gradient", "Hydraulic gradient", "m/100m"},
    {"AquiferWizardPage", "confinedBox", "Confined"},
    {"AquiferWizardPage", "GW_thickness", "Thickness", "m"},
    {"AquiferWizardPage", "unconfinedBox", "Unconfined"},
    {"AquiferWizardPage", "GW_pegel", "Depth of the groundwater table (at low water level)",
     "m bgl"},
    {"AquiferWizardPage", "GW_basis", "Depth of the aquifer base", "m bgl"},
    {"AquiferWizardPage", "knownConductivityAndPorosity",
     "Known values of conductivity and porosity"},
    {"AquiferWizardPage", "GW_conductivity", "Hydraulic conductivity", "m/s"},
    {"AquiferWizardPage", "GW_porosity", "Porosity", "%"},
    {"AquiferWizardPage", "providedConductivityAndPorosity",
     "Pre-defined values of conductivity and porosity"},
    {"AquiferWizardPage", "AquifierMaterial", "Material of the aquifer"},
    {"ProvidedWellsWizardPage", "Calculate", "Determine"},
    {"ProvidedWellsWizardPage", "ProvideValues", "Provide"},
    {"ProvidedWellsWizardPage", "MaxWell", "Number of wells"},
    {"ProvidedWellsWizardPage", "DistanceWell", "Minimum distance between wells", "m"},
    {"ProvidedWellsWizardPage", "Depth", "Total depth of one well", "m bgl"},
    {"ProvidedWellsWizardPage", "FilterLength", "Filter length", "m"},
    {"ProvidedWellsWizardPage", "FilterDiameter", "Filter diameter"},
    {"ProvidedWellsWizardPage", "superposition_check_box",
     "Drawdown calculation will use the superposition between wells"},
    {"ProvidedWellsWizardPage", "CheckConceivabillity", "Check this data"},
    {"AquiferAndWellSummaryWizardPage", "NrOfWellsRes", "Number of wells"},
    {"AquiferAndWellSummaryWizardPage", "DistanceWellRes",
     "Minimum distance between wells of the same flow regime", "m"},
    {"AquiferAndWellSummaryWizardPage", "FilterLengthRes", "Filter length", "m"},
    {"AquiferAndWellSummaryWizardPage", "FilterDiameterRes", "Filter diameter", "mm"},
    {"AquiferAndWellSummaryWizardPage", "WellDiameterRes", "Diameter of the well", "m"},
    {"AquiferAndWellSummaryWizardPage", "MaxDrawdownRes", "Maximum drawdown", "m"},
    {"MappingWizardPage", "XMap", "X (East)", "m"},
    {"MappingWizardPage", "YMap", "Y (North)", "m"},
    {"MappingWizardPage", "horizontalExtentionUsed", "Horizontal extension (West - East)"},
    {"MappingWizardPage", "extensionMap", "Horizontal extension (West - East)", "m"},
    {"MappingWizardPage", "scaleUsed", "Map scale"},
    {"MappingWizardPage", "imageGroupBox", "Background image"},
    {"MappingWizardPage", "ImageFile", "File:"},
    {"MappingWizardPage", "selectImageFile", "..."},
    {"MappingWizardPage", "XImage", "X (East)", "m"},
    {"MappingWizardPage", "YImage", "Y (North)", "m"},
    {"MappingWizardPage", "WidthImport", "Horizontal extension (West - East)", "m"},
    {"MappingWizardPage", "HeightImport", "Vertical extension (North - South)", "m"},
    {"SimulationParameterWizardPage", "FlowDirection", "Groundwater flows towards", "°"},
    {"SimulationParameterWizardPage", "SimulationTime", "Simulation time", "a"},
    {"SimulationParameterWizardPage", "Isotherms",
     "Additional isotherm for a temperature change of ", "K"},
    {"SimulationParameterWizardPage", "FVelements",
     "Maximum number of finite volumes (approximately)"},
    {"SimulationParameterWizardPage", "EnergyExchangeGroupBox",
     "Energy exchange with caprock and/or bedrock"},
    {"SimulationParameterWizardPage", "caprockEnergyExchangeCheckBox", "Exchange with caprock"},
    {"SimulationParameterWizardPage", "bedrockEnergyExchangeCheckBox", "Exchange with bedrock"},
    {"ExtendedSimulationParameterWizardPage", "heatDispersionUsed", "Hydraulic dispersion"},
    {"ExtendedSimulationParameterWizardPage", "Dispersion_value", "Longitudinal dispersivity [m]"},
    {"ExtendedSimulationParameterWizardPage", "useClosedWellLoop",
     "Usage of a closed loop for the water"},
    {"ExtendedSimulationParameterWizardPage", "gw_groupBox", "Groundwater flow model"},
    {"ExtendedSimulationParameterWizardPage", "abs_error_groundwater", "Absolute error tolerance",
     "Pa"},
    {"ExtendedSimulationParameterWizardPage", "relativ_error_groundwater",
     "Relative error tolerance"},
    {"ExtendedSimulationParameterWizardPage", "heat_groupBox", "Heat flow model"},
    {"ExtendedSimulationParameterWizardPage", "abs_error_heat", "Absolute error tolerance", "K"},
    {"ExtendedSimulationParameterWizardPage", "relativ_error_heat", "Relative error tolerance"},
    {"ExtendedSimulationParameterWizardPage", "cellIncreaseFactor", "Element size increase factor",
     "%"},
    {"ExtendedSimulationParameterWizardPage", "minCellWidth", "Minimal size of elements", "m"},
    {"ExtendedSimulationParameterWizardPage", "maxCellWidth", "Maximal size of elements", "m"},
    {"ExtendedSimulationParameterWizardPage", "writeTecplotOutput",
     "Write drawdown and temperatures in CSV and SHP file format"},
    {"ExtendedSimulationParameterWizardPage", "selectTecplotOutputFile", "..."},
    {"ExtendedSimulationParameterWizardPage", "writeWellOutput", "Write well temperature output"},
    {"ExtendedSimulationParameterWizardPage", "selectWellOutputFile", "..."},
};

/// What stands above the fields of a page: its heading and the titles of its groups, in their
/// order.
const std::map<QString, QStringList> headings{
    {"UserWizardPage", {"Program user", "Logo"}},
    {"ProjectWizardPage", {"<b>Project information</b>", "Name", "Location", "Description"}},
    {"EnergyDemandFeatureWizardPage",
     {"<b>Installation features</b>", "Objective", "Building type"}},
    {"CoolingAndHeatingInstallationWizardPage",
     {"<b>Cooling (and heating) installation</b>", "Cooling specification",
      "Heating specification"}},
    {"EnergyConsumptionWizardPage", {"<b>Energy consumption of the existing installation</b>"}},
    {"EnergyDemandDefinitionWizardPage", {"<b>Definition of the energy demand</b>"}},
    {"EnergyDemandDeterminationWizardPage", {"<b>Determined energy demand</b>"}},
    {"EnergyDemandApproximationWizardPage", {"<b>Approximation of the energy demand</b>"}},
    {"HeatPumpSpecificationWizardPage", {"<b>Heat pump specifications</b>"}},
    {"EnergyDemandResultWizardPage",
     {"<b>Energy demand and groundwater use</b>", "Annual energy demand", "Heating/cooling power",
      "Groundwater"}},
    {"AquiferWizardPage",
     {"<b>Properties of the aquifer</b>", "Natural groundwater flow", "Properties", "Confined",
      "Unconfined", "Known values of conductivity and porosity",
      "Pre-defined values of conductivity and porosity"}},
    {"ProvidedWellsWizardPage", {"<b>Configuration of the wells</b>", "Specification", "Provide"}},
    {"AquiferAndWellSummaryWizardPage", {"<b>Wells</b>", "Calculated values"}},
    {"MappingWizardPage", {"General map", "Origin", "Background image", "Origin"}},
    {"WellPositionAndUsageWizardPage", {"Well positions", "Wells"}},
    {"SimulationParameterWizardPage",
     {"<b>Simulation parameters</b>", "Groundwater flow", "Time", "Supplementary",
      "Energy exchange with caprock and/or bedrock"}},
    {"ExtendedSimulationParameterWizardPage",
     {"Extended simulation parameter", "Numeric parameter", "Groundwater flow model",
      "Heat flow model", "Additional output",
      "Write drawdown and temperatures in CSV and SHP file format",
      "Write well temperature output"}}};

class PageTexts : public EveryPage {
protected:
  static QRect placeOf(const QWidget& widget, const QWizardPage& page) {
    return {widget.mapTo(const_cast<QWizardPage*>(&page), QPoint()), widget.size()};
  }
  /// The text next to a widget in its line, before or behind it; empty if there is none.
  static QString textBeside(const QWizardPage& page, const QWidget& widget, bool isBehind) {
    const QRect own = placeOf(widget, page);
    const QLabel* nearest = nullptr;
    int least = page.width();
    for (const QLabel* label : page.findChildren<QLabel*>()) {
      const QRect place = placeOf(*label, page);
      const int distance = isBehind ? place.left() - own.right() : own.left() - place.right();
      const bool isInLine = place.top() <= own.center().y() && own.center().y() <= place.bottom();
      if (label->isVisible() && isInLine && distance >= 0 && distance < least) {
        nearest = label;
        least = distance;
      }
    }
    return nearest ? nearest->text() : QString();
  }
  /// The text above a widget in the same group; empty if there is none.
  static QString textAbove(const QWizardPage& page, const QWidget& widget) {
    const QRect own = placeOf(widget, page);
    const QLabel* lowest = nullptr;
    for (const QLabel* label : page.findChildren<QLabel*>()) {
      const QRect place = placeOf(*label, page);
      const bool isAbove = place.bottom() < own.top() && place.left() <= own.left();
      if (label->parentWidget() == widget.parentWidget() && isAbove &&
          (!lowest || place.bottom() > placeOf(*lowest, page).bottom()))
        lowest = label;
    }
    return lowest ? lowest->text() : QString();
  }
  static QString labelOf(const QWizardPage& page, QWidget& widget) {
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
      return button->text();
    if (const auto* group = qobject_cast<QGroupBox*>(&widget))
      return group->title();
    for (const QLabel* label : page.findChildren<QLabel*>())
      if (label->buddy() == &widget)
        return label->text();
    if (const QString before = textBeside(page, widget, false); !before.isEmpty())
      return before;
    if (!widget.accessibleName().isEmpty())
      return widget.accessibleName();
    if (const QString above = textAbove(page, widget); !above.isEmpty())
      return above;
    const auto* const group = qobject_cast<QGroupBox*>(widget.parentWidget());
    return group ? group->title() : QString();
  }
};

TEST_F(PageTexts, eachFieldHasItsLabelAndItsUnit) {
  std::size_t seen = 0;
  onEachPage([&seen](const QWizardPage& page) {
    for (const Named& named : widgets) {
      if (named.page != nameOf(page))
        continue;
      ++seen;
      auto& widget = *in<QWidget>(page, named.widget);
      EXPECT_EQ(labelOf(page, widget), named.label) << named.widget;
      if (*named.behind) {
        EXPECT_EQ(textBeside(page, widget, true), named.behind) << named.widget;
      }
    }
  });
  EXPECT_EQ(seen, std::size(widgets));
}

TEST_F(PageTexts, aPageHasItsHeadingAndItsGroupsHaveTheirTitles) {
  onEachPage([](const QWizardPage& page) {
    const auto expected = headings.find(nameOf(page));
    ASSERT_NE(expected, headings.end());
    QStringList texts;
    const auto* const heading = page.findChild<QLabel*>("label");
    if (heading)
      texts << heading->text();
    for (const QGroupBox* group : page.findChildren<QGroupBox*>())
      if (group->isVisible() && !group->title().isEmpty())
        texts << group->title();
    EXPECT_EQ(texts, expected->second);
  });
}

TEST_F(PageTexts, hintsStandWhereTheyBelong) {
  const QWizardPage& page = pageOf("MappingWizardPage");
  EXPECT_EQ(in<QLabel>(page, "hintLabel")->text(), "[Specifications may be adapted later on]");
  const auto* const hint = in<QLabel>(page, "label_5");
  EXPECT_EQ(hint->text(), "Swiss or WGS84 Coordinates or 0");
  EXPECT_EQ(hint->parentWidget(), in<QLineEdit>(page, "YMap")->parentWidget());
}

TEST_F(PageTexts, litresAreShownBesideCubicMetres) {
  onEachPage([](const QWizardPage& page) {
    if (nameOf(page) != "EnergyDemandResultWizardPage")
      return;
    for (const char* const litres : {"MaximumRateLitresRes", "AnnualRateLitresRes"})
      EXPECT_EQ(textBeside(page, *in<QWidget>(page, litres), true), "l/min");
  });
}

TEST_F(PageTexts, aDiameterIsGivenInMillimetresOrInches) {
  const QWizardPage& page = pageOf("ProvidedWellsWizardPage");
  const auto& units = *in<QComboBox>(page, "DiameterUnit");
  ASSERT_EQ(units.count(), 2);
  EXPECT_EQ(units.itemText(0) + ' ' + units.itemText(1), "mm in");
  EXPECT_EQ(units.currentIndex(), 0);
}

TEST_F(PageTexts, aCrossDeletesTheLogo) {
  const QImage cross = QIcon(":/TVR/images/nok.png").pixmap(16, 16).toImage();
  ASSERT_FALSE(cross.isNull());
  const QIcon icon = in<QToolButton>(pageOf("UserWizardPage"), "toolButtonDeleteLogo")->icon();
  EXPECT_EQ(icon.pixmap(16, 16).toImage(), cross);
}

} // namespace
} // namespace TVR::GUI
