#include "files/ProjectFiles.h"
#include "files/StoredValues.h"
#include "project/ProjectLimits.h"
#include "support/MessageLog.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <gtest/gtest.h>

namespace TVR::Data {
namespace {

using namespace Parameter;

class ProjectFileLimitsTest : public ProjectFileTest {
protected:
  ~ProjectFileLimitsTest() override {
    store.setValue(NumberOfWells, 2);
    store.setValue(NumberOfDemandsPerYear, 1);
  }
};

TEST_F(ProjectFileLimitsTest, aSizeThatIsNoWholeNumberIsHarmless) {
  for (const char* const size : {"-2147483649", "-1e300", "nan", "-inf", "many", "", "0.5"}) {
    EXPECT_TRUE(readParameters(table("well_model", size, size, cell(0, 1, "7")) +
                               table("demand_model", size, size, cell(0, 0, "7")) +
                               table("well_demand_model", size, size, cell(0, 2, "7"))))
        << size;
    EXPECT_LE(store.wellPositions().size(), ProjectLimits::maxWells) << size;
    EXPECT_LE(store.demandModel()->rowCount(), ProjectLimits::maxPeriods) << size;
  }
}

TEST_F(ProjectFileLimitsTest, aCellAtAHugeIndexIsPassedOver) {
  QByteArray cells;
  for (const char* const index : {"2147483648", "-2147483649", "1e300", "nan", "inf"})
    cells += QByteArray("<value row=\"") + index + "\" column=\"" + index + "\">7</value>";
  EXPECT_TRUE(readParameters(table("well_model", 2, 5, cells)));
  EXPECT_EQ(store.count(NumberOfWells), 2);
}

TEST_F(ProjectFileLimitsTest, aFileWithTooManyWellsIsNotRead) {
  const int before = store.count(NumberOfWells);
  for (const char* const wells : {"20001", "2147483648", "4e9", "1e300", "inf"}) {
    EXPECT_FALSE(readParameters(table("well_model", wells, "5"))) << wells;
    EXPECT_FALSE(readParameters(parameter("_number_of_wells", wells))) << wells;
    EXPECT_EQ(store.count(NumberOfWells), before) << wells;
  }
}

TEST_F(ProjectFileLimitsTest, theLargestNumberOfWellsIsTaken) {
  EXPECT_TRUE(readParameters(parameter("_number_of_wells", "20000.5")));
  EXPECT_EQ(stored(NumberOfWells), QVariant("20000.5"));
}

TEST_F(ProjectFileLimitsTest, wellsThatDoubleCountAsTheirDouble) {
  EXPECT_FALSE(readParameters(parameter("_number_of_wells", "10001"), "1.0"));
  EXPECT_TRUE(readParameters(parameter("_number_of_wells", "10000"), "1.0"));
}

TEST_F(ProjectFileLimitsTest, aFileWithTooManyPeriodsIsNotRead) {
  EXPECT_FALSE(readParameters(parameter("number_of_demands_per_year", "10001")));
  EXPECT_FALSE(readParameters(table("demand_model", 2147483647, 1)));
}

TEST_F(ProjectFileLimitsTest, aFileWithTooManyPairsOfWellAndPeriodIsNotRead) {
  EXPECT_FALSE(readParameters(table("well_model", 40, 5) + table("demand_model", 8760, 1)));
  EXPECT_FALSE(readParameters(parameter("_number_of_wells", "40") +
                              parameter("number_of_demands_per_year", "8760")));
}

TEST_F(ProjectFileLimitsTest, aProjectThatCouldNotBeReadAgainIsNotWritten) {
  store.setValue(NumberOfWells, 40);
  store.setValue(NumberOfDemandsPerYear, 8760);
  for (const char* const name : {"large.tvr", "large.tbat"}) {
    const MessageLog log;
    EXPECT_FALSE(store.write(path(name), nullptr, {}));
    EXPECT_EQ(log.lines(), QStringList{"Tevrane: " + path(name) +
                                       ": expected at most 200000 pairs of well and demand period, "
                                       "found 350400"});
    EXPECT_FALSE(QFile::exists(path(name)));
  }
}

TEST_F(ProjectFileLimitsTest, theLargestProjectThatIsWrittenCanBeReadAgain) {
  store.setValue(NumberOfWells, 20);
  store.setValue(NumberOfDemandsPerYear, 10000);
  store.wellDemandModel();
  ASSERT_TRUE(store.write(path("large.tvr"), nullptr, {}));
  ASSERT_TRUE(store.read(path("large.tvr"), ids));
  EXPECT_EQ(store.wellDemandModel()->rowCount(), 200'000);
}

TEST_F(ProjectFileLimitsTest, hoursOfAYearForTwentyWellsAreTaken) {
  EXPECT_TRUE(readParameters(table("well_model", 20, 5) + table("demand_model", 8760, 1)));
  EXPECT_EQ(store.demandModel()->rowCount(), 8760);
}

TEST_F(ProjectFileLimitsTest, aFileMayNotSizeItsTablesWithoutEnd) {
  const QByteArray sizing = parameter("_number_of_wells", "4");
  EXPECT_TRUE(readParameters(sizing.repeated(maxSizings)));
  EXPECT_FALSE(readParameters(sizing.repeated(maxSizings + 1)));
  EXPECT_FALSE(readParameters(table("demand_model", 2, 1).repeated(maxSizings + 1)));
}

TEST_F(ProjectFileLimitsTest, anOldFileMayNotSizeItsTablesWithoutEnd) {
  const QByteArray sizing = "<e><k>nrofwells</k><v>4</v></e>";
  EXPECT_TRUE(readText("<old>" + sizing.repeated(maxSizings) + "</old>"));
  EXPECT_FALSE(readText("<old>" + sizing.repeated(maxSizings + 1) + "</old>"));
}

} // namespace
} // namespace TVR::Data
