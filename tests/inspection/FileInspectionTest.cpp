#include "inspection/FileInspection.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using TVR::Findings;
using TVR::inspectFile;

namespace {

class FileInspectionTest : public testing::Test {
protected:
  QString write(const QByteArray& content, const QString& name = "site.tbat") {
    const QString path = directory_.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
  }

  /// Each look has a file of its own: settings of one name are cached within a process.
  Findings inspect(const QByteArray& content) {
    return inspectFile(write(content, QString("site%1.tbat").arg(++files_)));
  }

  /// The one error of a file, empty if there is none or more than one.
  std::string error(const QByteArray& content) {
    const Findings result = inspect(content);
    return result.errors.size() == 1 ? result.errors.first().toStdString() : std::string();
  }

  std::string warning(const QByteArray& content) {
    const Findings result = inspect(content);
    EXPECT_TRUE(result.errors.isEmpty());
    return result.warnings.size() == 1 ? result.warnings.first().toStdString() : std::string();
  }

  QTemporaryDir directory_;
  int files_ = 0;
};

} // namespace

TEST_F(FileInspectionTest, aFileThatIsNotThereIsAnError) {
  const Findings result = inspectFile(directory_.filePath("none.tbat"));
  EXPECT_EQ(result.errors, QStringList{"no such file; expected a batch file or a project file"});
}

TEST_F(FileInspectionTest, aDirectoryIsAnError) {
  EXPECT_EQ(inspectFile(directory_.path()).errors,
            QStringList{"is a directory; expected a batch file or a project file"});
}

TEST_F(FileInspectionTest, anotherEndingIsAnError) {
  EXPECT_EQ(inspectFile(write("[main]\n", "site.TBAT")).errors,
            QStringList{"is no batch file and no project file; expected a name that ends in "
                        "\".tbat\" or \".tvr\""});
}

TEST_F(FileInspectionTest, aBinaryFileIsNoIniText) {
  EXPECT_EQ(error(QByteArray("[main]\n\0\1\2", 10)),
            "is no INI text; expected sections in brackets and lines of the form key=value");
}

TEST_F(FileInspectionTest, aFileWithoutAKnownSectionIsAnError) {
  const std::string text =
      "has none of the sections [main], [thermic], [hydraulic], [installation]";
  EXPECT_EQ(error(""), text);
  EXPECT_EQ(error("hello\n"), text);
  EXPECT_EQ(error("[other]\na=1\n"), text);
}

TEST_F(FileInspectionTest, headersWithoutKeysWillDo) {
  const Findings result = inspect("[main]\n[thermic]\n[hydraulic]\n[installation]\n");
  EXPECT_TRUE(result.errors.isEmpty());
  EXPECT_TRUE(result.warnings.isEmpty());
}

TEST_F(FileInspectionTest, aLineThatIsNoKeyIsNamedByItsNumber) {
  EXPECT_EQ(error("[main]\n; a comment\nnonsense\n"),
            "is no INI text: line 3 (\"nonsense\") is neither a section nor of the form key=value");
}

TEST_F(FileInspectionTest, aWordForANumberNamesSectionKeyAndExpectation) {
  EXPECT_EQ(error("[hydraulic]\naquifer_h=twelve\n"),
            "[hydraulic] aquifer_h: expected a number (with a decimal point), found \"twelve\"");
}

TEST_F(FileInspectionTest, aDecimalCommaIsAnError) {
  EXPECT_EQ(error("[hydraulic]\nkf=0,0025\n"),
            "[hydraulic] kf: expected a number (with a decimal point), found \"0,0025\"");
}

TEST_F(FileInspectionTest, aNumberThatIsNotFiniteIsAnError) {
  EXPECT_NE(error("[hydraulic]\nkf=nan\n"), "");
  EXPECT_NE(error("[hydraulic]\nkf=inf\n"), "");
}

TEST_F(FileInspectionTest, aCountIsAWholeNumberFromOne) {
  EXPECT_EQ(error("[installation]\nnumber_of_wells=4.0\n"), "");
  EXPECT_EQ(error("[installation]\nnumber_of_wells=2.5\n"),
            "[installation] number_of_wells: expected a whole number from 1, found \"2.5\"");
  EXPECT_NE(error("[installation]\nnumber_of_wells=0\n"), "");
}

