#pragma once

#include <QString>

namespace TVR {

/// How much the program says: Quiet errors only, Normal also warnings, progress and a summary,
/// Verbose also the diagnostic lines.
enum class Talk { Quiet, Normal, Verbose };

/// A line of results on the standard output. All of these write only what is printable: names and
/// values come from files of anybody.
void printLine(const QString& line);

/// The lines of a text on the standard output.
void printText(const QString& text);

/// A line about a file (or about nothing in particular, if empty) on the standard error output,
/// behind the application's name.
void printMessage(const QString& file, const QString& text);

/// Whether every line of results has reached the standard output.
bool hasPrintedAll();

/// Whether the standard error output is a terminal.
bool isTerminal();

/// Sends Qt's messages to the standard error output: debug lines and
/// information only if `talk` is verbose.
void routeMessages(Talk talk);

} // namespace TVR
