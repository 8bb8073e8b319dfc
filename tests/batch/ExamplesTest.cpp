#include "batch/FileInspection.h"
#include "data/BatchFile.h"
#include "data/Manager.h"
#include "simulation/SiteCheck.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

using TVR::Batch::inspectFile;

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
  const auto inspection = inspectFile(file);
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

namespace {

/// An example and the temperatures of its wells [deg C] at the end, as the packaged band solver
/// over all cells gave them.
struct StoredResult {
  const char* example;
  std::vector<double> temperatures;

  friend void PrintTo(const StoredResult& result, std::ostream* out) { *out << result.example; }
};

class StoredResultTest : public testing::TestWithParam<StoredResult> {};

/// The last line of the table that the driver makes of an example, without the two times.
QList<QByteArray> lastTemperatures(const QString& example) {
  const QTemporaryDir directory;
  const QString table = directory.filePath("table.out");
  QProcess driver;
  driver.start(TEVRANE_BATCH_PROGRAM, {"--quiet", "--output", table, example});
  EXPECT_TRUE(driver.waitForFinished(240000));
  EXPECT_EQ(driver.exitCode(), 0) << driver.readAllStandardError().constData();
  QFile file(table);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().trimmed().split('\n').last().trimmed().split('\t').mid(2);
}

} // namespace

TEST_P(StoredResultTest, theExampleEndsAtTheStoredTemperatures) {
  const auto& [example, stored] = GetParam();
  const QList<QByteArray> found = lastTemperatures(examples + '/' + example + ".tbat");
  ASSERT_EQ(found.size(), static_cast<int>(stored.size()));
  for (int i = 0; i < found.size(); ++i)
    EXPECT_NEAR(found[i].toDouble(), stored[i], 3e-4);
}

INSTANTIATE_TEST_SUITE_P(
    ExamplesTest, StoredResultTest,
    testing::Values(StoredResult{"defaults", {12.9999807}},
                    StoredResult{"minimal", {9.997798561, 7.000007037}},
                    StoredResult{"doublet", {11.00000006, 7.000000551}},
                    StoredResult{"no_regional_flow", {13.25464516, 14.99999731}},
                    StoredResult{"unconfined", {9.999998916, 7.000000936}},
                    StoredResult{"school_four_seasons",
                                 {10.49955668, 10.49998798, 7.500007945, 7.500007557}},
                    StoredResult{"office_closed_loop_months", {12.13383501, 8.13392435}}),
    [](const auto& instance) { return std::string(instance.param.example); });
