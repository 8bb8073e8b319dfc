#include "project/Units.h"
#include "study/page/PlumeBands.h"
#include "study/reference/InjectionFront.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"
#include "support/TestDirectory.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <utility>

// Probability map and plume bands of a study whose runs have a closed solution: a well injects
// colder water into uniform flow, and conductivity, gradient, direction, thickness and porosity are
// uncertain. Where half of the temperature change has arrived the numerical dispersion does least.

using namespace TVR;
using namespace TVR::Study;

namespace {

constexpr double rate = 0.008; // [m3/s]
constexpr double years = 4;
constexpr double level = -3; // half of the change of the injected water [K]
constexpr std::pair<const char*, double> closedLines[] = {{"P10", 0.1}, {"P50", 0.5}, {"P90", 0.9}};

// The model is as large as twelve years want it, which keeps its edges off the plume of four.
constexpr char site[] = R"([main]
simulation_time=12
max_number_of_fv_elements=10000
[thermic]
heat_conductivity_aquifer=0.05
exchange_caprock=false
exchange_bedrock=false
[installation]
well_model\size=1
well_model\1\0=Return
well_model\1\3=0.008
well_model\1\4=-6
)";

// Other levels and another time are there to be mistaken for the one that is looked at.
constexpr char study[] = R"([study]
base=site.tbat
runs=80
runs_per_part=20
[vary]
kf=log-uniform(0.0007, 0.0014)
groundwater_gradient=triangular(0.15, 0.2, 0.25)
groundwater_flow_direction=uniform(70, 110)
aquifer_h=uniform(8, 12)
aquifer_porosity=uniform(0.2, 0.3)
[answers]
quantities=plume_length
times=4, 12
levels=-5, -3, -1
raster=-300, -500, 1300, 1000
raster_cell=20
)";

InjectionFront frontOf(const std::vector<double>& values) {
  constexpr double rock = 2200 * 800.0; // defaults of a batch file [J/(m3 K)]
  constexpr double water = 1000 * 4186.0;
  return {{values[0], values[1], values[2], values[3], values[4], rock, water},
          rate,
          years * secondsPerYear};
}

/// Values of the keys, in the order of the study, from this test's own random numbers.
std::vector<double> drawn(std::mt19937_64& random) {
  std::uniform_real_distribution<double> share;
  const double conductivity = 0.0007 * std::pow(2, share(random));
  const double gradient = 0.15 + 0.05 * (share(random) + share(random));
  const double direction = 70 + 40 * share(random);
  const double thickness = 8 + 4 * share(random);
  return {conductivity, gradient, direction, thickness, 0.2 + 0.1 * share(random)};
}

/// How far the front of a run may lie off the closed one: the mesh smears it over some of its
/// cells. From one cell to the next they grow by a metre, so that at a distance r from the well
/// they are as wide as the root of 2 r.
double slack(const QPointF& place) {
  constexpr double cells = 1.25;
  return cells * std::sqrt(2 * std::hypot(place.x(), place.y()));
}

/// The share of the fronts that have passed a place, and of those that would have passed it, or
/// not, if they lay elsewhere by the slack.
struct ClosedShare {
  double least = 0;
  double exact = 0;
  double most = 0;
};

ClosedShare closedShare(const std::vector<InjectionFront>& fronts, const QPointF& place) {
  constexpr int directions = 12;
  ClosedShare share;
  const double radius = slack(place);
  const double one = 1.0 / static_cast<double>(fronts.size());
  for (const InjectionFront& front : fronts) {
    int passed = 0;
    for (int i = 0; i < directions; ++i) {
      const double angle = 2 * std::numbers::pi * i / directions;
      passed += front.hasPassed(place + radius * QPointF(std::cos(angle), std::sin(angle))) ? 1 : 0;
    }
    const bool isIn = front.hasPassed(place);
    share.least += isIn && passed == directions ? one : 0;
    share.exact += isIn ? one : 0;
    share.most += isIn || passed > 0 ? one : 0;
  }
  return share;
}

double distance(const QPointF& point, const QPointF& from, const QPointF& to) {
  const QPointF way = to - from;
  const double length = QPointF::dotProduct(way, way);
  const double share =
      length > 0 ? std::clamp(QPointF::dotProduct(point - from, way) / length, 0.0, 1.0) : 0;
  const QPointF gap = from + share * way - point;
  return std::hypot(gap.x(), gap.y());
}

/// The largest distance of the corners of a line to another line, as a share of the slack there.
double largestDistance(const std::vector<QPolygonF>& corners, const std::vector<QPolygonF>& line) {
  double largest = 0;
  for (const QPolygonF& ring : corners)
    for (const QPointF& corner : ring) {
      double least = std::numeric_limits<double>::infinity();
      for (const QPolygonF& other : line)
        for (int i = 1; i < other.size(); ++i)
          least = std::min(least, distance(corner, other[i - 1], other[i]));
      largest = std::max(largest, least / slack(corner));
    }
  return largest;
}

/// Written beside the result of the test by --gtest_output=xml:FILE.
void note(const std::string& what, double number) {
  testing::Test::RecordProperty(what, QString::number(number, 'g', 3).toStdString());
}

