#pragma once

#include "simulation/SiteWriteBack.h"
#include "support/ProjectTest.h"

/// The set-up of a project in the real store. The flow goes east, which needs no rotation, unless a
/// test says otherwise.
class SiteSetupTest : public ProjectTest {
protected:
  static constexpr double year = TVR::secondsPerYear;
  static constexpr int cycleLength = 12;

  TVR::SiteSetup setUp() {
    return TVR::setUpSite(store, TVR::outputTimes(TVR::outputTimeInput(store, cycleLength)));
  }

  /// Writes the mean flow rate, which makes the store forget the wells, and then the doublet again.
  void setMeanFlowRate(const QVariant& value) {
    store.setValue(TVR::Parameter::MeanFlowRate, value);
    setWell(0, TVR::WellModel::Rate, -0.001);
    setWell(1, TVR::WellModel::Rate, 0.001);
  }

  /// Lengths of the design that the set-up takes over, since no well has a larger rate.
  void setLengths(double a, double b, double d) {
    setMeanFlowRate(1.0);
    store.setValue(TVR::Parameter::AMin, a);
    store.setValue(TVR::Parameter::BMin, b);
    store.setValue(TVR::Parameter::DMin, d);
    store.setValue(TVR::Parameter::WellDiameter, 0.2);
  }

  void setWell(int row, int column, const QVariant& value) {
    TVR::WellModel& wells = *store.wellModel();
    EXPECT_TRUE(wells.setData(wells.index(row, column), value));
  }
};
