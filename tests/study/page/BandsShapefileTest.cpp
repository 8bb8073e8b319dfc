#include "study/page/BandsShapefile.h"

#include "results/ShapefileHandles.h"
#include "study/page/PlumeBands.h"
#include "study/page/PlumeMaps.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

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
  QProcess reader;
  reader.start("ogrinfo", {"-ro", "-al", path("bands.shp")});
  ASSERT_TRUE(reader.waitForFinished());
  const QString read = reader.readAllStandardOutput();
  EXPECT_TRUE(read.contains("Geometry: Polygon")) << read.toStdString();
  EXPECT_TRUE(read.contains("Feature Count: 3"));
  EXPECT_TRUE(read.contains("level_K (Real) = -1.0000"));
  EXPECT_TRUE(read.contains("Extent: (1028.000000, 2013.000000)"));
}

TEST_F(BandsShapefile, withoutBandsItIsThereAndEmpty) {
  ASSERT_TRUE(writeBandsShapefile(path("bands"), {}));
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files).size(), 4);
}

TEST_F(BandsShapefile, aFolderThatIsNotThereIsToldOf) {
  EXPECT_FALSE(writeBandsShapefile(path("nowhere/bands"), {}));
}

} // namespace
