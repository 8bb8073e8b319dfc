#include "desktop/FileTypes.h"

#include <QDir>
#include <QFileInfo>
#include <QMetaMethod>
#include <QMimeData>
#include <QUrl>

namespace TVR::Desktop {

void FileTypes::addFileType(const QString& pattern, const QString& /*description*/,
                            QObject* receiver, const char* slot, int /*flag*/) {
  if (receiver && slot && *slot != '\0') // the first letter of a SLOT() text says that it is one
    types_.push_back({pattern, receiver, QMetaObject::normalizedSignature(slot + 1)});
}

const FileTypes::FileType* FileTypes::typeOf(const QString& file) const {
  const QString name = QFileInfo(file).fileName();
  for (const FileType& type : types_)
    if (type.receiver && QDir::match(type.pattern, name))
      return &type;
  return nullptr;
}

QStringList FileTypes::openable(const QMimeData& dragged) const {
  QStringList files;
  for (const QUrl& url : dragged.urls()) {
    const QString file = url.toLocalFile();
    if (typeOf(file))
      files.append(file);
  }
  return files;
}

bool FileTypes::open(const QString& file) const {
  const FileType* const type = typeOf(file);
  if (!type)
    return false;
  const QMetaObject* const face = type->receiver->metaObject();
  const int index = face->indexOfMethod(type->slot);
  return index >= 0 &&
         face->method(index).invoke(type->receiver, Qt::DirectConnection, Q_ARG(QString, file));
}

} // namespace TVR::Desktop
