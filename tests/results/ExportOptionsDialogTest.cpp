#include "results/ExportOptionsDialog.h"

#include "results/DialogHost.h"
#include "results/DialogUser.h"
#include "results/DxfExport.h"
#include "results/ExportTest.h"
#include "results/ShapefileExport.h"

#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace TVR {
namespace {

using namespace Sketra_lib;
using namespace Parameter;

QCheckBox* box(const QDialog& dialog, const QString& text) {
  for (QCheckBox* const found : dialog.findChildren<QCheckBox*>())
    if (found->text() == text)
      return found;
  return nullptr;
}

class ExportOptionsDialogTest : public ExportTest {
protected:
  ExportOptionsDialogTest() {
    host.path = path(".");
    page.addLine(Property::Drawdowns, 1, pointsInARow(3));
    page.addLine(Property::Temperature, 2, pointsInARow(4));
    options(true, true);
  }
  void options(bool isohypses, bool isotherms) {
    store.setValue(ExportIsohypsesAsShape, isohypses);
    store.setValue(ExportIsothermsAsShape, isotherms);
  }
  bool option(int id) const { return store.value(id).toBool(); }
  QStringList files() const { return QDir(path(".")).entryList(QDir::Files, QDir::Name); }

  /// What stands in one cell of the dialog's layout.
  static QWidget* widgetAt(const ExportOptionsDialog& dialog, int row, int column) {
    QLayoutItem* const item =
        qobject_cast<QGridLayout*>(dialog.layout())->itemAtPosition(row, column);
    return item ? item->widget() : nullptr;
  }

  DialogHost host;
};

// The row of options

TEST_F(ExportOptionsDialogTest, theOptionsStandBetweenTheFilesAndTheirName) {
  const ExportOptionsDialog dialog("Title", "Any (*)", path("."), true, true);
  const auto* const label = qobject_cast<QLabel*>(widgetAt(dialog, 2, 0));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), "Options:");
  EXPECT_TRUE(label->alignment() & Qt::AlignTop);
  EXPECT_EQ(label->contentsMargins().top(), 9);
  const auto* const frame = qobject_cast<QFrame*>(widgetAt(dialog, 2, 1));
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->frameShape(), QFrame::NoFrame);
  ASSERT_NE(qobject_cast<QVBoxLayout*>(frame->layout()), nullptr);
  EXPECT_EQ(frame->layout()->itemAt(0)->widget(), box(dialog, "Save isohypses"));
  EXPECT_EQ(frame->layout()->itemAt(1)->widget(), box(dialog, "Save isothermes"));
}

TEST_F(ExportOptionsDialogTest, theRowsBelowHaveMovedByOne) {
  const ExportOptionsDialog dialog("Title", "Any (*)", path("."), true, true);
  EXPECT_EQ(widgetAt(dialog, 0, 0)->objectName(), "lookInLabel");
  EXPECT_EQ(widgetAt(dialog, 1, 0)->objectName(), "splitter");
  EXPECT_EQ(widgetAt(dialog, 3, 0)->objectName(), "fileNameLabel");
  EXPECT_EQ(widgetAt(dialog, 3, 1)->objectName(), "fileNameEdit");
  EXPECT_EQ(widgetAt(dialog, 4, 0)->objectName(), "fileTypeLabel");
  EXPECT_EQ(widgetAt(dialog, 4, 1)->objectName(), "fileTypeCombo");
}

TEST_F(ExportOptionsDialogTest, theButtonsStillSpanTwoRows) {
  const ExportOptionsDialog dialog("Title", "Any (*)", path("."), true, true);
  auto* const grid = qobject_cast<QGridLayout*>(dialog.layout());
  int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
  grid->getItemPosition(grid->indexOf(dialog.findChild<QDialogButtonBox*>("buttonBox")), &row,
                        &column, &rowSpan, &columnSpan);
  EXPECT_EQ(row, 3);
  EXPECT_EQ(column, grid->columnCount() - 1);
  EXPECT_EQ(rowSpan, 2);
  EXPECT_EQ(columnSpan, 1);
}

TEST_F(ExportOptionsDialogTest, isADialogOfItsOwnThatSaves) {
  const ExportOptionsDialog dialog("Title", "Any (*.any)", path("."), true, true);
  EXPECT_EQ(dialog.windowTitle(), "Title");
  EXPECT_EQ(dialog.nameFilters(), QStringList{"Any (*.any)"});
  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
  EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
  EXPECT_EQ(dialog.directory(), QDir(path(".")));
}

TEST_F(ExportOptionsDialogTest, theBoxesBeginAsTheyAreTold) {
  for (const bool isohypses : {true, false})
    for (const bool isotherms : {true, false}) {
      const ExportOptionsDialog dialog("Title", "Any (*)", path("."), isohypses, isotherms);
      EXPECT_EQ(box(dialog, "Save isohypses")->isChecked(), isohypses);
      EXPECT_EQ(box(dialog, "Save isothermes")->isChecked(), isotherms);
    }
}

