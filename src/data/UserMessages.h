#pragma once

#include <QString>

namespace TVR {

/// The program's name as it stands in titles.
inline constexpr char programTitle[] = "Tevrane";

enum class Severity { Information, Warning, Critical };

/// Tells the user something: a message box where there is a screen, a line of the log where there
/// is none (no window system, or a platform that draws off screen).
void tellUser(Severity severity, const QString& title, const QString& text);

/// Asks whether to go on, with the buttons Ok and Cancel. Where there is no screen nobody can
/// object: the answer is yes.
bool userAgrees(const QString& title, const QString& text);

} // namespace TVR
