#include "results/DrawingExport.h"

#include "results/DialogHost.h"
#include "results/DialogUser.h"
#include "results/DxfReader.h"
#include "results/ExportTest.h"
#include "support/MessageLog.h"
#include "tables/WellModel.h"

#include <QColor>
#include <QDir>

namespace TVR {
namespace {

using namespace Sketra_lib;

class DrawingExportTest : public ExportTest {
protected:
  DrawingExportTest() {
    read(BatchProject::doublet());
    QFile::remove(path("project.tbat"));
  }

  /// What a CAD library finds in the drawing that begins with this word.
  QStringList written(const QString& word, bool isohypses = true, bool isotherms = true) {
    EXPECT_TRUE(DrawingExport(access()).write(path("lines.dxf"), isohypses, isotherms));
    return readByCadLibrary(path("lines.dxf")).filter(QRegularExpression('^' + word));
  }
  void addLine(int set, double level, const QColor& colour, const QVariantList& breaks = {}) {
    const int id = page.addLine(set, level, pointsInARow(6), breaks);
    page.properties[id][Property::LineColour] = colour;
  }
  QStringList files() const { return QDir(path(".")).entryList(QDir::Files); }
};

TEST_F(DrawingExportTest, eachLevelOfEachKindHasItsLayerInItsColour) {
  addLine(Property::Temperature, -1, Qt::blue);
  addLine(Property::Temperature, -3, Qt::red);
  addLine(Property::Drawdowns, 0.25, Qt::black);
  const QStringList layers = written("layer");
  for (const char* layer :
       {"layer ISOTHERM_-1_K 5", "layer ISOTHERM_-3_K 1", "layer ISOHYPSE_0_25_M 7"})
    EXPECT_TRUE(layers.contains(layer)) << layers.join('\n').toStdString();
  const QString row = " open 0.0000,0.0000 1.0000,10.0000 2.0000,20.0000 3.0000,30.0000 "
                      "4.0000,40.0000 5.0000,50.0000";
  EXPECT_EQ(written("POLYLINE"),
            (QStringList{"POLYLINE ISOHYPSE_0_25_M" + row, "POLYLINE ISOTHERM_-1_K" + row,
                         "POLYLINE ISOTHERM_-3_K" + row}));
}

TEST_F(DrawingExportTest, aLevelThatNoLineHasIsNoLayer) {
  page.addLine(Property::Temperature, 3, {});
  EXPECT_TRUE(written("layer ISOTHERM").isEmpty());
}

TEST_F(DrawingExportTest, eachPieceIsALineAndSoIsTheRest) {
  addLine(Property::Drawdowns, 1, Qt::black, {2, 4});
  EXPECT_EQ(written("POLYLINE"),
            (QStringList{"POLYLINE ISOHYPSE_1_M open 0.0000,0.0000 1.0000,10.0000",
                         "POLYLINE ISOHYPSE_1_M open 2.0000,20.0000 3.0000,30.0000",
                         "POLYLINE ISOHYPSE_1_M open 4.0000,40.0000 5.0000,50.0000"}));
}

TEST_F(DrawingExportTest, eachKindOfLinesMayBeLeftOut) {
  addLine(Property::Drawdowns, 1, Qt::black);
  addLine(Property::Temperature, 2, Qt::blue);
  EXPECT_EQ(written("POLYLINE", true, false).size(), 1);
  EXPECT_EQ(written("POLYLINE ISOTHERM", false, true).size(), 1);
  EXPECT_TRUE(written("POLYLINE", false, false).isEmpty());
  EXPECT_TRUE(written("layer ISO", false, false).isEmpty());
}

TEST_F(DrawingExportTest, wellsArePointsWithTheirNamesByWhatTheyDo) {
  const QStringList wells = written("(POINT|TEXT)");
  EXPECT_EQ(wells,
            (QStringList{"POINT WELLS_WITHDRAWAL 0.0000,0.0000", "TEXT WELLS_WITHDRAWAL Pump",
                         "POINT WELLS_INJECTION 40.0000,0.0000", "TEXT WELLS_INJECTION Return"}));
}

TEST_F(DrawingExportTest, wellsThatWithdrawAndInjectInTurnsHaveALayerOfTheirOwn) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(secondsPerYear / 2);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriodRates({{-0.001, 0}, {0.001, 3}, {0.001, -3}, {0.002, 4}});
  read(project);
  EXPECT_EQ(written("POINT"), (QStringList{"POINT WELLS_ALTERNATING 0.0000,0.0000",
                                           "POINT WELLS_INJECTION 40.0000,0.0000"}));
  EXPECT_EQ(written("layer WELLS_ALT"), QStringList{"layer WELLS_ALTERNATING 6"});
}

TEST_F(DrawingExportTest, aWellThatDoesNothingIsOnNeitherLayer) {
  BatchProject project;
  project.addWell("Idle", 0, 0, 0);
  read(project);
  EXPECT_EQ(written("POINT"), QStringList{"POINT WELLS_IDLE 0.0000,0.0000"});
}

TEST_F(DrawingExportTest, readersOfMapsFindTheSame) {
  addLine(Property::Temperature, -1, Qt::blue);
  EXPECT_TRUE(DrawingExport(access()).write(path("lines.dxf")));
  const QString found = readByMapLibrary(path("lines.dxf"));
  EXPECT_TRUE(found.contains("Layer (String) = ISOTHERM_-1_K")) << found.toStdString();
  EXPECT_TRUE(found.contains("LINESTRING Z (0 0 0,1 10 0,2 20 0,3 30 0,4 40 0,5 50 0)"));
  EXPECT_TRUE(found.contains("PEN(c:#0000ff")) << found.toStdString();
  EXPECT_TRUE(found.contains("POINT Z (40 0 0)"));
  EXPECT_TRUE(found.contains("Text (String) = Return"));
}

TEST_F(DrawingExportTest, withoutAResultGridThereAreWellsOnly) {
  addLine(Property::Drawdowns, 1, Qt::black);
  items.results = 0;
  EXPECT_TRUE(written("POLYLINE").isEmpty());
  EXPECT_EQ(written("POINT").size(), 2);
}

TEST_F(DrawingExportTest, aBusyPageOrNoneGivesNoFile) {
  EXPECT_FALSE(DrawingExport(accessWithoutWindow()).write(path("lines.dxf")));
  const LockedElsewhere busy(mutex);
  EXPECT_FALSE(DrawingExport(access()).write(path("lines.dxf")));
  EXPECT_TRUE(files().isEmpty());
}

TEST_F(DrawingExportTest, aFileThatCanNotBeWrittenIsNoSuccess) {
  EXPECT_FALSE(DrawingExport(access()).write(path("none/lines.dxf")));
  EXPECT_FALSE(DrawingExport(access()).write(path(".")));
  EXPECT_TRUE(files().isEmpty());
}

TEST_F(DrawingExportTest, theUserIsAskedForTheFile) {
  DialogHost host;
  host.path = path(".");
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save as dxf drawing");
    EXPECT_EQ(dialog.nameFilters(), QStringList{"DXF drawing, release 12 (*.dxf)"});
    choose(dialog, path("drawing.dxf"));
  });
  DrawingExport(access()).ask(&host);
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(files(), QStringList{"drawing.dxf"});
}

TEST_F(DrawingExportTest, theUserIsToldOfAFileThatCanNotBeWritten) {
  const MessageLog log;
  const DialogUser user([](QFileDialog& dialog) { choose(dialog, "/proc/drawing.dxf"); });
  DrawingExport(access()).ask(nullptr);
  EXPECT_TRUE(log.lines().contains("Tevrane: Unable to create:/proc/drawing.dxf"));
}

} // namespace
} // namespace TVR
