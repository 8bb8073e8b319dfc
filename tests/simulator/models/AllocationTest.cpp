#include "simulator/SiteFixtures.h"
#include "simulator/solvers/FVCvodeSolver.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace {

std::atomic<long> allocations{0};

} // namespace

// What everything is allocated with in the end: operator new, the integrators, linear algebra.
extern "C" {
#ifdef __SANITIZE_ADDRESS__
void __sanitizer_malloc_hook(const volatile void*, std::size_t) {
  ++allocations;
}
#else
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);

void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
  ++allocations;
  return __libc_realloc(memory, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
  ++allocations;
  return __libc_memalign(alignment, size);
}
int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  ++allocations;
  *memory = __libc_memalign(alignment, size);
  return *memory ? 0 : ENOMEM;
}
#endif
}

namespace {

constexpr double year = 365.25 * 86400.0; // [s]

struct Later {
  long steps;
  long allocations;
};

/// A site, and what the heat of its aquifer is solved with.
struct Case {
  std::string name;
  double exchangeFactor;
  bool isFine; // cells of one metre, so many that they are solved by iteration

  friend void PrintTo(const Case& setup, std::ostream* out) { *out << setup.name; }
};

FVMesh meshOf(const Case& setup) {
  return setup.isFine ? FVMesh(SiteFixtures::lineOf(std::vector<double>(44, 1.0)),
                               SiteFixtures::lineOf(std::vector<double>(42, 1.0)), 10.0)
                      : SiteFixtures::gradedMesh();
}

SiteFixtures::SiteOptions optionsOf(const Case& setup) {
  SiteFixtures::SiteOptions options;
  options.exchangeFactor = setup.exchangeFactor;
  options.dispersivity = 2.0;
  return options;
}

/// What the integrators of a site do in its second year.
class AllocationTest : public testing::TestWithParam<Case> {
protected:
  AllocationTest() {
    site->solveGroundwater(year, 1e-6, 1e-6);
    site->solveHeat(year, true, 1e-6, 1e-6);
  }

  template <class Advance>
  Later later(const FVCvodeSolver& solver, Advance advance) {
    const long steps = solver.steps();
    const long before = allocations;
    advance();
    const long after = allocations;
    return {solver.steps() - steps, after - before};
  }

  std::unique_ptr<FVGeothermSite> site = SiteFixtures::makeSite(
      meshOf(GetParam()), {Well(0, 9.0, 5.0, -0.001), Well(1, 20.0, 8.0, 0.001, 5.0)},
      optionsOf(GetParam()));
};

} // namespace

TEST_P(AllocationTest, stepsOfTheGroundwaterAllocateNothing) {
  for (Well* well : site->wells())
    well->setRate(1, 0.5 * well->rate(0));
  site->setDemandStep(1);
  const Later found =
      later(*site->groundwaterSolver(), [this] { site->solveGroundwater(2 * year, 1e-6, 1e-6); });
  EXPECT_GT(found.steps, 50);
  EXPECT_EQ(found.allocations, 0);
}

/// The histories of the wells, of times and temperatures, double their room when it is used up.
TEST_P(AllocationTest, stepsOfTheHeatAllocateNothingButRoomForTheHistories) {
  for (Well* well : site->wells())
    well->setTemperatureChange(1, 3.0);
  site->setDemandStep(1);
  const Later withFlows =
      later(*site->heatSolver(), [this] { site->solveHeat(2 * year, false, 1e-6, 1e-6); });
  EXPECT_GT(withFlows.steps, 50);
  EXPECT_LE(withFlows.allocations, 2 * 2);
}

INSTANTIATE_TEST_SUITE_P(Sites, AllocationTest,
                         testing::Values(Case{"withChains", 1.0, false},
                                         Case{"withoutChains", 0.0, false},
                                         Case{"fineWithChains", 1.0, true},
                                         Case{"fineWithoutChains", 0.0, true}),
                         [](const auto& instance) { return instance.param.name; });

TEST(AllocationCounter, seesAllocationsOfEveryKind) {
  const auto countOf = [](auto allocate) {
    const long before = allocations;
    void* volatile memory = allocate();
    const long count = allocations - before;
    std::free(memory);
    return count;
  };
  EXPECT_EQ(countOf([] { return std::malloc(100); }), 1);
  EXPECT_EQ(countOf([] { return std::calloc(10, 10); }), 1);
  EXPECT_EQ(countOf([] { return std::aligned_alloc(64, 128); }), 1);
  const long before = allocations;
  const std::vector<double> values(100);
  EXPECT_EQ(allocations - before, 1);
  EXPECT_EQ(values.size(), 100u);
}
