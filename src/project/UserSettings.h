#pragma once

#include <QSettings>

namespace TVR {

/// The settings that the program keeps for its user.
inline QSettings userSettings() {
  return QSettings("Norvalt", "Tevrane");
}

/// Those of the previous program generation, which are only read.
inline QSettings formerUserSettings() {
  return QSettings("Norvaltwerk", "TevraneDesign");
}

} // namespace TVR
