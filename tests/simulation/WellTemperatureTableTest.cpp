#include "simulation/WellTemperatureTable.h"

#include "project/Units.h"
#include "support/FullDisk.h"
#include "support/TestDirectory.h"

#include <QBuffer>
#include <QDir>

#include <gtest/gtest.h>

using namespace TVR;

namespace {

const std::vector<WellHistory> twoWells{
    {"Pump", {secondsPerYear / 2, secondsPerYear}, {10, 9.875}},
    {"Return", {secondsPerYear / 2, secondsPerYear}, {7, 6.25}},
};

constexpr char twoWellsAsText[] = "Time [s]\tTime [a]\tPump\tReturn\t\n"
                                  "15778800\t0.5\t10\t7\t\n"
                                  "31557600\t1\t9.875\t6.25\t\n";

constexpr char oneWellAsSpreadsheet[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"
 xmlns:x="urn:schemas-microsoft-com:office:excel"
 xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet"
 xmlns:html="http://www.w3.org/TR/REC-html40">
 <Worksheet ss:Name="Pump">
  <Table>
   <Column ss:Index="2" ss:AutoFitWidth="0" ss:Width="110"/>   <Column ss:Index="3" ss:AutoFitWidth="0" ss:Width="110"/>   <Column ss:Index="4" ss:AutoFitWidth="0" ss:Width="110"/>   <Row>
    <Cell><Data ss:Type="String">Time [s]</Data></Cell>
    <Cell><Data ss:Type="String">Time [a]</Data></Cell>
    <Cell><Data ss:Type="String">Temperature change [K]</Data></Cell>
   </Row>
   <Row>
    <Cell><Data ss:Type="Number">31557600</Data></Cell>
    <Cell><Data ss:Type="Number">1</Data></Cell>
    <Cell><Data ss:Type="Number">9.875</Data></Cell>
   </Row>
  </Table>
 </Worksheet>
</Workbook>
)";

/// A name that breaks out of its column, and of a terminal.
const std::vector<WellHistory> hostileWell{{"a\n1\t2\r\u001b[2J<", {0}, {2}}};

class WellTemperatureTable : public testing::Test, protected TestDirectory {
protected:
  static QByteArray spreadsheet(const std::vector<WellHistory>& wells) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeSpreadsheet(buffer, wells);
    return buffer.data();
  }

  static QByteArray text(const std::vector<WellHistory>& wells) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeTabbedText(buffer, wells);
    return buffer.data();
  }
};

} // namespace

TEST_F(WellTemperatureTable, aNameInATextStaysInItsColumn) {
  const QByteArray table = text(hostileWell);
  EXPECT_EQ(table, "Time [s]\tTime [a]\ta\\u000a1\\u00092\\u000d\\u001b[2J<\t\n0\t0\t2\t\n");
}

TEST_F(WellTemperatureTable, aNameInASpreadsheetLeavesItWellFormed) {
  const QByteArray table = spreadsheet(hostileWell);
  EXPECT_TRUE(table.contains("ss:Name=\"a\\u000a1\\u00092\\u000d\\u001b[2J&lt;\""))
      << table.toStdString();
}

TEST_F(WellTemperatureTable, spreadsheetStandsAsWritten) {
  EXPECT_EQ(spreadsheet({{"Pump", {secondsPerYear}, {9.875}}}).toStdString(), oneWellAsSpreadsheet);
}

TEST_F(WellTemperatureTable, spreadsheetHasOneSheetForEachWell) {
  const QByteArray sheets = spreadsheet(twoWells);
  EXPECT_EQ(sheets.count("<Worksheet ss:Name="), 2);
  EXPECT_LT(sheets.indexOf("\"Pump\""), sheets.indexOf("\"Return\""));
  EXPECT_EQ(sheets.count("<Row>"), 2 * (1 + 2));
}

