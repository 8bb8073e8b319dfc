#include "data/DemandModel.h"
#include "data/FileLimits.h"
#include "data/ProjectFiles.h"
#include "data/StoredValues.h"
#include "data/WellModel.h"

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
  for (const char* const size : {"2147483648", "-2147483649", "1e300", "-1e300", "nan", "inf",
                                 "-inf", "many", "", "18446744073709551616"}) {
    EXPECT_TRUE(readParameters(table("well_model", size, size, cell(0, 1, "7")) +
                               table("demand_model", size, size, cell(0, 0, "7")) +
                               table("well_demand_model", size, size, cell(0, 2, "7"))))
        << size;
    EXPECT_LE(store.wellPositions().size(), FileLimits::maxWells) << size;
    EXPECT_LE(store.demandModel()->rowCount(), FileLimits::maxPeriods) << size;
  }
}

TEST_F(ProjectFileLimitsTest, aCellAtAHugeIndexIsPassedOver) {
  QByteArray cells;
  for (const char* const index : {"2147483648", "-2147483649", "1e300", "nan", "inf"})
    cells += QByteArray("<value row=\"") + index + "\" column=\"" + index + "\">7</value>";
  EXPECT_TRUE(readParameters(table("well_model", 2, 5, cells)));
  EXPECT_EQ(store.count(NumberOfWells), 2);
}

TEST_F(ProjectFileLimitsTest, aTableOfTooManyWellsIsCut) {
  EXPECT_TRUE(readParameters(table("well_model", 2147483647, 5)));
  EXPECT_EQ(store.count(NumberOfWells), FileLimits::maxWells);
  EXPECT_EQ(store.wellPositions().size(), FileLimits::maxWells);
}

TEST_F(ProjectFileLimitsTest, aNumberOfTooManyWellsIsCut) {
  for (const char* const wells : {"20001", "2147483647", "4e9", "1e300", "inf"}) {
    EXPECT_TRUE(readParameters(parameter("_number_of_wells", wells))) << wells;
    EXPECT_EQ(store.count(NumberOfWells), FileLimits::maxWells) << wells;
  }
}

TEST_F(ProjectFileLimitsTest, theLargestNumberOfWellsIsTaken) {
  EXPECT_TRUE(readParameters(parameter("_number_of_wells", "20000.5")));
  EXPECT_EQ(stored(NumberOfWells), QVariant("20000.5"));
}

TEST_F(ProjectFileLimitsTest, wellsThatDoubleAreCutAfterwards) {
  EXPECT_TRUE(readParameters(parameter("_number_of_wells", "15000"), "1.0"));
  EXPECT_EQ(store.count(NumberOfWells), FileLimits::maxWells);
}

TEST_F(ProjectFileLimitsTest, tooManyPeriodsAreCut) {
  EXPECT_TRUE(readParameters(parameter("number_of_demands_per_year", "1e9") +
                             table("demand_model", 2147483647, 1)));
  EXPECT_EQ(store.demandModel()->rowCount(), FileLimits::maxPeriods);
  EXPECT_EQ(store.count(NumberOfDemandsPerYear), FileLimits::maxPeriods);
}

TEST_F(ProjectFileLimitsTest, pairsOfWellAndPeriodAreCut) {
  EXPECT_TRUE(readParameters(table("well_model", 20000, 5) + table("demand_model", 10000, 1)));
  EXPECT_EQ(store.demandModel()->rowCount(), FileLimits::maxWellPeriods / FileLimits::maxWells);
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
