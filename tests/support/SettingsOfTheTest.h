#pragma once

#include "support/NoSettings.h"

#include <QSettings>
#include <QTemporaryDir>

/// Empty settings of the user in a directory of their own, while this object lives.
class SettingsOfTheTest {
public:
  SettingsOfTheTest() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory_.path());
    clear();
  }
  ~SettingsOfTheTest() {
    clear();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, noSettings);
  }
  SettingsOfTheTest(const SettingsOfTheTest&) = delete;
  SettingsOfTheTest& operator=(const SettingsOfTheTest&) = delete;

  static QSettings current() { return QSettings("Norvalt", "Tevrane"); }
  /// Of the previous generation of the program.
  static QSettings former() { return QSettings("Norvaltwerk", "TevraneDesign"); }
  /// The language of the last parameter set.
  static void chooseLanguage(const QString& language) {
    current().setValue("last_parameter_set/gui_language", language);
  }

private:
  static void clear() {
    current().clear();
    former().clear();
  }

  const QTemporaryDir directory_;
};
