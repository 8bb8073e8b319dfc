#include "files/ProjectFiles.h"
#include "support/FullDisk.h"
#include "tables/WellModel.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// The older file must stay whole whatever happens to the newer one.
class FileSafetyTest : public ProjectFileTest {
protected:
  FileSafetyTest() {
    store.setValue(NumberOfDemandsPerYear, 1);
    store.setValue(NumberOfWells, 200);
  }
  ~FileSafetyTest() override { store.setValue(NumberOfWells, 2); }

  /// Sizes that end within the file, near its end among them.
  QList<int> sizesBelow(int size) const {
    return {0, 1, 1000, 16384, size / 2, size - 20'000, size - 16'384, size - 1000, size - 1};
  }
  QStringList filesBeside(const QString& name) const {
    return QDir(QFileInfo(name).path()).entryList(QDir::Files | QDir::Hidden);
  }
};

TEST_F(FileSafetyTest, aProjectFileStaysWhenTheDiskIsFull) {
  const QString name = path("project.tvr");
  ASSERT_TRUE(store.write(name, nullptr, {}));
  const QByteArray before = bytesOf(name);
  store.setStored(ProjectName, "other");
  for (const int size : sizesBelow(before.size())) {
    const FullDisk disk(static_cast<rlim_t>(size));
    EXPECT_FALSE(store.write(name, nullptr, {})) << size;
    EXPECT_EQ(bytesOf(name), before) << size;
  }
  EXPECT_EQ(filesBeside(name), QStringList{"project.tvr"});
}

TEST_F(FileSafetyTest, aBatchFileStaysWhenTheDiskIsFull) {
  const QString name = path("run.tbat");
  ASSERT_TRUE(store.write(name, nullptr, {}));
  const QByteArray before = bytesOf(name);
  store.setValue(GroundwaterGradient, 0.123456);
  for (const int size : sizesBelow(before.size())) {
    const FullDisk disk(static_cast<rlim_t>(size));
    store.write(name, nullptr, {});
    EXPECT_EQ(bytesOf(name), before) << size;
  }
  ASSERT_TRUE(store.write(name, nullptr, {}));
  EXPECT_TRUE(bytesOf(name).contains("0.123456"));
}

TEST_F(FileSafetyTest, nothingIsLeftWhereThereWasNoFile) {
  const FullDisk disk(1000);
  EXPECT_FALSE(store.write(path("new.tvr"), nullptr, {}));
  store.write(path("new.tbat"), nullptr, {});
  EXPECT_TRUE(filesBeside(path("new.tvr")).isEmpty());
}

/// Writes versions of a file in a loop, in a process that is killed at a random moment.
class KilledWriter {
public:
  KilledWriter(Manager& store, const QString& name) {
    EXPECT_EQ(pipe(pipe_), 0);
    process_ = fork();
    if (process_ == 0)
      writeForever(store, name);
    close(pipe_[1]);
  }
  KilledWriter(const KilledWriter&) = delete;
  ~KilledWriter() {
    kill(process_, SIGKILL);
    int status = 0;
    EXPECT_EQ(waitpid(process_, &status, 0), process_);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    close(pipe_[0]);
  }

  /// Lets the process work for some part of the time that a version takes.
  void runFor(double versions) {
    waitForVersion();
    QElapsedTimer timer;
    timer.start();
    waitForVersion();
    const auto duration = static_cast<double>(timer.nsecsElapsed());
    usleep(static_cast<useconds_t>(versions * duration / 1000));
  }

private:
  [[noreturn]] void writeForever(Manager& store, const QString& name) {
    qputenv("TMPDIR", QFileInfo(name).path().toUtf8()); // what a killed process leaves behind
    for (int version = 1;; ++version) {
      store.setStored(ProjectName, QString("version %1").arg(version % 10));
      store.write(name, nullptr, {});
      if (write(pipe_[1], "", 1) != 1)
        _exit(1);
    }
  }
  void waitForVersion() {
    char byte = 0;
    EXPECT_EQ(read(pipe_[0], &byte, 1), 1);
  }

  int pipe_[2] = {};
  pid_t process_ = 0;
};

TEST_F(FileSafetyTest, aProjectFileIsWholeAfterAKillAtAnyMoment) {
  const QString name = path("project.tvr");
  std::mt19937 random(7);
  for (int i = 0; i < 25; ++i) {
    KilledWriter(store, name).runFor(std::uniform_real_distribution<double>(0, 2)(random));
    ASSERT_GT(bytesOf(name).size(), 50'000) << i;
    const QDomDocument& document = documentOf(name);
    ASSERT_EQ(element(document, "well_model").elementsByTagName("value").size(), 1000) << i;
    ASSERT_TRUE(valueOf(document, "project_name").startsWith("version")) << i;
  }
}

TEST_F(FileSafetyTest, aBatchFileIsWholeAfterAKillAtAnyMoment) {
  const QString name = path("run.tbat");
  ASSERT_TRUE(store.write(name, nullptr, {}));
  const int lines = bytesOf(name).count('\n');
  std::mt19937 random(8);
  for (int i = 0; i < 20; ++i) {
    KilledWriter(store, name).runFor(std::uniform_real_distribution<double>(0, 2)(random));
    ASSERT_EQ(bytesOf(name).count('\n'), lines) << i;
    ASSERT_TRUE(bytesOf(name).endsWith('\n')) << i;
  }
}

} // namespace
} // namespace TVR::Data
