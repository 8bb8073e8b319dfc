#include "results/ShapefileSet.h"

#include <QFile>
#include <QtEndian>

namespace TVR {

namespace {

enum Member { Table, Index, CodePage, Shapes };
/// In the order of Member.
constexpr const char* endings[] = {".dbf", ".shx", ".cpg", ".shp"};

/// What the header of one of the files says of it.
struct Announced {
  qint64 length = -1; ///< [bytes]
  qint64 records = -1;
};

constexpr int shapeHeaderLength = 100; // [bytes]
constexpr int indexEntryLength = 8;

Announced announcedByIndex(const char* header) {
  const qint64 length = 2 * qint64(qFromBigEndian<quint32>(header + 24));
  return {length, (length - shapeHeaderLength) / indexEntryLength};
}

Announced announcedByTable(const char* header) {
  const qint64 records = qFromLittleEndian<quint32>(header + 4);
  return {qFromLittleEndian<quint16>(header + 8) +
              records * qFromLittleEndian<quint16>(header + 10),
          records};
}

/// The number of records in a file; -1 if it is shorter than it announces.
qint64 recordsIn(const QString& fileName, Announced (*announcedBy)(const char* header)) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return -1;
  const QByteArray header = file.read(shapeHeaderLength);
  if (header.size() < shapeHeaderLength)
    return -1;
  const Announced announced = announcedBy(header);
  return file.size() >= announced.length ? announced.records : -1;
}

} // namespace

QString shapefileBase(const QString& fileName) {
  for (const Member member : {Table, Index, Shapes})
    if (const QLatin1String ending(endings[member]); fileName.endsWith(ending, Qt::CaseInsensitive))
      return fileName.chopped(ending.size());
  return fileName;
}

QStringList shapefileNames(const QString& fileName) {
  QStringList names;
  for (const char* ending : endings)
    names << shapefileBase(fileName) + ending;
  return names;
}

ShapefileSet::ShapefileSet(const QString& fileName) : files_(shapefileNames(fileName)) {}

QString ShapefileSet::aside() const {
  return files_.aside(Shapes);
}

bool ShapefileSet::commit() {
  return isComplete() && writeCodePage() && files_.commit();
}

/// Whether all that was written is there: the library does not tell when the disk is full.
bool ShapefileSet::isComplete() const {
  const qint64 records = recordsIn(files_.aside(Index), &announcedByIndex);
  return records >= 0 && recordsIn(files_.aside(Shapes), &announcedByIndex) >= 0 &&
         recordsIn(files_.aside(Table), &announcedByTable) == records;
}

bool ShapefileSet::writeCodePage() const {
  QFile file(files_.aside(CodePage));
  return file.open(QIODevice::WriteOnly) && file.write("UTF-8") > 0 && file.flush();
}

} // namespace TVR
