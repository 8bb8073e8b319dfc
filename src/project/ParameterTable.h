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

/// One parameter of a project: its name in files, the name that the previous program generation
/// gave it, its label for the user, and the unit of its stored value, all empty where there is
/// none, and its range. Checks of files and of sites, and fields of forms, take the bounds from
/// here.
struct ParameterRow {
  int id;
  const char* key;
  const char* formerKey;
  const char* label;
  ParameterKind kind;
  const char* unit;
  ParameterRange range = {};
};

/// The table of all parameters; row i is the parameter with id i.
const std::array<ParameterRow, Parameter::Count>& parameterTable();
/// The row of an id from 0 to Parameter::Count - 1.
const ParameterRow& parameterRow(int id);

/// Three sets of parameters decide where a value becomes a truth value. They differ on purpose:
/// each belongs to its own way into the store.
bool isFlagInDefaults(int id);
bool isFlagOnWrite(int id);
bool isFlagInProjectFile(int id);

/// Texts for which "0.0" stands for nothing.
bool isClearableText(int id);

/// Translation context of the parameter labels.
class ParameterName : public QObject {
  Q_OBJECT
public:
  /// Label in the language of the moment; empty for a parameter without one or an unknown id.
  static QString label(int id);
};

} // namespace TVR
