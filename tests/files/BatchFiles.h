#pragma once

#include "store/StoreTest.h"
#include "support/MessageLog.h"
#include "support/TestDirectory.h"

#include <QFile>

namespace TVR::Data {

/// Reads and writes batch files in a directory of its own.
class BatchFileTest : public StoreTest, protected TestDirectory {
protected:
  /// Reads a file with these contents into the store, under a name of its own.
  void read(const QByteArray& contents) {
    const QString name = path(QString("run%1.tbat").arg(++files_));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    EXPECT_TRUE(readFile(name));
  }
  bool readFile(const QString& name) {
    QMap<QString, int> fieldIds;
    const bool done = store.read(name, fieldIds);
    EXPECT_TRUE(fieldIds.isEmpty());
    return done;
  }
  /// Writes the store to a file and gives its lines.
  QStringList write(const QString& name) {
    EXPECT_TRUE(store.write(path(name), nullptr, {}));
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
  }
  /// The text behind "key=" in such lines; empty if the key is missing.
  static QString textOf(const QStringList& lines, const QString& key) {
    for (const QString& line : lines)
      if (line.startsWith(key + '='))
        return line.mid(key.size() + 1);
    return {};
  }

private:
  int files_ = 0;
};

} // namespace TVR::Data
