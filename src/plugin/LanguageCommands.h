#pragma once

#include <QList>
#include <QString>

class QTranslator;

namespace TVR {

namespace Data {
class Manager;
}

class MainWindowParts;

/// The language of the program: what it speaks, and what it is told to speak.
class LanguageCommands {
public:
  /// Everything that is given outlives this object.
  LanguageCommands(Data::Manager& store, MainWindowParts& parts) : store_(store), parts_(parts) {}
  /// Takes the translations out of the application.
  ~LanguageCommands();
  LanguageCommands(const LanguageCommands&) = delete;
  LanguageCommands& operator=(const LanguageCommands&) = delete;

  /// The language of the project, two letters.
  QString language() const;
  /// Speaks a language, and tells the host of it; any but German and French counts as English.
  /// Without `force` nothing is done for the one that is spoken already.
  void set(const QString& locale, bool force);
  /// Speaks a language from now on, and at the next start.
  void choose(const QString& language);

private:
  Data::Manager& store_;
  MainWindowParts& parts_;
  QList<QTranslator*> translators_;
};

} // namespace TVR
