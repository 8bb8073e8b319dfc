#include "study/answers/Sensitivity.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// Prints the sensitivity indices of an answer that was computed elsewhere, as JSON: study_indices
// TABLE, a CSV file with a row of names and a row of numbers for each run, the answer last.

using namespace TVR::Study;

namespace {

using Column = std::vector<double>;

/// The columns of a table; none if a row is no row of as many numbers.
std::vector<Column> columnsOf(std::istream& table) {
  std::string line;
  std::getline(table, line);
  std::vector<Column> columns(1 +
                              static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')));
  while (std::getline(table, line)) {
    std::istringstream row(line);
    for (Column& column : columns) {
      double number = 0;
      if (!(row >> number))
        return {};
      column.push_back(number);
      row.ignore(); // the comma
    }
  }
  return columns;
}

void print(const char* name, const Column& numbers) {
  std::printf("\"%s\": [", name);
  for (std::size_t i = 0; i < numbers.size(); ++i)
    std::printf("%s%.17g", i == 0 ? "" : ", ", numbers[i]);
  std::printf("], ");
}

} // namespace

int main(int argc, char** argv) {
  std::ifstream file(argc == 2 ? argv[1] : "");
  std::vector<Column> columns = columnsOf(file);
  if (columns.size() < 2) {
    std::fprintf(stderr, "study_indices expects a CSV table of keys and an answer\n");
    return 2;
  }
  const Column answer = std::move(columns.back());
  columns.pop_back();
  const SampledKeys keys{std::move(columns), std::vector<int>(answer.size(), 1)};
  const ChaosEstimator estimator(keys, std::vector<bool>(answer.size(), true));
  const ChaosIndices chaos = estimator.indices(answer);
  std::printf("{");
  print("by_ranks", firstOrderIndices(keys, answer));
  print("first_order", chaos.firstOrder);
  print("total", chaos.totals);
  std::printf("\"explained\": %.17g}\n", chaos.explained);
  return 0;
}