TEST_F(WellTemperatureTable, spreadsheetHoldsTheTemperatureInSpiteOfItsHeading) {
  const QByteArray sheets = spreadsheet({{"Pump", {1}, {10}}});
  EXPECT_TRUE(sheets.contains("Temperature change [K]"));
  EXPECT_TRUE(sheets.contains(">10<"));
}

TEST_F(WellTemperatureTable, namesAreWrittenInUtf8) {
  const std::vector<WellHistory> wells{{QString::fromUtf8("Rückgabe"), {1}, {10}}};
  EXPECT_TRUE(spreadsheet(wells).contains("ss:Name=\"R\xC3\xBC"
                                          "ckgabe\""));
  EXPECT_TRUE(text(wells).contains("\tR\xC3\xBC"
                                   "ckgabe\t\n"));
}

TEST_F(WellTemperatureTable, namesAreEscapedInTheSpreadsheet) {
  const std::vector<WellHistory> wells{{"A & <B> \"C\"", {1}, {10}}};
  EXPECT_TRUE(spreadsheet(wells).contains("ss:Name=\"A &amp; &lt;B&gt; &quot;C&quot;\""));
}

TEST_F(WellTemperatureTable, namesStandAsTheyAreInTheText) {
  EXPECT_TRUE(text({{"A & <B>", {1}, {10}}}).contains("\tA & <B>\t\n"));
}

TEST_F(WellTemperatureTable, textStandsAsWritten) {
  EXPECT_EQ(text(twoWells).toStdString(), twoWellsAsText);
}

TEST_F(WellTemperatureTable, textOfNoWellsIsItsHeading) {
  EXPECT_EQ(text({}).toStdString(), "Time [s]\tTime [a]\t\n");
}

TEST_F(WellTemperatureTable, timesOfCenturiesAreToldToTheSecond) {
  EXPECT_TRUE(text({{"Pump", {200 * secondsPerYear + 1}, {10}}}).contains("6311520001\t"));
}

TEST_F(WellTemperatureTable, aNameThatEndsInXmlSelectsTheSpreadsheet) {
  ASSERT_TRUE(writeWellTemperatureTable(path("t.xml"), twoWells, NamedBy::User));
  EXPECT_EQ(contentOf(path("t.xml")), spreadsheet(twoWells));
}

TEST_F(WellTemperatureTable, anyOtherEndingSelectsTheTextAlsoWhereOnlyTheCaseDiffers) {
  for (const char* name : {"t.out", "t.XML", "t.Xml", "xml", "t.xml.txt"}) {
    ASSERT_TRUE(writeWellTemperatureTable(path(name), twoWells, NamedBy::User)) << name;
    EXPECT_EQ(contentOf(path(name)).toStdString(), twoWellsAsText) << name;
  }
}

TEST_F(WellTemperatureTable, anOlderFileIsReplaced) {
  ASSERT_TRUE(writeWellTemperatureTable(path("t.out"), {}, NamedBy::User));
  ASSERT_TRUE(writeWellTemperatureTable(path("t.out"), twoWells, NamedBy::User));
  EXPECT_EQ(contentOf(path("t.out")).toStdString(), twoWellsAsText);
}

TEST_F(WellTemperatureTable, aPlaceThatCanNotBeWrittenIsRefusedWithoutAMessage) {
  EXPECT_FALSE(writeWellTemperatureTable(path("missing/t.out"), twoWells, NamedBy::User));
  EXPECT_FALSE(QDir(path("missing")).exists());
}

TEST_F(WellTemperatureTable, anOlderFileIsKeptIfTheNewOneCanNotBeWrittenInFull) {
  ASSERT_TRUE(writeWellTemperatureTable(path("t.out"), twoWells, NamedBy::User));
  const std::vector<WellHistory> century{
      {"Pump", std::vector<double>(1000, secondsPerYear), std::vector<double>(1000, 10)}};
  {
    const FullDisk disk(1000);
    EXPECT_FALSE(writeWellTemperatureTable(path("t.out"), century, NamedBy::User));
  }
  EXPECT_EQ(contentOf(path("t.out")).toStdString(), twoWellsAsText);
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"t.out"});
}
