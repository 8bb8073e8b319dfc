#include "study/page/BandsShapefile.h"

#include "results/ShapefileHandles.h"
#include "study/page/PlumeBands.h"
#include "study/page/PlumeMaps.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

using namespace TVR;
using namespace TVR::Study;

namespace {

/// Read back with the library's own reader.
class BandsShapefile : public testing::Test, protected TestDirectory {
protected:
  /// The areas of the rings of a record, above 0 if they go clockwise.
  std::vector<double> ringAreas(int record) const {
    const ShapeFile shapes(SHPOpen(path("bands").toLocal8Bit(), "rb"), &SHPClose);
    const ShapeRecord shape(SHPReadObject(shapes.get(), record), &SHPDestroyObject);
    std::vector<double> areas;
    for (int part = 0; part < shape->nParts; ++part) {
      const int end = part + 1 < shape->nParts ? shape->panPartStart[part + 1] : shape->nVertices;
      QPolygonF ring;
      for (int i = shape->panPartStart[part]; i < end; ++i)
        ring.append({shape->padfX[i], shape->padfY[i]});
      areas.push_back(-signedArea(ring));
    }
    return areas;
  }

  /// What another program prints of the file.
  QString readByOther(const QStringList& how) const {
    QProcess reader;
    reader.setProcessChannelMode(QProcess::MergedChannels);
    reader.start("ogrinfo", QStringList{"-ro", path("bands.shp")} + how);
    EXPECT_TRUE(reader.waitForFinished());
    return reader.readAll();
  }
};

TEST_F(BandsShapefile, eachBandIsAPolygonWithLevelTimeAndProbability) {
  ProbabilityMap map = emptyMap();
  fill(map, 6, 10, 3, 6, 1);
  ASSERT_TRUE(writeBandsShapefile(path("bands.shp"), plumeBands({map})));
  const ShapeFile shapes(SHPOpen(path("bands").toLocal8Bit(), "rb"), &SHPClose);
  int count = 0;
  int type = 0;
  SHPGetInfo(shapes.get(), &count, &type, nullptr, nullptr);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(type, SHPT_POLYGON);
  const DecimalPoint decimalPoint; // or the library would read numbers up to it in some locales
  const ShapeTable table(DBFOpen(path("bands").toLocal8Bit(), "rb"), &DBFClose);
  const auto column = [&](const char* name) { return DBFGetFieldIndex(table.get(), name); };
  EXPECT_EQ(DBFReadDoubleAttribute(table.get(), 1, column("level_K")), -1);
  EXPECT_EQ(DBFReadDoubleAttribute(table.get(), 1, column("time_a")), 30);
  EXPECT_EQ(DBFReadDoubleAttribute(table.get(), 1, column("probabilit")), 0.5);
  EXPECT_STREQ(DBFReadStringAttribute(table.get(), 1, column("band")), "P50");
}

TEST_F(BandsShapefile, aHoleGoesTheOtherWayRound) {
  ProbabilityMap map = emptyMap();
  fill(map, 4, 14, 1, 9, 1);
  fill(map, 7, 10, 4, 6, 0);
  ASSERT_TRUE(writeBandsShapefile(path("bands"), plumeBands({map})));
  const std::vector<double> areas = ringAreas(1);
  ASSERT_EQ(areas.size(), 2u);
  EXPECT_GT(std::max(areas[0], areas[1]), 0);
  EXPECT_NEAR(areas[0] + areas[1], (80 - 6) * 25, 5); // the corners of both are cut alike
}

TEST_F(BandsShapefile, anotherReaderTakesIt) {
  ProbabilityMap map = emptyMap();
  fill(map, 6, 10, 3, 6, 1);
  ASSERT_TRUE(writeBandsShapefile(path("bands.shp"), plumeBands({map})));
  const QString read = readByOther({"-al"});
  EXPECT_TRUE(read.contains("Geometry: Polygon")) << read.toStdString();
  EXPECT_TRUE(read.contains("Feature Count: 3"));
  EXPECT_TRUE(read.contains("level_K (Real) = -1.0000"));
  EXPECT_TRUE(read.contains("time_a (Real) = 30.0000"));
  EXPECT_TRUE(read.contains("probabilit (Real) = 0.9000"));
  EXPECT_TRUE(read.contains("Extent: (1028.000000, 2013.000000)"));
}

TEST_F(BandsShapefile, anotherReaderSeesHolesAndIslands) {
  ProbabilityMap map = emptyMap();
  fill(map, 1, 11, 1, 9, 1);
  fill(map, 3, 8, 3, 7, 0);
  fill(map, 5, 6, 4, 6, 1); // in the hole
  fill(map, 14, 18, 3, 7, 1);
  const std::vector<PlumeBand> bands = plumeBands({map});
  ASSERT_TRUE(writeBandsShapefile(path("bands"), {bands[1]}));
  const QString read = readByOther(
      {"-q", "-dialect", "sqlite", "-sql",
       "SELECT ST_NumGeometries(geometry) AS parts, ST_Area(geometry) AS area FROM bands"});
  EXPECT_TRUE(read.contains("parts (Integer) = 3")) << read.toStdString();
  double net = 0;
  for (const double area : ringAreas(0))
    net += area;
  EXPECT_NEAR(net, (80 - 20 + 2 + 16) * 25, 0.1 * 80 * 25);
  const QString area = read.section("area (Real) = ", 1).section('\n', 0, 0);
  EXPECT_NEAR(area.toDouble(), net, 0.01) << read.toStdString();
}

TEST_F(BandsShapefile, anotherReaderFindsThePolygonsOfARuggedMapSound) {
  ProbabilityMap map = emptyMap();
  std::uint32_t state = 1;
  for (double& value : map.values) { // tenths: many are a probability of a band
    state = state * 1664525 + 1013904223;
    value = static_cast<double>(state >> 24U) * 11 / 256;
    value = std::floor(value) / 10;
  }
  ASSERT_TRUE(writeBandsShapefile(path("bands"), plumeBands({map})));
  const QString read = readByOther(
      {"-q", "-dialect", "sqlite", "-sql", "SELECT ST_IsValid(geometry) AS sound FROM bands"});
  EXPECT_EQ(read.count("sound (Integer) = 1"), 3) << read.toStdString();
}

TEST_F(BandsShapefile, withoutBandsItIsThereAndEmpty) {
  ASSERT_TRUE(writeBandsShapefile(path("bands"), {}));
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files),
            (QStringList{"bands.cpg", "bands.dbf", "bands.shp", "bands.shx"}));
}

TEST_F(BandsShapefile, aFolderThatIsNotThereIsToldOf) {
  EXPECT_FALSE(writeBandsShapefile(path("nowhere/bands"), {}));
}

} // namespace
