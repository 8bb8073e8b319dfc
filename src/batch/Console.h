#pragma once

#include "batch/Options.h"

#include <QString>

namespace TVR::Batch {

/// A text without anything that a terminal could take for a command: control characters, line
/// breaks among them, and marks that turn the direction of writing become their numbers, as
/// "\u001b". All that follows writes only what is printable: names and values come from files of
/// anybody.
QString printable(const QString& text);

/// A line of results on the standard output.
void printLine(const QString& line);

/// The lines of a text on the standard output.
void printText(const QString& text);

/// A line about a file (or about nothing in particular, if empty) on the standard error output,
/// behind the program's name.
void printMessage(const QString& file, const QString& text);

/// Whether every line of results has reached the standard output.
bool hasPrintedAll();

/// Whether the standard error output is a terminal.
bool isTerminal();

/// Sends Qt's messages to the standard error output: debug lines and
/// information only if `talk` is verbose.
void routeMessages(Talk talk);

} // namespace TVR::Batch
