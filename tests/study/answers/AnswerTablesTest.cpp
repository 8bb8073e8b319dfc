#include "study/answers/AnswerTables.h"

#include "study/answers/AnswerSummary.h"
#include "study/work/Exceedance.h"
#include "study/work/RecordKeeper.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"
#include "support/TestDirectory.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace TVR::Study;

namespace {

constexpr int runCount = 40;
constexpr int failedRun = 7;

/// A plume at 10 a whose length grows with the first key, of wells "Pump, east" and "Return".
StudySetup smallSetup() {
  StudySetup setup;
  setup.file.base = "/somewhere/base.tbat";
  setup.layout = {{"kf", "aquifer_porosity"},
                  {"m/s", "-"},
                  {"Pump, east", "Return"},
                  {"plume_length", "temperature", "temperature_max"},
                  {10},
                  {-1, 1},
                  {5, 10},
                  {0, 0, 1, 2, 1}};
  setup.plan.keys = {*studyKey("kf"), *studyKey("aquifer_porosity")};
  setup.plan.runsPerPart = 4;
  for (int i = 0; i < runCount; ++i)
    setup.plan.runs.push_back({QStringLiteral("run%1").arg(i, 2, 10, QChar('0')).toLatin1(),
                               {0.001 * (i + 1), 0.1 + 0.01 * (i * 17 % runCount)},
                               i == 0 ? 2 : 1});
  return setup;
}

Record recordOf(const PlannedRun& run, int number) {
  Record record;
  record.run = run.name;
  record.values = run.values;
  if (number == failedRun) {
    record.failure = "the solver, it gave up";
    return record;
  }
  const double length = number;
  record.scalars = {length, 2 * length, 11, 9, 11.5, std::numeric_limits<double>::quiet_NaN()};
  record.series = {{10, 11}, {8, 9}, {0.5, length}, {-0.5, -length}};
  for (int map = 0; map < 2; ++map)
    appendMap(record.maps, std::vector<char>(2));
  return record;
}

class AnswerTablesTest : public testing::Test, protected TestDirectory {
protected:
  /// The folder of a study whose runs were kept in that order, by two shards.
  StudyFolder computed(const QString& name, const std::vector<int>& order) const {
    const StudyFolder folder(path(name));
    folder.make();
    for (std::size_t shard = 0; shard < 2; ++shard) {
      RecordKeeper keeper(folder, setup.plan, setup.layout, {shard, 2});
      EXPECT_EQ(keeper.open(), Journal::Opening::Done);
      for (const int i : order) {
        const auto place = static_cast<std::size_t>(i);
        if ((place / setup.plan.runsPerPart) % 2 != shard)
          continue;
        Record record = recordOf(setup.plan.runs[place], i);
        EXPECT_TRUE(keeper.keep(record, toLine(record, true)));
      }
    }
    return folder;
  }

  static std::vector<int> ascending() {
    std::vector<int> order;
    for (int i = 0; i < runCount; ++i)
      order.push_back(i);
    return order;
  }

  QString write(const StudyFolder& folder, const QString& json = {}) const {
    return writeAnswerFiles(folder, setup, Results(folder, setup.plan, setup.layout), json);
  }

  /// What the data base answers, columns with "|" between them.
  QStringList asked(const QString& question) const {
    QProcess sqlite;
    sqlite.start("sqlite3", {path("a") + "/results.sqlite", question});
    EXPECT_TRUE(sqlite.waitForFinished());
    EXPECT_EQ(sqlite.readAllStandardError(), "");
    return QString::fromUtf8(sqlite.readAllStandardOutput()).trimmed().split('\n');
  }

  QJsonObject summary(const StudyFolder& folder) const {
    return QJsonDocument::fromJson(contentOf(folder.path() + "/summary.json")).object();
  }

  const StudySetup setup = smallSetup();
};

TEST_F(AnswerTablesTest, theAnswersOfARunAreLinesWithWellTimeQuantityValueAndUnit) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  writeAnswerHead(buffer);
  writeAnswers(buffer, recordOf(setup.plan.runs[3], 3), setup.layout);
  EXPECT_EQ(buffer.data(), QByteArray("run,well,time [a],quantity,value,unit\n"
                                      "run03,,10,plume_length -1 K,3,m\n"
                                      "run03,,10,plume_length 1 K,6,m\n"
                                      "run03,\"Pump, east\",,temperature_max,11.5,°C\n"
                                      "run03,\"Pump, east\",5,temperature,10,°C\n"
                                      "run03,\"Pump, east\",10,temperature,11,°C\n"
                                      "run03,Return,5,temperature,8,°C\n"
                                      "run03,Return,10,temperature,9,°C\n"
                                      "run03,\"Pump, east\",5,drawdown,0.5,m\n"
                                      "run03,\"Pump, east\",10,drawdown,3,m\n"
                                      "run03,Return,5,drawdown,-0.5,m\n"
                                      "run03,Return,10,drawdown,-3,m\n"));
}

