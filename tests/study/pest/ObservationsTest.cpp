#include "study/pest/Observations.h"

#include "project/Units.h"
#include "support/TestDirectory.h"

#include <gtest/gtest.h>

using namespace TVR::Study;

namespace {

class ObservationsTest : public testing::Test, protected TestDirectory {
protected:
  /// The observations in a table of these rows.
  std::vector<Observation> read(const QByteArray& rows,
                                const QByteArray& head = "name,well,time,quantity,value,weight\n") {
    QFile file(path("o.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(head + rows);
    file.close();
    errors.clear();
    return readObservations(file.fileName(), errors);
  }
  bool isRefused(const QByteArray& row, const QString& reason) {
    return read(row).empty() && errors.size() == 1 && errors[0].contains(reason);
  }

  QStringList errors;
};

} // namespace

TEST_F(ObservationsTest, aRowIsWhatWasMeasuredAtAWell) {
  const auto found = read("t1,Pump,2.5, temperature ,11.25,10\nd1,Return,3,drawdown,-0.5,0\n");
  EXPECT_EQ(errors, QStringList());
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].name, "t1");
  EXPECT_EQ(found[0].well, "Pump");
  EXPECT_EQ(found[0].time, 2.5);
  EXPECT_EQ(found[0].quantity, Quantity::Temperature);
  EXPECT_EQ(found[0].value, 11.25);
  EXPECT_EQ(found[0].weight, 10);
  EXPECT_EQ(found[1].quantity, Quantity::Drawdown);
  EXPECT_EQ(found[1].value, -0.5);
}

TEST_F(ObservationsTest, whatIsWrongIsToldWithItsLine) {
  EXPECT_TRUE(isRefused("t1,Pump,2,heat,11,1\n", "o.csv, line 2: expected the quantity"));
  EXPECT_TRUE(isRefused("t1,Pump,2,temperature,warm,1\n", "expected a number for value"));
  EXPECT_TRUE(isRefused("t1,Pump,-2,temperature,11,1\n", "expected a number for time"));
  EXPECT_TRUE(isRefused("t1,Pump,2,temperature,11,-1\n", "expected a number for weight"));
  EXPECT_TRUE(isRefused("t1,Pump,2,temperature,11\n", "expected 6 cells, found 5"));
  EXPECT_TRUE(isRefused("1t,Pump,2,temperature,11,1\n", "expected a name of its own"));
  EXPECT_TRUE(isRefused("", "expected an observation"));
}

TEST_F(ObservationsTest, aNameStandsForOneObservationWhateverItsCase) {
  EXPECT_TRUE(read("t1,Pump,2,temperature,11,1\nT1,Pump,3,temperature,11,1\n").empty());
  EXPECT_TRUE(errors.value(0).contains("line 3: expected a name of its own"));
}

TEST_F(ObservationsTest, theColumnsHaveTheirOrder) {
  EXPECT_TRUE(
      read("t1,Pump,2,temperature,11,1\n", "well,name,time,quantity,value,weight\n").empty());
  EXPECT_TRUE(errors.value(0).contains("line 1: expected the columns name, well, time"));
}

TEST_F(ObservationsTest, aTableThatIsNotThereIsToldOf) {
  EXPECT_TRUE(readObservations(path("none.csv"), errors).empty());
  EXPECT_EQ(errors, QStringList("none.csv: expected a CSV table that can be read"));
}

TEST_F(ObservationsTest, eachTimeIsAskedForOnce) {
  const auto layout =
      layoutFor(read("a,P,3,temperature,1,1\nb,P,1,temperature,1,1\nc,Q,3,drawdown,1,1\n"));
  EXPECT_EQ(layout.times, (std::vector<double>{1, 3}));
}

TEST_F(ObservationsTest, aWellThatIsNotThereIsToldOf) {
  const auto found = read("a,P,3,temperature,1,1\n");
  EXPECT_TRUE(knowsWells(found, {"P", "Q"}, errors));
  EXPECT_FALSE(knowsWells(found, {"Q", "R"}, errors));
  EXPECT_EQ(errors, QStringList("the observation a: expected one of the wells Q, R, found \"P\""));
}

TEST_F(ObservationsTest, aTimeWithoutResultsIsToldOf) {
  const std::vector<double> outputTimes{1 * TVR::secondsPerYear, 2 * TVR::secondsPerYear};
  const auto found = read("a,P,1,temperature,1,1\nb,P,2.04,drawdown,1,1\n");
  EXPECT_TRUE(haveResults(found, outputTimes, errors));
  EXPECT_FALSE(
      haveResults(read("a,P,1,temperature,1,1\nb,P,1.5,drawdown,1,1\nc,P,50,drawdown,1,1\n"),
                  outputTimes, errors));
  EXPECT_EQ(errors,
            (QStringList{"the observation b: expected a time at which the base has results, up "
                         "to 2 years, found \"1.5\"",
                         "the observation c: expected a time at which the base has results, up "
                         "to 2 years, found \"50\""}));
}
