#include "store/DatabaseCheck.h"

#include "store/StoreText.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace TVR::Data {

namespace {

constexpr char magic[] = "SQLite format 3"; // and a zero byte
constexpr int headerSize = 100;
constexpr int userVersion = 60;

/// The first digits of the hash of all bytes, written in hexadecimal, but for the check sum itself
/// and the counters that SQLite renews when it is written. The build does the same.
quint32 checkSum(const QByteArray& bytes) {
  const QByteArray hex = bytes.toHex();
  const QByteArray kept = hex.left(48) + hex.mid(56, 64) + hex.mid(128, 56) + hex.mid(200);
  return QCryptographicHash::hash(kept, QCryptographicHash::Sha256)
      .toHex()
      .left(7)
      .toUInt(nullptr, 16);
}

bool keepsCheckSumIn(const QByteArray& bytes) {
  if (bytes.size() < headerSize)
    return false;
  const auto carried = qFromBigEndian<quint32>(bytes.constData() + userVersion);
  return carried == 0 || carried == checkSum(bytes);
}

} // namespace

bool keepsCheckSum(const QString& file) {
  QFile database(file);
  return !database.open(QIODevice::ReadOnly) || keepsCheckSumIn(database.readAll());
}

QString databaseFault(const QString& file) {
  if (!QFile::exists(file))
    return StoreText::tr("the reference database is missing: %1").arg(file);
  QFile database(file);
  if (!QFileInfo(file).isFile() || !database.open(QIODevice::ReadOnly))
    return StoreText::tr("the reference database can't be read: %1").arg(file);
  const QByteArray bytes = database.readAll();
  if (!bytes.startsWith(QByteArray(magic, sizeof magic)) || !keepsCheckSumIn(bytes))
    return StoreText::tr("the reference database is damaged: %1").arg(file);
  return {};
}

} // namespace TVR::Data
