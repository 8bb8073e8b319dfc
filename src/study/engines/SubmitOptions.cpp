#include "study/engines/SubmitOptions.h"

#include "study/engines/ShardJob.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

namespace TVR::Study {

namespace {

/// Whether each of them is a name that can't be taken for an option or for two.
bool areHosts(const QString& hosts) {
  static const QRegularExpression form("^[^\\s,@-][^\\s,]*(,[^\\s,@-][^\\s,]*)*$");
  return form.match(hosts).hasMatch();
}

} // namespace

QList<QCommandLineOption> SubmitOptions::all() const {
  return {slurm, parallel, hosts, program, shards};
}

QString SubmitOptions::read(const QCommandLineParser& parser, const QString& command,
                            SubmitSettings& settings) const {
  if (command == "submit" && parser.isSet(slurm) == parser.isSet(parallel))
    return QStringLiteral("submit expects one of --slurm and --parallel");
  if (parser.isSet(hosts) && !parser.isSet(parallel))
    return QStringLiteral("--hosts belongs to --parallel");
  settings.toSlurm = parser.isSet(slurm);
  settings.program = parser.value(program);
  settings.hosts = parser.value(hosts);
  const bool isFile = settings.hosts.startsWith('@');
  if (parser.isSet(hosts) && !isFile && !areHosts(settings.hosts))
    return QStringLiteral("--hosts expects names with commas between them, or @FILE, found \"%1\"")
        .arg(settings.hosts);
  if (isFile && !QFileInfo(settings.hosts.mid(1)).isFile())
    return QStringLiteral("--hosts: there is no file \"%1\"").arg(settings.hosts.mid(1));
  settings.shards = parser.value(shards).toULong();
  if (parser.isSet(shards) && (settings.shards < 1 || settings.shards > mostShards))
    return QStringLiteral("--shards expects a number from 1 to %1").arg(mostShards);
  return {};
}

} // namespace TVR::Study
