#include "project/ProgramVersion.h"

namespace TVR {

namespace {

QString previewWord(const QString& section) {
  if (section == "97")
    return QStringLiteral("alpha %1");
  if (section == "98")
    return QStringLiteral("beta %1");
  return section == "99" ? QStringLiteral("rc %1") : QString();
}

} // namespace

QString versionLabel(const QString& version) {
  const QString second = version.section('.', 1, 1);
  if (!(second > QLatin1String("96")))
    return version;
  QString word = previewWord(second);
  if (!word.isEmpty())
    word = word.arg(version.section('.', 2, 2).toInt() + 1);
  return QStringLiteral("%1.0.0 %2").arg(version.section('.', 0, 0).toInt() + 1).arg(word);
}

} // namespace TVR
