#pragma once

#include "files/FileTables.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <span>

class QSettings;

namespace TVR {
class ProjectTarget;
struct Project;
} // namespace TVR

namespace TVR::Data {

/// The batch file ".tbat": an INI text that describes one simulation in four sections. One table of
/// keys drives the reader, the writer and everybody who wants to say something about a key.
namespace BatchFile {

/// How the text of a key becomes a value of the project.
enum class ValueKind {
  Number,     ///< passed on as it stands in the file
  Count,      ///< as Number; a whole number is meant
  Flag,       ///< 1 or 0, passed on as it stands, so that "true" counts as 0; or isWordInBatchFile
  Years,      ///< seconds; a value below 1000 counts as years
  OutputName, ///< name of the result file; the default is made of the batch file's name
  Hint,       ///< written as a help for the editor of the file, never read
  FixedFalse  ///< no key of the file: the parameter becomes false at this point of the order
};

/// One key. `readDivisor` and `writeDivisor` divide the number on its way into the project and into
/// the file. `writeOrder` is the key's place in its section when written, 0 if it never is; where
/// QSettings forgets the order of keys, as on Unix, they stand in the file sorted by name.
struct Key {
  const char* section;
  const char* name;
  int id;
  double defaultValue;
  ValueKind kind;
  int writeOrder;
  double readDivisor = 1;
  double writeDivisor = 1;
};

/// All keys, in the order in which they are read. The order is part of the format: the dependency
/// rules run after each of them.
std::span<const Key> keys();

/// The number that the project gets for a number of the file: divided, or for a time in years [s].
double inStore(const Key& key, double number);

/// The wells and the demand periods that a file asks for, as numbers of any size.
struct Counts {
  double wells;
  double periods;
};
/// Reads them where `file` stands in the section "installation".
Counts countsIn(const QSettings& file);

/// The sections, in the order in which they are read and written.
const QStringList& sections();

/// Whether the name has the ending of a batch file; the case of the letters counts.
bool isBatchFile(const QString& fileName);

/// Result file of a batch file that names none: ".out" in place of the last five characters.
QString defaultOutputName(const QString& fileName);

/// Result file that a batch file names, or by default.
QString outputName(const QString& fileName);

/// The sections of a file, in UTF-8 or else Latin-1. Null if it can't be opened or is more than the
/// reader takes: 64 MiB, a million lines, or 16 384 characters in a line, all that are continued by
/// a backslash or a text in quotes counted together. The class keeps what it has decoded by the
/// name of the file: whoever looks at a batch file opens it here.
std::unique_ptr<QSettings> open(const QString& fileName);

/// Whether a file says which wells there are. One that does not gets those of the design.
bool namesWells(QSettings& file);

/// Reads a file into a project that holds the defaults. A file that names no wells gets those of
/// the design in two rows, as many as its `number_of_wells` says, or else as the design wants, in
/// pairs; see placeDesignedWells. Never fails: a file that is not readable has no sections, a key
/// that is absent from a section that is present takes its default, and a value that can't be
/// converted counts as 0 or false. Always true.
bool read(const QString& fileName, ProjectTarget& project);

/// Writes parameters and those of the tables that have been made. The older file is replaced by a
/// complete one, or stays as it is. False if it can't be written.
bool write(const QString& fileName, const Project& project, const MadeTables& tables);

} // namespace BatchFile
} // namespace TVR::Data