TEST_F(AnswerTablesTest, aRunThatFailedHasNoAnswers) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  writeAnswers(buffer, recordOf(setup.plan.runs[failedRun], failedRun), setup.layout);
  EXPECT_EQ(buffer.data(), QByteArray());
}

TEST_F(AnswerTablesTest, filesAreTheSameBytesInWhateverOrderTheRunsCame) {
  std::vector<int> backwards = ascending();
  std::reverse(backwards.begin(), backwards.end());
  const StudyFolder one = computed("a", ascending());
  const StudyFolder other = computed("b", backwards);
  ASSERT_EQ(write(one), QString());
  ASSERT_EQ(write(other), QString());
  for (const char* const name : {"/answers.csv", "/results.sqlite", "/summary.json"}) {
    EXPECT_FALSE(contentOf(one.path() + name).isEmpty()) << name;
    EXPECT_EQ(contentOf(one.path() + name), contentOf(other.path() + name)) << name;
  }
}

TEST_F(AnswerTablesTest, writingAgainLeavesTheSameBytesAndNothingElse) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QByteArray before = contentOf(folder.path() + "/results.sqlite");
  const QStringList files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
  ASSERT_EQ(write(folder), QString());
  EXPECT_EQ(contentOf(folder.path() + "/results.sqlite"), before);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), files);
  EXPECT_EQ(files, (QStringList{"answers.csv", "results.sqlite", "summary.json"}));
}

TEST_F(AnswerTablesTest, theDataBaseHoldsAllRunsWithTheirValuesAndAnswers) {
  ASSERT_EQ(write(computed("a", ascending())), QString());
  EXPECT_EQ(asked("PRAGMA integrity_check"), QStringList{"ok"});
  EXPECT_EQ(asked("SELECT count(*), sum(repeats), sum(outcome = 'failed') FROM runs"),
            QStringList{"40|41|1"});
  EXPECT_EQ(asked("SELECT r.run, k.key, k.unit, v.value FROM key_values v JOIN runs r ON r.id = "
                  "v.run JOIN keys k ON k.id = v.key WHERE r.run = 'run03' ORDER BY k.id"),
            (QStringList{"run03|kf|m/s|0.004", "run03|aquifer_porosity|-|0.21"}));
  EXPECT_EQ(asked("SELECT q.quantity, q.level_K, q.time_a, q.unit, s.value FROM scalars s JOIN "
                  "quantities q ON q.id = s.quantity WHERE s.run = 3 AND q.well IS NULL"),
            (QStringList{"plume_length|-1.0|10.0|m|3.0", "plume_length|1.0|10.0|m|6.0"}));
  EXPECT_EQ(asked("SELECT q.quantity, q.well, s.time_a, s.value, q.unit FROM series s JOIN "
                  "series_quantities q ON q.id = s.quantity WHERE s.run = 3 AND s.quantity = 2"),
            (QStringList{"drawdown|Pump, east|5.0|0.5|m", "drawdown|Pump, east|10.0|3.0|m"}));
  EXPECT_EQ(asked("SELECT r.run, f.reason FROM failures f JOIN runs r ON r.id = f.run"),
            QStringList{"run07|the solver, it gave up"});
  EXPECT_EQ(asked("SELECT value FROM study WHERE name = 'base'"), QStringList{"base.tbat"});
}

TEST_F(AnswerTablesTest, theDataBaseHoldsTheFiguresOfTheSummary) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QJsonObject length = summary(folder)["quantities"].toArray()[0].toObject();
  const QJsonObject median = length["percentiles"].toObject()["P50"].toObject();
  EXPECT_EQ(asked("SELECT value, low, high FROM summary WHERE quantity = 0 AND figure = 'P50'"),
            QStringList{QStringLiteral("%1|%2|%3")
                            .arg(median["value"].toDouble(), 0, 'f', 1)
                            .arg(median["interval"].toArray()[0].toDouble(), 0, 'f', 1)
                            .arg(median["interval"].toArray()[1].toDouble(), 0, 'f', 1)});
  EXPECT_EQ(asked("SELECT count(*) FROM influences WHERE quantity = 0 AND total IS NOT NULL"),
            QStringList{"2"});
}

