#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

namespace TVR::Study {

/// Reads a CSV table line by line, as spreadsheets and statistical programs write it: with commas
/// between the cells, or with semicolons if the first line has no comma. A cell may stand in double
/// quotes, within which a separator belongs to it and two quotes are one; spaces around it don't
/// count. No cell goes on in the next line.
class CsvReader {
public:
  explicit CsvReader(const QString& fileName) : file_(fileName) {}

  /// False if the file can't be read or is larger.
  bool open(qint64 mostBytes);
  bool atEnd() const { return file_.atEnd(); }
  /// The cells of the next line; none if it is empty.
  QStringList next();
  /// Where the line is that was read last: "table.csv, line 3"; before the first one "table.csv".
  QString place() const;

private:
  QFile file_;
  QChar separator_ = ',';
  int line_ = 0;
};

} // namespace TVR::Study
