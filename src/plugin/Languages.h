#pragma once

#include <QList>
#include <QString>

class QTranslator;

namespace TVR {

/// The language that the user's settings ask for: of the last parameter set, else of the system,
/// else of the previous program generation. Two letters; empty if nobody knows.
QString preferredLanguage();

/// Keeps a language in the user's settings as the preferred one.
void keepLanguage(const QString& language);

/// Loads and installs every translation file of a language; one that can't be loaded is named in
/// the debug log. They lie in "translations" beside the program's directory.
QList<QTranslator*> installTranslators(const QString& locale);

/// Takes the translators out of the application and empties the list.
void removeTranslators(QList<QTranslator*>& translators);

} // namespace TVR
