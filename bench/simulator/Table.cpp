#include "Table.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace {

using Line = std::vector<std::string>;

[[gnu::format(printf, 1, 2)]] std::string text(const char* format, ...) {
  char buffer[64];
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  return buffer;
}

std::string duration(double seconds) {
  if (seconds >= 1.0)
    return text("%.2f s", seconds);
  return seconds >= 1e-3 ? text("%.2f ms", seconds * 1e3) : text("%.1f us", seconds * 1e6);
}

std::string count(const std::optional<long>& value) {
  return value ? text("%ld", *value) : "";
}

Line lineOf(const Row& row) {
  return {row.name,
          text("%zu", row.cells),
          duration(row.seconds),
          row.perLink ? text("%.2f", *row.perLink * 1e9) : "",
          count(row.waterSteps),
          count(row.heatSteps),
          row.megabytes ? text("%.0f", *row.megabytes) : "",
          row.reference ? duration(*row.reference) : "",
          count(row.referenceWaterSteps),
          count(row.referenceHeatSteps),
          row.reference ? text("%.1f", *row.reference / row.seconds) : ""};
}

} // namespace

void printTable(const std::vector<Row>& rows) {
  std::vector<Line> lines{{"What", "cells", "CPU time", "ns per link", "water steps", "heat steps",
                           "peak MB", "packaged solver", "its water steps", "its heat steps",
                           "ratio"}};
  for (const Row& row : rows)
    lines.push_back(lineOf(row));
  std::vector<std::size_t> widths(lines.front().size(), 0);
  for (const Line& line : lines)
    for (std::size_t k = 0; k < line.size(); ++k)
      widths[k] = std::max(widths[k], line[k].size());
  const auto print = [&](const Line& line) {
    for (std::size_t k = 0; k < line.size(); ++k)
      std::printf(k == 0 ? "| %-*s |" : " %*s |", static_cast<int>(widths[k]), line[k].c_str());
    std::printf("\n");
  };
  print(lines.front());
  for (std::size_t k = 0; k < widths.size(); ++k)
    std::printf("|%s%s", std::string(widths[k] + 1, '-').c_str(), k == 0 ? "-" : ":");
  std::printf("|\n");
  std::for_each(lines.begin() + 1, lines.end(), print);
}
