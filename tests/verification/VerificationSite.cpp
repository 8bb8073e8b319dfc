#include "verification/VerificationSite.h"

#include "simulator/FVCvodeSolver.h"

namespace Verification {

namespace {

void show(FVSystem& model, const FVCvodeSolver* solver) {
  if (!solver || solver->time() == solver->startTime())
    return;
  std::vector<double> rate(model.elementCount(), 0.0);
  model.evaluate(solver->time(), solver->state().data(), rate.data());
}

} // namespace

void showAcceptedState(FVGeothermSite& site) {
  show(site.groundwater, site.groundwaterSolver());
  show(site.heat, site.heatSolver());
}

} // namespace Verification
