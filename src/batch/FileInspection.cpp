#include "batch/FileInspection.h"

#include "data/BatchFile.h"
#include "data/FileLimits.h"
#include "data/FileTables.h"
#include "design/ParameterId.h"

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSettings>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Batch {

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

/// The most that the store takes of what this key counts.
int largestCount(int id) {
  switch (id) {
  case Parameter::NumberOfWells:
    return Data::FileLimits::maxWells;
  case Parameter::NumberOfDemandsPerYear:
    return Data::FileLimits::maxPeriods;
  default:
    return std::numeric_limits<int>::max();
  }
}

/// What a key expects; empty if the value will do.
QString expectation(const BatchFile::Key& key, const QVariant& value) {
  using Kind = BatchFile::ValueKind;
  switch (key.kind) {
  case Kind::Number:
  case Kind::Years:
    return isNumber(value) ? QString() : QStringLiteral("a number (with a decimal point)");
  case Kind::Count:
    if (!isWholeNumberFromOne(value))
      return QStringLiteral("a whole number from 1");
    return value.toDouble() <= largestCount(key.id)
               ? QString()
               : QStringLiteral("at most %1").arg(largestCount(key.id));
  case Kind::FlagWord:
    return isWord(value, {"true", "false", "1", "0"}) ? QString()
                                                      : QStringLiteral("true, false, 1 or 0");
  case Kind::FlagNumber: // the text "true" would read as 0
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
    if (!isFileToRun() || !readText() || isProjectFile(fileName_))
      return result_;
    if (hasSections() && isIniText())
      inspectSettings();
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

  bool readText() {
    QFile file(fileName_);
    if (!file.open(QIODevice::ReadOnly))
      return fail(QStringLiteral("can't be read: %1").arg(file.errorString()));
    if (isProjectFile(fileName_)) // its reader tells what it can't take
      return true;
    if (!BatchFile::isReadable(fileName_))
      return fail("is no batch file; expected at most 64 MiB, a million lines, and 16384 "
                  "characters in a line");
    const QByteArray content = file.readAll();
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

  void inspectSettings() {
    QSettings file(fileName_, QSettings::IniFormat);
    for (const QString& section : BatchFile::sections()) {
      file.beginGroup(section);
      for (const QString& key : file.childKeys())
        inspectKey(section, key, file.value(key));
      for (const QString& group : file.childGroups())
        inspectTable(file, section, group);
      file.endGroup();
    }
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
    const int most = Data::FileLimits::maxRows(Data::fileTable(name)->kind);
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
      if (match.captured(1).toInt() > size.toDouble())
        warnAt(section, shownKey, "stands beyond the size of the table, ignored");
      const bool isName = name == "well_model" && match.captured(2) == "0";
      if (!isName && !isNumber(file.value(key)))
        failAt(section, shownKey, "a number (with a decimal point)", file.value(key));
    }
  }

  const QString fileName_;
  QStringList lines_;
  FileInspection result_;
};

} // namespace

bool isProjectFile(const QString& fileName) {
  return fileName.endsWith(".tvr");
}

FileInspection inspectFile(const QString& fileName) {
  return Inspector(fileName).inspect();
}

} // namespace TVR::Batch
