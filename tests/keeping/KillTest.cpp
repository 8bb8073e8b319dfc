#include "keeping/AutosaveFolder.h"
#include "keeping/EditedState.h"
#include "support/DataOfTheTest.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <random>

namespace TVR {
namespace {

/// How often a program is killed; scripts/kill-test asks for more.
int numberOfKills() {
  bool isGiven = false;
  const int kills = qEnvironmentVariableIntValue("TEVRANE_KILLS", &isGiven);
  return isGiven ? kills : 20;
}

/// How far a program came, as its log tells.
struct Progress {
  int edited = 0; ///< the last state that was typed
  int kept = 0;   ///< the last one that is known to have been saved automatically
  int saved = 0;  ///< the last one that is known to have been saved
  int saving = 0; ///< the last one whose saving has begun

  explicit Progress(const QByteArray& log) {
    for (const QByteArray& line : log.split('\n')) {
      const int state = line.mid(line.indexOf(' ') + 1).toInt();
      for (const auto& [what, last] : std::initializer_list<std::pair<const char*, int*>>{
               {"edited ", &edited}, {"kept ", &kept}, {"saved ", &saved}, {"saving ", &saving}})
        if (line.startsWith(what))
          *last = state;
    }
  }
};

/// A program that edits a project in a directory of its own, see EditingProgram.cpp.
class Program {
public:
  Program(const QString& directory, unsigned seed, int firstState) : directory_(directory) {
    QDir().mkpath(directory);
    QFile::remove(directory_ + "/log");
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(TEVRANE_EDITING_PROGRAM,
                   {directory, QString::number(seed), QString::number(firstState)});
  }
  ~Program() { kill(); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Whether the log comes to hold such a line.
  bool reaches(const QByteArray& what) {
    return waitUntil([&] { return log().contains(what) || hasEnded(); }) && !hasEnded();
  }
  /// Lets the program go on for a moment.
  void goOn(int milliseconds) { process_.waitForFinished(milliseconds); }
  bool hasEnded() const { return process_.state() == QProcess::NotRunning; }
  void kill() {
    if (hasEnded())
      return;
    process_.kill(); // by the signal that nobody can catch
    process_.waitForFinished();
  }
  Progress progress() const { return Progress(log()); }

private:
  QByteArray log() const {
    QFile file(directory_ + "/log");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  const QString directory_;
  QProcess process_;
};

class KillTest : public ProjectTest {
protected:
  std::optional<int> stateOf(const QString& file) {
    QMap<QString, int> fieldIds;
    return store.read(file, fieldIds) ? EditedState::of(store) : std::nullopt;
  }
  static std::vector<std::unique_ptr<AutosaveFolder>> leftovers() {
    return AutosaveFolder::leftovers(AutosaveFolder::usualPlace());
  }

  /// The file of the user is whole and one of the states that were saved. The one that is left.
  int checkSavedFile(const QString& work, const Progress& progress, int savedBefore) {
    const QString file = work + "/project.tvr";
    const int least = std::max(progress.saved, savedBefore);
    if (least == 0 && !QFileInfo::exists(file))
      return 0;
    const auto state = stateOf(file);
    EXPECT_TRUE(state) << "the project is damaged or lost";
    EXPECT_TRUE(!state || *state == least || *state == progress.saving)
        << *state << " instead of " << least << " or " << progress.saving;
    EXPECT_EQ(QDir(work).entryList({"*.tvr"}, QDir::AllEntries), QStringList("project.tvr"));
    return state.value_or(least);
  }

  /// The first project of a directory is that of a batch file.
  static void checkNote(const AutosaveFolder& autosave, const QString& work) {
    if (!autosave.note())
      return;
    const QStringList possible{work + "/project.tvr", work + "/start.tbat"};
    EXPECT_TRUE(possible.contains(autosave.note()->file)) << autosave.note()->file.toStdString();
  }

  /// What was typed since the last autosave may be lost, and nothing before. How many states that
  /// is.
  int checkAutosave(const QString& work, const Progress& progress, int saved) {
    const auto found = leftovers();
    EXPECT_LE(found.size(), 1U);
    int left = saved;
    if (!found.empty()) {
      const auto state = stateOf(found[0]->projectFile());
      EXPECT_TRUE(state) << "the autosave is damaged";
      left = std::max(left, state.value_or(0));
      EXPECT_LE(left, progress.edited);
      checkNote(*found[0], work);
      found[0]->clear();
    }
    EXPECT_GE(left, progress.kept) << "an autosave is lost";
    return progress.edited - left;
  }

  /// A drawing ends as a drawing does, if there is one.
  static void checkDrawing(const QString& work) {
    const QString file = work + "/drawing.dxf";
    EXPECT_TRUE(!QFileInfo::exists(file) || contentOf(file).trimmed().endsWith("EOF"));
  }

  const DataOfTheTest data_;
};

TEST_F(KillTest, atRandomMomentsLosesNoFileAndNothingButWhatWasTypedSinceTheLastAutosave) {
  const QString work = path("work");
  std::mt19937 random(20);
  std::uniform_int_distribution moment(0, 700); // [ms]
  int state = 0;
  int saved = 0;
  int lost = 0;
  int mostLost = 0;
  int duringSaving = 0;
  for (int kill = 0; kill < numberOfKills() && !HasFailure(); ++kill) {
    SCOPED_TRACE("kill " + std::to_string(kill));
    Program program(work, random(), state);
    ASSERT_TRUE(program.reaches("edited"));
    program.goOn(moment(random));
    ASSERT_FALSE(program.hasEnded()) << "the program ended by itself";
    program.kill();
    const Progress progress = program.progress();
    duringSaving += progress.saving != progress.saved ? 1 : 0;
    saved = checkSavedFile(work, progress, saved);
    const int lostNow = checkAutosave(work, progress, saved);
    checkDrawing(work);
    lost += lostNow;
    mostLost = std::max(mostLost, lostNow);
    state = progress.edited;
  }
  std::printf("%d kills, %d of them while the file was saved; %d states typed, %d lost that were "
              "typed since the last autosave, %d at once at most\n",
              numberOfKills(), duringSaving, state, lost, mostLost);
}

TEST_F(KillTest, twoRunningProgramsDoNotTakeEachOtherForACrash) {
  Program one(path("one"), 1, 0);
  Program two(path("two"), 2, 0);
  ASSERT_TRUE(one.reaches("kept"));
  ASSERT_TRUE(two.reaches("kept"));
  for (int look = 0; look < 100 && !HasFailure(); ++look) {
    EXPECT_TRUE(leftovers().empty());
    one.goOn(5);
  }
  one.kill();
  for (const auto& left : leftovers())
    checkNote(*left, path("one"));
  EXPECT_FALSE(two.hasEnded());
}

} // namespace
} // namespace TVR
