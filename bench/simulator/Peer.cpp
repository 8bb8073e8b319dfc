#include "Peer.h"

#include "verification/PeerDoublet.h"
#include "verification/VerificationSite.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

using Verification::PeerDoublet;

namespace {

struct Outcome {
  double seconds; ///< CPU time of groundwater and heat
  long heatSteps;
  double largest; ///< difference to the peer over all cells and years [K]
};

Outcome run(const PeerDoublet& peer, double tolerance) {
  Outcome outcome{};
  std::clock_t clocks = -std::clock();
  const auto site = peer.makeSite(PeerDoublet::Edges::OfThePeer);
  for (const int years : peer.years()) {
    site->solveHeat(years * Verification::year, false, tolerance, tolerance);
    clocks += std::clock();
    for (std::size_t i = 0; i < peer.elementCount(); ++i)
      outcome.largest =
          std::max(outcome.largest, std::abs(site->temperature(i) - peer.temperature(years, i)));
    clocks -= std::clock();
  }
  clocks += std::clock();
  outcome.seconds = static_cast<double>(clocks) / CLOCKS_PER_SEC;
  outcome.heatSteps = site->heatSteps();
  return outcome;
}

} // namespace

void printPeer() {
  const PeerDoublet peer;
  std::printf("| Tolerance | CPU time [ms] | heat steps | largest difference [K] |\n"
              "|----------:|--------------:|-----------:|-----------------------:|\n");
  for (const double tolerance : {1e-3, 1e-4, 1e-5, 1e-7}) {
    const Outcome outcome = run(peer, tolerance);
    std::printf("| %.0e | %.0f | %ld | %.1e |\n", tolerance, 1000.0 * outcome.seconds,
                outcome.heatSteps, outcome.largest);
  }
}