TEST_F(AnswerTablesTest, theSummaryTellsFiguresAndInfluencesOfEachQuantity) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QJsonArray quantities = summary(folder)["quantities"].toArray();
  ASSERT_EQ(quantities.size(), 6);
  const QJsonObject length = quantities[0].toObject();
  EXPECT_EQ(length["quantity"], "plume_length");
  EXPECT_EQ(length["unit"], "m");
  EXPECT_EQ(length["level_K"], -1);
  EXPECT_EQ(length["time_a"], 10);
  EXPECT_EQ(length["runs"], 40); // one of the 40 failed, another one counts twice
  EXPECT_NEAR(length["mean"].toDouble(), (39 * 40 / 2 - failedRun) / 40.0, 1e-12);
  EXPECT_EQ(length["least"], 0);
  EXPECT_EQ(length["greatest"], 39);
  const QJsonObject kf = length["influences"].toObject()["kf"].toObject();
  EXPECT_EQ(kf["swing"].toArray(), (QJsonArray{1, 37})); // of 0, 0, 1, 2, 3 and 35 to 39
  EXPECT_GT(kf["first_order"].toDouble(), 0.99);         // by ranks 0.85
  EXPECT_NEAR(kf["total"].toDouble(), 1, 0.05);
  EXPECT_GT(length["explained"].toDouble(), 0.95);
  EXPECT_TRUE(quantities[2].toObject()["influences"].toObject()["kf"].toObject()["total"].isNull());
  EXPECT_EQ(quantities[5].toObject()["runs"], 0);
}

TEST_F(AnswerTablesTest, theSummaryTellsHowLikelyThereIsAPlumeAtAll) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QJsonArray quantities = summary(folder)["quantities"].toArray();
  const QJsonObject plume = quantities[0].toObject()["plume_probability"].toObject();
  // the first run, which counts twice, has none
  const ConfidenceInterval interval = probabilityInterval(38, 40);
  EXPECT_EQ(plume["value"], 38.0 / 40);
  EXPECT_EQ(plume["interval"].toArray(), (QJsonArray{*interval.low, *interval.high}));
  EXPECT_FALSE(quantities[2].toObject().contains("plume_probability")); // of a temperature
  const QStringList row = asked("SELECT value, low, high FROM summary WHERE quantity = 1 AND "
                                "figure = 'plume_probability'")
                              .first()
                              .split('|');
  ASSERT_EQ(row.size(), 3);
  EXPECT_EQ(row[0].toDouble(), 38.0 / 40);
  EXPECT_NEAR(row[1].toDouble(), *interval.low, 1e-12);
  EXPECT_NEAR(row[2].toDouble(), *interval.high, 1e-12);
}

TEST_F(AnswerTablesTest, theSummaryHasABandForEachSeries) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QJsonArray series = summary(folder)["series"].toArray();
  ASSERT_EQ(series.size(), 4);
  const QJsonObject drawdown = series[2].toObject();
  EXPECT_EQ(drawdown["quantity"], "drawdown");
  EXPECT_EQ(drawdown["well"], "Pump, east");
  const QJsonObject last = drawdown["times"].toArray()[1].toObject();
  EXPECT_EQ(last["time_a"], 10);
  EXPECT_EQ(last["percentiles"].toObject()["P10"].toObject()["value"], 2); // of 0, 0, 1, 2
}

TEST_F(AnswerTablesTest, theSummaryTellsWhichRunsFailedAndWhereTheyLie) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder), QString());
  const QJsonObject failed = summary(folder)["failed"].toObject();
  EXPECT_EQ(failed["count"], 1);
  const QJsonObject run = failed["runs"].toArray()[0].toObject();
  EXPECT_EQ(run["run"], "run07");
  EXPECT_EQ(run["reason"], "the solver, it gave up");
  EXPECT_EQ(run["values"].toObject()["kf"], 0.008);
  for (const char* const figure : {"least", "median", "greatest"})
    EXPECT_EQ(failed["values"].toObject()["kf"].toObject()[figure], 0.008) << figure;
}

TEST_F(AnswerTablesTest, figuresAreTheSameHoweverManyNumbersAreKeptAtATime) {
  const StudyFolder folder = computed("a", ascending());
  const Results results(folder, setup.plan, setup.layout);
  EXPECT_EQ(toJson(summaryOf(results, setup), setup), toJson(summaryOf(results, setup, 1), setup));
}

TEST_F(AnswerTablesTest, theSummaryGoesElsewhereTooWhereThatIsWanted) {
  const StudyFolder folder = computed("a", ascending());
  ASSERT_EQ(write(folder, path("elsewhere.json")), QString());
  EXPECT_EQ(contentOf(path("elsewhere.json")), contentOf(folder.path() + "/summary.json"));
}

TEST_F(AnswerTablesTest, aPlaceThatCantBeWrittenIsNamed) {
  const StudyFolder folder = computed("a", ascending());
  EXPECT_EQ(write(folder, path("nowhere/s.json")), path("nowhere/s.json"));
}

TEST_F(AnswerTablesTest, correlatedKeysOfAStudyHaveNoTotals) {
  StudySetup correlated = setup;
  correlated.file.correlations = {{0, 1, 0.5}};
  const StudyFolder folder = computed("a", ascending());
  const Results results(folder, setup.plan, setup.layout);
  const AnswerSummary summary = summaryOf(results, correlated);
  EXPECT_FALSE(summary.quantities[0].influences[0].total);
  EXPECT_TRUE(summary.quantities[0].influences[0].firstOrder);
}

} // namespace