TEST_F(ExportOptionsDialogTest, theBoxesCanBeSeenAndClicked) {
  ExportOptionsDialog dialog("Title", "Any (*)", path("."), true, true);
  dialog.show();
  for (const char* text : {"Save isohypses", "Save isothermes"}) {
    QCheckBox* const clicked = box(dialog, text);
    EXPECT_TRUE(clicked->isVisible());
    EXPECT_TRUE(dialog.rect().contains(QRect(clicked->mapTo(&dialog, QPoint()), clicked->size())));
  }
  QTest::keyClick(box(dialog, "Save isothermes"), Qt::Key_Space);
  EXPECT_TRUE(dialog.savesIsohypses());
  EXPECT_FALSE(dialog.savesIsotherms());
}

// The way through the dialog

TEST_F(ExportOptionsDialogTest, withoutResultsThereIsNoDialog) {
  const DialogUser user(giveUp);
  items.results = 0;
  ShapefileExport(access()).ask(&host);
  DxfExport(access()).ask(&host);
  items.results = page.grid;
  items.mapView = 0;
  ShapefileExport(access()).ask(&host);
  items.mapView = page.map;
  ShapefileExport(accessWithoutWindow()).ask(&host);
  page.type = "WelcomeWindow";
  DxfExport(access()).ask(&host);
  QCoreApplication::processEvents();
  EXPECT_FALSE(user.sawDialog());
  EXPECT_TRUE(host.told.isEmpty());
}

TEST_F(ExportOptionsDialogTest, theShapefileIsAskedFor) {
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save shapefile");
    EXPECT_EQ(dialog.nameFilters(), QStringList{"Shapefile (*.shp *.shx *.dbf)"});
    EXPECT_EQ(dialog.directory(), QDir(path(".")));
    choose(dialog, path("lines.shp"));
  });
  ShapefileExport(access()).ask(&host);
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(files(), (QStringList{"lines.cpg", "lines.dbf", "lines.shp", "lines.shx"}));
}

TEST_F(ExportOptionsDialogTest, theDxfFileIsAskedFor) {
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save as dxf file");
    EXPECT_EQ(dialog.nameFilters(), QStringList{"AutoCAD dxf-file (*.dxf)"});
    choose(dialog, path("lines.dxf"));
  });
  DxfExport(access()).ask(&host);
  EXPECT_TRUE(user.sawDialog());
  EXPECT_TRUE(contentOf(path("lines.dxf")).contains("LINE\n90\n3\n"));
  EXPECT_TRUE(contentOf(path("lines.dxf")).contains("AcDbPolyline\n90\n4\n"));
}

TEST_F(ExportOptionsDialogTest, theBoxesComeFromTheProjectAndGoBackToIt) {
  options(false, true);
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_FALSE(box(dialog, "Save isohypses")->isChecked());
    EXPECT_TRUE(box(dialog, "Save isothermes")->isChecked());
    QTest::keyClick(box(dialog, "Save isohypses"), Qt::Key_Space);
    QTest::keyClick(box(dialog, "Save isothermes"), Qt::Key_Space);
    choose(dialog, path("lines.dxf"));
  });
  DxfExport(access()).ask(&host);
  EXPECT_TRUE(option(ExportIsohypsesAsShape));
  EXPECT_FALSE(option(ExportIsothermsAsShape));
  EXPECT_TRUE(contentOf(path("lines.dxf")).contains("LINE\n"));
  EXPECT_FALSE(contentOf(path("lines.dxf")).contains("AcDbPolyline\n"));
}

TEST_F(ExportOptionsDialogTest, givingUpChangesNothing) {
  const DialogUser user([](QFileDialog& dialog) {
    QTest::keyClick(box(dialog, "Save isohypses"), Qt::Key_Space);
    giveUp(dialog);
  });
  ShapefileExport(access()).ask(&host);
  EXPECT_TRUE(user.sawDialog());
  EXPECT_TRUE(option(ExportIsohypsesAsShape));
  EXPECT_TRUE(host.told.isEmpty());
  EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportOptionsDialogTest, theHostIsToldTheDirectory) {
  ASSERT_TRUE(QDir(path(".")).mkdir("below"));
  const DialogUser user([this](QFileDialog& dialog) { choose(dialog, path("below/lines.dxf")); });
  DxfExport(access()).ask(&host);
  EXPECT_EQ(host.told, QStringList{path("below")});
}

TEST_F(ExportOptionsDialogTest, aHostThatKeepsNoDirectoryIsToldNone) {
  host.keeps = false;
  const DialogUser user([this](QFileDialog& dialog) { choose(dialog, path("lines.dxf")); });
  DxfExport(access()).ask(&host);
  EXPECT_TRUE(QFile::exists(path("lines.dxf")));
  EXPECT_TRUE(host.told.isEmpty());
}

TEST_F(ExportOptionsDialogTest, aProjectThatCanNotBeWrittenThereLeavesTheChoice) {
  const DialogUser user([](QFileDialog& dialog) {
    QTest::keyClick(box(dialog, "Save isohypses"), Qt::Key_Space);
    choose(dialog, "/proc/lines.dxf");
  });
  DxfExport(access()).ask(&host);
  EXPECT_FALSE(option(ExportIsohypsesAsShape));
}

} // namespace
} // namespace TVR