TEST_F(FileInspectionTest, aCountThatTheStoreCannotTakeIsAnError) {
  EXPECT_EQ(error("[installation]\nnumber_of_wells=20000\n"), "");
  EXPECT_EQ(error("[installation]\nnumber_of_wells=20001\n"),
            "[installation] number_of_wells: expected 1 to 20000, found \"20001\"");
  EXPECT_EQ(error("[installation]\nnumber_of_demands_per_year=10001\n"),
            "[installation] number_of_demands_per_year: expected 1 to 10000, found \"10001\"");
  EXPECT_EQ(error("[installation]\nwell_model\\size=20001\n"),
            "[installation] well_model\\size: expected at most 20000 rows, found \"20001\"");
}

TEST_F(FileInspectionTest, pairsOfWellAndPeriodBeyondTheLimitAreAnError) {
  EXPECT_EQ(error("[installation]\nnumber_of_wells=40\nnumber_of_demands_per_year=8760\n"),
            "[installation] well_demand_model: expected at most 200000 pairs of well and demand "
            "period, found 350400");
  EXPECT_EQ(error("[installation]\nwell_model\\size=40\nnumber_of_demands_per_year=8760\n"),
            "[installation] well_demand_model: expected at most 200000 pairs of well and demand "
            "period, found 350400");
  EXPECT_TRUE(inspect("[installation]\nnumber_of_wells=40\nnumber_of_demands_per_year=5000\n")
                  .errors.isEmpty());
}

TEST_F(FileInspectionTest, aValueOutsideTheRangeOfItsParameterIsAnError) {
  EXPECT_EQ(error("[hydraulic]\naquifer_porosity=0\n"),
            "[hydraulic] aquifer_porosity: expected 0.001 to 1, found \"0\"");
  EXPECT_EQ(error("[hydraulic]\naquifer_porosity=-0.1\n"),
            "[hydraulic] aquifer_porosity: expected 0.001 to 1, found \"-0.1\"");
  EXPECT_EQ(error("[thermic]\nreferenz_temperature=-1e9\n"),
            "[thermic] referenz_temperature: expected 0 to 100 °C, found \"-1e9\"");
  EXPECT_EQ(error("[hydraulic]\naquifer_h=1e308\n"),
            "[hydraulic] aquifer_h: expected 0.01 to 2000 m, found \"1e308\"");
}

TEST_F(FileInspectionTest, aRangeCountsInTheUnitOfTheFile) {
  EXPECT_EQ(error("[installation]\nwell_diameter=25\n"),
            "[installation] well_diameter: expected 0 to 20 m, found \"25\"");
  EXPECT_EQ(error("[installation]\nwell_diameter=15\n"), "");
  EXPECT_EQ(error("[main]\nsimulation_time=999\n"), ""); // years
  EXPECT_EQ(error("[main]\nsimulation_time=1e12\n"),
            "[main] simulation_time: expected 1 to 3.15576e+10 s, found \"1e12\"");
}

TEST_F(FileInspectionTest, aKeyThatStandsTwiceIsAWarning) {
  EXPECT_EQ(warning("[hydraulic]\nkf=0.001\n; kf=0.002\naquifer_h=5\nkf = 0.003\n"),
            "[hydraulic] kf: stands in lines 2 and 5; the last one counts");
  EXPECT_EQ(warning("[main]\nsimulation_time=3\n[hydraulic]\nkf=1e-3\n[main]\nsimulation_time=4\n"),
            "[main] simulation_time: stands in lines 2 and 6; the last one counts");
  EXPECT_EQ(warning("[installation]\nwell_model\\size=1\nwell_model\\1\\3=1\n"
                    "well_model\\1\\3=0.5\n"),
            "[installation] well_model\\1\\3: stands in lines 3 and 4; the last one counts");
}

TEST_F(FileInspectionTest, aKeyThatIsSpelledInTwoWaysStandsTwice) {
  EXPECT_EQ(warning("[installation]\nwell_model\\size=1\nwell_model\\1\\3=1\n"
                    "well_model/1/3=0.5\n"),
            "[installation] well_model/1/3: stands in lines 3 and 4; the last one counts");
  EXPECT_EQ(warning("[main]\nsimulation_time=3\nsimulation%5Ftime=4\n"),
            "[main] simulation%5Ftime: stands in lines 2 and 3; the last one counts");
}

