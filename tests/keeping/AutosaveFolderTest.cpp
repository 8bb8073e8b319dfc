#include "keeping/AutosaveFolder.h"

#include "support/DataOfTheTest.h"
#include "support/TestDirectory.h"

#include <QDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ctime>

namespace TVR {
namespace {

class AutosaveFolderTest : public testing::Test, protected TestDirectory {
protected:
  using Folder = std::unique_ptr<AutosaveFolder>;

  Folder make() { return AutosaveFolder::make(path("autosave")); }
  std::vector<Folder> leftovers() { return AutosaveFolder::leftovers(path("autosave")); }
  QStringList folders() const {
    return QDir(path("autosave")).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
  }

  static AutosaveFolder::WriteProject content(const QByteArray& text) {
    return [text](const QString& name) {
      QFile file(name);
      return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
  }
  static AutosaveFolder::WriteProject nothing() {
    return [](const QString&) { return false; };
  }
  static AutosaveNote note(const QString& title) {
    return {"/home/anna/riverside.tvr", title,
            QDateTime(QDate(2031, 5, 6), QTime(7, 8, 9, 123), Qt::UTC)};
  }
  /// What a program leaves that ends without notice.
  void leave(const QByteArray& text, const QString& title = "Riverside") {
    const Folder folder = make();
    ASSERT_TRUE(folder->keep(note(title), content(text)));
  }
};

TEST_F(AutosaveFolderTest, liesInTheUsersData) {
  const DataOfTheTest data;
  EXPECT_EQ(AutosaveFolder::usualPlace(), data.path() + "/Norvalt/Tevrane/autosave");
}

TEST_F(AutosaveFolderTest, whatAProgramLeavesIsFoundWithItsNote) {
  leave("<TVR/>");
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  ASSERT_TRUE(found[0]->note());
  EXPECT_EQ(found[0]->note()->title, "Riverside");
  EXPECT_EQ(found[0]->note()->file, "/home/anna/riverside.tvr");
  EXPECT_EQ(found[0]->note()->time, note({}).time);
  EXPECT_EQ(contentOf(found[0]->projectFile()), "<TVR/>");
}

TEST_F(AutosaveFolderTest, nobodyElseMayReadIt) {
  const Folder folder = make();
  EXPECT_EQ(QFile::permissions(folder->path()) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(AutosaveFolderTest, theFolderOfARunningProgramIsNoLeftover) {
  const Folder running = make();
  ASSERT_TRUE(running->keep(note("mine"), content("<TVR/>")));
  EXPECT_TRUE(leftovers().empty());
  EXPECT_EQ(contentOf(running->projectFile()), "<TVR/>");
}

TEST_F(AutosaveFolderTest, aLeftoverIsOfferedToOneProgramOnly) {
  leave("<TVR/>");
  auto first = leftovers();
  EXPECT_EQ(first.size(), 1U);
  EXPECT_TRUE(leftovers().empty());
  first.clear();
  EXPECT_EQ(leftovers().size(), 1U) << "it was decided later";
}

TEST_F(AutosaveFolderTest, theYoungestLeftoverComesFirst) {
  leave("<TVR/>", "older");
  const QString older = path("autosave/") + folders().first();
  leave("<TVR/>", "younger");
  const struct timespec hourAgo[2] = {{::time(nullptr) - 3600, 0}, {::time(nullptr) - 3600, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(older).constData(), hourAgo, 0), 0);
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0]->note()->title, "younger");
}

TEST_F(AutosaveFolderTest, anEmptyFolderGoesWithItsProgram) {
  make();
  EXPECT_EQ(folders(), QStringList());
}

TEST_F(AutosaveFolderTest, aClearedFolderGoesWithItsProgram) {
  Folder folder = make();
  ASSERT_TRUE(folder->keep(note("mine"), content("<TVR/>")));
  folder->clear();
  EXPECT_TRUE(folder->isEmpty());
  EXPECT_FALSE(folder->note());
  folder.reset();
  EXPECT_EQ(folders(), QStringList());
}

TEST_F(AutosaveFolderTest, anEmptyFolderThatWasLeftIsRemoved) {
  ASSERT_TRUE(QDir().mkpath(path("autosave/left")));
  EXPECT_TRUE(leftovers().empty());
  EXPECT_EQ(folders(), QStringList());
}

TEST_F(AutosaveFolderTest, theNextAutosaveTakesThePlaceOfTheOneBefore) {
  const Folder folder = make();
  ASSERT_TRUE(folder->keep(note("first"), content("one")));
  ASSERT_TRUE(folder->keep(note("second"), content("two")));
  EXPECT_EQ(contentOf(folder->projectFile()), "two");
  EXPECT_EQ(QDir(folder->path()).entryList({"*.tvr"}).size(), 1);
}

TEST_F(AutosaveFolderTest, anAutosaveThatFailsLeavesTheOneBefore) {
  Folder folder = make();
  ASSERT_TRUE(folder->keep(note("first"), content("one")));
  EXPECT_FALSE(folder->keep(note("second"), nothing()));
  EXPECT_EQ(folder->note()->title, "first");
  folder.reset();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->title, "first");
  EXPECT_EQ(contentOf(found[0]->projectFile()), "one");
}

TEST_F(AutosaveFolderTest, aProgramThatEndsBeforeTheNoteIsThereLeavesTheOneBefore) {
  leave("one");
  const QString folder = path("autosave/") + folders().first();
  ASSERT_TRUE(content("two")(folder + "/project-2.tvr"));
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(contentOf(found[0]->projectFile()), "one");
}

TEST_F(AutosaveFolderTest, anAutosaveWithADamagedNoteIsStillFound) {
  leave("one");
  const QString folder = path("autosave/") + folders().first();
  ASSERT_TRUE(content("{\"project\":")(folder + "/autosave.json"));
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_FALSE(found[0]->note());
  EXPECT_EQ(contentOf(found[0]->projectFile()), "one");
}

TEST_F(AutosaveFolderTest, whatAKilledWriterLeftBesideIsNoAutosave) {
  ASSERT_TRUE(QDir().mkpath(path("autosave/left/.project-1.tvr.tevrane-abcdef")));
  ASSERT_TRUE(content("half a pro")(path("autosave/left/.project-1.tvr.tevrane-abcdef/p.tvr")));
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(AutosaveFolderTest, whereNoFolderCanBeMadeThereIsNone) {
  EXPECT_FALSE(AutosaveFolder::make(noSettings));
  EXPECT_TRUE(AutosaveFolder::leftovers(noSettings).empty());
}

} // namespace
} // namespace TVR
