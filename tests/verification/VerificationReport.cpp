// Runs the full forms of all verification cases and writes the report:
// verification_report FOLDER

#include "verification/Cases.h"
#include "verification/Report.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "verification_report FOLDER\n";
    return 2;
  }
  try {
    Verification::Report report(argv[1]);
    report.section("Verification against closed solutions");
    Verification::reportEnergyBalance(report);
    Verification::reportImageWells(report);
    Verification::reportTheis(report);
    report.save();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
