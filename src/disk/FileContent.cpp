#include "disk/FileContent.h"

#include <QFile>

namespace TVR {

QByteArray contentOf(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace TVR
