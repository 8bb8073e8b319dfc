// Runs the full forms of the verification cases and writes the report:
// verification_report FOLDER [CASE...]
// Without names all cases run; with names the report holds those cases only.

#include "verification/Cases.h"
#include "verification/Report.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

struct Case {
  const char* name;
  void (*run)(Verification::Report&);
};

constexpr Case cases[] = {
    {"image-wells", Verification::reportImageWells},
    {"theis", Verification::reportTheis},
    {"breakthrough", Verification::reportDoubletBreakthrough},
    {"plume", Verification::reportPlume},
    {"exchange", Verification::reportExchange},
    {"energy-balance", Verification::reportEnergyBalance},
    {"closed-loop", Verification::reportClosedLoop},
    {"symmetry", Verification::reportSymmetry},
};

} // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "verification_report FOLDER [CASE...]\n";
    return 2;
  }
  const std::vector<std::string> names(argv + 2, argv + argc);
  try {
    Verification::Report report(argv[1]);
    report.section("Verification against closed solutions");
    for (const Case& one : cases)
      if (names.empty() || std::find(names.begin(), names.end(), one.name) != names.end()) {
        std::cerr << one.name << '\n';
        one.run(report);
      }
    report.save();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
