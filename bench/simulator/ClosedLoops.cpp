#include "ClosedLoops.h"

#include "support/WellField.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>
#include <vector>

namespace {

double largestDifference(const FVGeothermSite& one, const FVGeothermSite& other) {
  double largest = 0.0;
  for (std::size_t i = 0; i < one.mesh().elements.size(); ++i)
    largest = std::max(largest, std::abs(one.temperature(i) - other.temperature(i)));
  return largest;
}

constexpr double distances[]{0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 65.0}; // [m]

/// Each distance with each other property, alone and with what it makes harder.
std::vector<WellField> fields() {
  std::vector<WellField> all;
  for (const double distance : distances) {
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

/// A field as it was run, in both ways.
struct Comparison {
  WellField field;
  std::size_t cells;
  long steps;
  long packagedSteps;
  long failures;
  long packagedFailures;
  double difference; ///< of the temperatures at the end, largest of all cells [K]

  double ratio() const { return static_cast<double>(steps) / static_cast<double>(packagedSteps); }
};

Comparison compare(const WellField& field) {
  const HeatRun own = runStructured(field);
  const HeatRun packaged = runWholeMatrix(field);
  return {field,
          own.site->mesh().elements.size(),
          own.steps,
          packaged.steps,
          own.failures,
          packaged.failures,
          largestDifference(*own.site, *packaged.site)};
}

void printRow(const Comparison& row) {
  const WellField& field = row.field;
  std::printf("| %g | %d | %d | %d | %g | %g | %g | %zu | %ld | %ld | %.2f | %ld | %ld | %.1e |\n",
              field.distance, field.wells, field.rows, field.periods, field.thickness,
              1e3 * field.rate, field.exchange, row.cells, row.steps, row.packagedSteps,
              row.ratio(), row.failures, row.packagedFailures, row.difference);
  std::fflush(stdout);
}

/// One line for all fields of a distance.
void printSummary(const std::vector<Comparison>& rows, double distance) {
  long runs = 0;
  long failures = 0;
  auto steps = std::pair(std::numeric_limits<long>::max(), 0L);
  auto ratios = std::pair(std::numeric_limits<double>::max(), 0.0);
  double difference = 0.0;
  for (const Comparison& row : rows)
    if (row.field.distance == distance) {
      ++runs;
      failures += row.failures + row.packagedFailures;
      steps = {std::min(steps.first, row.steps), std::max(steps.second, row.steps)};
      ratios = {std::min(ratios.first, row.ratio()), std::max(ratios.second, row.ratio())};
      difference = std::max(difference, row.difference);
    }
  std::printf("| %g | %ld | %ld to %ld | %.2f to %.2f | %ld | %.0e |\n", distance, runs,
              steps.first, steps.second, ratios.first, ratios.second, failures, difference);
}

} // namespace

void printClosedLoops() {
  std::printf("| distance [m] | wells | rows | periods | thickness [m] | rate [l/s] | exchange | "
              "cells | steps | packaged | ratio | failures | packaged | difference [K] |\n"
              "|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
  std::vector<Comparison> rows;
  for (const WellField& field : fields()) {
    rows.push_back(compare(field));
    printRow(rows.back());
  }
  std::printf("\n| distance [m] | runs | steps | ratio to the packaged solver | failures of both | "
              "largest difference [K] |\n|---:|---:|---:|---:|---:|---:|\n");
  for (const double distance : distances)
    printSummary(rows, distance);
}
