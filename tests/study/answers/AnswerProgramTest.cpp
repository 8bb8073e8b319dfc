#include "support/TestDirectory.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

/// Runs the program as a user does, on a study of an example.
class AnswerProgramTest : public testing::Test, protected TestDirectory {
protected:
  AnswerProgramTest() {
    EXPECT_TRUE(QFile::copy(TEVRANE_EXAMPLES_DIR "/minimal.tbat", path("base.tbat")));
    QFile study(path("a.tstudy"));
    EXPECT_TRUE(study.open(QIODevice::WriteOnly));
    study.write("[study]\nbase=base.tbat\nruns=6\nruns_per_part=2\n"
                "[vary]\nkf=log-uniform(0.001, 0.004)\n");
  }

  QString run(const QString& command, const QStringList& more) const {
    QProcess process;
    process.start(TEVRANE_STUDY_PROGRAM, QStringList{command, path("a.tstudy")} + more);
    EXPECT_TRUE(process.waitForFinished(240'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  QByteArray file(const QString& folder, const QString& name) const {
    return contentOf(path(folder) + '/' + name);
  }
};

TEST_F(AnswerProgramTest, shardsThatAreCollectedGiveTheBytesOfOneStudy) {
  const QString said = run("run", {"--workers", "2", "--json", path("summary.json")});
  EXPECT_TRUE(said.contains("answers: answers.csv, results.sqlite and summary.json in "))
      << said.toStdString();
  run("run", {"--folder", path("one"), "--shard", "1/2", "--workers", "1"});
  EXPECT_EQ(file("one", "summary.json"), "");
  run("run", {"--folder", path("two"), "--shard", "2/2", "--workers", "1"});
  run("collect", {path("one"), path("two"), "--folder", path("both")});
  for (const char* const name : {"answers.csv", "results.sqlite", "summary.json"}) {
    EXPECT_FALSE(file("a.study", name).isEmpty()) << name;
    EXPECT_EQ(file("a.study", name), file("both", name)) << name;
  }
  EXPECT_EQ(contentOf(path("summary.json")), file("both", "summary.json"));
  const QJsonObject summary = QJsonDocument::fromJson(file("both", "summary.json")).object();
  EXPECT_EQ(summary["runs"], 6);
  EXPECT_EQ(summary["keys"].toArray()[0].toObject()["key"], "kf");
}

TEST_F(AnswerProgramTest, aRunWithoutAPlumeCountsWithAnExtentOfZero) {
  QFile study(path("a.tstudy"));
  ASSERT_TRUE(study.open(QIODevice::Append));
  study.write("[answers]\nlevels=-30\nquantities=plume_length, plume_width, plume_area\n");
  study.close();
  run("run", {});
  const QJsonArray quantities =
      QJsonDocument::fromJson(file("a.study", "summary.json")).object()["quantities"].toArray();
  ASSERT_EQ(quantities.size(), 3);
  for (const QJsonValue& entry : quantities) {
    const QJsonObject extent = entry.toObject();
    EXPECT_EQ(extent["runs"], 6) << extent["quantity"].toString().toStdString();
    EXPECT_EQ(extent["percentiles"].toObject()["P90"].toObject()["value"], 0);
    const QJsonObject plume = extent["plume_probability"].toObject();
    EXPECT_EQ(plume["value"], 0);
    EXPECT_EQ(plume["interval"].toArray()[0], 0);
    EXPECT_LT(plume["interval"].toArray()[1].toDouble(), 0.5); // none of six
  }
}

} // namespace
