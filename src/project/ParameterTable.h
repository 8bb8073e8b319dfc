#pragma once

#include "design/ParameterId.h"
#include "project/ParameterRange.h"

#include <QObject>
#include <QString>

#include <array>

namespace TVR {

/// What a parameter's value is. A heading has no value, a view is built from other parameters
/// whenever it is read.
enum class ParameterKind { Text, Flag, Heading, Number, Count, View, Point, List };

/// What else is to know about a parameter, as bits. Required oddity: each way into the store makes
/// a truth value of parameters of its own.
enum ParameterTrait : unsigned {
  FlagInDefaults = 1U << 0,    ///< a truth value on reading the defaults
  FlagOnWrite = 1U << 1,       ///< a truth value on a write to the store
  FlagInProjectFile = 1U << 2, ///< a truth value when read from a project file
  FlagInSettings = 1U << 3,    ///< a truth value when read from the user's settings
  FlagEverywhere = FlagInDefaults | FlagOnWrite | FlagInProjectFile | FlagInSettings,
  WordInBatchFile = 1U << 4, ///< "true" and "false" count in a batch file, not only 1 and 0
  ClearableText = 1U << 5,   ///< a text for which "0.0" stands for nothing
  ReadsAsShown = 1U << 6,    ///< the store gives the value in the shown unit
};

/// How forms, tables and reports show the numbers of a parameter.
struct ShownNumber {
  const char* unit = nullptr; ///< in a row never null
  /// A number is shown times `factor` and through `divisor`: two of them, so that neither way
  /// rounds twice.
  double factor = 1;
  double divisor = 1;
  int decimals = 2;  ///< digits behind the point that a field takes, in the shown unit
  char format = 'f'; ///< of QString::number: 'f', or 'e' where values span decades
};

/// One parameter of a project: its name in files, the name that the previous program generation
/// gave it, its label for the user, the unit of its stored value, all empty where there is none,
/// its range in that unit, how it is shown, and its traits (ParameterTrait). Checks of files and
/// of sites, tables, reports and fields of forms take units and bounds from here.
struct ParameterRow {
  int id;
  const char* key;
  const char* formerKey;
  const char* label;
  ParameterKind kind;
  const char* unit;
  ParameterRange range;
  ShownNumber shown;
  unsigned traits;

  constexpr bool has(ParameterTrait trait) const { return (traits & trait) != 0; }
  /// A stored number in the shown unit, and the other way.
  constexpr double toShown(double stored) const { return stored * shown.factor / shown.divisor; }
  constexpr double toStored(double number) const { return number * shown.divisor / shown.factor; }
  /// Unit of what the store gives.
  constexpr const char* unitOfValue() const { return has(ReadsAsShown) ? shown.unit : unit; }
};

/// The table of all parameters; row i is the parameter with id i.
const std::array<ParameterRow, Parameter::Count>& parameterTable();
/// The row of an id from 0 to Parameter::Count - 1.
const ParameterRow& parameterRow(int id);

/// Whether the row of an id has the trait of the same name; false for an unknown id.
bool isFlagInDefaults(int id);
bool isFlagOnWrite(int id);
bool isFlagInProjectFile(int id);
bool isFlagInSettings(int id);
bool isWordInBatchFile(int id);
bool isClearableText(int id);

/// The unit in which a parameter is shown, in the language of the moment.
QString shownUnit(const ParameterRow& row);
/// The same as rich text; empty for "-".
QString richUnit(const ParameterRow& row);

/// Translation context of the parameter labels.
class ParameterName : public QObject {
  Q_OBJECT
public:
  /// Label in the language of the moment; empty for a parameter without one or an unknown id.
  static QString label(int id);
};

} // namespace TVR
