#include "project/ParameterTable.h"

#include "project/ProjectLimits.h"
#include "project/Units.h"

#include <QCoreApplication>

namespace TVR {

namespace {

using namespace Parameter;
using Kind = ParameterKind;

constexpr ParameterRow number(int id, const char* key, const char* formerKey, const char* label,
                              const char* unit = "", const ParameterRange& range = {},
                              ShownNumber shown = {}, unsigned traits = 0) {
  if (shown.unit == nullptr)
    shown.unit = unit;
  return {id, key, formerKey, label, Kind::Number, unit, range, shown, traits};
}

constexpr ParameterRow count(int id, const char* key, const char* formerKey, const char* label,
                             const ParameterRange& range = {}, const char* unit = "") {
  const ShownNumber shown{.unit = unit, .decimals = 0};
  return {id, key, formerKey, label, Kind::Count, unit, range, shown, 0};
}

/// A parameter that is no number.
constexpr ParameterRow word(Kind kind, int id, const char* key, const char* formerKey,
                            const char* label, unsigned traits) {
  const ShownNumber shown{.unit = "", .decimals = 0};
  return {id, key, formerKey, label, kind, "", {}, shown, traits};
}

constexpr ParameterRow text(int id, const char* key, const char* formerKey, const char* label,
                            unsigned traits = 0) {
  return word(Kind::Text, id, key, formerKey, label, traits);
}

constexpr ParameterRow flag(int id, const char* key, const char* formerKey, const char* label,
                            unsigned traits = 0) {
  return word(Kind::Flag, id, key, formerKey, label, traits);
}

constexpr ParameterRow heading(int id, const char* key, const char* label) {
  return word(Kind::Heading, id, key, "", label, FlagInDefaults);
}

constexpr ParameterRow special(Kind kind, int id, const char* key, const char* label) {
  return word(kind, id, key, "", label, 0);
}

constexpr ShownNumber fixed(int decimals) {
  return {.decimals = decimals};
}

constexpr ShownNumber scientific(int decimals) {
  return {.decimals = decimals, .format = 'e'};
}

/// Error tolerances stand without their unit.
constexpr ShownNumber tolerance = {.unit = "-", .decimals = 12, .format = 'e'};
constexpr ShownNumber percent = {.unit = "%", .factor = 100};
/// A flow in m³/s.
constexpr ShownNumber perHour = {.unit = "m³/h", .factor = secondsPerHour};
/// An energy in MJ.
constexpr ShownNumber kilowattHours = {.unit = "kWh/(m²·a)", .divisor = megajoulesPerKilowattHour};

constexpr ShownNumber inYearsWith(int decimals) {
  return {.unit = "a", .divisor = secondsPerYear, .decimals = decimals};
}

// clang-format off
constexpr std::array<ParameterRow, Parameter::Count> table = {{
    text(ProgramVersion, "__tvr_version", "version", QT_TRANSLATE_NOOP("TVR::ParameterName", "Program version")),
    flag(GeneralWizardDone, "__general_wizard", "generalwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "General information"), FlagInDefaults),
    flag(WellWizardDone, "__brunnen_wizard", "brunnenwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well and aquifer"), FlagInDefaults),
    flag(EnergyWizardDone, "__energy_wizard", "energiewizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand"), FlagInDefaults),
    flag(GraphicWizardDone, "__graphic_wizard", "graphicwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mapping"), FlagInDefaults),
    flag(SimulationWizardDone, "__simulation_wizard", "simulationwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Simulation"), FlagInDefaults),
    flag(SimulationUpToDate, "__simulation_uptodate", "", ""),
    heading(HeadingHeatingSpecification, "__gui_item_heating_specification", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating specification")),
    heading(HeadingCoolingSpecification, "__gui_item_cooling_specification", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling specification")),
    heading(HeadingViewOrigin, "__gui_item_view_origin", QT_TRANSLATE_NOOP("TVR::ParameterName", "Origin for the view")),
    heading(HeadingNumericalParameter, "__gui_item_numerical_parameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Numerical parameter")),
    heading(HeadingGroundwaterModel, "__gui_item_gw_model_parameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow model")),
    heading(HeadingHeatModel, "__gui_item_heat_model_parameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat transport model")),
    heading(HeadingLastResults, "__gui_item_last_results", QT_TRANSLATE_NOOP("TVR::ParameterName", "Last results")),
    number(DensityStone, "__density_stone", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock"), "kg/m³", {500, 5000, 1500, 3300}),
    number(DensityAquifer, "__density_aquifer", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock material of the aquifer"), "kg/m³", {500, 5000, 1500, 3300}),
    number(DensitySurrounding, "__density_surrounding", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock material surrounding the aquifer"), "kg/m³", {500, 5000, 1500, 3300}),
    number(DensityWater, "__density_water", "density_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the water"), "kg/m³", {900, 1300, 990, 1050}),
    number(DistanceWell, "__distance_well", "distancewell", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), "m"),
    number(DynamicViscosityWater, "__dynamic_viscosity_water", "viscosity_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Dynamic viscosity of the water"), "Pa·s", {1e-4, 1e-2, 5e-4, 2e-3}, fixed(5)),
    number(Gravity, "__g", "g", QT_TRANSLATE_NOOP("TVR::ParameterName", "g"), "m/s²", {1, 30, 9.7, 9.9}),
    number(HeatConductivityStone, "__heat_conductivity_stone", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the rock"), "W/(m·K)", {0.05, 20, 0.5, 6}),
    number(HeatConductivityAquifer, "__heat_conductivity_aquifer", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the rock material of the aquifer"), "W/(m·K)", {0.05, 20, 0.5, 6}),
    number(HeatConductivitySurrounding, "__heat_conductivity_surrounding", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the  rock material surrounding the aquifer"), "W/(m·K)", {0.05, 20, 0.5, 6}),
    number(HeatingPeriod, "__heating_period", "heatingperiod", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating period"), QT_TRANSLATE_NOOP("TVR::ParameterName", "days")),
    count(MaxNumberOfElements, "__max_number_of_fv_elements", "max_nr_FV_elements", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum number of finite volume elements"), {1, 10e6, 100, 200e3}),
    number(CellIncreaseFactor, "__cell_increase_factor", "cell_increase_factor", QT_TRANSLATE_NOOP("TVR::ParameterName", "Increase factor of element size"), "%", {0, 1000, 0, 100}, fixed(0)),
    number(MaximalDrawdown, "__maximal_drawdown", "maxdrawdown", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum drawdown"), "m"),
    number(ProvidedFilterDiameter, "__provided_filter_diameter", "", "", "mm"),
    flag(ProvidedWellConfigurationOk, "__provided_well_configuration_ok", "conceivabilitychecked", ""),
    number(HeatCapacityStone, "__spezific_heat_capacity_stone", "capacity_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Specific heat capacity of the rock"), "J/(kg·K)", {100, 5000, 600, 1300}),
    number(HeatCapacityWater, "__spezific_heat_capacity_water", "capacity_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Specific heat capacity of the water"), "J/(kg·K)", {3000, 5000, 3800, 4300}),
    number(MaximumExtent3K, "_3k_extention", "3Kextention", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum extent of 3K temperature change"), "m", {}, fixed(0)),
    number(TimeOfMaximumExtent3K, "", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Time of the maximum extent"), "s", {}, inYearsWith(1)),
    number(EffectivePorosity, "_aquifer_porosity", "porosity", "", "-", {0.001, 1, 0.05, 0.5}, percent),
    number(AMin, "_a_min", "amin", QT_TRANSLATE_NOOP("TVR::ParameterName", "a_min"), "m"),
    number(BMin, "_b_min", "bmin", "", "m"),
    special(Kind::View, BackgroundImageOrigin, "_background_image_origin", ""),
    number(RadiusOfInfluence, "_big_r", "big_r", QT_TRANSLATE_NOOP("TVR::ParameterName", "big_r"), "m"),
    number(DMin, "_d_min", "dmin", QT_TRANSLATE_NOOP("TVR::ParameterName", "Recommended distance between withdrawal and injection well(s)"), "m", {}, fixed(0)),
    number(DMinUsed, "_d_min_used", "dmin_used", QT_TRANSLATE_NOOP("TVR::ParameterName", "Used distance between withdrawal and injection well(s)"), "m", {0, 20e3, 1, 2000}, fixed(0)),
    special(Kind::Point, DefaultWellPosition, "_default_well_position", QT_TRANSLATE_NOOP("TVR::ParameterName", "Default position for new withdrawal and injection well(s)")),
    number(DeltaHf, "_delta_hf", "delta_hf", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_hf"), "m"),
    number(DeltaW, "_delta_W", "delta_W", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W")),
    number(DeltaWPot, "_delta_W_pot", "delta_Wpot", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W_pot")),
    number(DeltaWRr, "_delta_W_rr", "delta_Wrr", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W_rr")),
    number(DerivedDistanceBetweenWells, "_distance_between_wells", "distancebetweenwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), "m"),
    number(PeakLoadDuration, "_duration_of_peak_load", "hurationofpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Duration of peak load"), "h"),
    number(PeakLoadDurationWarm, "_duration_of_peak_load_warm", "", "", "h"),
    number(PeakLoadDurationCold, "_duration_of_peak_load_cold", "", "", "h"),
    number(EnergyDemand, "_energy_demand", "energydemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand"), "kWh/a", {0, 1e8}),
    flag(ExportIsohypsesAsShape, "_export_isohypsen_as_shape", "", "", FlagInDefaults | FlagInSettings),
    flag(ExportIsothermsAsShape, "_export_isotherms_as_shape", "", "", FlagInDefaults | FlagInSettings),
    number(FilterDiameter, "_filter_diameter", "filterdiameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter diameter"), "mm"),
    number(FilterLength, "_filter_h", "h", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter length"), "m", {0, 2000, 0, 200}),
    number(UnconfinedThickness, "_h_unconfined", "hneu", QT_TRANSLATE_NOOP("TVR::ParameterName", "Water filled thickness of an unconfined aquifer"), "m"),
    number(DerivedHeatingDays, "_heading_days", "ht12", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating days")),
    number(HeatingDegreeDays, "_heating_degree_days", "heatingdegreedays", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating degree days")),
    special(Kind::List, Isotherms, "_isotherms", ""),
    number(HydraulicConductivity, "_kf", "kf", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic conductivity"), "m/s", {1e-8, 10, 1e-5, 0.1}, scientific(5)),
    number(HydraulicConductivityMax, "_kf_max", "kf_max", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum hydraulic conductivity"), "m/s", {}, scientific(5)),
    number(HydraulicConductivityMin, "_kf_min", "kf_min", QT_TRANSLATE_NOOP("TVR::ParameterName", "Minimum hydraulic conductivity"), "m/s", {}, scientific(5)),
    number(Lambda, "_lambda", "lambda", QT_TRANSLATE_NOOP("TVR::ParameterName", "lambda")),
    count(NumberOfWells, "_number_of_wells", "nrofwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of wells"), {1, ProjectLimits::maxWells}),
    number(Power, "_power", "power", QT_TRANSLATE_NOOP("TVR::ParameterName", "Power"), "kW", {}, fixed(0)),
    number(MaterialPorosity, "_porosity", "", "", "%"),
    number(Qf, "_qf", "qf", QT_TRANSLATE_NOOP("TVR::ParameterName", "qf")),
    number(QfMax, "_qf_max", "qfmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "qf_max")),
    number(SpecificHeatDemand, "_qh", "qh", QT_TRANSLATE_NOOP("TVR::ParameterName", "qh"), "MJ/(m²·a)", {}, kilowattHours, ReadsAsShown),
    number(HeatingPeriodDemand, "_qhz", "qhz", QT_TRANSLATE_NOOP("TVR::ParameterName", "qhz"), "kWh/a"),
    number(HotWaterDemand, "_qww", "qww", QT_TRANSLATE_NOOP("TVR::ParameterName", "qww"), "MJ/(m²·a)"),
    number(WellRadius, "_rb", "rb", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well radius"), "m", {0, 10, 0, 1}),
    number(WellRadiusMax, "_rb_max", "rbmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "rb_max")),
    number(Re, "_re", "re", QT_TRANSLATE_NOOP("TVR::ParameterName", "re")),
    number(Drawdown, "_s", "s", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown"), "m"),
    number(DrawdownMeanFlow, "_s_v_", "sav", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown when using the mean flow rate")),
    number(DrawdownHeatingPeriod, "_s_v_hz", "shz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown when using the mean flow rate for the heating period")),
    number(MeanFlowRate, "_v_", "v_", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean annual flow rate"), "m³/s", {}, perHour),
    number(GroundwaterVelocity, "_v_groundwater", "vnat", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow rate"), "m/s", {}, scientific(5)),
    number(MeanFlowRateHeatingPeriod, "_v_hz", "v_hz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean flow rate for the heating period"), "m³/s", {}, perHour),
    number(TubingFlowRateHeatingPeriod, "_v_hz_tubing", "vhz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean flow rate for the heating period inside the tubing"), "m³/s", {}, perHour),
    number(MaximumFlowRate, "_v_max", "vmaxcalc", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum flow rate"), "m³/s", {}, perHour),
    number(MaximumFlowRateOfOneWell, "_v_max_well", "vmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum flow rate of one well"), "m³/s", {0, 1, 0, 0.1}, perHour),
    special(Kind::View, ViewOrigin, "_view_origin", QT_TRANSLATE_NOOP("TVR::ParameterName", "Origin for the view")),
    number(DerivedWellDepth, "_well_depth", "depth", "", "m"),
    number(WellDiameter, "_well_diameter", "welldiameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well diameter"), "m", {0, 20, 0, 2}),
    number(AdditionalIsotherm, "additional_isotherm", "isotherms", QT_TRANSLATE_NOOP("TVR::ParameterName", "Additional isotherm"), "K"),
    number(AquiferBasis, "aquifer_basis", "basis", QT_TRANSLATE_NOOP("TVR::ParameterName", "Aquifer base"), QT_TRANSLATE_NOOP("TVR::ParameterName", "m bgl"), {0, 5000, 0, 300}),
    number(AquiferThickness, "aquifer_h", "big_h", QT_TRANSLATE_NOOP("TVR::ParameterName", "Thickness"), "m", {0.01, 2000, 1, 200}),
    count(AquiferMaterial, "aquifer_material_typ", "aquifer", QT_TRANSLATE_NOOP("TVR::ParameterName", "Aquifer material")),
    number(AquiferPorosity, "aquifer_porosity", "porosity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Porosity"), "-", {}, percent),
    flag(AquiferUnconfined, "aquifer_unconfined", "aquifer", QT_TRANSLATE_NOOP("TVR::ParameterName", "Unconfined aquifer"), FlagEverywhere),
    number(AbsTolGroundwater, "_abstol_groundwater", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Absolute error tolerance (groundwater flow model)"), "Pa", {1e-16, 1e4, 1e-12, 10}, tolerance),
    number(AbsTolHeat, "_abstol_heat", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Absolute error tolerance (heat transport model)"), "K", {1e-16, 1, 1e-12, 0.01}, tolerance),
    flag(BackgroundImage, "background_image", "includeimage", QT_TRANSLATE_NOOP("TVR::ParameterName", "Include a background map"), FlagEverywhere),
    text(BackgroundImageFile, "background_image_filename", "filename", ""),
    number(BackgroundImageWidth, "background_image_horizontal_extention", "widthimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Horizontal extent of the background map"), "m", {0, 10e3}),
    number(BackgroundImageHeight, "background_image_vertical_extention", "heightimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Vertical extent of the background map"), "m", {0, 10e3}),
    number(BackgroundImageX, "background_image_x", "ximport", QT_TRANSLATE_NOOP("TVR::ParameterName", "X coordinate of the origin for the background map"), "m", {-18577795, 18577795}),
    number(BackgroundImageY, "background_image_y", "yimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Y coordinate of the origin for the background map"), "m", {-10001889, 10001889}),
    number(ThermalDispersivity, "beta_T", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic dispersion"), "m", {0, 1000, 0, 50}),
    count(BuildingType, "building_type", "buildingtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Building type")),
    number(CalculateEnergyDemand, "calculate_energy_demand", "calculation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Calculate the energy demand")),
    flag(CalculateWellConstruction, "calculate_well_construction", "calculatingneeded", QT_TRANSLATE_NOOP("TVR::ParameterName", "Calculate the well construction"), FlagInDefaults),
    flag(CheckWellConstruction, "check_well_construction", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Check the well construction"), FlagEverywhere),
    count(ClosestLocation, "closest_location", "closestlocation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Closest location")),
    flag(CoolingOnly, "cooling_only", "coolinggroup", "", FlagEverywhere),
    number(CoolingDemand, "cooling_demand", "coolingdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling demand per year"), "kWh/a", {0, 1e8, 0, 1e5}),
    number(CoolingPeakLoadDuration, "duration_of_cooling_peak_load", "durationofcoolingpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of full hours load"), "h", {0, 8784}),
    number(CoolingPower, "cooling_power", "coolingpower", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling power"), "kW", {0, 1e5}),
    number(CoolingTemperatureChange, "cooling_temperature_change", "coolingtempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean temperature change used"), "K", {-100, 100, 0, 100}),
    flag(ClosedLoop, "wells_used_closed_loop", "wells_used_closed_loop", QT_TRANSLATE_NOOP("TVR::ParameterName", "Usage of a closed loop for the water"), FlagInDefaults | FlagOnWrite | FlagInSettings),
    number(DistanceBetweenWells, "distance_between_wells", "distancebetweenwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), "m", {0, 1000}),
    flag(ExchangeCaprock, "energy exchange with the caprock", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy exchange with the caprock"), FlagInDefaults | WordInBatchFile),
    flag(ExchangeBedrock, "energy exchange with the bedrock", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy exchange with the bedrock"), FlagInDefaults | WordInBatchFile),
    count(EnergyDemandType, "energy_demand_evaluation_type", "systemtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand evaluation type")),
    number(FilterDiameterProvided, "filter_diameter_provided", "filterdiameter_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter diameter provided"), "mm", {0, 1000}),
    number(FilterLengthProvided, "filter_h_provided", "h_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter length provided"), "m", {0, 1000}),
    number(GasDemand, "gas_demand", "gasdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Natural gas demand"), "m³/a", {0, 1e8}),
    number(GroundwaterFlowDirection, "groundwater_flow_direction", "flowdirection", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow direction"), "degrees", {-360, 720, -180, 360}, {.unit = "°", .decimals = 0}),
    number(GroundwaterGradient, "groundwater_gradient", "gradient", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic gradient"), "m/100m", {0, 100, 0, 5}, fixed(4)),
    number(GroundwaterTable, "groundwater_table", "pegel", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater table"), QT_TRANSLATE_NOOP("TVR::ParameterName", "m bgl"), {-200, 5000, -10, 200}),
    text(GuiLanguage, "gui_language", "gui_language", QT_TRANSLATE_NOOP("TVR::ParameterName", "GUI language")),
    number(HeatedFootSpace, "heated_foot_space", "heatedfootprint", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heated foot space"), "m²", {0, 1e8}),
    number(HeatingDays, "heating_days", "heatingsdays", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating days")),
    number(HeatingDemand, "heating_demand", "heatingdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating demand per year"), "kWh/a", {0, 1e8, 0, 1e5}),
    number(HeatingPeakLoadDuration, "duration_of_heating_peak_load", "durationofheatingpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of full hours load"), "h", {0, 8784}),
    number(HeatingPower, "heating_power", "heatingpower", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating power"), "kW", {0, 1e5}),
    number(HeatingTemperatureChange, "heating_temperature_change", "heatingtempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Used mean temperature change"), "K", {-100, 100, 0, 100}),
    number(HotWaterProvided, "hot_water_provided", "hotwaterprovided", QT_TRANSLATE_NOOP("TVR::ParameterName", "Including provision of hot water")),
    number(HydraulicConductivityUsed, "kf", "kf", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic conductivity"), "m/s", {}, scientific(5)),
    count(NumberOfWellsProvided, "number_of_wells_provided", "nrofwells_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of wells provided"), {1, 10e3}),
    count(NumberOfDemandsPerYear, "number_of_demands_per_year", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of demand periods per year"), {1, ProjectLimits::maxPeriods}),
    number(MinElementLength, "_min_length_fv_element", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Minimal size of elements"), "m", {0, 1000, 0, 10}),
    number(MaxElementLength, "_max_length_fv_element", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximal size of elements"), "m", {0, 1e5, 0, 1000}),
    number(OilDemand, "oil_demand", "oildemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Fuel oil demand"), "l/a", {0, 1e8}),
    text(BatchOutputFile, "", "", ""),
    text(ProjectAddress, "project_address", "address", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project address"), ClearableText),
    text(ProjectDescription, "project_description", "description", QT_TRANSLATE_NOOP("TVR::ParameterName", "Description"), ClearableText),
    text(ProjectFile, "project_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project file name"), ClearableText),
    text(ProjectLocation, "project_location", "location", QT_TRANSLATE_NOOP("TVR::ParameterName", "Location"), ClearableText),
    text(ProjectName, "project_name", "projectname", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project name"), ClearableText),
    text(ProjectStreet, "project_street", "street", QT_TRANSLATE_NOOP("TVR::ParameterName", "Street"), ClearableText),
    text(ProjectZip, "project_zip", "zip", QT_TRANSLATE_NOOP("TVR::ParameterName", "Postal code"), ClearableText),
    count(ProvidedEnergyDemandType, "provided_energy_demand_type", "heatingtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand type provided")),
    number(ReferenceTemperature, "referenz_temperature", "reftemp", QT_TRANSLATE_NOOP("TVR::ParameterName", "Reference temperature"), "°C", {0, 100, 5, 20}),
    number(RelTolGroundwater, "_reltol_groundwater", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Relative error tolerance (groundwater flow model)"), "-", {1e-16, 0.1, 1e-12, 1e-3}, tolerance),
    number(RelTolHeat, "_reltol_heat", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Relative error tolerance (heat transport model)"), "-", {1e-16, 0.1, 1e-12, 1e-3}, tolerance),
    number(SimulationTime, "simulation_time", "simulationtime", QT_TRANSLATE_NOOP("TVR::ParameterName", "Operation time"), "s", {1, 1000 * secondsPerYear, secondsPerDay, 100 * secondsPerYear}, inYearsWith(2)),
    number(SystemCop, "system_cop", "cop", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of performance"), "-", {0, 10, 0, 6}),
    text(TecplotOutputFile, "_tecplot_output_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Tectplot output file name")),
    text(UserAddress, "user_address", "useraddress", QT_TRANSLATE_NOOP("TVR::ParameterName", "User address"), ClearableText),
    text(UserLocation, "user_location", "userlocation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Location"), ClearableText),
    text(UserName, "user_name", "username", QT_TRANSLATE_NOOP("TVR::ParameterName", "Name"), ClearableText),
    text(UserStreet, "user_street", "userstreet", QT_TRANSLATE_NOOP("TVR::ParameterName", "Street"), ClearableText),
    text(UserZip, "user_zip", "userzip", QT_TRANSLATE_NOOP("TVR::ParameterName", "Postal code"), ClearableText),
    text(UserLogo, "user_logo", "", ""),
    flag(SuperposeDrawdown, "use_of_superposition_at_drawdown_calculation", "", "", FlagOnWrite | FlagInProjectFile | FlagInSettings),
    flag(UseProvidedAquiferProperties, "use_of_provided_aquifer_properties", "hydraulicrouting", QT_TRANSLATE_NOOP("TVR::ParameterName", "Use of provided aquifer properties"), FlagEverywhere),
    number(UsedTemperatureChange, "used_temperature_change", "tempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Temperature change"), "K", {-99, 99, -12, 12}),
    count(UsedNumberOfElements, "_used_number_of_fv_elements", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of elements used"), {0, 10e6}, "-"),
    number(UserDefinedGroundwaterTolerances, "_user_defined_groundwater_tollerances", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "User defined tollerances of the groundwater model"), "", {}, {}, FlagInSettings),
    number(UserDefinedHeatTolerances, "_user_defined_heat_tollerances", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "User defined tollerances of the heat model"), "", {}, {}, FlagInSettings),
    text(WellOutputFile, "_well_output_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well temperature output file name")),
    flag(WriteTecplotOutput, "_write_tecplot_output", "", "", FlagInDefaults | WordInBatchFile),
    flag(WriteWellOutput, "_write_well_output", "", "", FlagInDefaults),
    number(ViewHorizontalExtension, "view_horizontal_extension", "extensionmap", QT_TRANSLATE_NOOP("TVR::ParameterName", "Horizontal extent of the view"), "m", {0, 10e3}),
    number(ViewScale, "view_scale", "mapscale", QT_TRANSLATE_NOOP("TVR::ParameterName", "Scale of the view"), "", {1, 1e5}, fixed(0)),
    flag(ViewUseExtension, "view_use_extension", "useextension", QT_TRANSLATE_NOOP("TVR::ParameterName", "Use the extension to scale the view"), FlagInDefaults),
    number(ViewX, "view_x", "xmap", QT_TRANSLATE_NOOP("TVR::ParameterName", "X coordinate of the origin for the view"), "m", {-1e9, 1e9}),
    number(ViewY, "view_y", "ymap", QT_TRANSLATE_NOOP("TVR::ParameterName", "Y coordinate of the origin for the view"), "m", {-1e9, 1e9}),
    number(WellDepth, "well_depth", "depth", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well depth"), "m", {0, 1000}),
    count(WellMaterialType, "well_material_type", "wellmaterial", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well material type")),
}};
// clang-format on

constexpr bool rowsStandAtTheirIds() {
  for (int id = 0; id < Parameter::Count; ++id)
    if (table[id].id != id)
      return false;
  return true;
}
static_assert(rowsStandAtTheirIds());

bool has(int id, ParameterTrait trait) {
  return id >= 0 && id < Parameter::Count && table[static_cast<std::size_t>(id)].has(trait);
}

} // namespace

const std::array<ParameterRow, Parameter::Count>& parameterTable() {
  return table;
}

const ParameterRow& parameterRow(int id) {
  return table.at(static_cast<std::size_t>(id));
}

bool isFlagInDefaults(int id) {
  return has(id, FlagInDefaults);
}

bool isFlagOnWrite(int id) {
  return has(id, FlagOnWrite);
}

bool isFlagInProjectFile(int id) {
  return has(id, FlagInProjectFile);
}

bool isFlagInSettings(int id) {
  return has(id, FlagInSettings);
}

bool isWordInBatchFile(int id) {
  return has(id, WordInBatchFile);
}

bool isClearableText(int id) {
  return has(id, ClearableText);
}

QString shownUnit(const ParameterRow& row) {
  return *row.shown.unit == '\0'
             ? QString()
             : QCoreApplication::translate("TVR::ParameterName", row.shown.unit);
}

QString richUnit(const ParameterRow& row) {
  const QString unit = shownUnit(row);
  return unit == "-" ? QString()
                     : QString(unit).replace("²", "<sup>2</sup>").replace("³", "<sup>3</sup>");
}

QString ParameterName::label(int id) {
  if (id < 0 || id >= Parameter::Count || *table[id].label == '\0')
    return {};
  return QCoreApplication::translate("TVR::ParameterName", table[id].label);
}

} // namespace TVR
