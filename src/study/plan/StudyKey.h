#pragma once

#include "project/ParameterRange.h"
#include "project/ProjectTables.h"

#include <QString>

#include <optional>

namespace TVR::Study {

/// A cell of a table of the project.
struct KeyCell {
  ProjectTable table;
  int row;
  int column;
};

/// A number of a batch file that a study may vary: a key, or a cell of a table such as
/// "well_model\2\3". Range and unit are those of the number in the batch file.
struct StudyKey {
  QString name;    ///< as in a batch file, where no two sections have a key in common
  QString section; ///< of the batch file
  QString unit;    ///< "-" for none
  ParameterRange range;
  bool isChoice = false;       ///< whole numbers that no distribution but a list makes sense for
  int parameter = -1;          ///< Parameter::Id; -1 for a cell
  std::optional<KeyCell> cell; ///< none for a parameter

  /// Whether a batch file may hold this number, and which ones it may: "0 to 1 m".
  bool takes(double number) const;
  QString expected() const;
  /// The number as the project stores it.
  double inStore(double number) const;
};

/// The key of this name; none if there is no such key, or if it is no number, says how many wells
/// or demand periods there are, or is overruled by another key.
std::optional<StudyKey> studyKey(const QString& name);

} // namespace TVR::Study
