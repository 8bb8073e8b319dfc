#include "results/DxfExport.h"

#include "results/ExportTest.h"
#include "support/MessageLog.h"

#include <QDir>
#include <QTextCodec>

namespace TVR {
namespace {

using namespace Sketra_lib;

struct Entity {
  std::string name;
  int announced = 0;
  QPolygonF points;
};

/// Reads a file as its form is meant; false where it is not in that form.
bool readEntities(const QByteArray& content, std::vector<Entity>& entities) {
  QList<QByteArray> lines = content.split('\n');
  const auto take = [&lines] { return lines.isEmpty() ? QByteArray() : lines.takeFirst(); };
  const auto comes = [&take](std::initializer_list<const char*> expected) {
    return std::all_of(expected.begin(), expected.end(),
                       [&take](const char* line) { return take() == line; });
  };
  if (!comes({"0", "SECTION", "2", "ENTITIES", "0"}))
    return false;
  while (lines.value(0) != "0") {
    Entity entity{take().toStdString(), 0, {}};
    if (!comes({"90"}))
      return false;
    entity.announced = take().toInt();
    if (!comes({"70", "0", "43", "0"}))
      return false;
    while (lines.value(0) == "10") {
      take();
      const double x = take().toDouble();
      if (!comes({"20"}))
        return false;
      entity.points << QPointF(x, take().toDouble());
    }
    if (!comes({"ENDSEC", "0"}))
      return false;
    entities.push_back(entity);
  }
  return comes({"0", "ENDSEC", "0", "EOF", ""}) && lines.isEmpty();
}

class DxfExportTest : public ExportTest {
protected:
  DxfExportTest() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

  std::vector<Entity> written(bool isohypses = true, bool isotherms = true) {
    DxfExport(access()).write(path("lines.dxf"), isohypses, isotherms);
    std::vector<Entity> entities;
    EXPECT_TRUE(readEntities(contentOf(path("lines.dxf")), entities));
    return entities;
  }
};

TEST_F(DxfExportTest, withoutLinesTheFileHasNineLines) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 1, pointsInARow(3));
  DxfExport(access()).write(path("lines.dxf"), false, false);
  EXPECT_EQ(contentOf(path("lines.dxf")), "0\nSECTION\n2\nENTITIES\n0\n0\nENDSEC\n0\nEOF\n");
  EXPECT_TRUE(page.sets.empty()) << "no data set was selected";
}

TEST_F(DxfExportTest, drawdownsComeBeforeTemperatures) {
  page.addLine(Property::Temperature, 3, pointsInARow(3, 20));
  page.addLine(Property::Drawdowns, 1, pointsInARow(4));
  const auto entities = written();
  ASSERT_EQ(entities.size(), 2u);
  EXPECT_EQ(entities[0].name, "LINE");
  EXPECT_EQ(entities[0].announced, 4);
  EXPECT_EQ(entities[0].points, pointsInARow(4));
  EXPECT_EQ(entities[1].name, "AcDbPolyline");
  EXPECT_EQ(entities[1].points, pointsInARow(3, 20));
}

TEST_F(DxfExportTest, pointsBehindTheLastBreakAreLeftOut) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(12), {5, 9});
  const auto entities = written();
  ASSERT_EQ(entities.size(), 2u);
  EXPECT_EQ(entities[0].announced, 5);
  EXPECT_EQ(entities[0].points, pointsInARow(5));
  EXPECT_EQ(entities[1].announced, 4);
  EXPECT_EQ(entities[1].points, pointsInARow(4, 5));
}

TEST_F(DxfExportTest, eachKindOfLinesMayBeLeftOut) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 1, pointsInARow(5));
  ASSERT_EQ(written(true, false).size(), 1u);
  EXPECT_EQ(written(true, false)[0].announced, 3);
  ASSERT_EQ(written(false, true).size(), 1u);
  EXPECT_EQ(written(false, true)[0].announced, 5);
}

TEST_F(DxfExportTest, aBusyPageLeavesItsLinesOut) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  const LockedElsewhere busy(mutex);
  EXPECT_TRUE(written(true, false).empty());
}

TEST_F(DxfExportTest, withoutAResultGridTheFileHasNoEntities) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  items.results = -1;
  EXPECT_TRUE(written().empty());
}

TEST_F(DxfExportTest, fileNamesMayHaveUmlautsAndSpaces) {
  DxfExport(access()).write(path("Isolinien für Zürich.dxf"), true, true);
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"Isolinien für Zürich.dxf"});
}

TEST_F(DxfExportTest, anOlderFileIsReplaced) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(900));
  written();
  EXPECT_TRUE(written(false, true).empty());
}

TEST_F(DxfExportTest, aFileThatCanNotBeWrittenIsPassedOverInSilence) {
  const MessageLog log;
  DxfExport(access()).write(path("no such directory/lines.dxf"), true, true);
  DxfExport(access()).write("/proc/lines.dxf", true, true);
  DxfExport(access()).write(path("."), true, true);
  EXPECT_TRUE(log.lines().isEmpty());
  EXPECT_TRUE(QDir(path(".")).isEmpty());
}

} // namespace
} // namespace TVR
