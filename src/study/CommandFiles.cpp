#include "study/CommandFiles.h"

#include "disk/FileContent.h"
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

/// What is wrong with the folders that a command reads.
QString faultOfFolders(const Options& options, const StudyFile& study, const StudyFolder& folder) {
  for (const QString& path : options.more)
    if (!StudyFolder(path).isThere())
      return QStringLiteral("%1: expected the folder of a study").arg(path);
  const QByteArray content = contentOf(study.base);
  for (const QString& path : QStringList{folder.path()} + options.more) {
    const QString kept = StudyFolder(path).base(study.base);
    if (QFileInfo::exists(kept) && contentOf(kept) != content)
      return QStringLiteral("[study] base: expected the base that the results in %1 come from, "
                            "which is kept there; --folder takes another folder")
          .arg(path);
  }
  return {};
}

QString clashOfFiles(const Options& options, const StudyFile& study, const StudyFolder& folder) {
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

} // namespace

QString faultOfFiles(const Options& options, const StudyFile& study, const StudyFolder& folder) {
  for (const QString& path : QStringList{folder.path()} + options.more)
    if (const QFileInfo info(path); info.exists() && !info.isDir())
      return QStringLiteral("expected a folder for the results, but %1 is a file").arg(path);
  const QString clash = clashOfFiles(options, study, folder);
  const bool readsFolders = options.command != "plan";
  return clash.isEmpty() && readsFolders ? faultOfFolders(options, study, folder) : clash;
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
