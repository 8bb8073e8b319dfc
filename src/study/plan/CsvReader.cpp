#include "study/plan/CsvReader.h"

#include <QFileInfo>

namespace TVR::Study {

namespace {

/// Without spaces around it, and without quotes around that.
QString plainCell(const QString& cell) {
  QString plain = cell.trimmed();
  if (plain.size() < 2 || !plain.startsWith('"') || !plain.endsWith('"'))
    return plain;
  return plain.mid(1, plain.size() - 2).replace("\"\"", "\"").trimmed();
}

QStringList cellsOf(const QString& line, QChar separator) {
  QStringList cells;
  int begin = 0;
  bool isQuoted = false;
  for (int i = 0; i <= line.size(); ++i) {
    const bool isEnd = i == line.size() || (line[i] == separator && !isQuoted);
    if (isEnd) {
      cells << plainCell(line.mid(begin, i - begin));
      begin = i + 1;
    } else if (line[i] == '"') {
      isQuoted = !isQuoted;
    }
  }
  return cells;
}

} // namespace

bool CsvReader::open(qint64 mostBytes) {
  return file_.open(QIODevice::ReadOnly) && file_.size() <= mostBytes;
}

QStringList CsvReader::next() {
  ++line_;
  const QString line = QString::fromUtf8(file_.readLine()).trimmed();
  if (line_ == 1 && !line.contains(',') && line.contains(';'))
    separator_ = ';';
  return line.isEmpty() ? QStringList() : cellsOf(line, separator_);
}

QString CsvReader::place() const {
  const QString name = QFileInfo(file_.fileName()).fileName();
  return line_ == 0 ? name : QStringLiteral("%1, line %2").arg(name).arg(line_);
}

} // namespace TVR::Study
