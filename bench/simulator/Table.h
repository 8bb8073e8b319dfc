#pragma once

#include <optional>
#include <string>
#include <vector>

/// One line of the table of measurements. What is not given stays empty.
struct Row {
  std::string name;
  std::size_t cells = 0;
  double seconds = 0.0;              ///< CPU time [s]
  std::optional<double> perLink{};   ///< CPU time [s] of one link
  std::optional<long> waterSteps{};  ///< steps of the groundwater's integrator
  std::optional<long> heatSteps{};   ///< steps of the heat's integrator
  std::optional<double> megabytes{}; ///< peak memory of a process that does nothing else
  std::optional<double> reference{}; ///< CPU time [s] of the same with the packaged solver
  std::optional<long> referenceWaterSteps{};
  std::optional<long> referenceHeatSteps{};
};

/// Prints rows as a table in Markdown, aligned for the eye.
void printTable(const std::vector<Row>& rows);
