#include "plugin/Languages.h"

#include "project/UserSettings.h"

#include <QLocale>

namespace TVR {

namespace {

constexpr char languageKey[] = "last_parameter_set/gui_language";

/// Messages may have another language than numbers and dates.
QString languageOfTheSystem() {
  return QLocale::system().uiLanguages().value(0).left(2);
}

} // namespace

QString preferredLanguage() {
  const QSettings current = userSettings();
  const QString system = languageOfTheSystem();
  const QString language = current.value(languageKey, system).toString();
  if (!language.isEmpty())
    return language;
  return formerUserSettings().value("current/gui_language").toString();
}

void keepLanguage(const QString& language) {
  userSettings().setValue(languageKey, language);
}

} // namespace TVR
