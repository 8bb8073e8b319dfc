#pragma once

#include <QString>

#include <vector>

namespace TVR {

/// A part of the program as it was built.
struct BuiltPart {
  const char* label; ///< to be translated in the context of the plug-in
  QString version;
  QString revision; ///< "-" for a library that was not built here
  QString date;     ///< of the build
};

/// The plug-in, and behind it the libraries that it is linked with.
std::vector<BuiltPart> builtParts();

} // namespace TVR