TEST_F(FileInspectionTest, theSameKeyInTwoSectionsIsNotTwice) {
  EXPECT_EQ(warning("[main]\nsimulation_time=3\n[thermic]\nsimulation_time=3\n"),
            "[thermic] simulation_time: unknown key, ignored");
}

TEST_F(FileInspectionTest, rowsBeyondTheWellsAndPeriodsOfTheSiteAreAWarning) {
  EXPECT_EQ(warning("[installation]\ndemand_model\\size=4\n"),
            "[installation] demand_model\\size: only the first 1 rows count: there are 2 wells and "
            "1 demand periods");
  EXPECT_EQ(
      warning("[installation]\nnumber_of_wells=3\nwell_demand_model\\size=5\n"),
      "[installation] well_demand_model\\size: only the first 3 rows count: there are 3 wells "
      "and 1 demand periods");
}

TEST_F(FileInspectionTest, aColumnThatATableHasNotIsAWarning) {
  EXPECT_EQ(warning("[installation]\nwell_model\\size=1\nwell_model\\1\\5=1\n"),
            "[installation] well_model\\1\\5: stands in a column that the table has not, ignored");
  EXPECT_EQ(warning("[installation]\nwell_demand_model\\size=1\nwell_demand_model\\1\\1=1\n"),
            "[installation] well_demand_model\\1\\1: stands in a column that the table has not, "
            "ignored");
}

TEST_F(FileInspectionTest, aLineWithoutEndIsAnError) {
  EXPECT_EQ(error("[main]\nsimulation_time=" + QByteArray(20'000, '1') + '\n'),
            "is no batch file; expected at most 64 MiB, a million lines, and 16384 characters in a "
            "line");
}

TEST_F(FileInspectionTest, trueIsRefusedWhereItWouldReadAsFalse) {
  EXPECT_EQ(error("[hydraulic]\naquifer_unconfined=true\n"),
            "[hydraulic] aquifer_unconfined: expected 1 or 0, found \"true\"");
  EXPECT_TRUE(inspect("[hydraulic]\naquifer_unconfined=false\n").errors.isEmpty());
  EXPECT_TRUE(inspect("[thermic]\nexchange_caprock=true\n").errors.isEmpty());
}

TEST_F(FileInspectionTest, aWordThatIsNoFlagIsAnError) {
  EXPECT_EQ(error("[thermic]\nexchange_caprock=perhaps\n"),
            "[thermic] exchange_caprock: expected true, false, 1 or 0, found \"perhaps\"");
}

TEST_F(FileInspectionTest, anUnknownKeyIsAWarning) {
  EXPECT_EQ(warning("[hydraulic]\nhydraulic_conductivity=1\n"),
            "[hydraulic] hydraulic_conductivity: unknown key, ignored");
}

TEST_F(FileInspectionTest, aKeyOfAnotherSectionIsAWarning) {
  EXPECT_EQ(warning("[main]\nkf=0.001\n"), "[main] kf: unknown key, ignored");
}

TEST_F(FileInspectionTest, anUnknownSectionIsAWarning) {
  EXPECT_EQ(warning("[main]\nsimulation_time=3\n[notes]\na=1\n"),
            "[notes]: unknown section, ignored");
}

TEST_F(FileInspectionTest, theCellsOfTheTablesAreNumbers) {
  EXPECT_EQ(error("[installation]\nwell_model\\size=1\nwell_model\\1\\3=fast\n"),
            "[installation] well_model\\1\\3: expected a number (with a decimal point), found "
            "\"fast\"");
}

TEST_F(FileInspectionTest, theNameOfAWellIsAnyText) {
  EXPECT_TRUE(
      inspect("[installation]\nwell_model\\size=1\nwell_model\\1\\0=North\n").errors.isEmpty());
}

TEST_F(FileInspectionTest, aTableNeedsItsSize) {
  EXPECT_EQ(error("[installation]\nwell_model\\1\\3=0.001\n"),
            "[installation] well_model\\size: expected the number of rows, a whole number from 1, "
            "found \"\"");
}

TEST_F(FileInspectionTest, aRowBeyondTheSizeIsAWarning) {
  EXPECT_EQ(warning("[installation]\nwell_model\\size=1\nwell_model\\2\\3=0.001\n"),
            "[installation] well_model\\2\\3: stands beyond the size of the table, ignored");
}
