#include "inspection/FileInspection.h"

#include "files/BatchFile.h"
#include "files/FileTables.h"
#include "inspection/ProjectInspection.h"
#include "project/ParameterTable.h"
#include "project/ProjectLimits.h"

#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSettings>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace TVR {

namespace BatchFile = Data::BatchFile;

namespace {

QString shown(const QVariant& value) {
  return value.type() == QVariant::StringList ? value.toStringList().join(",") : value.toString();
}

bool isNumber(const QVariant& value) {
  bool ok = false;
  const double number = value.type() == QVariant::StringList ? 0 : value.toDouble(&ok);
  return ok && std::isfinite(number);
}

bool isWholeNumberFromOne(const QVariant& value) {
  const double number = value.toDouble();
  return isNumber(value) && number >= 1 && number < 1e9 && number == std::trunc(number);
}

bool isWord(const QVariant& value, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* word) {
    return value.toString().compare(word, Qt::CaseInsensitive) == 0;
  });
}

/// A key as the class knows it: a backslash is a slash, and "%5F" is "_".
QString asTheClassReads(QString key) {
  return QUrl::fromPercentEncoding(key.replace('\\', '/').toUtf8());
}

/// The bounds that a number of the file breaks, in the file's unit; empty if none.
QString brokenBounds(const BatchFile::Key& key, double number) {
  const ParameterRow& row = parameterRow(key.id);
  const RangeVerdict verdict = judge(row.range, BatchFile::inStore(key, number));
  return verdict == RangeVerdict::Impossible
             ? boundsText(row.range.inUnitOf(key.readDivisor), verdict, row.unit)
             : QString();
}

/// What a key expects; empty if the value will do.
QString expectation(const BatchFile::Key& key, const QVariant& value) {
  using Kind = BatchFile::ValueKind;
  switch (key.kind) {
  case Kind::Number:
  case Kind::Years:
    return isNumber(value) ? brokenBounds(key, value.toDouble())
                           : QStringLiteral("a number (with a decimal point)");
  case Kind::Count:
    return isWholeNumberFromOne(value) ? brokenBounds(key, value.toDouble())
                                       : QStringLiteral("a whole number from 1");
  case Kind::Flag:
    if (isWordInBatchFile(key.id))
      return isWord(value, {"true", "false", "1", "0"}) ? QString()
                                                        : QStringLiteral("true, false, 1 or 0");
    // the text "true" would read as 0
    return isWord(value, {"1", "0", "false"}) || isNumber(value) ? QString()
                                                                 : QStringLiteral("1 or 0");
  case Kind::OutputName:
    return value.type() == QVariant::StringList ? QStringLiteral("a file name without a comma")
                                                : QString();
  case Kind::Hint:
  case Kind::FixedFalse:
    break;
  }
  return {};
}

class Inspector {
public:
  explicit Inspector(const QString& fileName) : fileName_(fileName) {}

  FileInspection inspect() {
    if (!isFileToRun() || !canBeRead())
      return result_;
    if (isProjectFile(fileName_))
      inspectProject(fileName_, result_);
    else if (readText() && hasSections() && isIniText()) {
      findDuplicates();
      inspectSettings();
      result_.namesWells = BatchFile::namesWells(*settings_);
    }
    return result_;
  }

private:
  bool fail(const QString& text) {
    result_.errors.append(text);
    return false;
  }

  void failAt(const QString& section, const QString& key, const QString& expected,
              const QVariant& found) {
    fail(QStringLiteral("[%1] %2: expected %3, found \"%4\"")
             .arg(section, key, expected, shown(found)));
  }

  void warnAt(const QString& section, const QString& key, const QString& text) {
    result_.warnings.append(QStringLiteral("[%1] %2: %3").arg(section, key, text));
  }

  bool isFileToRun() {
    const QFileInfo info(fileName_);
    if (!info.exists())
      return fail("no such file; expected a batch file or a project file");
    if (info.isDir())
      return fail("is a directory; expected a batch file or a project file");
    if (!BatchFile::isBatchFile(fileName_) && !isProjectFile(fileName_))
      return fail("is no batch file and no project file; expected a name that ends in \".tbat\" or "
                  "\".tvr\"");
    return true;
  }

  bool canBeRead() {
    QFile file(fileName_);
    return file.open(QIODevice::ReadOnly) ||
           fail(QStringLiteral("can't be read: %1").arg(file.errorString()));
  }

  bool readText() {
    settings_ = BatchFile::open(fileName_);
    if (!settings_)
      return fail("is no batch file; expected at most 64 MiB, a million lines, and 16384 "
                  "characters in a line");
    QFile file(fileName_);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (content.contains('\0'))
      return fail("is no INI text; expected sections in brackets and lines of the form key=value");
    lines_ = QString::fromUtf8(content).split(QRegularExpression("\r\n|\r|\n"));
    return true;
  }

  bool hasSections() {
    static const QRegularExpression header("^\\s*\\[([^\\]]*)\\]");
    bool isKnown = false;
    for (const QString& line : lines_) {
      const QRegularExpressionMatch match = header.match(line);
      if (!match.hasMatch())
        continue;
      const QString section = match.captured(1).trimmed();
      if (BatchFile::sections().contains(section))
        isKnown = true;
      else
        result_.warnings.append(QStringLiteral("[%1]: unknown section, ignored").arg(section));
    }
    return isKnown || fail(QStringLiteral("has none of the sections [%1]")
                               .arg(BatchFile::sections().join("], [")));
  }

