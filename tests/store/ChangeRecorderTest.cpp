#include "store/ChangeRecorder.h"

#include "design/ParameterId.h"
#include "store/Journal.h"

#include <gtest/gtest.h>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// A project without a store, and a journal of its changes.
class ChangeRecorderTest : public testing::Test, protected Journal {
protected:
  ChangeRecorderTest() { recorder.addJournal(this); }

  void record(const JournalEntry& entry) override { entries.push_back(entry); }
  void wrote(const WrittenValues& values, const Project& /*project*/) override { written = values; }

  void write(int id, const QVariant& value) {
    const ChangeScope change(&recorder, id);
    recorder.writing(id, value);
    project.values.insert(id, value);
  }

  Project project;
  ChangeRecorder recorder{project};
  std::vector<JournalEntry> entries;
  WrittenValues written; ///< by the last change
};

TEST_F(ChangeRecorderTest, changesWithinOneAreOneEntryOfTheOutermost) {
  {
    const ChangeScope change(&recorder, HydraulicConductivity);
    write(Gravity, 9.0);
    write(DensityWater, 999.0);
    EXPECT_TRUE(entries.empty());
  }
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].what, HydraulicConductivity);
  EXPECT_FALSE(entries[0].before.values.contains(Gravity));
  EXPECT_EQ(entries[0].after.values[DensityWater], 999.0);
}

TEST_F(ChangeRecorderTest, whatIsWrittenAndPutBackIsNoEntryButWasWritten) {
  write(Gravity, 9.0);
  entries.clear();
  {
    const ChangeScope change(&recorder, ChangedProject);
    write(Gravity, 9.5);
    write(Gravity, 9.0);
  }
  EXPECT_TRUE(entries.empty());
  EXPECT_EQ(written, (WrittenValues{{Gravity, ValueOrigin::Typed}}));
}

TEST_F(ChangeRecorderTest, valuesBearTheWriterOfTheInnermostScope) {
  {
    const ChangeScope change(&recorder, ChangedProject);
    {
      const ChangeRecorder::Writer file(recorder, ValueOrigin::File);
      write(Gravity, 9.0);
      const ChangeRecorder::Writer rule(recorder, ValueOrigin::Rule);
      write(DensityWater, 999.0);
    }
    write(GroundwaterGradient, 0.2);
  }
  EXPECT_EQ(written, (WrittenValues{{Gravity, ValueOrigin::File},
                                    {DensityWater, ValueOrigin::Rule},
                                    {GroundwaterGradient, ValueOrigin::Typed}}));
}

TEST_F(ChangeRecorderTest, defaultsComeFromTheReferenceDatabase) {
  {
    const ChangeScope change(&recorder, ChangedProject);
    recorder.writingDefaults();
  }
  EXPECT_EQ(written.size(), static_cast<std::size_t>(Count));
  EXPECT_EQ(written.at(Gravity), ValueOrigin::ReferenceDatabase);
}

TEST_F(ChangeRecorderTest, aJournalThatWasRemovedHearsNothing) {
  recorder.removeJournal(this);
  write(Gravity, 9.0);
  EXPECT_TRUE(entries.empty());
  EXPECT_TRUE(written.empty());
}

} // namespace
} // namespace TVR::Data
