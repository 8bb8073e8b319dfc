#include "fuzz/FuzzFile.h"

#include "store/Manager.h"
#include "tests/support/NoSettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace TVR::Fuzz {

void startApplication(int* argc, char*** argv) {
  keepNoSettings();
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static const auto* const application = new QCoreApplication(*argc, *argv); // never ended
  Q_UNUSED(application)
}

void readAndWrite(const std::uint8_t* bytes, std::size_t size, const QString& ending) {
  static const QTemporaryDir directory;
  // A new name each time: settings files are kept in memory by their names.
  static int number = 0;
  const QString name = directory.filePath(QString::number(++number));
  QFile given(name + ending);
  if (!given.open(QIODevice::WriteOnly))
    std::abort();
  given.write(reinterpret_cast<const char*>(bytes), static_cast<qint64>(size));
  given.close();

  Data::Manager* const store = Data::Manager::instance();
  QMap<QString, int> fieldIds;
  if (store->read(given.fileName(), fieldIds)) {
    QFile written(name + "_written" + ending);
    if (store->write(written.fileName(), nullptr, fieldIds) &&
        !store->read(written.fileName(), fieldIds))
      std::abort();
    written.remove();
  }
  given.remove();
}

} // namespace TVR::Fuzz
