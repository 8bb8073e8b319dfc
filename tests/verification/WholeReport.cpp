#include "verification/WholeReport.h"

#include "verification/Cases.h"
#include "verification/Report.h"

#include <algorithm>
#include <iostream>

namespace Verification {

namespace {

struct Case {
  const char* name;
  void (*run)(Report&);
};

constexpr Case cases[] = {
    {"image-wells", reportImageWells},
    {"theis", reportTheis},
    {"breakthrough", reportDoubletBreakthrough},
    {"plume", reportPlume},
    {"dispersion", reportDispersion},
    {"exchange", reportExchange},
    {"batch-cases", reportBatchCases},
    {"energy-balance", reportEnergyBalance},
    {"closed-loop", reportClosedLoop},
    {"symmetry", reportSymmetry},
    {"accepted-state", reportAcceptedState},
    {"peer-doublet", reportPeerDoublet},
    {"left-out", reportLeftOut},
};

constexpr const char* introduction =
    "Written by `scripts/verify` from runs of the simulator; not to be edited by hand. Each case "
    "is one source in `tests/verification`, which holds the closed solution, the set-up and the "
    "error. Its quick form runs with the tests and asserts the bounds named here; this report "
    "holds the full forms.\n\n"
    "Unless a case says otherwise: aquifer of 10 m, porosity 0.2, rock 2650 kg/m³ and "
    "840 J/(kg K), 2.4 W/(m K), k = 1e-10 m², compressibility 1e-8 1/Pa; water 1000 kg/m³, "
    "4187 J/(kg K), 1.3e-3 Pa s; rock around 2700 kg/m³, 900 J/(kg K), 1.5 W/(m K). C is the heat "
    "capacity of the aquifer, cw that of the water, per volume. Temperatures and pressures are "
    "those of the accepted steps.\n\n"
    "The observed order p between two refinements is that of error ~ size^p. A method of order q "
    "that holds its local error at a tolerance errs by about tolerance^(q / (q + 1)) in the end: "
    "in the tolerance an order between one half and one is to be expected, and single ones "
    "scatter, since the integrator chooses its order and its steps anew.";

} // namespace

void writeCases(Report& report, const std::vector<std::string>& names) {
  report.section("Verification against closed solutions");
  report.text(introduction);
  for (const Case& one : cases)
    if (names.empty() || std::find(names.begin(), names.end(), one.name) != names.end()) {
      std::cerr << one.name << '\n';
      one.run(report);
    }
  report.save();
}

} // namespace Verification
