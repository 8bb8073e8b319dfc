#pragma once

#include "project/Units.h"
#include "simulation/Simulation.h"
#include "simulator/SiteFixtures.h"

#include <utility>
#include <vector>

/// The makings of a simulation on 7 x 5 cells with a withdrawal well, an injection well that cools
/// by 4 K, and a regional flow along +x. Two demand periods differ in their rates.
class SmallSite {
public:
  SmallSite() {
    for (int period = 0; period < 2; ++period) {
      const double rate = 1e-4 * (period + 1);
      withdrawal_.setRate(period, -rate);
      injection_.setRate(period, rate);
      injection_.setTemperatureChange(period, -4);
    }
  }
  SmallSite(const SmallSite&) = delete;
  SmallSite& operator=(const SmallSite&) = delete;

  /// One output time a year.
  static std::vector<double> years(int count) {
    std::vector<double> times;
    for (int year = 1; year <= count; ++year)
      times.push_back(year * TVR::secondsPerYear);
    return times;
  }

  /// The result looks into this object, which outlives it.
  TVR::SimulationInput input(std::vector<double> times, std::vector<int> demandSteps = {}) {
    TVR::SimulationInput input;
    demandSteps.resize(times.size());
    input.mesh = &mesh_;
    input.aquifer = SiteFixtures::gravel();
    input.pressureGradient = -20;
    input.wells = {&withdrawal_, &injection_};
    input.referenceTemperature = 10;
    input.waterDensity = SiteFixtures::waterDensity;
    input.waterHeatCapacity = SiteFixtures::waterHeatCapacity;
    input.viscosity = SiteFixtures::viscosity;
    input.surrounding = SiteFixtures::clay();
    input.exchangeLength = 10;
    input.times = std::move(times);
    input.demandSteps = std::move(demandSteps);
    return input;
  }

  std::size_t cells() const { return mesh_.elements.size(); }
  const FVMesh& mesh() const { return mesh_; }

private:
  FVMesh mesh_ = SiteFixtures::gradedMesh();
  Well withdrawal_{0, 4.0, 6.5, -1e-4};
  Well injection_{1, 25.0, 6.5, 1e-4, -4};
};
