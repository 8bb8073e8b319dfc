#include "disk/FileReplacement.h"

#include "support/TestDirectory.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace {

/// What happens to the files that are renamed: the one with this number, from 0, fails or ends the
/// process. Behind a killed process nothing cleans up.
enum class Accident { None, Failure, Kill };
Accident accident = Accident::None;
int renamesBefore = 0;

bool killed(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    work();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFSIGNALED(status);
}

} // namespace

/// Stands in for the function of the C library.
extern "C" int rename(const char* from, const char* to) noexcept {
  if (accident != Accident::None && renamesBefore-- == 0) {
    if (accident == Accident::Kill)
      ::raise(SIGKILL);
    errno = EIO;
    return -1;
  }
  return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}

namespace TVR {
namespace {

class FileReplacementTest : public testing::Test, public TestDirectory {
protected:
  ~FileReplacementTest() override { accident = Accident::None; }

  void write(const QString& name, const QByteArray& content) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray read(const QString& name) { return contentOf(path(name)); }
  /// All names in the directory, the hidden ones too.
  QStringList names() {
    return QDir(path(".")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  void happens(Accident what, int atRename) {
    accident = what;
    renamesBefore = atRename;
  }
};

/// A set of two files, of which the second leads to the first.
class FileSetTest : public FileReplacementTest {
protected:
  FileSetTest() {
    write(path("a.dbf"), "old");
    write(path("a.shp"), "old");
  }
  bool replaceSet(const QByteArray& content) {
    FileReplacement replacement({path("a.dbf"), path("a.shp")});
    write(replacement.aside(0), content);
    write(replacement.aside(1), content);
    return replacement.commit();
  }
  static constexpr int renamesOfASet = 4;
};

TEST_F(FileReplacementTest, aFileIsWrittenAndNothingIsLeftBesideIt) {
  EXPECT_TRUE(replaceFile(path("new"), "content"));
  EXPECT_EQ(read("new"), "content");
  EXPECT_TRUE(replaceFile(path("new"), {}));
  EXPECT_EQ(read("new"), "");
  EXPECT_EQ(names(), QStringList{"new"});
}

TEST_F(FileReplacementTest, aFileThatIsNotCommittedChangesNothing) {
  write(path("file"), "old");
  {
    FileReplacement replacement({path("file")});
    ASSERT_TRUE(replacement.isPossible());
    write(replacement.aside(0), "new");
    EXPECT_EQ(read("file"), "old");
  }
  EXPECT_EQ(read("file"), "old");
  EXPECT_EQ(names(), QStringList{"file"});
}

TEST_F(FileReplacementTest, aFileThatWasNotWrittenIsNoReplacement) {
  write(path("file"), "old");
  EXPECT_FALSE(FileReplacement({path("file")}).commit());
  EXPECT_EQ(read("file"), "old");
}

TEST_F(FileReplacementTest, theNewFileHasThePermissionsOfTheOlderOne) {
  write(path("file"), "old");
  ASSERT_EQ(::chmod(QFile::encodeName(path("file")), 0640), 0);
  EXPECT_TRUE(replaceFile(path("file"), "new"));
  struct stat found {};
  ASSERT_EQ(::stat(QFile::encodeName(path("file")), &found), 0);
  EXPECT_EQ(found.st_mode & 0777, 0640u);
}

TEST_F(FileReplacementTest, aLinkStaysAndItsFileIsReplaced) {
  ASSERT_TRUE(QDir(path(".")).mkdir("far"));
  write(path("far/file"), "old");
  ASSERT_TRUE(QFile::link(path("far/file"), path("link")));
  EXPECT_TRUE(replaceFile(path("link"), "new"));
  EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
  EXPECT_EQ(read("far/file"), "new");

  ASSERT_TRUE(QFile::link(path("far/other"), path("dangling")));
  EXPECT_TRUE(replaceFile(path("dangling"), "new"));
  EXPECT_EQ(read("far/other"), "new");
}

TEST_F(FileReplacementTest, namesMayBeAsLongAsTheSystemTakes) {
  const QString name(255, 'n');
  EXPECT_TRUE(replaceFile(path(name), "new"));
  EXPECT_EQ(names(), QStringList{name});
}

TEST_F(FileReplacementTest, whatCanNotBeWrittenIsToldAtOnce) {
  ASSERT_TRUE(QDir(path(".")).mkdir("directory"));
  for (const QString& name : {path("directory"), path("none/file"), QString("/proc/file")}) {
    EXPECT_FALSE(FileReplacement({name}).isPossible()) << name.toStdString();
    EXPECT_FALSE(replaceFile(name, "new")) << name.toStdString();
  }
  EXPECT_EQ(names(), QStringList{"directory"});
}

TEST_F(FileReplacementTest, aPipeIsWrittenToAndStays) {
  const QByteArray pipe = QFile::encodeName(path("pipe"));
  ASSERT_EQ(::mkfifo(pipe, 0600), 0);
  const int reader = ::open(pipe, O_RDONLY | O_NONBLOCK);
  EXPECT_TRUE(replaceFile(path("pipe"), "content"));
  char bytes[16] = {};
  EXPECT_EQ(::read(reader, bytes, sizeof bytes), 7);
  EXPECT_STREQ(bytes, "content");
  ::close(reader);
  struct stat found {};
  ASSERT_EQ(::stat(pipe, &found), 0);
  EXPECT_TRUE(S_ISFIFO(found.st_mode));
  EXPECT_FALSE(FileReplacement({path("pipe")}).isPossible());
}

TEST_F(FileReplacementTest, aDiskThatIsFullLeavesTheOlderFile) {
  const QByteArray large(100000, 'n');
  write(path("file"), "old");
  EXPECT_FALSE(killed([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{99999, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    if (replaceFile(path("file"), large))
      ::raise(SIGABRT);
  }));
  EXPECT_EQ(read("file"), "old");
  EXPECT_EQ(names(), QStringList{"file"});
}

TEST_F(FileReplacementTest, whatAKilledRunLeftGoesWithTheNextOfThatName) {
  write(path("file"), "old");
  happens(Accident::Kill, 0);
  ASSERT_TRUE(killed([this] { replaceFile(path("file"), "new"); }));
  accident = Accident::None;
  EXPECT_EQ(read("file"), "old");
  EXPECT_EQ(names().size(), 2);
  EXPECT_TRUE(replaceFile(path("file.other"), "new"));
  EXPECT_EQ(names().size(), 3) << "another name leaves it";
  EXPECT_TRUE(replaceFile(path("file"), "new"));
  EXPECT_EQ(names(), (QStringList{"file", "file.other"}));
}

TEST_F(FileReplacementTest, aRunThatGoesOnKeepsItsFiles) {
  FileReplacement slow({path("file")});
  write(slow.aside(0), "slow");
  EXPECT_TRUE(replaceFile(path("file"), "fast"));
  EXPECT_TRUE(slow.commit());
  EXPECT_EQ(read("file"), "slow");
}

TEST_F(FileReplacementTest, whatAKilledRunLeftStaysUntilItsPlaceIsTaken) {
  ASSERT_TRUE(QDir(path(".")).mkdir(".file.tevrane-abcdef"));
  { const FileReplacement givenUp({path("file")}); }
  EXPECT_EQ(names(), QStringList{".file.tevrane-abcdef"});
  EXPECT_TRUE(replaceFile(path("file"), "new"));
  EXPECT_EQ(names(), QStringList{"file"});
}

TEST_F(FileReplacementTest, whatOnlyLooksLikeAStrayStays) {
  ASSERT_TRUE(QDir(path(".")).mkdir(".file.tevrane-former"));
  ASSERT_TRUE(QDir(path(".")).mkdir("target"));
  ASSERT_TRUE(QFile::link(path("target"), path(".file.tevrane-abcde1")));
  write(path(".file.tevrane-abcde2"), "a file");
  EXPECT_TRUE(replaceFile(path("file"), "new"));
  QStringList expected{".file.tevrane-abcde1", ".file.tevrane-abcde2", "file", "target"};
  EXPECT_EQ(names(), expected);
}

TEST_F(FileSetTest, aSetIsReplacedAsAWhole) {
  EXPECT_TRUE(replaceSet("new"));
  EXPECT_EQ(read("a.dbf"), "new");
  EXPECT_EQ(read("a.shp"), "new");
  EXPECT_EQ(names(), (QStringList{"a.dbf", "a.shp"}));
}

TEST_F(FileSetTest, oneFileThatIsMissingChangesNothing) {
  {
    FileReplacement replacement({path("a.dbf"), path("a.shp")});
    write(replacement.aside(0), "new");
    EXPECT_FALSE(replacement.commit());
  }
  EXPECT_EQ(read("a.dbf"), "old");
  EXPECT_EQ(read("a.shp"), "old");
}

TEST_F(FileSetTest, aFailureAtAnyRenameLeavesTheOlderSet) {
  for (int at = 0; at < renamesOfASet; ++at) {
    happens(Accident::Failure, at);
    EXPECT_FALSE(replaceSet("new")) << at;
    EXPECT_EQ(read("a.dbf"), "old") << at;
    EXPECT_EQ(read("a.shp"), "old") << at;
    EXPECT_EQ(names(), (QStringList{"a.dbf", "a.shp"})) << at;
  }
}

TEST_F(FileSetTest, aFailureLeavesNoFileOfASetThatWasNotThere) {
  for (const char* name : {"a.dbf", "a.shp"})
    ASSERT_TRUE(QFile::remove(path(name)));
  for (int at = 0; at < 2; ++at) {
    happens(Accident::Failure, at);
    EXPECT_FALSE(replaceSet("new")) << at;
    EXPECT_TRUE(names().isEmpty()) << at;
  }
}

TEST_F(FileSetTest, aKillAtAnyRenameLeavesNoMixedSet) {
  for (int at = 0; at <= renamesOfASet; ++at) {
    happens(Accident::Kill, at);
    EXPECT_EQ(killed([this] { replaceSet("new"); }), at < renamesOfASet) << at;
    accident = Accident::None;
    const QByteArray leading = read("a.shp");
    EXPECT_EQ(leading, at == 0 ? "old" : at < renamesOfASet ? "" : "new") << at;
    if (!leading.isEmpty()) {
      EXPECT_EQ(read("a.dbf"), leading) << at;
    }
    EXPECT_TRUE(replaceSet("old")) << at;
    EXPECT_EQ(names(), (QStringList{"a.dbf", "a.shp"})) << at;
  }
}

} // namespace
} // namespace TVR