class ClosedBandsTest : public testing::Test, protected TestDirectory {
protected:
  void SetUp() override {
    write("site.tbat", site);
    write("a.tstudy", study);
    QProcess process;
    process.start(TEVRANE_STUDY_PROGRAM, {"run", path("a.tstudy"), "--workers", "2", "--quiet"});
    ASSERT_TRUE(process.waitForFinished(240'000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    Findings findings;
    setup_ = setUpStudy(path("a.tstudy"), findings);
    const Results results(StudyFolder(path("a.study")), setup_.plan, setup_.layout);
    ASSERT_EQ(results.size(), 80U);
    results.eachRecord([this](const Record& record) { fronts_.push_back(frontOf(record.values)); });
    maps_ = probabilityMaps(setup_.layout, results.counts(), results.size());
    const auto found = std::find_if(maps_.begin(), maps_.end(), [](const ProbabilityMap& map) {
      return map.level == level && map.time == years;
    });
    ASSERT_NE(found, maps_.end());
    map_ = *found;
  }

  void write(const char* name, const char* content) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  /// Calls `visit` with the closed share and the probability of each cell, whose centre follows
  /// from what the study says of its raster.
  template <class Visit>
  void eachCell(const std::vector<InjectionFront>& fronts, Visit visit) const {
    for (int row = 0; row < map_.raster.rows; ++row)
      for (int column = 0; column < map_.raster.columns; ++column)
        visit(closedShare(fronts, QPointF(-290 + 20 * column, -490 + 20 * row)),
              map_.values[static_cast<std::size_t>(row * map_.raster.columns + column)]);
  }

  void compareCells() const;
  void compareBands() const;
  void compareOwnDraws() const;

  StudySetup setup_;
  std::vector<InjectionFront> fronts_; ///< of the runs of the study
  std::vector<ProbabilityMap> maps_;
  ProbabilityMap map_; ///< of the level and the time that are looked at
};

/// The same sample: what remains is the mesh.
void ClosedBandsTest::compareCells() const {
  int uncertain = 0;
  int outside = 0;
  double differences = 0;
  double area = 0; // in cells, as is the next one
  double closedArea = 0;
  eachCell(fronts_, [&](const ClosedShare& share, double probability) {
    constexpr double rounding = 1e-9;
    outside += probability < share.least - rounding || probability > share.most + rounding ? 1 : 0;
    uncertain += share.most > 0 && share.least < 1 ? 1 : 0;
    differences += std::abs(probability - share.exact);
    area += probability;
    closedArea += share.exact;
  });
  note("uncertain_cells", uncertain);
  note("mean_difference", differences / uncertain);
  note("mean_area_share", area / closedArea);
  EXPECT_GT(uncertain, 1000);
  EXPECT_EQ(outside, 0);
  EXPECT_LT(differences / uncertain, 0.05);
  EXPECT_NEAR(area / closedArea, 1, 0.08);
}

void ClosedBandsTest::compareBands() const {
  ProbabilityMap closed = map_;
  closed.values.clear();
  eachCell(fronts_,
           [&](const ClosedShare& share, double) { closed.values.push_back(share.exact); });
  const std::vector<PlumeBand> bands = plumeBands({map_});
  ASSERT_EQ(bands.size(), std::size(closedLines));
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const auto& [name, probability] = closedLines[i];
    const std::vector<QPolygonF> line = ringsOf(closed, probability);
    ASSERT_EQ(bands[i].name, name);
    const double distance =
        std::max(largestDistance(bands[i].rings, line), largestDistance(line, bands[i].rings));
    note(std::string(name) + "_distance", distance);
    EXPECT_LT(distance, 1) << name;
  }
}

/// Another sample: besides the mesh, two standard deviations of the counts.
void ClosedBandsTest::compareOwnDraws() const {
  std::mt19937_64 random(1);
  std::vector<InjectionFront> fronts;
  for (int i = 0; i < 1000; ++i)
    fronts.push_back(frontOf(drawn(random)));
  const auto runs = static_cast<double>(fronts_.size());
  const auto deviation = [runs](double share) {
    return std::sqrt(std::max(share * (1 - share), 1 / runs) / runs);
  };
  double deviations = 0;
  eachCell(fronts, [&](const ClosedShare& share, double probability) {
    deviations = std::max({deviations, (share.least - probability) / deviation(share.least),
                           (probability - share.most) / deviation(share.most)});
  });
  note("own_draws_deviations", deviations);
  EXPECT_LT(deviations, 2);
}

TEST(InjectionFrontTest, theClosedFrontHoldsAllWaterThatWasInjected) {
  const InjectionFront front = frontOf({0.001, 0.2, 75, 10, 0.25});
  constexpr double step = 4;
  double area = 0;
  for (double y = -600 + step / 2; y < 600; y += step)
    for (double x = -300 + step / 2; x < 1000; x += step)
      area += front.hasPassed({x, y}) ? step * step : 0;
  const double water = 1000 * 4186.0;
  const double aquifer = 0.75 * 2200 * 800 + 0.25 * water;
  EXPECT_NEAR(area, rate * years * secondsPerYear * water / aquifer / 10, 0.002 * area);
}

TEST_F(ClosedBandsTest, mapAndBandsAreThoseOfTheClosedSolution) {
  compareCells();
  compareBands();
  compareOwnDraws();
}

} // namespace
