#include "study/plan/Plan.h"

#include "study/plan/RunFile.h"
#include "support/TestDirectory.h"

#include <QSet>
#include <QSettings>

#include <gtest/gtest.h>

#include <cmath>

using namespace TVR;
using namespace TVR::Study;

namespace {

VariedKey varied(const QString& key, const QString& distribution) {
  QString expected;
  return {*studyKey(key), *parseDistribution(distribution, expected)};
}

StudyFile studyOf(std::vector<VariedKey> keys, std::size_t runs) {
  StudyFile study;
  study.runs = runs;
  study.varied = std::move(keys);
  return study;
}

Plan planOf(const StudyFile& study) {
  Findings findings;
  return makePlan(study, digestOf("base"), findings);
}

} // namespace

TEST(PlanTest, theNameOfARunFollowsFromBaseAndValuesAndFromNoOrder) {
  const StudyKey kf = *studyKey("kf");
  const StudyKey h = *studyKey("aquifer_h");
  const QByteArray base = digestOf("base");
  const QByteArray name = runName(base, {kf, h}, {0.001, 10});
  EXPECT_EQ(name.size(), 32);
  EXPECT_EQ(runName(base, {h, kf}, {10, 0.001}), name);
  EXPECT_NE(runName(base, {kf, h}, {std::nextafter(0.001, 1), 10}), name);
  EXPECT_NE(runName(digestOf("other"), {kf, h}, {0.001, 10}), name);
}

TEST(PlanTest, theNameOfARunFollowsFromTheVersionOfTheProgramToo) {
  const StudyKey kf = *studyKey("kf");
  const auto nameBy = [&](const QByteArray& version) {
    return runName(digestOf("base"), {kf}, {0.001}, version);
  };
  EXPECT_NE(nameBy("1.0.0"), nameBy("1.0.1"));
  EXPECT_EQ(nameBy(TEVRANE_VERSION), runName(digestOf("base"), {kf}, {0.001}));
  EXPECT_EQ(nameBy(TEVRANE_VERSION),
            planOf(studyOf({varied("kf", "list(0.001)")}, 1)).runs[0].name);
}

TEST(PlanTest, equalValuesMakeOneRunThatCountsOften) {
  const Plan plan = planOf(studyOf({varied("exchange_caprock", "list(0, 1)")}, 10));
  ASSERT_EQ(plan.runs.size(), 2U);
  EXPECT_EQ(plan.runs[0].repeats + plan.runs[1].repeats, 10);
  EXPECT_EQ(plan.runs[0].repeats, 5); // one value in each share of a hypercube
}

TEST(PlanTest, moreRunsOfASequenceKeepTheRunsThatThereWere) {
  StudyFile study = studyOf({varied("kf", "log-uniform(0.001, 0.01)")}, 20);
  study.sampler = Sampler::Sobol;
  const Plan few = planOf(study);
  study.runs = 60;
  const Plan more = planOf(study);
  for (std::size_t i = 0; i < few.runs.size(); ++i)
    EXPECT_EQ(few.runs[i].name, more.runs[i].name);
  EXPECT_EQ(partName(few, 0, "layout").size(), 32);
  EXPECT_NE(partName(few, 0, "layout"), partName(few, 0, "other"));
}

TEST(PlanTest, aWholePartOfAShorterPlanIsOneOfTheLongerPlanToo) {
  StudyFile study = studyOf({varied("kf", "log-uniform(0.001, 0.01)")}, 50);
  study.sampler = Sampler::Sobol;
  const Plan few = planOf(study);
  study.runs = 1000;
  const Plan more = planOf(study);
  EXPECT_EQ(few.parts(), 2U);
  EXPECT_EQ(partName(few, 1, "layout"), partName(more, 1, "layout"));
}

TEST(PlanTest, thePartsOfAPlanHoldEachRunOnce) {
  const Plan plan = planOf(studyOf({varied("kf", "uniform(0.001, 0.01)")}, 60));
  std::size_t runs = 0;
  for (std::size_t part = 0; part < plan.parts(); ++part)
    runs += plan.endOf(part) - plan.firstOf(part);
  EXPECT_EQ(runs, 60U);
  EXPECT_EQ(plan.endOf(plan.parts() - 1), 60U);
}

TEST(PlanTest, numbersAreWrittenWithAllTheirBits) {
  for (const double number : {1.0 / 3, 1e-8 / 7, 680'899.123456789, -0.0035})
    EXPECT_EQ(exactText(number).toDouble(), number);
}

TEST(PlanTest, itsTableIsReadAsTheSameSample) {
  StudyFile study = studyOf(
      {varied("kf", "log-uniform(0.001, 0.01)"), varied("exchange_caprock", "list(0, 1)")}, 10);
  study.sampler = Sampler::Grid; // 5 values of the first key
  study.varied.push_back(varied("well_model\\1\\3", "list(-0.001, -0.001)"));
  const Plan plan = planOf(study);
  ASSERT_EQ(plan.runs.size(), 10U);
  ASSERT_EQ(plan.runs[3].repeats, 2);

  const QTemporaryDir directory;
  study.sampler = Sampler::Table;
  study.table = directory.filePath("sample.csv");
  QFile file(study.table);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(sampleTable(plan));
  file.close();
  const Plan read = planOf(study);
  ASSERT_EQ(read.runs.size(), 10U);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(read.runs[i].name, plan.runs[i].name);
    EXPECT_EQ(read.runs[i].repeats, 2);
  }
}

TEST(PlanTest, theFileOfARunIsTheBaseWithOtherValues) {
  const QTemporaryDir directory;
  const QString name = directory.filePath("run.tbat");
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(runFile("[hydraulic]\nkf=0.5\naquifer_h=12\n[installation]\nwell_model\\size=1\n"
                     "well_model\\1\\3=-0.1",
                     {*studyKey("kf"), *studyKey("well_model\\1\\3")}, {1.0 / 3, -0.0035}));
  file.close();
  QSettings settings(name, QSettings::IniFormat);
  EXPECT_EQ(settings.value("hydraulic/kf").toDouble(), 1.0 / 3);
  EXPECT_EQ(settings.value("hydraulic/aquifer_h").toString(), "12");
  EXPECT_EQ(settings.value("installation/well_model/1/3").toDouble(), -0.0035);
  EXPECT_EQ(settings.value("installation/well_model/size").toInt(), 1);
}

TEST(PlanTest, noTwoKeysOfBatchFilesHaveOneName) {
  // The study names keys without their sections.
  for (const char* name : {"kf", "simulation_time", "referenz_temperature", "filter_h"})
    EXPECT_EQ(studyKey(name)->name, name);
}
