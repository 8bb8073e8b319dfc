#include "study/work/StudyRaster.h"

#include "quantities/PlumeBox.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/StudySetup.h"
#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QFile>
#include <QRectF>

#include <gtest/gtest.h>

#include <cmath>

using namespace TVR;
using namespace TVR::Study;

namespace {

class StudyRasterTest : public testing::Test, protected TestDirectory {
protected:
  void write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  /// The raster of a study of a base that has this in [answers].
  Raster raster(const QByteArray& base, const QByteArray& answers) const {
    write("base.tbat", base);
    write("a.tstudy", "[study]\nbase=base.tbat\nruns=3\n[vary]\nkf=uniform(0.001, 0.002)\n"
                      "[answers]\n" +
                          answers);
    Findings findings;
    const StudySetup setup = setUpStudy(path("a.tstudy"), findings);
    EXPECT_TRUE(findings.errors.isEmpty()) << findings.errors.join('\n').toStdString();
    return setup.layout.raster;
  }

  /// The box around the plume of the small doublet.
  QRectF plume(double level) const {
    write("base.tbat", smallDoublet);
    EXPECT_TRUE(RunInput(path("base.tbat"), {}).read({}).isEmpty());
    const Data::Manager& store = *Data::Manager::instance();
    return Quantities::plumeBox(readSite(store),
                                outputTimes(outputTimeInput(store, usualCycleLength)), level);
  }
};

QRectF boxOf(const Raster& raster) {
  return {raster.left, raster.bottom, raster.columns * raster.cell, raster.rows * raster.cell};
}

const QRectF wells(0, 0, 40, 0);

TEST_F(StudyRasterTest, theBoxOfAPlumeHoldsTheWellsAndGrowsTowardsZero) {
  const QRectF strong = plume(-2);
  const QRectF weak = plume(0.5);
  EXPECT_LE(strong.left(), wells.left());
  EXPECT_GE(strong.right(), wells.right());
  EXPECT_GT(weak.width(), strong.width());
  EXPECT_GT(weak.height(), strong.height());
}

TEST_F(StudyRasterTest, aLevelThatTheBaseDoesNotReachCountsAsHalfOfItsGreatestChange) {
  EXPECT_EQ(plume(50), plume(60));
  EXPECT_GT(plume(50).height(), 0);
  EXPECT_LT(plume(50).height(), plume(0.5).height());
}

TEST_F(StudyRasterTest, withoutOneInTheStudyItLiesAroundThePlumeOfTheBase) {
  const QRectF box = boxOf(raster(smallDoublet, "levels=-2, -0.5\n"));
  const QRectF inner = plume(0.5);
  const double side = std::max(inner.width(), inner.height());
  EXPECT_TRUE(box.contains(inner.adjusted(-side / 2, -side / 2, side / 2, side / 2)));
  EXPECT_LT(std::max(box.width(), box.height()), 2.3 * side);
}

TEST_F(StudyRasterTest, itsNumbersAreRoundAndItsCellsAreMany) {
  const Raster usual = raster(smallDoublet, "levels=-0.5\n");
  EXPECT_EQ(std::remainder(usual.left, 5), 0);
  EXPECT_EQ(std::remainder(usual.bottom, 5), 0);
  EXPECT_EQ(std::max(usual.columns, usual.rows), cellsOfRaster);
}

TEST_F(StudyRasterTest, whatTheStudySaysIsTaken) {
  const Raster given = raster(smallDoublet, "raster=-100, -50, 400, 100\nraster_cell=2\n");
  EXPECT_EQ(given, (Raster{-100, -50, 2, 200, 50}));
}

TEST_F(StudyRasterTest, withoutAChangeOfTemperatureItLiesAroundTheModel) {
  QByteArray one = smallDoublet;
  one.replace("[installation]\n", "[installation]\nnumber_of_wells=1\n")
      .replace("size=2", "size=1")
      .replace("3=-0.001", "3=0.001\nwell_model\\1\\4=0");
  one.truncate(one.indexOf("well_model\\2"));
  const QRectF box = boxOf(raster(one, "levels=-1\n"));
  EXPECT_GT(box.width(), 100);
  EXPECT_TRUE(box.contains(QPointF(0, 0)));
}

} // namespace
