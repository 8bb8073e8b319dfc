#include "results/StepFiles.h"

#include "support/ProjectTest.h"

namespace TVR {
namespace {

class StepFilesTest : public ProjectTest {
protected:
  QString directoryOf(const char* batchFile, const char* tables, const QString& namedTable = {}) {
    store.setValue(Parameter::BatchOutputFile, batchFile);
    store.setValue(Parameter::TecplotOutputFile, tables);
    return StepFiles::directory(store, namedTable, "/working");
  }
};

TEST_F(StepFilesTest, monthsAreRoundedToTheNearest) {
  EXPECT_EQ(StepFiles::wholeMonths(0), 0);
  EXPECT_EQ(StepFiles::wholeMonths(2629800), 1);
  EXPECT_EQ(StepFiles::wholeMonths(3944699), 1);
  EXPECT_EQ(StepFiles::wholeMonths(3944700), 2) << "one and a half";
  EXPECT_EQ(StepFiles::wholeMonths(30 * 3.15576e7), 360);
}

TEST_F(StepFilesTest, aBatchRunWritesWhereItRuns) {
  EXPECT_EQ(directoryOf("result.out", "/tables"), "./");
}

TEST_F(StepFilesTest, aRunWhoseTableIsNamedWritesWhereItRuns) {
  EXPECT_EQ(directoryOf("", "/tables", "result.out"), "./");
}

TEST_F(StepFilesTest, otherwiseTheProjectSaysWhere) {
  EXPECT_EQ(directoryOf("", "/tables"), "/tables");
}

TEST_F(StepFilesTest, withoutBothItIsTheWorkingDirectory) {
  EXPECT_EQ(directoryOf("", ""), "/working");
}

} // namespace
} // namespace TVR
