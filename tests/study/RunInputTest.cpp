#include "study/work/RunInput.h"

#include "design/ParameterId.h"
#include "store/Manager.h"
#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

using namespace TVR;
using namespace TVR::Study;

namespace {

class RunInputTest : public testing::Test, protected TestDirectory {
protected:
  RunInputTest() {
    QFile base(path("base.tbat"));
    EXPECT_TRUE(base.open(QIODevice::WriteOnly));
    base.write(smallDoublet);
    base.close();
    QDir().mkpath(path("aside"));
    qputenv("TMPDIR", path("aside").toLocal8Bit());
  }
  ~RunInputTest() override {
    if (former_.isEmpty())
      qunsetenv("TMPDIR");
    else
      qputenv("TMPDIR", former_);
  }

  RunInput input() const { return {path("base.tbat"), {*studyKey("kf")}}; }
  static double conductivity() {
    return Data::Manager::instance()->value(Parameter::HydraulicConductivity).toDouble();
  }

private:
  const QByteArray former_ = qgetenv("TMPDIR");
};

} // namespace

TEST_F(RunInputTest, eachRunHasItsOwnValuesAndLeavesNoFile) {
  RunInput runs = input();
  for (const double value : {0.002, 0.003}) {
    EXPECT_EQ(runs.read({value}), QStringList());
    EXPECT_EQ(conductivity(), value);
  }
  EXPECT_EQ(QDir(path("aside")).entryList(QDir::Files), QStringList());
}

TEST_F(RunInputTest, aRunWhoseFileCannotBeWrittenIsNoRunAndTheMachineIsToBlame) {
  RunInput runs = input();
  rlimit former{};
  getrlimit(RLIMIT_FSIZE, &former);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{64, former.rlim_max}; // bytes of a file
  setrlimit(RLIMIT_FSIZE, &full);
  const QStringList faults = runs.read({0.002});
  setrlimit(RLIMIT_FSIZE, &former);
  std::signal(SIGXFSZ, handler);
  ASSERT_EQ(faults.size(), 1);
  EXPECT_TRUE(faults[0].startsWith("the file of a run can't be written to " + path("aside") + ": "))
      << faults[0].toStdString();
  EXPECT_TRUE(runs.isMachineAtFault());
  EXPECT_EQ(runs.read({0.003}), QStringList());
  EXPECT_FALSE(runs.isMachineAtFault());
}

TEST_F(RunInputTest, withoutADirectoryForTemporaryFilesNoneIsWrittenElsewhere) {
  qputenv("TMPDIR", path("nowhere").toLocal8Bit());
  RunInput runs = input();
  EXPECT_EQ(runs.read({0.002}),
            QStringList{"the file of a run can't be written: there is no directory for temporary "
                        "files (TMPDIR)"});
  EXPECT_TRUE(runs.isMachineAtFault());
}

TEST_F(RunInputTest, aRunThatIsWrongIsNotTheFaultOfTheMachine) {
  RunInput runs = input();
  EXPECT_NE(runs.read({-1}), QStringList());
  EXPECT_FALSE(runs.isMachineAtFault());
}
