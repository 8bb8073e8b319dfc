#include "batch/FileInspection.h"
#include "data/BatchFile.h"
#include "data/Manager.h"
#include "simulation/SiteCheck.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using TVR::Batch::inspectBatchFile;

namespace {

QStringList filesIn(const QString& directory) {
  const QDir dir(directory);
  QStringList files;
  for (const QString& name : dir.entryList({"*.tbat"}, QDir::Files, QDir::Name))
    files.append(dir.filePath(name));
  return files;
}

/// Everything that is found wrong with a file before it is run.
QStringList findings(const QString& file) {
  const auto inspection = inspectBatchFile(file);
  QStringList result = inspection.errors + inspection.warnings;
  if (!inspection.errors.isEmpty())
    return result;
  TVR::Data::Manager& store = *TVR::Data::Manager::instance();
  QMap<QString, int> fieldIds;
  store.read(file, fieldIds);
  for (const TVR::SiteProblem& problem : TVR::checkSite(store))
    result.append(problem.text);
  return result;
}

const QString examples = TEVRANE_EXAMPLES_DIR;

} // namespace

TEST(ExamplesTest, everyExampleIsWithoutFault) {
  const QStringList files = filesIn(examples);
  ASSERT_GE(files.size(), 6);
  for (const QString& file : files)
    EXPECT_EQ(findings(file), QStringList()) << file.toStdString();
}

TEST(ExamplesTest, everyBrokenExampleHasExactlyOneFault) {
  const QStringList files = filesIn(examples + "/broken");
  ASSERT_GE(files.size(), 8);
  for (const QString& file : files)
    EXPECT_EQ(findings(file).size(), 1) << file.toStdString();
}

TEST(ExamplesTest, everyExampleHasALineInTheReadme) {
  QFile readme(examples + "/README.md");
  ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
  const QByteArray text = readme.readAll();
  for (const QString& file : filesIn(examples) + filesIn(examples + "/broken")) {
    const QByteArray name = '`' + QFileInfo(file).fileName().toUtf8() + '`';
    EXPECT_TRUE(text.contains(name)) << name.constData();
  }
}

TEST(ExamplesTest, everyKeyOfABatchFileIsDocumented) {
  QFile page(examples + "/../docs/batch-files.md");
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QByteArray text = page.readAll();
  for (const auto& key : TVR::Data::BatchFile::keys()) {
    const QByteArray name = key.name;
    EXPECT_TRUE(name.isEmpty() || text.contains("| `" + name + "` |")) << name.constData();
  }
}
