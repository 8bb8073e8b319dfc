#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

/// The resources below ":/TVR/" that the sources name.
QSet<QString> namedResources() {
  static const QRegularExpression name("\"(:/TVR/[^\"]+)\"");
  QSet<QString> names;
  QDirIterator sources(TEVRANE_SOURCE_DIR "/src", {"*.cpp", "*.h"}, QDir::Files,
                       QDirIterator::Subdirectories);
  while (sources.hasNext()) {
    QFile source(sources.next());
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << source.fileName().toStdString();
    for (auto match = name.globalMatch(source.readAll()); match.hasNext();)
      names.insert(match.next().captured(1));
  }
  return names;
}

} // namespace

TEST(Resources, everyOneThatIsNamedIsThere) {
  const QSet<QString> names = namedResources();
  EXPECT_GE(names.size(), 3);
  for (const QString& name : names)
    EXPECT_TRUE(QFile::exists(name)) << name.toStdString();
}
