#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

/// The resources below ":/TVR/" that the sources name; a place holder stands for each language.
QSet<QString> namedResources() {
  static const QRegularExpression name("\"(:/TVR/[^\"]+)\"");
  QSet<QString> names;
  QDirIterator sources(TEVRANE_SOURCE_DIR "/src", {"*.cpp", "*.h"}, QDir::Files,
                       QDirIterator::Subdirectories);
  while (sources.hasNext()) {
    QFile source(sources.next());
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << source.fileName().toStdString();
    for (auto match = name.globalMatch(source.readAll()); match.hasNext();) {
      const QString found = match.next().captured(1);
      for (const char* language : {"de", "en", "fr"})
        names.insert(QString(found).replace("%1", language));
    }
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
