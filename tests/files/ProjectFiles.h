#pragma once

#include "store/StoreTest.h"
#include "support/TestDirectory.h"

#include <QDomDocument>
#include <QFile>

namespace TVR::Data {

/// Reads and writes project files in a directory of its own.
class ProjectFileTest : public StoreTest, protected TestDirectory {
protected:
  using Ids = QMap<QString, int>;

  static bool writeBytes(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
  }
  static QByteArray bytesOf(const QString& name) {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  /// Reads a file with these contents.
  bool readText(const QByteArray& text) {
    const QString name = path("read.tvr");
    EXPECT_TRUE(writeBytes(name, text));
    return store.read(name, ids);
  }
  /// Reads a file of this version with these elements as its parameters.
  bool readParameters(const QByteArray& elements, const QByteArray& version = "2.0.7",
                      const QByteArray& rest = {}) {
    return readText("<TVR><__application_version><__version>" + version +
                    "</__version></__application_version><__parameter_set>" + elements +
                    "</__parameter_set>" + rest + "</TVR>");
  }
  static QByteArray parameter(const QByteArray& key, const QByteArray& value) {
    return "<parameter><name>" + key + "</name><value>" + value + "</value><unit/></parameter>";
  }
  static QByteArray cell(int row, int column, const QByteArray& value) {
    return "<value row=\"" + QByteArray::number(row) + "\" column=\"" + QByteArray::number(column) +
           "\" unit=\"\">" + value + "</value>";
  }
  static QByteArray table(const QByteArray& name, const QByteArray& rows, const QByteArray& columns,
                          const QByteArray& cells = {}) {
    return "<parameter row=\"" + rows + "\" column=\"" + columns + "\"><name>" + name + "</name>" +
           cells + "</parameter>";
  }
  static QByteArray table(const QByteArray& name, int rows, int columns,
                          const QByteArray& cells = {}) {
    return table(name, QByteArray::number(rows), QByteArray::number(columns), cells);
  }

  /// The document in a file. It lives until the next one, and its elements no longer.
  const QDomDocument& documentOf(const QString& name) {
    EXPECT_TRUE(document_.setContent(bytesOf(name))) << name.toStdString();
    return document_;
  }
  /// Writes the store without a page and gives the document.
  const QDomDocument& written() {
    const QString name = path("written.tvr");
    EXPECT_TRUE(store.write(name, nullptr, {}));
    return documentOf(name);
  }
  static QDomElement parameterSet(const QDomDocument& document) {
    return document.documentElement().firstChildElement("__parameter_set");
  }
  /// The element of a parameter or table; null if there is none.
  static QDomElement element(const QDomDocument& document, const QString& name) {
    QDomElement found = parameterSet(document).firstChildElement("parameter");
    while (!found.isNull() && found.firstChildElement("name").text() != name)
      found = found.nextSiblingElement("parameter");
    return found;
  }
  static QString valueOf(const QDomDocument& document, const QString& key) {
    return element(document, key).firstChildElement("value").text();
  }

  Ids ids;

private:
  QDomDocument document_;
};

} // namespace TVR::Data
