#include "DriverTest.h"

#include <QDir>

/// The program as it is installed, with a reference database of the test's own.
class UnsoundDatabaseTest : public DriverTest {
protected:
  UnsoundDatabaseTest() {
    for (const char* const folder : {"bin", "data"})
      EXPECT_TRUE(QDir(directory.path()).mkdir(folder));
    EXPECT_TRUE(QFile::copy(TEVRANE_BATCH_PROGRAM, program));
    const QDir bin = QFileInfo(TEVRANE_BATCH_PROGRAM).dir();
    built = contentOf(bin.filePath("../data/basis.db"));
    EXPECT_GT(built.size(), 4096);
  }

  QByteArray built;
  const QString program = path("bin/tevrane-batch");
  const QString database = path("data/basis.db");
};

TEST_F(UnsoundDatabaseTest, theCopyOfTheProgramRuns) {
  write("data/basis.db", built);
  const Outcome outcome = runProgram(program, {"--check", write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
}

TEST_F(UnsoundDatabaseTest, aMissingDatabaseIsOneLineWhateverIsAskedFor) {
  const QString line = "tevrane-batch: the reference database is missing: " + database + '\n';
  const QString site = write("site.tbat", smallDoublet);
  for (const QStringList& arguments :
       {QStringList{"--print-parameters"}, {"--check", site}, {site}, {"-j", "2", site, site}}) {
    const Outcome outcome = runProgram(program, arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, line) << arguments.join(' ').toStdString();
  }
}

TEST_F(UnsoundDatabaseTest, aDamagedDatabaseIsOneLine) {
  const QString line = "tevrane-batch: the reference database is damaged: " + database + '\n';
  QByteArray flipped = built;
  flipped[built.size() / 2] = static_cast<char>(flipped[built.size() / 2] ^ 4);
  for (const QByteArray& bytes :
       {flipped, built.left(built.size() / 2), QByteArray("no database"), QByteArray()}) {
    write("data/basis.db", bytes);
    const Outcome outcome = runProgram(program, {write("site.tbat", smallDoublet)});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, line);
    EXPECT_FALSE(QFile::exists(path("site.out")));
  }
}

TEST_F(UnsoundDatabaseTest, aDatabaseThatCanNotBeReadIsOneLine) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("data/basis.db"));
  const Outcome outcome = runProgram(program, {"--print-parameters"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "tevrane-batch: the reference database can't be read: " + database + '\n');
}

TEST_F(UnsoundDatabaseTest, aTemplateNeedsNoDatabase) {
  EXPECT_EQ(runProgram(program, {"--template", path("new.tbat")}).exitCode, 0);
}
