#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <memory>
#include <vector>

/// The texts of the program and of the library in a language ("de", "en", "fr"), as users have
/// them, while this object lives.
class ProgramLanguage {
public:
  explicit ProgramLanguage(const QString& language) {
    const QDir directory(QCoreApplication::applicationDirPath() + "/../translations");
    for (const QString& file : directory.entryList({"*_" + language + ".qm"})) {
      auto& translator = translators_.emplace_back(std::make_unique<QTranslator>());
      translator->load(file, directory.path());
      QCoreApplication::installTranslator(translator.get());
    }
  }

private:
  std::vector<std::unique_ptr<QTranslator>> translators_; // each takes itself out at its end
};
