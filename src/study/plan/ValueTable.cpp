#include "study/plan/ValueTable.h"

#include "study/plan/CsvReader.h"

#include <algorithm>

namespace TVR::Study {

namespace {

constexpr qint64 mostBytes = 1LL << 30;
constexpr int mostErrors = 20;

class TableReader {
public:
  TableReader(const QString& fileName, std::size_t mostRows, Findings& findings)
      : csv_(fileName), mostRows_(mostRows), findings_(findings) {}

  ValueTable read() {
    if (!csv_.open(mostBytes)) {
      fail("expected a CSV table of at most 1 GiB that can be read");
      return {};
    }
    readHead();
    while (errors_ == 0 && !csv_.atEnd())
      readRow();
    if (errors_ == 0 && table_.rows() == 0)
      fail("expected a row of keys and a row of values for each run");
    return errors_ == 0 ? table_ : ValueTable();
  }

private:
  void fail(const QString& text) {
    if (++errors_ <= mostErrors)
      findings_.errors << QStringLiteral("%1: %2").arg(csv_.place(), text);
  }

  void readHead() {
    for (const QString& name : csv_.next()) {
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
    const QStringList cells = csv_.next();
    if (cells.isEmpty())
      return;
    if (cells.size() != static_cast<int>(table_.keys.size())) {
      fail(
          QStringLiteral("expected %1 values, found %2").arg(table_.keys.size()).arg(cells.size()));
      return;
    }
    if (table_.rows() == mostRows_) {
      fail(QStringLiteral("expected at most %1 rows of values").arg(mostRows_));
      return;
    }
    for (std::size_t i = 0; i < table_.keys.size(); ++i)
      take(table_.keys[i], cells[static_cast<int>(i)], table_.columns[i]);
  }

  void take(const StudyKey& key, const QString& cell, std::vector<double>& column) {
    bool ok = false;
    const double number = cell.toDouble(&ok);
    if (!ok || !key.takes(number))
      fail(QStringLiteral("%1: expected %2, found \"%3\"").arg(key.name, key.expected(), cell));
    column.push_back(number);
  }

  CsvReader csv_;
  const std::size_t mostRows_;
  Findings& findings_;
  ValueTable table_;
  int errors_ = 0;
};

} // namespace

ValueTable readValueTable(const QString& fileName, std::size_t mostRows, Findings& findings) {
  return TableReader(fileName, mostRows, findings).read();
}

} // namespace TVR::Study
