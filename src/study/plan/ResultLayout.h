#pragma once

#include "study/plan/Raster.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace TVR::Study {

/// The quantities of interest of a run.
enum class Quantity {
  PlumeLength,    ///< along the flow, of where the temperature has changed by a level or more [m]
  PlumeWidth,     ///< across the flow, of the same [m]
  PlumeArea,      ///< of the same [m2]
  DrawdownMax,    ///< the largest of all cells [m]
  Drawdown,       ///< at a well [m], below 0 where the water rises
  Temperature,    ///< of a well [deg C]
  TemperatureMin, ///< of a well during the whole run [deg C]
  TemperatureMax  ///< of a well during the whole run [deg C]
};

/// What kind of figure a quantity is.
enum class QuantityKind { Extent, Area, Drawdown, Temperature };
QuantityKind kindOf(Quantity quantity);

/// The name of a quantity in study files and tables, and its unit.
QString nameOf(Quantity quantity);
QString unitOf(Quantity quantity);
/// The names of all quantities, in their order.
const QStringList& quantityNames();

/// A number that a run has for an answer, and what it belongs to, by places in the lists of the
/// layout; none where it belongs to the whole site, to no level, or to the whole run.
struct Scalar {
  Quantity quantity;
  std::optional<std::size_t> well;
  std::optional<std::size_t> level;
  std::optional<std::size_t> time;
  /// It is how far the mesh may have put the quantity off, to either side.
  bool isMeshBand = false;
};

/// The name of an answer in tables, and its unit: "plume_length", "temperature_mesh_band".
QString nameOf(const Scalar& scalar);
QString unitOf(const Scalar& scalar);

/// Numbers that a well of a run has for an answer, one for each of ResultLayout::seriesTimes.
struct Series {
  Quantity quantity;
  std::size_t well;
};

/// What the runs of a study answer, in which order: the same for all of them.
struct ResultLayout {
  QStringList keys;                ///< that are varied, as in batch files
  QStringList keyUnits;            ///< of their numbers
  QStringList wells;               ///< names, in the order of the table of wells
  QStringList quantities;          ///< of the scalars, by name
  std::vector<double> times;       ///< of maps and scalars [a], ascending
  std::vector<double> levels;      ///< of temperature changes [K], ascending
  std::vector<double> seriesTimes; ///< [a], ascending
  Raster raster;
  bool meshBands = false; ///< of all scalars, for which each run is computed on three meshes

  /// A run's scalars, in their order in a record; mesh bands, if any, in the same order behind
  /// them.
  std::vector<Scalar> scalars() const;
  /// For the head of a table, with the unit: "plume_length 3 K 30 a [m]".
  QString title(const Scalar& scalar) const;
  /// A run's series, in their order in a record.
  std::vector<Series> series() const;
  /// The maps of exceedance: one for each time and level, the levels of a time one after the other.
  std::size_t maps() const { return times.size() * levels.size(); }

  bool operator==(const ResultLayout&) const = default;
};

QJsonObject toJson(const ResultLayout& layout);
/// None if it is no layout.
std::optional<ResultLayout> layoutFromJson(const QJsonObject& json);
/// The same for equal layouts only.
QByteArray idOf(const ResultLayout& layout);

} // namespace TVR::Study
