#include "design/ParameterId.h"
#include "store/Manager.h"
#include "study/StudyProgram.h"

#include <QMap>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <utility>

using namespace TVR;
using Data::Manager;

namespace {

/// Studies through the program whose base is a project file.
class ProjectBaseTest : public StudyProgramTest {
protected:
  ProjectBaseTest() {
    const Outcome outcome = run({"--quiet", "--output", path("base.out"), "--save-project",
                                 path("base.tvr"), path("base.tbat")},
                                TEVRANE_BATCH_PROGRAM);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  }

  /// One run for each line of values.
  void writeTableStudy(const QByteArray& values) const {
    write("runs.csv", values);
    write("a.tstudy", "[study]\nbase=base.tvr\nsampler=table\ntable=runs.csv\nruns_per_part=2\n"
                      "[answers]\nquantities=temperature\ntimes=2\nraster_cell=10\n");
  }

  /// The base with what somebody changes in it, under another name.
  QString edited(const QString& name, const std::function<void(Manager&)>& edit) const {
    Manager& store = *Manager::instance();
    QMap<QString, int> pageItems;
    EXPECT_TRUE(store.read(path("base.tvr"), pageItems));
    edit(store);
    EXPECT_TRUE(store.write(path(name), nullptr, {}));
    return path(name);
  }
  static double stored(int parameter) { return Manager::instance()->number(parameter); }

  /// What the batch program computes for a project: the temperatures of both wells at the end.
  std::pair<double, double> computed(const QString& project) const {
    EXPECT_EQ(
        run({"--quiet", "--output", path("run.out"), project}, TEVRANE_BATCH_PROGRAM).exitCode, 0);
    const QByteArrayList last = contentOf(path("run.out")).trimmed().split('\n').last().split('\t');
    return {last.value(2).toDouble(), last.value(3).toDouble()};
  }

  /// The same of the run of the study with this number in the column of its first key.
  std::pair<double, double> answered(double value) const {
    for (const QByteArrayList& row : rows())
      if (row[3].toDouble() == value) {
        const auto column =
            table().split('\n').first().split(',').indexOf("temperature Pump 2 a [\u00b0C]");
        EXPECT_EQ(row[2], "done") << row.last().constData();
        return {row[column].toDouble(), row[column + 1].toDouble()};
      }
    ADD_FAILURE() << "no run with " << value;
    return {};
  }

  static void expectEqual(const std::pair<double, double>& one,
                          const std::pair<double, double>& other) {
    EXPECT_NEAR(one.first, other.first, 1e-7); // the table has ten digits
    EXPECT_NEAR(one.second, other.second, 1e-7);
  }
};

} // namespace

TEST_F(ProjectBaseTest, aRunIsTheProjectWithItsValuesTyped) {
  writeTableStudy("kf,aquifer_porosity\n0.001,0.1\n0.004,0.4\n");
  ASSERT_EQ(study("run").exitCode, 0);
  for (const auto& [kf, porosity] : {std::pair(0.001, 0.1), std::pair(0.004, 0.4)})
    expectEqual(answered(kf), computed(edited("typed.tvr", [&](Manager& store) {
                  store.setValue(Parameter::HydraulicConductivity, kf);
                  store.setValue(Parameter::EffectivePorosity, porosity);
                })));
  EXPECT_GT(std::abs(answered(0.001).first - answered(0.004).first), 1e-3);
}

TEST_F(ProjectBaseTest, whatFollowsFromAVariedValueIsDerivedAgain) {
  const double kf = 0.03;
  writeTableStudy("kf\n0.03\n");
  ASSERT_EQ(study("run").exitCode, 0);
  // the extents of the model hang on the velocity, and it on the conductivity
  double velocity = 0;
  const QString derived = edited("typed.tvr", [&](Manager& store) {
    velocity = store.number(Parameter::GroundwaterVelocity);
    store.setValue(Parameter::HydraulicConductivity, kf);
  });
  EXPECT_GT(stored(Parameter::GroundwaterVelocity), 5 * velocity);
  expectEqual(answered(kf), computed(derived));
  const auto replaced = computed(edited("replaced.tvr", [&](Manager& store) {
    store.setStored(Parameter::HydraulicConductivity, kf);
  }));
  EXPECT_GT(std::abs(answered(kf).second - replaced.second), 1e-6);
}

