// Runs the full forms of the verification cases and writes the report:
// verification_report FOLDER [CASE...]
// Without names all cases run; with names the report holds those cases only.

#include "verification/Report.h"
#include "verification/WholeReport.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "verification_report FOLDER [CASE...]\n";
    return 2;
  }
  try {
    Verification::Report report(argv[1]);
    Verification::writeCases(report, std::vector<std::string>(argv + 2, argv + argc));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
