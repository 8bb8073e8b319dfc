#include "batch/FileInspection.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using TVR::Batch::FileInspection;
using TVR::Batch::inspectFile;

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
  FileInspection inspect(const QByteArray& content) {
    return inspectFile(write(content, QString("site%1.tbat").arg(++files_)));
  }

  /// The one error of a file, empty if there is none or more than one.
  std::string error(const QByteArray& content) {
    const FileInspection result = inspect(content);
    return result.errors.size() == 1 ? result.errors.first().toStdString() : std::string();
  }

  std::string warning(const QByteArray& content) {
    const FileInspection result = inspect(content);
    EXPECT_TRUE(result.errors.isEmpty());
    return result.warnings.size() == 1 ? result.warnings.first().toStdString() : std::string();
  }

  QTemporaryDir directory_;
  int files_ = 0;
};

} // namespace

TEST_F(FileInspectionTest, aFileThatIsNotThereIsAnError) {
  const FileInspection result = inspectFile(directory_.filePath("none.tbat"));
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
  const FileInspection result = inspect("[main]\n[thermic]\n[hydraulic]\n[installation]\n");
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
            "[installation] number_of_wells: expected at most 20000, found \"20001\"");
  EXPECT_EQ(error("[installation]\nnumber_of_demands_per_year=10001\n"),
            "[installation] number_of_demands_per_year: expected at most 10000, found \"10001\"");
  EXPECT_EQ(error("[installation]\nwell_model\\size=20001\n"),
            "[installation] well_model\\size: expected at most 20000 rows, found \"20001\"");
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
