#include "study/work/MeshBands.h"

#include "study/StudyProgram.h"
#include "study/plan/RunFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

using namespace TVR::Study;

namespace {

/// Studies through the program, with and without bands.
class MeshBandsProgramTest : public StudyProgramTest {
protected:
  MeshBandsProgramTest() {
    // More water is withdrawn than goes back: the water sinks further than it rises.
    base.replace("well_model\\2\\3=0.001", "well_model\\2\\3=0.0006");
    write("base.tbat", base);
  }

  void writeBandedStudy(int runs) const {
    writeStudy(runs);
    write("a.tstudy", contentOf(path("a.tstudy")) + "mesh_bands=true\n");
  }

  QByteArrayList head(const QString& folder = "a.study") const {
    return table(folder).split('\n').first().split(',');
  }
  /// The number of a run in a column of this title.
  double number(const QByteArrayList& row, const QByteArray& title) const {
    const int column = head().indexOf(title);
    EXPECT_GE(column, 0) << title.constData();
    return row.value(column).toDouble();
  }

  QByteArray base = smallDoublet;
};

} // namespace

TEST_F(MeshBandsProgramTest, bandsStandBehindTheNumbersOfARunAndChangeNone) {
  writeStudy(4);
  ASSERT_EQ(study("run", {"--folder", folder("plain")}).exitCode, 0);
  writeBandedStudy(4);
  ASSERT_EQ(study("run").exitCode, 0);
  const int reason = head("plain").size() - 1;
  const int quantities = reason - 5; // behind name, repeats, outcome and two keys
  ASSERT_EQ(head().size(), reason + quantities + 1);
  EXPECT_EQ(head().mid(0, reason), head("plain").mid(0, reason));
  EXPECT_EQ(head()[reason], "plume_length_mesh_band -1 K 1 a [m]");
  EXPECT_EQ(head().last(), "reason");
  ASSERT_EQ(rows().size(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(rows()[i].mid(0, reason), rows("plain")[i].mid(0, reason));
    for (int band = 0; band < quantities; ++band)
      EXPECT_GT(rows()[i][reason + band].toDouble(), 0) << head()[reason + band].constData();
  }
}

TEST_F(MeshBandsProgramTest, bandsAreThoseThatTheBatchProgramReports) {
  writeBandedStudy(1);
  ASSERT_EQ(study("run").exitCode, 0);
  const QByteArrayList row = rows().first();
  const QString file =
      write("run.tbat", runFile(base, {*studyKey("kf"), *studyKey("groundwater_flow_direction")},
                                {row[3].toDouble(), row[4].toDouble()}));
  ASSERT_EQ(
      run({"--quiet", "--convergence", "--json", path("report.json"), file}, TEVRANE_BATCH_PROGRAM)
          .exitCode,
      0);
  const QJsonObject report = QJsonDocument::fromJson(contentOf(path("report.json"))).object();
  const std::map<QString, QByteArray> titles{
      {"plume of -1 K, length", "plume_length%1 -1 K 2 a [m]"},
      {"plume of -1 K, width", "plume_width%1 -1 K 2 a [m]"},
      {"temperature of Pump", "temperature%1 Pump 2 a [°C]"},
      {"temperature of Return", "temperature%1 Return 2 a [°C]"},
      {"greatest drawdown", "drawdown_max%1 2 a [m]"}};
  int compared = 0;
  for (const QJsonValue& entry : report["convergence"].toObject()["figures"].toArray()) {
    const QJsonObject figure = entry.toObject();
    const auto title = titles.find(figure["name"].toString());
    if (title == titles.end())
      continue;
    const double value = figure["value"].toDouble();
    const double band = figure["band"].toDouble();
    QByteArray ofBand = QByteArray(title->second).replace("%1", "_mesh_band");
    EXPECT_NEAR(number(row, QByteArray(title->second).replace("%1", "")), value,
                1e-9 * std::abs(value));
    EXPECT_NEAR(number(row, ofBand.replace("°C", "K")), band, 1e-6 * band) << ofBand.constData();
    ++compared;
  }
  EXPECT_EQ(compared, 5);
}

TEST_F(MeshBandsProgramTest, bandsAreAnswersWithLevelWellTimeAndUnit) {
  writeBandedStudy(2);
  ASSERT_EQ(study("run").exitCode, 0);
  const QByteArray answers = contentOf(path("a.study/answers.csv"));
  for (const char* const line :
       {",,1,plume_length_mesh_band -1 K,", ",,2,drawdown_max_mesh_band,",
        ",Pump,2,temperature_mesh_band,", ",Pump,,temperature_min_mesh_band,"})
    EXPECT_EQ(answers.count(line), 2) << line;
  QJsonObject found;
  const QJsonObject summary =
      QJsonDocument::fromJson(contentOf(path("a.study/summary.json"))).object();
  for (const QJsonValue& quantity : summary["quantities"].toArray())
    if (quantity.toObject()["quantity"] == "temperature_mesh_band" && found.isEmpty())
      found = quantity.toObject();
  EXPECT_EQ(found["unit"], "K");
  EXPECT_EQ(found["well"], "Pump");
  EXPECT_EQ(found["time_a"], 1);
  EXPECT_EQ(found["runs"], 2);
}

TEST_F(MeshBandsProgramTest, workersAndShardsChangeNoByteOfBands) {
  writeBandedStudy(11);
  ASSERT_EQ(study("run", {"--workers", "1"}).exitCode, 0);
  QStringList folders;
  for (const char* const shard : {"1/2", "2/2"}) {
    folders << folder(QString(shard).left(1));
    ASSERT_EQ(
        study("run", {"--workers", "2", "--shard", shard, "--folder", folders.last()}).exitCode, 0);
  }
  EXPECT_EQ(study("collect", folders + QStringList{"--folder", folder("all")}).exitCode, 0);
  EXPECT_EQ(table("all"), table());
  EXPECT_FALSE(table().isEmpty());
}

TEST_F(MeshBandsProgramTest, checkAndPlanSayThatEachRunTakesThreeMeshes) {
  writeBandedStudy(3);
  EXPECT_TRUE(study("check").out.endsWith(": ok, each run on three meshes\n"));
  EXPECT_TRUE(study("plan").out.contains(" s each on three meshes: "));
  writeStudy(3);
  EXPECT_TRUE(study("check").out.endsWith(": ok\n"));
  EXPECT_FALSE(study("plan").out.contains("meshes"));
}

TEST(MeshBandsTest, aBandFollowsFromTheValuesOnThreeMeshes) {
  // Errors that shrink to a quarter where cells are halved: 1.25 times that of the middle mesh.
  const std::vector<double> bands =
      meshBands({{Quantity::PlumeLength, {}, 0, 0}}, {{{100, {116}}, {400, {104}}, {1600, {101}}}});
  ASSERT_EQ(bands.size(), 1U);
  EXPECT_NEAR(bands[0], 1.25 * 4, 1e-9);
}

TEST(MeshBandsTest, whatHardlyDiffersIsRightWithinTheLeastBandOfItsKind) {
  const std::vector<double> same{1, 1, 1, 1};
  EXPECT_EQ(meshBands({{Quantity::PlumeWidth, {}, 0, 0},
                       {Quantity::PlumeArea, {}, 0, 0},
                       {Quantity::Drawdown, 0, {}, 0},
                       {Quantity::TemperatureMin, 0, {}, {}}},
                      {{{100, same}, {400, same}, {1600, same}}}),
            (std::vector<double>{0.1, 0.1 * 0.1, 1e-5, 1e-4}));
}

TEST(MeshBandsTest, aNumberThatAMeshDoesNotHaveHasNoBand) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const std::vector<double> bands =
      meshBands({{Quantity::Drawdown, 0, {}, 0}}, {{{100, {none}}, {400, {104}}, {1600, {101}}}});
  EXPECT_TRUE(std::isnan(bands[0]));
}
