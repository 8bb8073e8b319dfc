#include "messages/Translators.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QTranslator>

namespace TVR {

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

SpokenLanguage::~SpokenLanguage() {
  qDeleteAll(translators_); // each takes itself out of the application
}

} // namespace TVR
