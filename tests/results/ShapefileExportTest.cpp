#include "results/ShapefileSet.h"
#include "results/ShapefileTest.h"
#include "support/ContextTranslator.h"
#include "support/MessageLog.h"

#include <QDir>

namespace TVR {
namespace {

using namespace Sketra_lib;

class ShapefileExportTest : public ShapefileTest {
protected:
  QString written(const QString& name, bool isohypses = true, bool isotherms = true) {
    shapefile().write(path(name), isohypses, isotherms);
    return readBack(path(name + ".shp"));
  }
};

TEST_F(ShapefileExportTest, drawdownsComeBeforeTemperaturesWithTheirAttributes) {
  store.setValue(Parameter::ProjectName, "Old town");
  page.addLine(Property::Temperature, -3, pointsInARow(3, 50));
  page.addLine(Property::Drawdowns, 0.25, pointsInARow(4, 10));
  page.addLine(Property::Drawdowns, -1.5, pointsInARow(3));
  const QString read = written("lines");
  EXPECT_EQ(valuesOf(read, "ID"), (QStringList{"0", "1", "2"}));
  EXPECT_EQ(valuesOf(read, "project"), (QStringList{"Old town", "Old town", "Old town"}));
  EXPECT_EQ(valuesOf(read, "parameter"),
            (QStringList{"draw down", "draw down", "temperature change"}));
  EXPECT_EQ(valuesOf(read, "value"), (QStringList{"0.250", "-1.500", "-3.000"}));
  EXPECT_EQ(valuesOf(read, "unit"), (QStringList{"m", "m", "K"}));
  EXPECT_EQ(geometriesOf(read),
            (QStringList{"LINESTRING (10 100,11 110,12 120,13 130)", "LINESTRING (0 0,1 10,2 20)",
                         "LINESTRING (50 500,51 510,52 520)"}));
}

TEST_F(ShapefileExportTest, theTableHasFiveColumns) {
  const QString read = written("lines");
  const int columns = read.indexOf("ID: ");
  ASSERT_GT(columns, 0);
  EXPECT_EQ(read.mid(columns).toStdString(), "ID: Integer (3.0)\nproject: String (25.0)\n"
                                             "parameter: String (25.0)\nvalue: Real (10.3)\n"
                                             "unit: String (10.0)\n");
}

TEST_F(ShapefileExportTest, withoutLinesTheFilesAreEmptyAndThere) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 1, pointsInARow(3));
  const QString read = written("lines", false, false);
  EXPECT_TRUE(read.contains("Feature Count: 0\n"));
  EXPECT_TRUE(read.contains("Geometry: Line String\n"));
  for (const char* file : {"lines.shp", "lines.shx", "lines.dbf"})
    EXPECT_TRUE(QFile::exists(path(file))) << file;
  EXPECT_TRUE(page.sets.empty()) << "no data set was selected";
}

TEST_F(ShapefileExportTest, eachKindOfLinesMayBeLeftOut) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 2, pointsInARow(3));
  EXPECT_EQ(valuesOf(written("drawdowns", true, false), "value"), QStringList{"1.000"});
  EXPECT_EQ(valuesOf(written("temperatures", false, true), "value"), QStringList{"2.000"});
}

TEST_F(ShapefileExportTest, breaksMakeRecordsAndSoDoesTheRest) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(12), {5, 9});
  page.addLine(Property::Temperature, 3, pointsInARow(3, 20));
  const QString read = written("lines");
  EXPECT_EQ(geometriesOf(read),
            (QStringList{"LINESTRING (0 0,1 10,2 20,3 30,4 40)", "LINESTRING (5 50,6 60,7 70,8 80)",
                         "LINESTRING (9 90,10 100,11 110)", "LINESTRING (20 200,21 210,22 220)"}));
  EXPECT_EQ(valuesOf(read, "ID"), (QStringList{"0", "1", "2", "3"}));
  EXPECT_EQ(valuesOf(read, "value"), (QStringList{"1.000", "1.000", "1.000", "3.000"}));
}

TEST_F(ShapefileExportTest, aBreakAtTheEndLeavesNoRecordBehindIt) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(8), {4, 8});
  EXPECT_EQ(geometriesOf(written("lines")).size(), 2);
}

TEST_F(ShapefileExportTest, aLineOfTwoPointsIsLeftOut) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(2));
  page.addLine(Property::Drawdowns, 2, pointsInARow(3));
  const QString read = written("lines");
  EXPECT_EQ(valuesOf(read, "value"), QStringList{"2.000"});
  EXPECT_EQ(valuesOf(read, "ID"), QStringList{"0"});
}

TEST_F(ShapefileExportTest, coordinatesKeepAllTheirDigits) {
  page.addLine(Property::Drawdowns, 1,
               QVector<QPointF>{{681234.5678, 226701.25}, {0.1, -0.5}, {1234567.890625, 3}});
  EXPECT_EQ(geometriesOf(written("lines")),
            QStringList{"LINESTRING (681234.5678 226701.25,0.1 -0.5,1234567.890625 3.0)"});
}

