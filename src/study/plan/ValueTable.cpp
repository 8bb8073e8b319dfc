#include "study/plan/ValueTable.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace TVR::Study {

namespace {

constexpr qint64 mostBytes = 1LL << 30;
constexpr int mostErrors = 20;

class TableReader {
public:
  TableReader(const QString& fileName, Findings& findings)
      : file_(fileName), name_(QFileInfo(fileName).fileName()), findings_(findings) {}

  ValueTable read() {
    if (!file_.open(QIODevice::ReadOnly) || file_.size() > mostBytes) {
      fail("expected a CSV table of at most 1 GiB that can be read");
      return {};
    }
    readHead();
    while (errors_ == 0 && !file_.atEnd())
      readRow();
    if (errors_ == 0 && table_.rows() == 0)
      fail("expected a row of keys and a row of values for each run");
    return errors_ == 0 ? table_ : ValueTable();
  }

private:
  void fail(const QString& text) {
    if (++errors_ <= mostErrors)
      findings_.errors << QStringLiteral("%1, line %2: %3").arg(name_).arg(line_).arg(text);
  }

  QStringList nextLine() {
    ++line_;
    const QString line = QString::fromUtf8(file_.readLine()).trimmed();
    if (line_ == 1)
      separator_ = line.contains(',') || !line.contains(';') ? ',' : ';';
    QStringList cells;
    for (const QString& cell : line.split(separator_))
      cells << cell.trimmed();
    return line.isEmpty() ? QStringList() : cells;
  }

  void readHead() {
    for (const QString& name : nextLine()) {
      const std::optional<StudyKey> key = studyKey(name);
      if (!key)
        fail(QStringLiteral("expected keys of numbers in a batch file, found \"%1\"").arg(name));
      else if (std::any_of(table_.keys.begin(), table_.keys.end(),
                           [&](const StudyKey& other) { return other.name == name; }))
        fail(QStringLiteral("expected each key once, found \"%1\" again").arg(name));
      else
        table_.keys.push_back(*key);
    }
    table_.columns.resize(table_.keys.size());
  }

  void readRow() {
    const QStringList cells = nextLine();
    if (cells.isEmpty())
      return;
    if (cells.size() != static_cast<int>(table_.keys.size())) {
      fail(
          QStringLiteral("expected %1 values, found %2").arg(table_.keys.size()).arg(cells.size()));
      return;
    }
    for (std::size_t i = 0; i < table_.keys.size(); ++i)
      take(table_.keys[i], cells[static_cast<int>(i)], table_.columns[i]);
  }

  void take(const StudyKey& key, const QString& cell, std::vector<double>& column) {
    bool ok = false;
    const double number = cell.toDouble(&ok);
    if (!ok || judge(key.range, number) == RangeVerdict::Impossible)
      fail(QStringLiteral("%1: expected %2, found \"%3\"")
               .arg(key.name, boundsText(key.range, RangeVerdict::Impossible, key.unit), cell));
    column.push_back(number);
  }

  QFile file_;
  const QString name_;
  Findings& findings_;
  ValueTable table_;
  QChar separator_ = ',';
  int line_ = 0;
  int errors_ = 0;
};

} // namespace

ValueTable readValueTable(const QString& fileName, Findings& findings) {
  return TableReader(fileName, findings).read();
}

} // namespace TVR::Study
