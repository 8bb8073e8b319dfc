#include "data/ProjectFiles.h"
#include "data/WellModel.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// While it lives, no file of this process can grow beyond so many bytes: as on a full disk.
class FullDisk {
public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

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
    return QDir(QFileInfo(name).path()).entryList(QDir::Files);
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

/// Writes versions of a file in a loop in a process that is killed again and again.
class KilledWriter {
public:
  KilledWriter(Manager& store, const QString& name) {
    process_ = fork();
    if (process_ != 0)
      return;
    qputenv("TMPDIR", QFileInfo(name).path().toUtf8()); // what a killed process leaves behind
    for (int version = 1;; ++version) {
      store.setStored(ProjectName, QString("version %1").arg(version % 10));
      store.write(name, nullptr, {});
    }
  }
  void killAfter(int microseconds) {
    usleep(static_cast<useconds_t>(microseconds));
    kill(process_, SIGKILL);
    int status = 0;
    EXPECT_EQ(waitpid(process_, &status, 0), process_);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
  }

private:
  pid_t process_;
};

TEST_F(FileSafetyTest, aProjectFileIsWholeAfterAKillAtAnyMoment) {
  const QString name = path("project.tvr");
  ASSERT_TRUE(store.write(name, nullptr, {}));
  const int size = bytesOf(name).size();
  std::mt19937 random(7);
  int changed = 0;
  for (int i = 0; i < 40; ++i) {
    KilledWriter(store, name).killAfter(std::uniform_int_distribution<int>(0, 60'000)(random));
    const QByteArray bytes = bytesOf(name);
    QDomDocument document;
    ASSERT_TRUE(document.setContent(bytes)) << i;
    ASSERT_EQ(element(document, "well_model").elementsByTagName("value").size(), 1000) << i;
    changed += valueOf(document, "project_name").startsWith("version") ? 1 : 0;
  }
  EXPECT_GT(size, 50'000);
  EXPECT_GT(changed, 0); // else no child has come as far as to write
}

TEST_F(FileSafetyTest, aBatchFileIsWholeAfterAKillAtAnyMoment) {
  const QString name = path("run.tbat");
  ASSERT_TRUE(store.write(name, nullptr, {}));
  const int lines = bytesOf(name).count('\n');
  std::mt19937 random(8);
  for (int i = 0; i < 20; ++i) {
    KilledWriter(store, name).killAfter(std::uniform_int_distribution<int>(0, 60'000)(random));
    ASSERT_EQ(bytesOf(name).count('\n'), lines) << i;
    ASSERT_TRUE(bytesOf(name).endsWith('\n')) << i;
  }
}

} // namespace
} // namespace TVR::Data
