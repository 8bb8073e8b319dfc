#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace TVR::Desktop {

/// What the user asks for as the program starts.
struct CommandLine {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
  QStringList files;
  QString language;            ///< "de", "en" or "fr"; empty for that of the settings
  bool quitsWhenReady = false; ///< to measure the start
  QString answer;              ///< to be printed instead of a start; empty if there is none
  QString fault;               ///< what can't be understood; empty if there is none

  /// The first of the arguments is the program.
  static CommandLine parse(const QStringList& arguments);
};

} // namespace TVR::Desktop
