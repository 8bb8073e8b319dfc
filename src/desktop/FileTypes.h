#pragma once

#include "host/MainWindowPluginInterface.h"

#include <QByteArray>
#include <QPointer>
#include <QStringList>

#include <vector>

class QMimeData;

namespace TVR::Desktop {

/// The kinds of files that the program opens, and who opens them.
class FileTypes final : public BrenvikApp::FileTypeProvider {
public:
  void addFileType(const QString& pattern, const QString& description, QObject* receiver,
                   const char* slot, int flag) override;

  /// The files of a drag that can be opened.
  QStringList openable(const QMimeData& dragged) const;
  /// Hands the file to whoever opens its kind; false if nobody does.
  bool open(const QString& file) const;

private:
  struct FileType {
    QString pattern;
    QPointer<QObject> receiver;
    QByteArray slot; ///< its signature
  };
  const FileType* typeOf(const QString& file) const;

  std::vector<FileType> types_;
};

} // namespace TVR::Desktop
