#include "keeping/Autosave.h"

#include "support/DataOfTheTest.h"
#include "support/EventWait.h"

#include <QDir>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace TVR {
namespace {

class AutosaveTest : public testing::Test {
protected:
  /// A leftover as the next program finds it.
  std::vector<std::unique_ptr<AutosaveFolder>> leftovers() {
    autosave.letGo();
    return AutosaveFolder::leftovers(AutosaveFolder::usualPlace());
  }
  QByteArray left() {
    const auto found = leftovers();
    if (found.size() != 1)
      return {};
    QFile file(found[0]->projectFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  const DataOfTheTest data;
  QByteArray project = "first";
  int written = 0;
  bool isPossible = true;
  Autosave autosave{{[] {
                       return AutosaveNote{"a.tvr", "Riverside", {}};
                     },
                     [this](const QString& name) {
                       ++written;
                       QFile file(name);
                       return isPossible && file.open(QIODevice::WriteOnly) &&
                              file.write(project) == project.size();
                     }}};
};

TEST_F(AutosaveTest, aChangeMayWaitForTwoMinutes) {
  EXPECT_EQ(Autosave::usualInterval, std::chrono::minutes(2));
}

TEST_F(AutosaveTest, aChangedProjectIsKeptAfterTheInterval) {
  autosave.setInterval(std::chrono::milliseconds(1));
  autosave.noteChange();
  EXPECT_TRUE(waitUntil([&] { return written > 0; }));
  EXPECT_EQ(left(), "first");
}

TEST_F(AutosaveTest, furtherChangesDoNotPutTheIntervalOff) {
  autosave.setInterval(std::chrono::milliseconds(200));
  autosave.noteChange();
  EXPECT_TRUE(waitUntil([&] {
    autosave.noteChange();
    return written > 0;
  }));
}

TEST_F(AutosaveTest, anUnchangedProjectIsNotKeptAgain) {
  EXPECT_TRUE(autosave.keepNow());
  EXPECT_EQ(written, 0);
  EXPECT_FALSE(QDir(AutosaveFolder::usualPlace()).exists());
  autosave.noteChange();
  EXPECT_TRUE(autosave.keepNow());
  EXPECT_TRUE(autosave.keepNow());
  EXPECT_EQ(written, 1);
}

TEST_F(AutosaveTest, theTimeOfTheAutosaveIsNoted) {
  const QDateTime before = QDateTime::currentDateTime();
  autosave.noteChange();
  autosave.keepNow();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_GE(found[0]->note()->time.msecsTo(QDateTime::currentDateTime()), 0);
  EXPECT_GE(before.msecsTo(found[0]->note()->time), 0);
  EXPECT_EQ(found[0]->note()->file, "a.tvr");
}

TEST_F(AutosaveTest, whatIsSavedOrGivenUpIsForgotten) {
  autosave.noteChange();
  autosave.keepNow();
  autosave.noteChange();
  autosave.forget();
  EXPECT_TRUE(autosave.keepNow());
  EXPECT_EQ(written, 1);
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(AutosaveTest, whatCanNotBeKeptIsToldAndTriedAgain) {
  const QSignalSpy failed(&autosave, &Autosave::failed);
  autosave.setInterval(std::chrono::milliseconds(1));
  isPossible = false;
  autosave.noteChange();
  EXPECT_FALSE(autosave.keepNow());
  ASSERT_EQ(failed.size(), 1);
  EXPECT_EQ(failed[0][0].toString(), AutosaveFolder::usualPlace());
  isPossible = true;
  const int before = written;
  EXPECT_TRUE(waitUntil([&] { return written > before; }));
  EXPECT_EQ(left(), "first");
}

TEST_F(AutosaveTest, withoutAPlaceNothingIsKept) {
  qputenv("XDG_DATA_HOME", noSettings);
  const QSignalSpy failed(&autosave, &Autosave::failed);
  autosave.noteChange();
  EXPECT_FALSE(autosave.keepNow());
  EXPECT_EQ(failed.size(), 1);
  EXPECT_EQ(written, 0);
}

} // namespace
} // namespace TVR
