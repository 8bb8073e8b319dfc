#pragma once

#include <QCoreApplication>
#include <QString>

class QObject;

namespace TVR::Desktop {

/// Finds and loads the plug-in of the program.
class PluginLoading {
  Q_DECLARE_TR_FUNCTIONS(PluginLoading)

public:
  /// The folder "plugins" beside that of the program.
  static QString usualDirectory();

  /// Loads the first library of the directory that says of itself that it is the plug-in. Null if
  /// there is none or it can't be loaded; `fault` then says why, for the user. The object lives
  /// until the program ends or somebody deletes it.
  static QObject* load(const QString& directory, QString& fault);
};

} // namespace TVR::Desktop
