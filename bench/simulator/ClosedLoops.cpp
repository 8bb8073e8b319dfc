#include "ClosedLoops.h"

#include "support/WellField.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

double largestDifference(const FVGeothermSite& one, const FVGeothermSite& other) {
  double largest = 0.0;
  for (std::size_t i = 0; i < one.mesh().elements.size(); ++i)
    largest = std::max(largest, std::abs(one.temperature(i) - other.temperature(i)));
  return largest;
}

/// Each distance with each other property, alone and with what it makes harder.
std::vector<WellField> fields() {
  std::vector<WellField> all;
  for (const double distance : {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 65.0}) {
    const WellField doublet{.distance = distance};
    for (const int rows : {1, 2})
      for (const int periods : {1, 12}) {
        WellField field = doublet;
        field.rows = rows;
        field.periods = periods;
        field.years = periods == 1 ? 10 : 2;
        all.push_back(field);
        field.thickness = 1.0;
        all.push_back(field);
        field.thickness = 50.0;
        field.rate = 0.02;
        all.push_back(field);
      }
    WellField exchange = doublet;
    exchange.rows = 2;
    exchange.exchange = 2.0;
    all.push_back(exchange);
  }
  for (const double distance : {0.5, 1.0, 10.0, 65.0})
    for (const int wells : {4, 20, 40})
      for (const int rows : {1, 4})
        for (const int periods : {1, 12})
          all.push_back({.distance = distance,
                         .wells = wells,
                         .rows = rows,
                         .periods = periods,
                         .years = periods == 1 ? 10 : 2});
  return all;
}

} // namespace

void printClosedLoops() {
  std::printf("| distance [m] | wells | rows | periods | thickness [m] | rate [l/s] | exchange | "
              "cells | steps | packaged | ratio | failures | packaged | difference [K] |\n"
              "|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
  double worst = 0.0;
  for (const WellField& field : fields()) {
    const HeatRun own = runStructured(field);
    const HeatRun packaged = runWholeMatrix(field);
    const double ratio = static_cast<double>(own.steps) / static_cast<double>(packaged.steps);
    worst = std::max(worst, ratio);
    std::printf(
        "| %g | %d | %d | %d | %g | %g | %g | %zu | %ld | %ld | %.2f | %ld | %ld | %.1e |\n",
        field.distance, field.wells, field.rows, field.periods, field.thickness, 1e3 * field.rate,
        field.exchange, own.site->mesh().elements.size(), own.steps, packaged.steps, ratio,
        own.failures, packaged.failures, largestDifference(*own.site, *packaged.site));
    std::fflush(stdout);
  }
  std::printf("\nlargest ratio: %.2f\n", worst);
}
