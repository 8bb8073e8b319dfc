#pragma once

#include "project/RunFrame.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace TVR {

class ProjectReader;
struct OutputTimeInput;

/// What a well does while its rate holds.
struct WellFlow {
  double rate;              ///< [m3/s], positive into the aquifer
  double temperatureChange; ///< of what is injected [K]; 0 where water is withdrawn

  bool operator==(const WellFlow&) const = default;
};

/// A well as a run needs it.
struct SiteWell {
  QString name;
  QPointF place; ///< on the map [m]
  WellFlow mean; ///< of a year
  /// By demand period, as the well's own rows say; none where the demand is constant.
  std::vector<WellFlow> periods;

  bool operator==(const SiteWell&) const = default;
};

/// Lengths that the extents of the model are made of [m].
struct DesignLengths {
  double a; ///< behind the last well along the regional flow
  double b; ///< before the first well and to the sides
  double d; ///< between the wells

  bool operator==(const DesignLengths&) const = default;
};

struct SiteAquifer {
  double thickness;             ///< water-filled [m]
  double porosity;              ///< effective [-]
  double hydraulicConductivity; ///< [m/s]
  double gradient;              ///< of the regional flow [m/100m]
  double groundwaterVelocity;   ///< [m/s]
  double radiusOfInfluence;     ///< [m]
  double dispersivity;          ///< longitudinal, of heat [m]
  double density;               ///< of the rock [kg/m3]
  double heatConductivity;      ///< [W/(m K)]

  bool operator==(const SiteAquifer&) const = default;
};

struct SiteWater {
  double density;      ///< [kg/m3]
  double heatCapacity; ///< [J/(kg K)]
  double viscosity;    ///< dynamic [Pa s]

  bool operator==(const SiteWater&) const = default;
};

/// The rock above and below the aquifer.
struct SiteSurrounding {
  double density;          ///< [kg/m3]
  double heatConductivity; ///< [W/(m K)]
  bool exchangesBelow;     ///< heat with the aquifer
  bool exchangesAbove;

  bool operator==(const SiteSurrounding&) const = default;
};

struct SiteCells {
  double width;    ///< of the cell of a well [m]
  double largest;  ///< width of any cell [m]
  double increase; ///< from cell to cell [%]
  int most;        ///< number of cells of a side

  bool operator==(const SiteCells&) const = default;
};

/// Error tolerances of a run.
struct Tolerances {
  double relativeGroundwater; ///< [-]
  double relativeHeat;        ///< [-]
  double absoluteGroundwater; ///< [Pa]
  double absoluteHeat;        ///< [K]

  bool operator==(const Tolerances&) const = default;
};

/// All that the model of a run is made of, read from a project once: what is written back later
/// changes nothing here.
struct SiteInput {
  RunFrame frame; ///< all but the length of a cycle
  std::vector<SiteWell> wells;
  std::vector<double> periods; ///< durations of the demand periods of a year [s]; one at least
  double meanFlow;             ///< that `designLengths` are made for [m3/s]; 0 if there is none
  DesignLengths designLengths;
  SiteAquifer aquifer;
  SiteWater water;
  SiteSurrounding surrounding;
  double rockHeatCapacity;     ///< of the aquifer and of the rock around it [J/(kg K)]
  double gravity;              ///< that the permeability follows from [m/s2]
  double referenceTemperature; ///< at the start of the run [deg C]
  bool closedLoop;             ///< what is withdrawn is injected
  SiteCells cells;
  Tolerances tolerances;

  bool operator==(const SiteInput&) const = default;

  /// Whether the rates of the wells change within a year.
  bool hasPeriods() const { return periods.size() > 1; }
};

SiteInput readSite(const ProjectReader& project);

/// What the output times of a project depend on.
OutputTimeInput outputTimeInput(const ProjectReader& project, int cycleLength);

} // namespace TVR