TEST_F(ShapefileExportTest, aLongProjectNameWidensItsColumn) {
  store.setValue(Parameter::ProjectName, QString(40, 'n'));
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  const QString read = written("lines");
  EXPECT_TRUE(read.contains("project: String (40.0)"));
  EXPECT_EQ(valuesOf(read, "project"), QStringList{QString(40, 'n')});
}

TEST_F(ShapefileExportTest, aNameWithUmlautsHasRoomForItsBytes) {
  const QString name = QString(30, QChar(0xE4));
  store.setValue(Parameter::ProjectName, name);
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  const QString read = written("lines");
  EXPECT_TRUE(read.contains("project: String (60.0)"));
  EXPECT_EQ(valuesOf(read, "project"), QStringList{name});
}

TEST_F(ShapefileExportTest, aProjectWithoutANameGoesByItsFile) {
  QMap<QString, int> fieldIds;
  ASSERT_TRUE(BatchProject().write(path("Site v1.2.tbat")));
  ASSERT_TRUE(store.read(path("Site v1.2.tbat"), fieldIds));
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  EXPECT_EQ(valuesOf(written("unnamed"), "project"), QStringList{"Site v1.2"});
  store.setValue(Parameter::ProjectName, "Old town");
  EXPECT_EQ(valuesOf(written("named"), "project"), QStringList{"Old town"});
}

TEST_F(ShapefileExportTest, aShortProjectNameLeavesItsColumn) {
  store.setValue(Parameter::ProjectName, QString(10, 'n'));
  EXPECT_TRUE(written("lines").contains("project: String (25.0)"));
}

TEST_F(ShapefileExportTest, textsAreUtf8AndAFileSaysSo) {
  store.setValue(Parameter::ProjectName, "Wärme für Genève");
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  EXPECT_EQ(valuesOf(written("lines"), "project"), QStringList{"Wärme für Genève"});
  EXPECT_TRUE(contentOf(path("lines.dbf")).contains("Wärme für Genève"));
  EXPECT_EQ(contentOf(path("lines.cpg")), "UTF-8");
}

TEST_F(ShapefileExportTest, aNameThatDoesNotFitEndsWithAWholeCharacter) {
  store.setValue(Parameter::ProjectName, QString(200, QChar(0xE4)));
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  EXPECT_EQ(valuesOf(written("lines"), "project"), QStringList{QString(127, QChar(0xE4))})
      << "254 of 255 bytes are used";
}

TEST_F(ShapefileExportTest, recordsBehindTheThousandthAreWritten) {
  for (int i = 0; i < 1003; ++i)
    page.addLine(Property::Drawdowns, i, pointsInARow(3));
  const QString read = written("lines");
  EXPECT_TRUE(read.contains("Feature Count: 1003\n"));
  EXPECT_EQ(valuesOf(read, "ID").value(999), "999");
  EXPECT_EQ(valuesOf(read, "value").value(1002), "1002.000");
}

TEST_F(ShapefileExportTest, fileNamesMayHaveUmlautsSpacesAndPoints) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  ASSERT_TRUE(QDir(path(".")).mkdir("Größe v1.2"));
  EXPECT_EQ(geometriesOf(written("Größe v1.2/Isolinien für Zürich")).size(), 1);
  EXPECT_EQ(QDir(path("Größe v1.2")).entryList(QDir::Files, QDir::Name),
            (QStringList{"Isolinien für Zürich.cpg", "Isolinien für Zürich.dbf",
                         "Isolinien für Zürich.shp", "Isolinien für Zürich.shx"}));
}

TEST_F(ShapefileExportTest, anEndingOfTheNameIsReplaced) {
  shapefile().write(path("lines.shp"));
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files, QDir::Name),
            (QStringList{"lines.cpg", "lines.dbf", "lines.shp", "lines.shx"}));
}

TEST_F(ShapefileExportTest, aPointInTheNameIsNoEnding) {
  EXPECT_TRUE(shapefile().write(path("lines.2026-11")));
  EXPECT_TRUE(shapefile().write(path("lines.2026-12")));
  EXPECT_EQ(QDir(path(".")).entryList({"*.shp"}, QDir::Files, QDir::Name),
            (QStringList{"lines.2026-11.shp", "lines.2026-12.shp"}));
}

TEST_F(ShapefileExportTest, anOlderExportIsReplaced) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(9));
  page.addLine(Property::Temperature, 2, pointsInARow(9));
  written("lines");
  EXPECT_EQ(valuesOf(written("lines", false, true), "value"), QStringList{"2.000"});
}

TEST_F(ShapefileExportTest, parametersAndUnitsAreTranslated) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  const ContextTranslator translator;
  const QString read = written("lines");
  EXPECT_EQ(valuesOf(read, "parameter").value(0), "TVR::ShapefileExport/draw");
  EXPECT_EQ(valuesOf(read, "unit").value(0), "TVR::Shape");
}

