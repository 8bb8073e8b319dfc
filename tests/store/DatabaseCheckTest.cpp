#include "store/DatabaseCheck.h"

#include "store/Manager.h"
#include "support/TestDirectory.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <random>

namespace TVR::Data {
namespace {

class DatabaseCheckTest : public testing::Test, protected TestDirectory {
protected:
  QString write(const QByteArray& bytes) const {
    QFile file(path("basis.db"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  const QByteArray built =
      contentOf(ReferenceDatabase::file(QCoreApplication::applicationDirPath()));
};

TEST_F(DatabaseCheckTest, theDatabaseOfTheBuildCarriesACheckSumAndKeepsIt) {
  ASSERT_GT(built.size(), 100);
  EXPECT_NE(built.mid(60, 4), QByteArray(4, '\0'));
  EXPECT_EQ(databaseFault(write(built)), "");
}

TEST_F(DatabaseCheckTest, anyFlippedByteIsFound) {
  std::mt19937 random(9);
  for (int trial = 0; trial < 500; ++trial) {
    const int place = static_cast<int>(random() % static_cast<unsigned>(built.size()));
    const bool isCounter = (place >= 24 && place < 28) || (place >= 92 && place < 100);
    QByteArray bytes = built;
    bytes[place] = static_cast<char>(bytes[place] ^ static_cast<char>(1 + random() % 255));
    EXPECT_EQ(keepsCheckSum(write(bytes)), isCounter) << place;
  }
}

TEST_F(DatabaseCheckTest, aFileThatIsCutIsDamaged) {
  for (const int size : {0, 50, 4096, built.size() - 1}) {
    const QString file = write(built.left(size));
    EXPECT_EQ(databaseFault(file), "the reference database is damaged: " + file) << size;
  }
}

TEST_F(DatabaseCheckTest, aTextIsNoDatabase) {
  const QString file = write(QByteArray(4096, '\0'));
  EXPECT_EQ(databaseFault(file), "the reference database is damaged: " + file);
}

TEST_F(DatabaseCheckTest, aDatabaseOfSomebodysOwnNeedsNoCheckSum) {
  QByteArray bytes = built;
  bytes.replace(60, 4, QByteArray(4, '\0'));
  bytes[5000] = static_cast<char>(bytes[5000] ^ 1);
  EXPECT_EQ(databaseFault(write(bytes)), "");
}

TEST_F(DatabaseCheckTest, aMissingFileAndADirectoryAreNamed) {
  EXPECT_EQ(databaseFault(path("none.db")),
            "the reference database is missing: " + path("none.db"));
  EXPECT_EQ(databaseFault(directory.path()),
            "the reference database can't be read: " + directory.path());
}

} // namespace
} // namespace TVR::Data
