#include "verification/PeerDoublet.h"

#include "verification/VerificationSite.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Verification {

namespace {

constexpr double rate = 0.005;          // [m3/s] of both wells
constexpr double injectedChange = -4.0; // [K]
constexpr double T0 = 10.0;             // [deg C]
constexpr double conductivity = 1e-3;   // hydraulic [m/s]
constexpr double slope = 0.003;         // of the head [m/m]
constexpr double specificWeight = 9810; // of the water [N/m3]
constexpr double unitOfDeficits = 1e-7; // [K]

FVMaterial peerAquifer() {
  return {"aquifer", 0.2, 2200.0, 800.0, 2.0, viscosity * conductivity / specificWeight, 1e-8};
}

FVGridLine lineBetween(std::istream& edges) {
  FVGridLine line;
  double start = 0.0;
  edges >> start;
  for (double end = 0.0; edges >> end; start = end)
    line.append(start, end - start);
  return line;
}

/// A cell that stores without end keeps its pressure, at its centre.
void holdPressure(FVGeothermSite& site, std::size_t i) {
  site.groundwater.elements[i]->storage = 1e30;
}

/// Over its edge flows what keeps the water of a cell of held pressure in balance, and its heat.
void balanceOuterCells(FVGeothermSite& site) {
  const FVGroundwaterModel& water = site.groundwater;
  std::vector<double> inflow(water.elements.size(), 0.0);
  for (std::size_t k = 0; k < water.connections.size(); ++k) {
    const auto [i1, i2] = water.connectionIndices[k];
    inflow[i1] += water.flow(k);
    inflow[i2] -= water.flow(k);
  }
  for (std::size_t k = 0; k < water.boundaryConnections.size(); ++k) {
    site.heat.boundaryConnections[k]->coefficient = 0.0;
    site.heat.setBoundaryFlow(k, -inflow[water.boundaryConnectionElements[k]],
                              site.aquifer().porosity, 0.0, 0.0);
  }
}

} // namespace

PeerDoublet::PeerDoublet() {
  std::ifstream file(TEVRANE_VERIFICATION_DATA "/peer_doublet.txt");
  for (std::string line; std::getline(file, line);)
    readLine(line);
  if (deficits_.empty())
    throw std::runtime_error("cannot read peer_doublet.txt");
  for (const auto& [atYear, rows] : deficits_) {
    if (rows.size() != x_.count() * (y_.count() + 1) / 2)
      throw std::runtime_error("peer_doublet.txt is not complete");
    years_.push_back(atYear);
  }
}

void PeerDoublet::readLine(const std::string& line) {
  std::istringstream words(line);
  std::string name;
  words >> name;
  if (name == "x") {
    x_ = lineBetween(words);
  } else if (name == "y") {
    y_ = lineBetween(words);
  } else if (name == "deficit") {
    int atYear = 0;
    int row = 0;
    words >> atYear >> row;
    for (double value = 0.0; words >> value;)
      deficits_[atYear].push_back(value);
  }
}

double PeerDoublet::temperature(int atYear, std::size_t i) const {
  const std::size_t row = i / x_.count();
  const std::size_t mirrored = std::min(row, y_.count() - 1 - row);
  return T0 - unitOfDeficits * deficits_.at(atYear).at(mirrored * x_.count() + i % x_.count());
}

std::size_t PeerDoublet::elementAt(double x) const {
  return x_.count() * static_cast<std::size_t>(y_.find(0.0)) + static_cast<std::size_t>(x_.find(x));
}

std::unique_ptr<FVGeothermSite> PeerDoublet::makeSite(Edges edges) const {
  Setup setup;
  setup.aquifer = peerAquifer();
  setup.gradient = -slope * specificWeight;
  setup.temperature = T0;
  setup.waterHeatCapacity = 4186.0;
  auto site = Verification::makeSite(
      FVMesh(x_, y_, aquiferThickness),
      {Well(0, 0.0, 0.0, -rate), Well(1, 60.0, 0.0, rate, injectedChange)}, setup);
  if (edges == Edges::OfThePeer)
    for (std::size_t row = 0; row < y_.count(); ++row) {
      holdPressure(*site, row * x_.count());
      holdPressure(*site, (row + 1) * x_.count() - 1);
    }
  site->solveGroundwater(year, 1e-10, 1e-8);
  site->updateHeatFlows();
  if (edges == Edges::OfThePeer)
    balanceOuterCells(*site);
  return site;
}

} // namespace Verification