TEST_F(ShapefileExportTest, withoutAResultGridTheFilesAreEmpty) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  items.results = 0;
  EXPECT_TRUE(written("lines").contains("Feature Count: 0\n"));
}

TEST_F(ShapefileExportTest, withoutAPageNothingIsWritten) {
  EXPECT_FALSE(ShapefileExport(accessWithoutWindow()).write(path("lines")));
  page.type = "WelcomeWindow";
  EXPECT_FALSE(shapefile().write(path("lines")));
  EXPECT_TRUE(QDir(path(".")).isEmpty());
}

TEST_F(ShapefileExportTest, aBusyPageGivesTheLinesThatAreSelected) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 2, pointsInARow(3));
  page.setItemProperty(page.grid, Property::SelectedSet, int(Property::Temperature));
  const LockedElsewhere busy(mutex);
  const QString read = written("lines", true, false);
  EXPECT_EQ(valuesOf(read, "value"), QStringList{"2.000"});
  EXPECT_EQ(valuesOf(read, "parameter"), QStringList{"draw down"});
}

TEST_F(ShapefileExportTest, theLockIsHeldForTheSelectionOnly) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  written("lines");
  const LockedElsewhere nobodyElseHoldsIt(mutex);
  EXPECT_EQ(page.valuesOf(page.grid, Property::SelectedSet), (QVariantList{1, 2}));
}

// Failures

TEST_F(ShapefileExportTest, aDirectoryThatIsNotThereIsTold) {
  const MessageLog log;
  EXPECT_FALSE(shapefile().write(path("no such directory/lines")));
  EXPECT_EQ(log.lines(),
            QStringList{"Tevrane: Unable to create:" + path("no such directory/lines")});
  EXPECT_TRUE(QDir(path(".")).isEmpty());
}

TEST_F(ShapefileExportTest, aDirectoryThatTakesNoFilesIsTold) {
  const MessageLog log;
  shapefile().write("/proc/lines");
  EXPECT_EQ(log.lines(), QStringList{"Tevrane: Unable to create:/proc/lines"});
}

TEST_F(ShapefileExportTest, aNameThatIsTakenByADirectoryIsToldAndNothingIsWritten) {
  for (const char* name : {"lines.shp", "lines.dbf"}) {
    ASSERT_TRUE(QDir(path(".")).mkdir(name));
    const MessageLog log;
    EXPECT_FALSE(shapefile().write(path("lines")));
    EXPECT_EQ(log.lines(), QStringList{"Tevrane: Unable to create:" + path("lines")});
    EXPECT_EQ(QDir(path(".")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{name});
    ASSERT_TRUE(QDir(path(".")).rmdir(name));
  }
}

// Names

TEST(ShapefileBase, losesTheEndingOfOneOfItsFilesOnly) {
  EXPECT_EQ(shapefileBase("/a/lines.shp"), "/a/lines");
  EXPECT_EQ(shapefileBase("lines.SHX"), "lines");
  EXPECT_EQ(shapefileBase("v1.2.dbf"), "v1.2");
  for (const char* name : {"lines", "/v1.2/lines", "lines.2026-11", "lines.v12", "lines.shp.old"})
    EXPECT_EQ(shapefileBase(name), name);
}

TEST(ShapefileBase, readersOpenTheLastOfItsFiles) {
  EXPECT_EQ(shapefileNames("a/b.1.shp"),
            (QStringList{"a/b.1.dbf", "a/b.1.shx", "a/b.1.cpg", "a/b.1.shp"}));
}

TEST(ShapefileName, losesAnEndingOfThreeLetters) {
  EXPECT_EQ(withoutShapefileEnding("/a/lines.shp"), "/a/lines");
  EXPECT_EQ(withoutShapefileEnding("lines.dbf"), "lines");
  EXPECT_EQ(withoutShapefileEnding("l.shp"), "l");
  EXPECT_EQ(withoutShapefileEnding("v1.2.shp"), "v1.2");
}

TEST(ShapefileName, keepsAnyOtherEnding) {
  for (const char* name : {"/a/lines", "/a/lines.sh", "lines.shape", "lines.s", "lines."})
    EXPECT_EQ(withoutShapefileEnding(name), name);
}

TEST(ShapefileName, ofFourCharactersStays) {
  EXPECT_EQ(withoutShapefileEnding(".shp"), ".shp");
  EXPECT_EQ(withoutShapefileEnding("/a/.shp"), "/a/.shp");
}

TEST(ShapefileName, isNotCutInItsDirectory) {
  EXPECT_EQ(withoutShapefileEnding("/v1.2/ab"), "/v1.2/ab");
  EXPECT_EQ(withoutShapefileEnding("/v.1/a"), "/v.1/a");
}

} // namespace
} // namespace TVR