TEST_F(ProjectBaseTest, whatFollowsFromNothingThatVariesStandsAsItIs) {
  const auto byHand = [](Manager& store) {
    store.setValue(Parameter::GroundwaterVelocity,
                   10 * store.number(Parameter::GroundwaterVelocity));
  };
  edited("base.tvr", byHand);
  writeTableStudy("aquifer_porosity\n0.1\n");
  ASSERT_EQ(study("run").exitCode, 0);
  const auto typed = [](Manager& store) { store.setValue(Parameter::EffectivePorosity, 0.1); };
  expectEqual(answered(0.1), computed(edited("typed.tvr", typed)));
  const auto derived = computed(edited("derived.tvr", [&](Manager& store) {
    store.setValue(Parameter::HydraulicConductivity,
                   store.number(Parameter::HydraulicConductivity));
    typed(store);
  }));
  EXPECT_GT(std::abs(answered(0.1).first - derived.first), 1e-6);
}

TEST_F(ProjectBaseTest, aCellOfATableIsVariedToo) {
  writeTableStudy("well_model\\2\\4\n-2\n-5\n");
  ASSERT_EQ(study("run").exitCode, 0);
  for (const double change : {-2.0, -5.0})
    expectEqual(answered(change), computed(edited("typed.tvr", [&](Manager& store) {
                  store.setCells(ProjectTable::Well, {{1, 4, change}});
                })));
  EXPECT_NEAR(answered(-2).second - answered(-5).second, 3, 1e-3); // what goes back is colder
}

TEST_F(ProjectBaseTest, aRunLeavesNothingBehindForTheNextOne) {
  // Rates above the mean flow of the design settle the extents of the model, lower ones leave them.
  writeTableStudy("well_model\\1\\3,well_model\\2\\3\n-0.008,0.008\n-0.0001,0.0001\n");
  ASSERT_EQ(study("run", {"--workers", "1"}).exitCode, 0);
  expectEqual(answered(-0.0001), computed(edited("typed.tvr", [](Manager& store) {
                store.setCells(ProjectTable::Well, {{0, 3, -0.0001}, {1, 3, 0.0001}});
              })));
}

TEST_F(ProjectBaseTest, workersChangeNoByte) {
  writeTableStudy("kf\n0.001\n0.002\n0.003\n0.004\n0.005\n");
  ASSERT_EQ(study("run", {"--workers", "1"}).exitCode, 0);
  ASSERT_EQ(study("run", {"--workers", "2", "--folder", folder("two")}).exitCode, 0);
  EXPECT_EQ(rows().size(), 5);
  EXPECT_EQ(table("two"), table());
}

TEST_F(ProjectBaseTest, aStudyThatWasKilledGoesOn) {
  writeTableStudy("kf\n0.001\n0.002\n0.003\n0.004\n0.005\n");
  ASSERT_EQ(study("run", {"--folder", folder("undisturbed")}).exitCode, 0);
  for (const int milliseconds : {30, 60, 90, 120}) {
    StudyGroup program;
    program.start(TEVRANE_STUDY_PROGRAM, {"run", path("a.tstudy"), "--quiet"});
    ASSERT_TRUE(program.waitForStarted());
    program.waitForFinished(milliseconds);
    program.killAll();
  }
  EXPECT_EQ(study("run").exitCode, 0);
  EXPECT_EQ(table(), table("undisturbed"));
  EXPECT_FALSE(table().isEmpty());
}

TEST_F(ProjectBaseTest, aFileThatIsNoProjectIsToldWithWhatWasExpected) {
  writeTableStudy("kf\n0.001\n");
  for (const QByteArray& content :
       {QByteArray("[main]\nsimulation_time=2\n"), contentOf(path("base.tvr")).left(2000)}) {
    write("base.tvr", content);
    for (const char* const command : {"check", "run"}) {
      const Outcome outcome = study(command);
      EXPECT_EQ(outcome.exitCode, 2);
      EXPECT_TRUE(outcome.err.contains("a.tstudy: base.tvr: is no project file that can be read: "
                                       "expected well-formed XML"))
          << outcome.err.toStdString();
    }
  }
  EXPECT_FALSE(QFile::exists(path("a.study")));
}

TEST_F(ProjectBaseTest, thePageOfAStudyIsDrawnOfAProjectToo) {
  writeTableStudy("kf\n0.001\n0.002\n");
  ASSERT_EQ(study("run").exitCode, 0);
  const Outcome outcome = study("page", {"--page", path("page.svg")});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  const QByteArray page = contentOf(path("page.svg"));
  EXPECT_TRUE(page.contains("variants of base.tvr"));
}

TEST_F(ProjectBaseTest, calibrationExpectsABatchFile) {
  write("a.tstudy", "[study]\nbase=base.tvr\n[vary]\nkf=uniform(0.001, 0.004)\n");
  write("observations.csv", "name,well,time,quantity,value,weight\nt1,Pump,2,temperature,9.5,1\n");
  const Outcome outcome = study("pest", {path("observations.csv")});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "tevrane-study: " + path("a.tstudy") +
                             ": [study] base: expected a batch file (.tbat), in which numbers can "
                             "be marked\n");
  EXPECT_FALSE(QFile::exists(path("a.pest")));
}
