#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QFile>
#include <QString>

namespace TVR::Study {

/// A file of lines that grows line by line and outlives a process that is killed: what was appended
/// stays, and half a line at its end does not count. One process at a time writes to it.
class Journal {
public:
  explicit Journal(const QString& fileName);
  ~Journal();
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  QString fileName() const { return file_.fileName(); }

  enum class Opening { Done, InUse, Failed };
  /// Opens the file, which is made if need be, for this process alone, and cuts off half a line.
  Opening open();

  /// False if the line could not be written.
  bool append(const QByteArray& line);
  /// Puts these lines in the place of all others, at once.
  bool replace(const QByteArrayList& lines);

  /// The whole lines of a journal, which another process may be writing.
  static QByteArrayList linesOf(const QString& fileName);

private:
  bool openFile();

  QFile file_;
  int lock_ = -1; ///< open file beside the journal; held as long as this one may write
};

} // namespace TVR::Study