  bool isIniText() {
    bool continues = false; // a backslash at the end of a line joins the next one to it
    for (int i = 0; i < lines_.size(); ++i) {
      const QString line = lines_[i].trimmed();
      const bool isPlain = line.isEmpty() || line.startsWith(';') || line.startsWith('#') ||
                           line.startsWith('[') || line.contains('=');
      if (!isPlain && !continues)
        return fail(QStringLiteral("is no INI text: line %1 (\"%2\") is neither a section nor of "
                                   "the form key=value")
                        .arg(i + 1)
                        .arg(line.left(40)));
      continues = line.endsWith('\\');
    }
    return true;
  }

  /// The class takes the last of several lines with one key, however they spell it.
  void findDuplicates() {
    QHash<QString, int> lineOf;
    QString section;
    bool continues = false;
    for (int i = 0; i < lines_.size(); ++i) {
      const QString line = lines_[i].trimmed();
      if (!continues && line.startsWith('['))
        section = line.mid(1, line.indexOf(']') - 1).trimmed();
      else if (!continues && !line.startsWith(';') && line.contains('=')) {
        const QString key = line.section('=', 0, 0).trimmed();
        const QString place = section + '/' + asTheClassReads(key);
        if (lineOf.contains(place))
          warnAt(section, key,
                 QStringLiteral("stands in lines %1 and %2; the last one counts")
                     .arg(lineOf[place])
                     .arg(i + 1));
        lineOf.insert(place, i + 1);
      }
      continues = line.endsWith('\\');
    }
  }

  void inspectSettings() {
    QSettings& file = *settings_;
    for (const QString& section : BatchFile::sections()) {
      file.beginGroup(section);
      for (const QString& key : file.childKeys())
        inspectKey(section, key, file.value(key));
      for (const QString& group : file.childGroups())
        inspectTable(file, section, group);
      file.endGroup();
    }
    if (file.childGroups().contains("installation"))
      inspectSizes(file);
  }

  /// Rows beyond the wells and demand periods of the site are dropped by the reader.
  void inspectSizes(QSettings& file) {
    file.beginGroup("installation");
    const auto [wells, periods] = BatchFile::countsIn(file);
    for (const auto& [name, rows] :
         {std::pair("demand_model", periods), std::pair("well_demand_model", wells * periods)})
      if (const QString key = QStringLiteral("%1\\size").arg(name);
          file.value(QString(key).replace('\\', '/')).toDouble() > rows)
        warnAt("installation", key,
               QStringLiteral("only the first %1 rows count: there are %2 wells and %3 demand "
                              "periods")
                   .arg(rows)
                   .arg(wells)
                   .arg(periods));
    const QString excess = ProjectLimits::excess(wells, periods);
    if (result_.errors.isEmpty() && !excess.isEmpty()) // else one of the two has been told
      fail("[installation] well_demand_model: " + excess);
    file.endGroup();
  }

  void inspectKey(const QString& section, const QString& name, const QVariant& value) {
    const auto keys = BatchFile::keys();
    const auto key = std::find_if(keys.begin(), keys.end(), [&](const BatchFile::Key& candidate) {
      return section == candidate.section && name == candidate.name;
    });
    if (key == keys.end()) {
      warnAt(section, name, "unknown key, ignored");
      return;
    }
    const QString expected = expectation(*key, value);
    if (!expected.isEmpty())
      failAt(section, name, expected, value);
  }

  void inspectTable(QSettings& file, const QString& section, const QString& name) {
    if (section != "installation" || !Data::fileTable(name)) {
      warnAt(section, name, "unknown key, ignored");
      return;
    }
    file.beginGroup(name);
    inspectCells(file, section, name);
    file.endGroup();
  }

  void inspectCells(const QSettings& file, const QString& section, const QString& name) {
    const QVariant size = file.value("size");
    if (!size.isValid() || !isWholeNumberFromOne(size)) {
      failAt(section, name + "\\size", "the number of rows, a whole number from 1", size);
      return;
    }
    const Data::FileTable& table = *Data::fileTable(name);
    const int most = ProjectLimits::maxRows(table.table);
    if (size.toDouble() > most) {
      failAt(section, name + "\\size", QStringLiteral("at most %1 rows").arg(most), size);
      return;
    }
    static const QRegularExpression cell("^([0-9]+)/([0-9]+)$");
    for (const QString& key : file.allKeys()) {
      if (key == "size")
        continue;
      const QString shownKey = name + '\\' + QString(key).replace('/', '\\');
      const QRegularExpressionMatch match = cell.match(key);
      if (!match.hasMatch()) {
        warnAt(section, shownKey, "unknown key, ignored");
        continue;
      }
      const int column = match.captured(2).toInt();
      if (match.captured(1).toDouble() > size.toDouble())
        warnAt(section, shownKey, "stands beyond the size of the table, ignored");
      if (column < table.firstColumn || column >= table.columns) {
        warnAt(section, shownKey, "stands in a column that the table has not, ignored");
        continue;
      }
      const bool isName = name == "well_model" && match.captured(2) == "0";
      if (!isName && !isNumber(file.value(key)))
        failAt(section, shownKey, "a number (with a decimal point)", file.value(key));
    }
  }

  const QString fileName_;
  QStringList lines_;
  std::unique_ptr<QSettings> settings_;
  FileInspection result_;
};

} // namespace

bool isProjectFile(const QString& fileName) {
  return fileName.endsWith(".tvr");
}

FileInspection inspectFile(const QString& fileName) {
  return Inspector(fileName).inspect();
}

} // namespace TVR
