#include "study/work/Crew.h"

#include "support/TestDirectory.h"

#include <QFile>

#include <gtest/gtest.h>

#include <map>

using namespace TVR::Study;

namespace {

/// Crews of workers that are scripts: what they do with a run follows from its name.
class CrewTest : public testing::Test, protected TestDirectory {
protected:
  /// `body`: what is done with each run, whose name is in $name. `answer` answers it.
  QString worker(const QByteArray& body) const {
    return script("answer() { echo "
                  "\"{\\\"run\\\":\\\"$name\\\",\\\"repeats\\\":1,\\\"values\\\":[1],$1}\"; }\n"
                  "done='\"scalars\":[],\"series\":[]'\n"
                  "read -r task\n"
                  "echo '{\"ready\":true}'\n"
                  "while read -r line; do\n"
                  "  name=${line#*\\\"run\\\":\\\"}; name=${name%%\\\"*}\n" +
                  body + "\ndone\n");
  }
  QString script(const QByteArray& text) const {
    QFile file(path("worker"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/bash\n" + text);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
  }

  /// Has the runs computed; what is said of each of them stays in `reasons`.
  QString compute(const QString& program, const QList<QByteArray>& names, int workers = 1,
                  double timeLimit = 600) {
    ResultLayout layout;
    layout.keys = QStringList{"kf"};
    int next = 0;
    Crew crew({program, {"base.tbat", layout}, workers, timeLimit},
              {[&]() -> std::optional<WorkerRun> {
                 if (next == names.size())
                   return {};
                 return WorkerRun{names[next++], {1}};
               },
               [this](const Record& record, const QByteArray&) {
                 EXPECT_EQ(reasons.count(record.run), 0U) << record.run.constData();
                 reasons[record.run] = record.failure.toStdString();
                 return !isDiskFull;
               }});
    return crew.run();
  }

  using Reasons = std::map<QByteArray, std::string>;
  Reasons reasons;
  bool isDiskFull = false;
};

} // namespace

TEST_F(CrewTest, eachRunIsDoneOnceByAnyNumberOfWorkers) {
  const QString program = worker("answer \"$done\"");
  QList<QByteArray> names;
  for (int i = 0; i < 50; ++i)
    names << "run" + QByteArray::number(i);
  EXPECT_EQ(compute(program, names, 3), "");
  EXPECT_EQ(reasons.size(), 50U);
  EXPECT_EQ(reasons["run49"], "");
}

TEST_F(CrewTest, aRunThatFailsIsTriedOnceMoreAndKeepsItsReason) {
  const QString program = worker("echo x >> '" + path("tries").toUtf8() +
                                 ".'$name; if [ $name = bad ]; then answer '\"failed\":\"no\"'; "
                                 "else answer \"$done\"; fi");
  EXPECT_EQ(compute(program, {"a", "bad", "b"}), "");
  EXPECT_EQ(reasons, (Reasons{{"a", ""}, {"bad", "no"}, {"b", ""}}));
  EXPECT_EQ(contentOf(path("tries.bad")), "x\nx\n");
  EXPECT_EQ(contentOf(path("tries.a")), "x\n");
}

TEST_F(CrewTest, aRunThatFailsOnceOnlyIsDone) {
  const QByteArray mark = path("mark").toUtf8();
  const QString program = worker("if [ $name = bad ] && [ ! -e '" + mark + "' ]; then touch '" +
                                 mark + "'; kill -9 $$; else answer \"$done\"; fi");
  EXPECT_EQ(compute(program, {"a", "bad", "b"}), "");
  EXPECT_EQ(reasons, (Reasons{{"a", ""}, {"bad", ""}, {"b", ""}}));
}

TEST_F(CrewTest, aRunThatTakesItsWorkerWithItStopsNoOther) {
  const QString program = worker("if [ $name = bad ]; then kill -9 $$; else answer \"$done\"; fi");
  EXPECT_EQ(compute(program, {"a", "bad", "b", "c", "d"}), "");
  EXPECT_EQ(reasons, (Reasons{{"a", ""},
                              {"bad", "the worker was killed by signal 9"},
                              {"b", ""},
                              {"c", ""},
                              {"d", ""}}));
}

TEST_F(CrewTest, manyRunsThatTakeTheirWorkersWithThemStopNothing) {
  const QString program =
      worker("if [ ${name:0:3} = bad ]; then kill -9 $$; else answer \"$done\"; fi");
  QList<QByteArray> names;
  for (int i = 0; i < 12; ++i)
    names << "bad" + QByteArray::number(i);
  EXPECT_EQ(compute(program, names + QList<QByteArray>{"good"}, 2), "");
  EXPECT_EQ(reasons.size(), 13U);
  EXPECT_EQ(reasons["bad11"], "the worker was killed by signal 9");
  EXPECT_EQ(reasons["good"], "");
}

TEST_F(CrewTest, aRunThatTakesTooLongIsGivenUp) {
  // Nobody ever writes to the pipe.
  const QByteArray pipe = path("pipe").toUtf8();
  const QString program = worker("if [ $name = bad ]; then [ -p '" + pipe + "' ] || mkfifo '" +
                                 pipe + "'; read -r never < '" + pipe + "'; fi; answer \"$done\"");
  EXPECT_EQ(compute(program, {"bad", "a"}, 1, 0.5), "");
  EXPECT_EQ(reasons, (Reasons{{"bad", "took longer than 0.5 s"}, {"a", ""}}));
}

TEST_F(CrewTest, aWorkerThatTalksNonsenseIsReplaced) {
  const QString program =
      worker("if [ $name = bad ]; then echo nonsense; else answer \"$done\"; fi");
  EXPECT_EQ(compute(program, {"a", "bad", "b"}), "");
  EXPECT_EQ(
      reasons,
      (Reasons{{"a", ""}, {"bad", "the worker gave an answer that can't be read"}, {"b", ""}}));
}

TEST_F(CrewTest, whereNoWorkerLivesNoRunIsBlamed) {
  const QString program = script("read -r task; exit 3");
  EXPECT_EQ(compute(program, {"a", "b", "c", "d", "e", "f", "g", "h"}),
            "one worker after the other ended before its first run: the worker ended with exit "
            "code 3");
  EXPECT_EQ(reasons, Reasons{});
  EXPECT_TRUE(compute(path("none"), {"a", "b", "c", "d", "e"}).contains("could not be started"));
}

TEST_F(CrewTest, aWorkerWhoseMachineIsAtFaultEndsTheWorkAndNoRunIsBlamed) {
  const QString program = worker("if [ $name = c ]; then echo '{\"fault\":\"no space\"}'; exit 1; "
                                 "else answer \"$done\"; fi");
  EXPECT_EQ(compute(program, {"a", "b", "c", "d"}), "no space");
  EXPECT_EQ(reasons, (Reasons{{"a", ""}, {"b", ""}}));
}

TEST_F(CrewTest, aWorkerThatHasNothingLeftToDoEndsByItself) {
  const QByteArray mark = path("end").toUtf8();
  const QString program = worker("answer \"$done\"");
  QFile file(program);
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("echo x >> '" + mark + "'\n");
  file.close();
  EXPECT_EQ(compute(program, {"a", "b", "c"}), "");
  EXPECT_EQ(contentOf(path("end")), "x\n");
}

TEST_F(CrewTest, theWorkEndsWhereItsResultsCannotBeWritten) {
  isDiskFull = true;
  EXPECT_EQ(compute(worker("answer \"$done\""), {"a", "b", "c", "d", "e", "f"}),
            "what was computed can't be written");
  EXPECT_LT(reasons.size(), 6U);
}
