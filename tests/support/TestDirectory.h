#pragma once

#include <QFile>
#include <QTemporaryDir>

/// A directory of a test's own, for the files that it makes; it goes when the test is over.
class TestDirectory {
protected:
  QString path(const QString& name) const { return directory.filePath(name); }

  /// Empty if the file cannot be opened.
  static QByteArray contentOf(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  const QTemporaryDir directory;
};
