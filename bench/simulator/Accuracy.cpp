#include "Accuracy.h"

#include "Doublet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

struct Difference {
  double largest = 0.0;        ///< [K]
  double rootMeanSquare = 0.0; ///< at the output time at which it is largest [K]
};

Difference differenceToFineRun(const Doublet& doublet) {
  Doublet fine = doublet;
  fine.waterTolerance = fine.heatTolerance = 1e-10;
  const auto site = doublet.site();
  const auto fineSite = fine.site();
  const std::size_t cells = site->mesh().elements.size();
  Difference found;
  for (int step = 0; step < doublet.outputTimes(); ++step) {
    doublet.advance(*site, step);
    fine.advance(*fineSite, step);
    double squares = 0.0;
    for (std::size_t i = 0; i < cells; ++i) {
      const double difference = std::abs(site->temperature(i) - fineSite->temperature(i));
      found.largest = std::max(found.largest, difference);
      squares += difference * difference;
    }
    found.rootMeanSquare =
        std::max(found.rootMeanSquare, std::sqrt(squares / static_cast<double>(cells)));
  }
  return found;
}

} // namespace

void printAccuracy() {
  struct Case {
    const char* name;
    Doublet doublet;
  };
  const Case cases[]{
      {"30 years", {.cells = 2500}},
      {"30 years, exchange", {.cells = 2500, .exchange = 2.0}},
      {"30 years, exchange", {.cells = 10000, .exchange = 2.0}},
      {"2 years of 12 periods", {.cells = 2500, .years = 2, .periods = 12}},
      {"2 years of 12 periods, exchange",
       {.cells = 2500, .exchange = 2.0, .years = 2, .periods = 12}},
      {"2 years of 12 periods, exchange, closed loop",
       {.cells = 2500, .exchange = 2.0, .years = 2, .periods = 12, .closedLoop = true}},
  };
  std::printf("| Run | cells | largest difference [K] | root mean square [K] |\n"
              "|-----|------:|-----------------------:|---------------------:|\n");
  for (const auto& [name, doublet] : cases) {
    const Difference found = differenceToFineRun(doublet);
    std::printf("| %s | %d | %.1e | %.1e |\n", name, doublet.cells, found.largest,
                found.rootMeanSquare);
    std::fflush(stdout);
  }
}
