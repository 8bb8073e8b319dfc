#pragma once

#include <QString>

namespace TVR {

/// The language that the user's settings ask for: of the last parameter set, else of the system,
/// else of the previous program generation. Two letters; empty if nobody knows.
QString preferredLanguage();

/// Keeps a language in the user's settings as the preferred one.
void keepLanguage(const QString& language);

} // namespace TVR
