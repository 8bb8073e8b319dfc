#include "project/ParameterTable.h"

#include "project/ProjectLimits.h"

#include <QCoreApplication>

#include <algorithm>
#include <initializer_list>

namespace TVR {

namespace {

using Kind = ParameterKind;

// clang-format off
constexpr std::array<ParameterRow, Parameter::Count> table = {{
    {Parameter::ProgramVersion, "__tvr_version", "version", QT_TRANSLATE_NOOP("TVR::ParameterName", "Program version"), Kind::Text, ""},
    {Parameter::GeneralWizardDone, "__general_wizard", "generalwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "General information"), Kind::Flag, ""},
    {Parameter::WellWizardDone, "__brunnen_wizard", "brunnenwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well and aquifer"), Kind::Flag, ""},
    {Parameter::EnergyWizardDone, "__energy_wizard", "energiewizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand"), Kind::Flag, ""},
    {Parameter::GraphicWizardDone, "__graphic_wizard", "graphicwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mapping"), Kind::Flag, ""},
    {Parameter::SimulationWizardDone, "__simulation_wizard", "simulationwizard", QT_TRANSLATE_NOOP("TVR::ParameterName", "Simulation"), Kind::Flag, ""},
    {Parameter::SimulationUpToDate, "__simulation_uptodate", "", "", Kind::Flag, ""},
    {Parameter::HeadingHeatingSpecification, "__gui_item_heating_specification", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating specification"), Kind::Heading, ""},
    {Parameter::HeadingCoolingSpecification, "__gui_item_cooling_specification", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling specification"), Kind::Heading, ""},
    {Parameter::HeadingViewOrigin, "__gui_item_view_origin", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Origin for the view"), Kind::Heading, ""},
    {Parameter::HeadingNumericalParameter, "__gui_item_numerical_parameter", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Numerical parameter"), Kind::Heading, ""},
    {Parameter::HeadingGroundwaterModel, "__gui_item_gw_model_parameter", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow model"), Kind::Heading, ""},
    {Parameter::HeadingHeatModel, "__gui_item_heat_model_parameter", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat transport model"), Kind::Heading, ""},
    {Parameter::HeadingLastResults, "__gui_item_last_results", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Last results"), Kind::Heading, ""},
    {Parameter::DensityStone, "__density_stone", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock"), Kind::Number, "kg/m³", {500, 5000, 1500, 3300}},
    {Parameter::DensityAquifer, "__density_aquifer", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock material of the aquifer"), Kind::Number, "kg/m³", {500, 5000, 1500, 3300}},
    {Parameter::DensitySurrounding, "__density_surrounding", "density_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the rock material surrounding the aquifer"), Kind::Number, "kg/m³", {500, 5000, 1500, 3300}},
    {Parameter::DensityWater, "__density_water", "density_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Density of the water"), Kind::Number, "kg/m³", {900, 1300, 990, 1050}},
    {Parameter::DistanceWell, "__distance_well", "distancewell", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), Kind::Number, "m"},
    {Parameter::DynamicViscosityWater, "__dynamic_viscosity_water", "viscosity_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Dynamic viscosity of the water"), Kind::Number, "Pa·s", {1e-4, 1e-2, 5e-4, 2e-3}},
    {Parameter::Gravity, "__g", "g", QT_TRANSLATE_NOOP("TVR::ParameterName", "g"), Kind::Number, "m/s²", {1, 30, 9.7, 9.9}},
    {Parameter::HeatConductivityStone, "__heat_conductivity_stone", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the rock"), Kind::Number, "W/(m·K)", {0.05, 20, 0.5, 6}},
    {Parameter::HeatConductivityAquifer, "__heat_conductivity_aquifer", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the rock material of the aquifer"), Kind::Number, "W/(m·K)", {0.05, 20, 0.5, 6}},
    {Parameter::HeatConductivitySurrounding, "__heat_conductivity_surrounding", "heat_conductivity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heat conductivity of the  rock material surrounding the aquifer"), Kind::Number, "W/(m·K)", {0.05, 20, 0.5, 6}},
    {Parameter::HeatingPeriod, "__heating_period", "heatingperiod", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating period"), Kind::Number, "days"},
    {Parameter::MaxNumberOfElements, "__max_number_of_fv_elements", "max_nr_FV_elements", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum number of finite volume elements"), Kind::Count, "", {1, 10e6, 100, 200e3}},
    {Parameter::CellIncreaseFactor, "__cell_increase_factor", "cell_increase_factor", QT_TRANSLATE_NOOP("TVR::ParameterName", "Increase factor of element size"), Kind::Number, "%", {0, 1000, 0, 100}},
    {Parameter::MaximalDrawdown, "__maximal_drawdown", "maxdrawdown", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum drawdown"), Kind::Number, "m"},
    {Parameter::ProvidedFilterDiameter, "__provided_filter_diameter", "", "", Kind::Number, "mm"},
    {Parameter::ProvidedWellConfigurationOk, "__provided_well_configuration_ok", "conceivabilitychecked", "", Kind::Flag, ""},
    {Parameter::HeatCapacityStone, "__spezific_heat_capacity_stone", "capacity_stone", QT_TRANSLATE_NOOP("TVR::ParameterName", "Specific heat capacity of the rock"), Kind::Number, "J/(kg·K)", {100, 5000, 600, 1300}},
    {Parameter::HeatCapacityWater, "__spezific_heat_capacity_water", "capacity_water", QT_TRANSLATE_NOOP("TVR::ParameterName", "Specific heat capacity of the water"), Kind::Number, "J/(kg·K)", {3000, 5000, 3800, 4300}},
    {Parameter::MaximumExtent3K, "_3k_extention", "3Kextention", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum extent of 3K temperature change"), Kind::Number, "m"},
    {Parameter::TimeOfMaximumExtent3K, "", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Time of the maximum extent"), Kind::Number, "s"},
    {Parameter::EffectivePorosity, "_aquifer_porosity", "porosity", "", Kind::Number, "-", {0.001, 1, 0.05, 0.5}},
    {Parameter::AMin, "_a_min", "amin", QT_TRANSLATE_NOOP("TVR::ParameterName", "a_min"), Kind::Number, "m"},
    {Parameter::BMin, "_b_min", "bmin", "", Kind::Number, "m"},
    {Parameter::BackgroundImageOrigin, "_background_image_origin", "", "", Kind::View, ""},
    {Parameter::RadiusOfInfluence, "_big_r", "big_r", QT_TRANSLATE_NOOP("TVR::ParameterName", "big_r"), Kind::Number, "m"},
    {Parameter::DMin, "_d_min", "dmin", QT_TRANSLATE_NOOP("TVR::ParameterName", "Recommended distance between withdrawal and injection well(s)"), Kind::Number, "m"},
    {Parameter::DMinUsed, "_d_min_used", "dmin_used", QT_TRANSLATE_NOOP("TVR::ParameterName", "Used distance between withdrawal and injection well(s)"), Kind::Number, "m", {0, 20e3, 1, 2000}},
    {Parameter::DefaultWellPosition, "_default_well_position", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Default position for new withdrawal and injection well(s)"), Kind::Point, ""},
    {Parameter::DeltaHf, "_delta_hf", "delta_hf", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_hf"), Kind::Number, "m"},
    {Parameter::DeltaW, "_delta_W", "delta_W", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W"), Kind::Number, ""},
    {Parameter::DeltaWPot, "_delta_W_pot", "delta_Wpot", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W_pot"), Kind::Number, ""},
    {Parameter::DeltaWRr, "_delta_W_rr", "delta_Wrr", QT_TRANSLATE_NOOP("TVR::ParameterName", "delta_W_rr"), Kind::Number, ""},
    {Parameter::DerivedDistanceBetweenWells, "_distance_between_wells", "distancebetweenwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), Kind::Number, "m"},
    {Parameter::PeakLoadDuration, "_duration_of_peak_load", "hurationofpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Duration of peak load"), Kind::Number, "h"},
    {Parameter::PeakLoadDurationWarm, "_duration_of_peak_load_warm", "", "", Kind::Number, "h"},
    {Parameter::PeakLoadDurationCold, "_duration_of_peak_load_cold", "", "", Kind::Number, "h"},
    {Parameter::EnergyDemand, "_energy_demand", "energydemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand"), Kind::Number, "kWh/a"},
    {Parameter::ExportIsohypsesAsShape, "_export_isohypsen_as_shape", "", "", Kind::Flag, ""},
    {Parameter::ExportIsothermsAsShape, "_export_isotherms_as_shape", "", "", Kind::Flag, ""},
    {Parameter::FilterDiameter, "_filter_diameter", "filterdiameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter diameter"), Kind::Number, "mm"},
    {Parameter::FilterLength, "_filter_h", "h", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter length"), Kind::Number, "m", {0, 2000, 0, 200}},
    {Parameter::UnconfinedThickness, "_h_unconfined", "hneu", QT_TRANSLATE_NOOP("TVR::ParameterName", "Water filled thickness of an unconfined aquifer"), Kind::Number, "m"},
    {Parameter::DerivedHeatingDays, "_heading_days", "ht12", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating days"), Kind::Number, ""},
    {Parameter::HeatingDegreeDays, "_heating_degree_days", "heatingdegreedays", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating degree days"), Kind::Number, ""},
    {Parameter::Isotherms, "_isotherms", "", "", Kind::List, ""},
    {Parameter::HydraulicConductivity, "_kf", "kf", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic conductivity"), Kind::Number, "m/s", {1e-8, 10, 1e-5, 0.1}},
    {Parameter::HydraulicConductivityMax, "_kf_max", "kf_max", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum hydraulic conductivity"), Kind::Number, "m/s"},
    {Parameter::HydraulicConductivityMin, "_kf_min", "kf_min", QT_TRANSLATE_NOOP("TVR::ParameterName", "Minimum hydraulic conductivity"), Kind::Number, "m/s"},
    {Parameter::Lambda, "_lambda", "lambda", QT_TRANSLATE_NOOP("TVR::ParameterName", "lambda"), Kind::Number, ""},
    {Parameter::NumberOfWells, "_number_of_wells", "nrofwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of wells"), Kind::Count, "", {1, ProjectLimits::maxWells}},
    {Parameter::Power, "_power", "power", QT_TRANSLATE_NOOP("TVR::ParameterName", "Power"), Kind::Number, "kW"},
    {Parameter::MaterialPorosity, "_porosity", "", "", Kind::Number, "%"},
    {Parameter::Qf, "_qf", "qf", QT_TRANSLATE_NOOP("TVR::ParameterName", "qf"), Kind::Number, ""},
    {Parameter::QfMax, "_qf_max", "qfmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "qf_max"), Kind::Number, ""},
    {Parameter::SpecificHeatDemand, "_qh", "qh", QT_TRANSLATE_NOOP("TVR::ParameterName", "qh"), Kind::Number, ""},
    {Parameter::HeatingPeriodDemand, "_qhz", "qhz", QT_TRANSLATE_NOOP("TVR::ParameterName", "qhz"), Kind::Number, "kWh/a"},
    {Parameter::HotWaterDemand, "_qww", "qww", QT_TRANSLATE_NOOP("TVR::ParameterName", "qww"), Kind::Number, "MJ/(m²·a)"},
    {Parameter::WellRadius, "_rb", "rb", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well radius"), Kind::Number, "m", {0, 10, 0, 1}},
    {Parameter::WellRadiusMax, "_rb_max", "rbmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "rb_max"), Kind::Number, ""},
    {Parameter::Re, "_re", "re", QT_TRANSLATE_NOOP("TVR::ParameterName", "re"), Kind::Number, ""},
    {Parameter::Drawdown, "_s", "s", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown"), Kind::Number, "m"},
    {Parameter::DrawdownMeanFlow, "_s_v_", "sav", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown when using the mean flow rate"), Kind::Number, ""},
    {Parameter::DrawdownHeatingPeriod, "_s_v_hz", "shz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Drawdown when using the mean flow rate for the heating period"), Kind::Number, ""},
    {Parameter::MeanFlowRate, "_v_", "v_", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean annual flow rate"), Kind::Number, "m³/s"},
    {Parameter::GroundwaterVelocity, "_v_groundwater", "vnat", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow rate"), Kind::Number, "m/s"},
    {Parameter::MeanFlowRateHeatingPeriod, "_v_hz", "v_hz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean flow rate for the heating period"), Kind::Number, "m³/s"},
    {Parameter::TubingFlowRateHeatingPeriod, "_v_hz_tubing", "vhz", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean flow rate for the heating period inside the tubing"), Kind::Number, "m³/s"},
    {Parameter::MaximumFlowRate, "_v_max", "vmaxcalc", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum flow rate"), Kind::Number, "m³/s"},
    {Parameter::MaximumFlowRateOfOneWell, "_v_max_well", "vmax", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximum flow rate of one well"), Kind::Number, "m³/s", {0, 1, 0, 0.1}},
    {Parameter::ViewOrigin, "_view_origin", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Origin for the view"), Kind::View, ""},
    {Parameter::DerivedWellDepth, "_well_depth", "depth", "", Kind::Number, "m"},
    {Parameter::WellDiameter, "_well_diameter", "welldiameter", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well diameter"), Kind::Number, "m", {0, 20, 0, 2}},
    {Parameter::AdditionalIsotherm, "additional_isotherm", "isotherms", QT_TRANSLATE_NOOP("TVR::ParameterName", "Additional isotherm"), Kind::Number, ""},
    {Parameter::AquiferBasis, "aquifer_basis", "basis", QT_TRANSLATE_NOOP("TVR::ParameterName", "Aquifer base"), Kind::Number, "m bgl", {0, 5000, 0, 300}},
    {Parameter::AquiferThickness, "aquifer_h", "big_h", QT_TRANSLATE_NOOP("TVR::ParameterName", "Thickness"), Kind::Number, "m", {0.01, 2000, 1, 200}},
    {Parameter::AquiferMaterial, "aquifer_material_typ", "aquifer", QT_TRANSLATE_NOOP("TVR::ParameterName", "Aquifer material"), Kind::Count, ""},
    {Parameter::AquiferPorosity, "aquifer_porosity", "porosity", QT_TRANSLATE_NOOP("TVR::ParameterName", "Porosity"), Kind::Number, "-"},
    {Parameter::AquiferUnconfined, "aquifer_unconfined", "aquifer", QT_TRANSLATE_NOOP("TVR::ParameterName", "Unconfined aquifer"), Kind::Flag, ""},
    {Parameter::AbsTolGroundwater, "_abstol_groundwater", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Absolute error tolerance (groundwater flow model)"), Kind::Number, "", {1e-16, 1e4, 1e-12, 10}},
    {Parameter::AbsTolHeat, "_abstol_heat", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Absolute error tolerance (heat transport model)"), Kind::Number, "", {1e-16, 1, 1e-12, 0.01}},
    {Parameter::BackgroundImage, "background_image", "includeimage", QT_TRANSLATE_NOOP("TVR::ParameterName", "Include a background map"), Kind::Flag, ""},
    {Parameter::BackgroundImageFile, "background_image_filename", "filename", "", Kind::Text, ""},
    {Parameter::BackgroundImageWidth, "background_image_horizontal_extention", "widthimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Horizontal extent of the background map"), Kind::Number, "m"},
    {Parameter::BackgroundImageHeight, "background_image_vertical_extention", "heightimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Vertical extent of the background map"), Kind::Number, "m"},
    {Parameter::BackgroundImageX, "background_image_x", "ximport", QT_TRANSLATE_NOOP("TVR::ParameterName", "X coordinate of the origin for the background map"), Kind::Number, "m"},
    {Parameter::BackgroundImageY, "background_image_y", "yimport", QT_TRANSLATE_NOOP("TVR::ParameterName", "Y coordinate of the origin for the background map"), Kind::Number, "m"},
    {Parameter::ThermalDispersivity, "beta_T", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic dispersion"), Kind::Number, "m", {0, 1000, 0, 50}},
    {Parameter::BuildingType, "building_type", "buildingtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Building type"), Kind::Count, ""},
    {Parameter::CalculateEnergyDemand, "calculate_energy_demand", "calculation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Calculate the energy demand"), Kind::Number, ""},
    {Parameter::CalculateWellConstruction, "calculate_well_construction", "calculatingneeded", QT_TRANSLATE_NOOP("TVR::ParameterName", "Calculate the well construction"), Kind::Flag, ""},
    {Parameter::CheckWellConstruction, "check_well_construction", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Check the well construction"), Kind::Flag, ""},
    {Parameter::ClosestLocation, "closest_location", "closestlocation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Closest location"), Kind::Count, ""},
    {Parameter::CoolingOnly, "cooling_only", "coolinggroup", "", Kind::Flag, ""},
    {Parameter::CoolingDemand, "cooling_demand", "coolingdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling demand per year"), Kind::Number, "kWh/a"},
    {Parameter::CoolingPeakLoadDuration, "duration_of_cooling_peak_load", "durationofcoolingpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of full hours load"), Kind::Number, "h"},
    {Parameter::CoolingPower, "cooling_power", "coolingpower", QT_TRANSLATE_NOOP("TVR::ParameterName", "Cooling power"), Kind::Number, "kW"},
    {Parameter::CoolingTemperatureChange, "cooling_temperature_change", "coolingtempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Mean temperature change used"), Kind::Number, "K"},
    {Parameter::ClosedLoop, "wells_used_closed_loop", "wells_used_closed_loop", QT_TRANSLATE_NOOP("TVR::ParameterName", "Usage of a closed loop for the water"), Kind::Flag, ""},
    {Parameter::DistanceBetweenWells, "distance_between_wells", "distancebetweenwells", QT_TRANSLATE_NOOP("TVR::ParameterName", "Distance between wells"), Kind::Number, "m"},
    {Parameter::ExchangeCaprock, "energy exchange with the caprock", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy exchange with the caprock"), Kind::Flag, ""},
    {Parameter::ExchangeBedrock, "energy exchange with the bedrock", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy exchange with the bedrock"), Kind::Flag, ""},
    {Parameter::EnergyDemandType, "energy_demand_evaluation_type", "systemtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand evaluation type"), Kind::Count, ""},
    {Parameter::FilterDiameterProvided, "filter_diameter_provided", "filterdiameter_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter diameter provided"), Kind::Number, "mm"},
    {Parameter::FilterLengthProvided, "filter_h_provided", "h_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Filter length provided"), Kind::Number, "m"},
    {Parameter::GasDemand, "gas_demand", "gasdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Natural gas demand"), Kind::Number, "m³/a"},
    {Parameter::GroundwaterFlowDirection, "groundwater_flow_direction", "flowdirection", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater flow direction"), Kind::Number, "degrees", {-360, 720, -180, 360}},
    {Parameter::GroundwaterGradient, "groundwater_gradient", "gradient", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic gradient"), Kind::Number, "m/100m", {0, 100, 0, 5}},
    {Parameter::GroundwaterTable, "groundwater_table", "pegel", QT_TRANSLATE_NOOP("TVR::ParameterName", "Groundwater table"), Kind::Number, "m bgl", {-200, 5000, -10, 200}},
    {Parameter::GuiLanguage, "gui_language", "gui_language", QT_TRANSLATE_NOOP("TVR::ParameterName", "GUI language"), Kind::Text, ""},
    {Parameter::HeatedFootSpace, "heated_foot_space", "heatedfootprint", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heated foot space"), Kind::Number, "m²"},
    {Parameter::HeatingDays, "heating_days", "heatingsdays", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating days"), Kind::Number, ""},
    {Parameter::HeatingDemand, "heating_demand", "heatingdemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating demand per year"), Kind::Number, "kWh/a"},
    {Parameter::HeatingPeakLoadDuration, "duration_of_heating_peak_load", "durationofheatingpeakload", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of full hours load"), Kind::Number, "h"},
    {Parameter::HeatingPower, "heating_power", "heatingpower", QT_TRANSLATE_NOOP("TVR::ParameterName", "Heating power"), Kind::Number, "kW"},
    {Parameter::HeatingTemperatureChange, "heating_temperature_change", "heatingtempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Used mean temperature change"), Kind::Number, "K"},
    {Parameter::HotWaterProvided, "hot_water_provided", "hotwaterprovided", QT_TRANSLATE_NOOP("TVR::ParameterName", "Including provision of hot water"), Kind::Number, ""},
    {Parameter::HydraulicConductivityUsed, "kf", "kf", QT_TRANSLATE_NOOP("TVR::ParameterName", "Hydraulic conductivity"), Kind::Number, "m/s"},
    {Parameter::NumberOfWellsProvided, "number_of_wells_provided", "nrofwells_prov", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of wells provided"), Kind::Count, ""},
    {Parameter::NumberOfDemandsPerYear, "number_of_demands_per_year", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of demand periods per year"), Kind::Count, "", {1, ProjectLimits::maxPeriods}},
    {Parameter::MinElementLength, "_min_length_fv_element", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Minimal size of elements"), Kind::Number, "m", {0, 1000, 0, 10}},
    {Parameter::MaxElementLength, "_max_length_fv_element", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Maximal size of elements"), Kind::Number, "m", {0, 1e5, 0, 1000}},
    {Parameter::OilDemand, "oil_demand", "oildemand", QT_TRANSLATE_NOOP("TVR::ParameterName", "Fuel oil demand"), Kind::Number, "l/a"},
    {Parameter::BatchOutputFile, "", "", "", Kind::Text, ""},
    {Parameter::ProjectAddress, "project_address", "address", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project address"), Kind::Text, ""},
    {Parameter::ProjectDescription, "project_description", "description", QT_TRANSLATE_NOOP("TVR::ParameterName", "Description"), Kind::Text, ""},
    {Parameter::ProjectFile, "project_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project file name"), Kind::Text, ""},
    {Parameter::ProjectLocation, "project_location", "location", QT_TRANSLATE_NOOP("TVR::ParameterName", "Location"), Kind::Text, ""},
    {Parameter::ProjectName, "project_name", "projectname", QT_TRANSLATE_NOOP("TVR::ParameterName", "Project name"), Kind::Text, ""},
    {Parameter::ProjectStreet, "project_street", "street", QT_TRANSLATE_NOOP("TVR::ParameterName", "Street"), Kind::Text, ""},
    {Parameter::ProjectZip, "project_zip", "zip", QT_TRANSLATE_NOOP("TVR::ParameterName", "Postal code"), Kind::Text, ""},
    {Parameter::ProvidedEnergyDemandType, "provided_energy_demand_type", "heatingtype", QT_TRANSLATE_NOOP("TVR::ParameterName", "Energy demand type provided"), Kind::Count, ""},
    {Parameter::ReferenceTemperature, "referenz_temperature", "reftemp", QT_TRANSLATE_NOOP("TVR::ParameterName", "Reference temperature"), Kind::Number, "°C", {0, 100, 5, 20}},
    {Parameter::RelTolGroundwater, "_reltol_groundwater", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Relative error tolerance (groundwater flow model)"), Kind::Number, "", {1e-16, 0.1, 1e-12, 1e-3}},
    {Parameter::RelTolHeat, "_reltol_heat", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Relative error tolerance (heat transport model)"), Kind::Number, "", {1e-16, 0.1, 1e-12, 1e-3}},
    {Parameter::SimulationTime, "simulation_time", "simulationtime", QT_TRANSLATE_NOOP("TVR::ParameterName", "Operation time"), Kind::Number, "s", {1, 3.15576e10, 86400, 3.15576e9}},
    {Parameter::SystemCop, "system_cop", "cop", QT_TRANSLATE_NOOP("TVR::ParameterName", "Coefficient of performance"), Kind::Number, "-"},
    {Parameter::TecplotOutputFile, "_tecplot_output_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Tectplot output file name"), Kind::Text, ""},
    {Parameter::UserAddress, "user_address", "useraddress", QT_TRANSLATE_NOOP("TVR::ParameterName", "User address"), Kind::Text, ""},
    {Parameter::UserLocation, "user_location", "userlocation", QT_TRANSLATE_NOOP("TVR::ParameterName", "Location"), Kind::Text, ""},
    {Parameter::UserName, "user_name", "username", QT_TRANSLATE_NOOP("TVR::ParameterName", "Name"), Kind::Text, ""},
    {Parameter::UserStreet, "user_street", "userstreet", QT_TRANSLATE_NOOP("TVR::ParameterName", "Street"), Kind::Text, ""},
    {Parameter::UserZip, "user_zip", "userzip", QT_TRANSLATE_NOOP("TVR::ParameterName", "Postal code"), Kind::Text, ""},
    {Parameter::UserLogo, "user_logo", "", "", Kind::Text, ""},
    {Parameter::SuperposeDrawdown, "use_of_superposition_at_drawdown_calculation", "", "", Kind::Flag, ""},
    {Parameter::UseProvidedAquiferProperties, "use_of_provided_aquifer_properties", "hydraulicrouting", QT_TRANSLATE_NOOP("TVR::ParameterName", "Use of provided aquifer properties"), Kind::Flag, ""},
    {Parameter::UsedTemperatureChange, "used_temperature_change", "tempchange", QT_TRANSLATE_NOOP("TVR::ParameterName", "Temperature change"), Kind::Number, "K", {-99, 99, -12, 12}},
    {Parameter::UsedNumberOfElements, "_used_number_of_fv_elements", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Number of elements used"), Kind::Count, ""},
    {Parameter::UserDefinedGroundwaterTolerances, "_user_defined_groundwater_tollerances", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "User defined tollerances of the groundwater model"), Kind::Number, ""},
    {Parameter::UserDefinedHeatTolerances, "_user_defined_heat_tollerances", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "User defined tollerances of the heat model"), Kind::Number, ""},
    {Parameter::WellOutputFile, "_well_output_filename", "", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well temperature output file name"), Kind::Text, ""},
    {Parameter::WriteTecplotOutput, "_write_tecplot_output", "", "", Kind::Flag, ""},
    {Parameter::WriteWellOutput, "_write_well_output", "", "", Kind::Flag, ""},
    {Parameter::ViewHorizontalExtension, "view_horizontal_extension", "extensionmap", QT_TRANSLATE_NOOP("TVR::ParameterName", "Horizontal extent of the view"), Kind::Number, ""},
    {Parameter::ViewScale, "view_scale", "mapscale", QT_TRANSLATE_NOOP("TVR::ParameterName", "Scale of the view"), Kind::Number, ""},
    {Parameter::ViewUseExtension, "view_use_extension", "useextension", QT_TRANSLATE_NOOP("TVR::ParameterName", "Use the extension to scale the view"), Kind::Flag, ""},
    {Parameter::ViewX, "view_x", "xmap", QT_TRANSLATE_NOOP("TVR::ParameterName", "X coordinate of the origin for the view"), Kind::Number, "m", {-1e9, 1e9}},
    {Parameter::ViewY, "view_y", "ymap", QT_TRANSLATE_NOOP("TVR::ParameterName", "Y coordinate of the origin for the view"), Kind::Number, "m", {-1e9, 1e9}},
    {Parameter::WellDepth, "well_depth", "depth", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well depth"), Kind::Number, "m"},
    {Parameter::WellMaterialType, "well_material_type", "wellmaterial", QT_TRANSLATE_NOOP("TVR::ParameterName", "Well material type"), Kind::Count, ""},
}};
// clang-format on

constexpr bool rowsStandAtTheirIds() {
  for (int id = 0; id < Parameter::Count; ++id)
    if (table[id].id != id)
      return false;
  return true;
}
static_assert(rowsStandAtTheirIds());

bool isOneOf(int id, std::initializer_list<int> ids) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

bool isBetween(int id, int first, int last) {
  return first <= id && id <= last;
}

} // namespace

const std::array<ParameterRow, Parameter::Count>& parameterTable() {
  return table;
}

const ParameterRow& parameterRow(int id) {
  return table.at(static_cast<std::size_t>(id));
}

bool isFlagInDefaults(int id) {
  using namespace Parameter;
  return isBetween(id, GeneralWizardDone, SimulationWizardDone) ||
         isBetween(id, HeadingHeatingSpecification, HeadingLastResults) ||
         isOneOf(id,
                 {ExportIsohypsesAsShape, ExportIsothermsAsShape, AquiferUnconfined,
                  BackgroundImage, CalculateWellConstruction, CheckWellConstruction, CoolingOnly,
                  ClosedLoop, ExchangeCaprock, ExchangeBedrock, UseProvidedAquiferProperties,
                  WriteTecplotOutput, WriteWellOutput, ViewUseExtension});
}

bool isFlagInProjectFile(int id) {
  using namespace Parameter;
  return isOneOf(id, {AquiferUnconfined, BackgroundImage, CheckWellConstruction, CoolingOnly,
                      SuperposeDrawdown, UseProvidedAquiferProperties});
}

bool isFlagOnWrite(int id) {
  return id == Parameter::ClosedLoop || isFlagInProjectFile(id);
}

bool isClearableText(int id) {
  using namespace Parameter;
  return isBetween(id, ProjectAddress, ProjectZip) || isBetween(id, UserAddress, UserZip);
}

QString ParameterName::label(int id) {
  if (id < 0 || id >= Parameter::Count || *table[id].label == '\0')
    return {};
  return QCoreApplication::translate("TVR::ParameterName", table[id].label);
}

} // namespace TVR
