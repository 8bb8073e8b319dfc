#include "plugin/Languages.h"

#include "project/UserSettings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLocale>
#include <QTranslator>

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

QList<QTranslator*> installTranslators(const QString& locale) {
  QList<QTranslator*> translators;
  const QDir directory(
      QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../translations"));
  for (const QString& file : directory.entryList({QStringLiteral("*_%1.qm").arg(locale)})) {
    auto* translator = new QTranslator;
    if (translator->load(file, directory.path())) {
      QCoreApplication::installTranslator(translator);
      translators.append(translator);
    } else {
      qDebug() << file;
      delete translator;
    }
  }
  return translators;
}

void removeTranslators(QList<QTranslator*>& translators) {
  if (!QCoreApplication::instance()) {
    qDeleteAll(translators); // the library is unloaded behind the application
    translators.clear();
  }
  for (QTranslator* translator : translators) {
    QCoreApplication::removeTranslator(translator);
    translator->deleteLater();
  }
  translators.clear();
}

} // namespace TVR
