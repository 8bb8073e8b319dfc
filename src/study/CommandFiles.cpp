#include "study/CommandFiles.h"

#include "disk/FileNames.h"
#include "study/Options.h"
#include "study/page/PageFiles.h"
#include "study/plan/StudyFile.h"
#include "study/work/StudyFolder.h"

#include <QFileInfo>

#include <algorithm>

namespace TVR::Study {

namespace {

/// What the command line gives names to, which may be several files each.
QList<QStringList> namedOutputs(const Options& options) {
  QList<QStringList> files = namesOf({options.pages, options.shapefile, options.language});
  for (const QString& file : {options.table, options.json})
    if (!file.isEmpty())
      files << QStringList{file};
  return files;
}

} // namespace

QString clashOfFiles(const Options& options, const StudyFile& study, const StudyFolder& folder) {
  for (const QString& path : QStringList{folder.path()} + options.more)
    if (const QFileInfo info(path); info.exists() && !info.isDir())
      return QStringLiteral("expected a folder for the results, but %1 is a file").arg(path);
  QStringList read{options.file, study.base};
  if (!study.table.isEmpty())
    read << study.table;
  if (const QString& hosts = options.submit.hosts; hosts.startsWith('@'))
    read << hosts.mid(1);
  QStringList written;
  for (const QStringList& files : namedOutputs(options))
    written += files;
  // What was computed is read by those who do not write it anew.
  const bool computes =
      options.command == "run" || options.command == "submit" || options.command == "collect";
  (computes ? written : read) += folder.tables();
  return clashOf(read, written);
}

QStringList unwritableFiles(const Options& options) {
  QStringList faults;
  for (const QStringList& files : namedOutputs(options)) {
    const auto blocked = std::find_if(files.begin(), files.end(), [](const QString& file) {
      return !obstacleTo(file).isEmpty();
    });
    if (blocked != files.end())
      faults << QStringLiteral("%1 can't be written: %2").arg(*blocked, obstacleTo(*blocked));
  }
  return faults;
}

} // namespace TVR::Study
