#pragma once

#include "design/ParameterAccess.h"

#include <string>
#include <string_view>

namespace TVR {

/// Everything that a dependency rule may do to the project besides reading and writing numbers.
/// The store implements it; a test implements it over a map.
class RuleTarget : public ParameterAccess {
public:
  /// Value as stored, without the conversions of `number`.
  virtual double storedNumber(int id) const = 0;
  virtual std::string text(int id) const = 0;

  virtual void writeFlag(int id, bool value) = 0;
  virtual void writeText(int id, const std::string& value) = 0;

  /// Direct stores: no rule runs and no signal is emitted. They are what keeps the network of rules
  /// free of cycles.
  virtual void mirror(int id, double value) = 0;
  /// Direct store of the value of `source` into `id`, as stored, whatever its type.
  virtual void mirrorStored(int id, int source) = 0;

  /// Writes to `id` the value of the column of `column` in row `row` of its reference table; an
  /// unknown row leaves `id` as it is.
  virtual void writeReferenceValue(int id, int column, int row) = 0;
  /// Writes every column of a row of a reference table to the parameter of the same key.
  virtual void applyReferenceRow(std::string_view table, int row) = 0;
  /// Diameter [mm] in row `row` (from 1) of the table of filters; 0 if there is none.
  virtual double providedFilterDiameter(int row) const = 0;

  /// Brings the well positions to `count` entries and lets the well model follow, if it exists.
  virtual void resizeWells(int count) = 0;
  /// Forgets what was entered well by well, if the well model exists.
  virtual void clearWells() = 0;
  /// Makes sure that the tables of wells and demand exist, and gives the latter `count` periods.
  virtual void resizeDemandPeriods(int count) = 0;

  virtual void emitStartSimulation() = 0;
  virtual void emitUpdateCurrentGraphic() = 0;
};

} // namespace TVR
