#include "plugin/AppInterface.h"
#include "plugin/TVRPlugin.h"
#include "results/DialogHost.h"
#include "results/DialogUser.h"
#include "results/ExportTest.h"
#include "support/MessageLog.h"

#include <QDir>

namespace TVR {
namespace {

using namespace Sketra_lib;

/// The plug-in with a host that shows a page, or none.
class ExportSlotsTest : public ExportTest {
protected:
  ExportSlotsTest() {
    host.path = path(".");
    plugin.setAppInterface(&host);
    store.setValue(Parameter::BatchOutputFile, "");
    store.setValue(Parameter::TecplotOutputFile, "");
  }
  ~ExportSlotsTest() override { AppInterface::setApplicationInterface(nullptr); }

  void showPage() { host.window = &page; }
  void call(const char* slot, QGenericArgument argument = {}) {
    EXPECT_TRUE(QMetaObject::invokeMethod(&plugin, slot, argument)) << slot;
  }
  QStringList shapefiles() const { return QDir(path(".")).entryList({"*.shp"}, QDir::Files); }

  DialogHost host;
  TVRPlugin plugin;
};

TEST_F(ExportSlotsTest, aShapefileIsWrittenOfThePageOfTheHost) {
  call("writeShapefile", Q_ARG(QString, path("before")));
  showPage();
  call("writeShapefile", Q_ARG(QString, path("lines")));
  EXPECT_EQ(shapefiles(), QStringList{"lines.shp"});
}

TEST_F(ExportSlotsTest, aStepGoesToTheWorkingPathOfTheHost) {
  showPage();
  call("shpExport", Q_ARG(double, 3944700));
  EXPECT_EQ(shapefiles(), QStringList{"2_month_isolines.shp"});
}

TEST_F(ExportSlotsTest, aStepGoesWhereTheProjectPutsItsTables) {
  ASSERT_TRUE(QDir(path(".")).mkdir("tables"));
  store.setValue(Parameter::TecplotOutputFile, path("tables"));
  showPage();
  call("shpExport", Q_ARG(double, 2629800));
  EXPECT_TRUE(QFile::exists(path("tables/1_month_isolines.shp")));
}

TEST_F(ExportSlotsTest, aBatchWithoutAPageWritesNoStep) {
  host.window = nullptr;
  call("shpExport", Q_ARG(double, 2629800));
  EXPECT_TRUE(shapefiles().isEmpty());
}

TEST_F(ExportSlotsTest, oneIsolineIsAppendedToOpenFiles) {
  showPage();
  const int id = page.addLine(Property::Drawdowns, 1, pointsInARow(12), {5, 9});
  const QByteArray file = QFile::encodeName(path("one"));
  const DBFHandle table = DBFCreate(file);
  const SHPHandle shapes = SHPCreate(file, SHPT_ARC);
  for (const char* column : {"a", "b", "c", "d", "e"})
    DBFAddField(table, column, FTString, 20, 0);
  int shape = 4;
  plugin.writeIsolineToShapeFile(id, shape, shapes, table, "parameter", "m");
  SHPClose(shapes);
  DBFClose(table);
  EXPECT_EQ(shape, 7);
}

TEST_F(ExportSlotsTest, withoutResultsNobodyIsAsked) {
  const DialogUser user(giveUp);
  showPage();
  call("shapefileExport");
  call("dxfFileExport");
  call("dxfDrawingExport");
  host.window = nullptr;
  call("shapefileExport");
  call("dxfFileExport");
  call("dxfDrawingExport");
  QCoreApplication::processEvents();
  EXPECT_FALSE(user.sawDialog());
}

TEST_F(ExportSlotsTest, anImportWithoutAMapIsRefused) {
  const MessageLog log;
  showPage();
  call("importTVRResult");
  host.window = nullptr;
  call("importTVRResult");
  const QString message = "Host: There is no active graphic.\nThere are no data to import.";
  EXPECT_EQ(log.lines(), (QStringList{message, message}));
}

TEST_F(ExportSlotsTest, withoutAHostNothingHappens) {
  AppInterface::setApplicationInterface(nullptr);
  const DialogUser user(giveUp);
  const MessageLog log;
  call("writeShapefile", Q_ARG(QString, path("lines")));
  call("shapefileExport");
  call("dxfFileExport");
  call("dxfDrawingExport");
  call("importTVRResult");
  QCoreApplication::processEvents();
  EXPECT_FALSE(user.sawDialog());
  EXPECT_TRUE(shapefiles().isEmpty());
  EXPECT_EQ(log.lines(),
            QStringList{"Tevrane: There is no active graphic.\nThere are no data to import."});
}

} // namespace
} // namespace TVR
