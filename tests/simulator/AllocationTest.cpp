#include "SiteFixtures.h"
#include "simulator/FVCvodeSolver.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations{0};

void* counted(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size))
    return memory;
  throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) {
  return counted(size);
}
void* operator new[](std::size_t size) {
  return counted(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

constexpr double year = 365.25 * 86400.0; // [s]

struct Later {
  long steps;
  long allocations;
};

/// What the integrators of a site do in its second year.
class AllocationTest : public testing::Test {
protected:
  AllocationTest() {
    site->solveGroundwater(year, 1e-6, 1e-6);
    site->solveHeat(year, true, 1e-6, 1e-6);
  }

  static SiteFixtures::SiteOptions options() {
    SiteFixtures::SiteOptions options;
    options.exchangeFactor = 1.0;
    options.dispersivity = 2.0;
    return options;
  }

  template <class Advance>
  Later later(const FVCvodeSolver& solver, Advance advance) {
    const long steps = solver.steps();
    const long before = allocations;
    advance();
    return {solver.steps() - steps, allocations - before};
  }

  std::unique_ptr<FVGeothermSite> site = SiteFixtures::makeSite(
      SiteFixtures::gradedMesh(), {Well(0, 9.0, 5.0, -0.001), Well(1, 20.0, 8.0, 0.001, 5.0)},
      options());
};

} // namespace

TEST_F(AllocationTest, stepsOfTheGroundwaterAllocateNothing) {
  for (Well* well : site->wells())
    well->setRate(1, 0.5 * well->rate(0));
  site->setDemandStep(1);
  const Later found =
      later(*site->groundwaterSolver(), [this] { site->solveGroundwater(2 * year, 1e-6, 1e-6); });
  EXPECT_GT(found.steps, 50);
  EXPECT_EQ(found.allocations, 0);
}

/// The histories of the wells, of times and temperatures, double their room when it is used up.
TEST_F(AllocationTest, stepsOfTheHeatAllocateNothingButRoomForTheHistories) {
  for (Well* well : site->wells())
    well->setTemperatureChange(1, 3.0);
  site->setDemandStep(1);
  const Later withFlows =
      later(*site->heatSolver(), [this] { site->solveHeat(2 * year, false, 1e-6, 1e-6); });
  EXPECT_GT(withFlows.steps, 50);
  EXPECT_LE(withFlows.allocations, 2 * 2);
}

TEST_F(AllocationTest, theCounterSeesAnAllocation) {
  const long before = allocations;
  delete new int(3);
  const std::vector<double> values(100);
  EXPECT_GT(allocations, before);
  EXPECT_EQ(values.size(), 100u);
}
