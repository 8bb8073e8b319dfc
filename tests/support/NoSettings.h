#pragma once

#include <QByteArray>

/// A place for the user's settings and data where nothing can be kept, by nobody: a test program
/// reads none of the user's and leaves none.
inline constexpr char noSettings[] = "/proc/tevrane-tests";

/// For the whole of a test program and the programs that it starts; to be called before any setting
/// is read. Texts are English, whatever the locale of the system: numbers still follow that.
inline void keepNoSettings() {
  qputenv("XDG_CONFIG_HOME", noSettings);
  qputenv("XDG_DATA_HOME", noSettings);
  qputenv("LANGUAGE", "en");
}
