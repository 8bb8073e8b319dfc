#include "files/BatchFile.h"
#include "inspection/FileInspection.h"
#include "simulation/SiteCheck.h"
#include "store/Manager.h"

#include <QDir>
#include <QFile>
#include <QPolygonF>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

using TVR::inspectFile;

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

QString fileOf(const QString& example) {
  return examples + '/' + example + ".tbat";
}

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

/// Expects the temperatures within the scatter that other steps of the integrators leave.
void expectTemperatures(const std::vector<double>& found, const std::vector<double>& stored) {
  constexpr double scatter = 3e-4; // [K]
  ASSERT_EQ(found.size(), stored.size());
  for (std::size_t well = 0; well < stored.size(); ++well)
    EXPECT_NEAR(found[well], stored[well], scatter) << well;
}

/// Runs an example with these options besides; gives the temperatures in the last line of its
/// table.
std::vector<double> lastTemperatures(const QString& example, const QStringList& options = {}) {
  const QTemporaryDir directory;
  const QString table = directory.filePath("table.out");
  QProcess driver;
  driver.start(TEVRANE_BATCH_PROGRAM,
               QStringList{"--quiet", "--output", table} + options + QStringList{fileOf(example)});
  EXPECT_TRUE(driver.waitForFinished(240000));
  EXPECT_EQ(driver.exitCode(), 0) << driver.readAllStandardError().constData();
  QFile file(table);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  std::vector<double> temperatures;
  const QByteArray line = file.readAll().trimmed().split('\n').last().trimmed();
  for (const QByteArray& cell : line.split('\t').mid(2)) // without the two times
    temperatures.push_back(cell.toDouble());
  return temperatures;
}

/// Where the wells of a file stand.
QPolygonF wellsOf(const QString& file) {
  TVR::Data::Manager& store = *TVR::Data::Manager::instance();
  QMap<QString, int> fieldIds;
  EXPECT_TRUE(store.read(file, fieldIds));
  store.wellModel();
  return store.wellPositions();
}

} // namespace

TEST_P(StoredResultTest, theExampleEndsAtTheStoredTemperatures) {
  const auto& [example, stored] = GetParam();
  expectTemperatures(lastTemperatures(example), stored);
}

TEST_P(StoredResultTest, theExampleEndsAtTheSameTemperaturesWithEachKindOfOutput) {
  const auto& [example, stored] = GetParam();
  const QTemporaryDir directory;
  for (const auto& [kind, file] : std::initializer_list<std::pair<const char*, const char*>>{
           {"--page", "page.svg"},
           {"--shapefile", "lines"},
           {"--dxf", "lines.dxf"},
           {"--save-project", "saved.tvr"}}) {
    SCOPED_TRACE(kind);
    expectTemperatures(lastTemperatures(example, {kind, directory.filePath(file)}), stored);
  }
}

TEST_P(StoredResultTest, theWellsOfTheExampleStandWhereTheyStoodAfterAPageToo) {
  const char* const example = GetParam().example;
  const QTemporaryDir directory;
  const QString saved = directory.filePath("saved.tvr");
  lastTemperatures(example, {"--page", directory.filePath("page.svg"), "--save-project", saved});
  const QPolygonF before = wellsOf(fileOf(example));
  const QPolygonF after = wellsOf(saved);
  ASSERT_EQ(after.size(), before.size());
  for (int well = 0; well < before.size(); ++well) { // to the last bit, which QPointF overlooks
    EXPECT_EQ(after[well].x(), before[well].x()) << well;
    EXPECT_EQ(after[well].y(), before[well].y()) << well;
  }
}

INSTANTIATE_TEST_SUITE_P(
    ExamplesTest, StoredResultTest,
    testing::Values(StoredResult{"defaults", {9.953906152, 7.001707416}},
                    StoredResult{"minimal", {9.999791648, 7.000006974}},
                    StoredResult{"doublet", {10.99999988, 7.000000523}},
                    StoredResult{"no_regional_flow", {13.25464511, 14.99999731}},
                    StoredResult{"unconfined", {9.999999991, 7.000000651}},
                    StoredResult{"school_four_seasons",
                                 {10.49962131, 10.49998992, 7.500007871, 7.500007464}},
                    StoredResult{"office_closed_loop_months", {12.15798837, 8.158067586}}),
    [](const auto& instance) { return std::string(instance.param.example); });
