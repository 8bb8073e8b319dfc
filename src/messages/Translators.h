#pragma once

#include <QList>
#include <QString>

class QTranslator;

namespace TVR {

/// Loads and installs every translation file of a language; one that can't be loaded is named in
/// the debug log. They lie in "translations" beside the program's directory.
QList<QTranslator*> installTranslators(const QString& locale);

/// Takes the translators out of the application and empties the list.
void removeTranslators(QList<QTranslator*>& translators);

/// The program speaks a language ("de", "en" or "fr") while this object lives.
class SpokenLanguage {
public:
  explicit SpokenLanguage(const QString& language) : translators_(installTranslators(language)) {}
  ~SpokenLanguage();
  SpokenLanguage(const SpokenLanguage&) = delete;
  SpokenLanguage& operator=(const SpokenLanguage&) = delete;

private:
  const QList<QTranslator*> translators_;
};

} // namespace TVR
