#include "desktop/PluginLoading.h"

#include "host/TVRInterface.h"

#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

namespace TVR::Desktop {

QString PluginLoading::usualDirectory() {
  return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../plugins");
}

QObject* PluginLoading::load(const QString& directory, QString& fault) {
  const QDir libraries(directory);
  for (const QString& name : libraries.entryList(QDir::Files)) {
    const QString file = libraries.filePath(name);
    if (!QLibrary::isLibrary(file))
      continue;
    QPluginLoader loader(file);
    if (loader.metaData().value("IID").toString() != TVR_PLUGIN_IID)
      continue;
    QObject* const object = loader.instance();
    if (qobject_cast<TVRInterface*>(object))
      return object;
    fault =
        tr("The plug-in %1 cannot be loaded: %2\n\nTo solve this problem, please re-install the "
           "program.")
            .arg(QDir::toNativeSeparators(file), loader.errorString());
    return nullptr;
  }
  fault = tr("The plug-in of the program is missing: there is none in the folder %1.\n\nTo solve "
             "this problem, please re-install the program.")
              .arg(QDir::toNativeSeparators(directory));
  return nullptr;
}

} // namespace TVR::Desktop
