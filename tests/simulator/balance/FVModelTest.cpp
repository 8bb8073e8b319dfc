#include "simulator/balance/FVModel.h"

#include "simulator/balance/FVConnection.h"
#include "simulator/balance/FVElement.h"
#include "simulator/balance/FVSource.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string destroyed;

/// A cell whose storage is 2, so that derivatives are half the sum of flows.
class Cell final : public FVElement {
public:
  explicit Cell(double state, char name = 'e') : value(state), name_(name) {}
  ~Cell() override { destroyed += name_; }
  void setState(const double* y) { value = y[0]; }
  void getState(double* y) const { y[0] = value; }
  void scaleDerivative(double* dydt) const override { dydt[0] /= 2.0; }
  double value;

private:
  char name_;
};

class Link final : public FVConnection<Cell> {
public:
  Link(double weight, Cell* first, Cell* second, char name = 'c')
      : FVConnection(0.5, 0.5, 1.0, 1.0, 0.0, first, second), weight_(weight), name_(name) {}
  ~Link() override { destroyed += name_; }
  void flux(std::vector<double>& out, int demandStep) const override {
    out[0] = weight_ * (e2->value - e1->value) + demandStep;
  }

private:
  double weight_;
  char name_;
};

class Tap final : public FVSource<Cell> {
public:
  using FVSource::FVSource;
  ~Tap() override { destroyed += 's'; }
  double rate(int demandStep) const override { return well->rate(demandStep); }
  double temperature(int /*demandStep*/) const override { return element->value; }
  void flux(std::vector<double>& out, int demandStep, double inflowValue) const override {
    const double q = rate(demandStep);
    out[0] = q < 0.0 ? q * element->value : q * inflowValue;
  }
};

class Model final : public FVModel<Cell, Link, Tap> {
public:
  using FVModel::FVModel;
  void add(double value) { elements.push_back(std::make_unique<Cell>(value)); }
  void addBoundary(double value) { boundaryElements.push_back(std::make_unique<Cell>(value, 'b')); }
  void link(std::size_t i1, std::size_t i2, double weight = 1.0, bool insideBand = true) {
    registerConnection(std::make_unique<Link>(weight, elements.at(i1).get(), elements.at(i2).get()),
                       i1, i2, insideBand);
  }
  void linkBoundary(std::size_t i1, std::size_t i2) {
    registerBoundaryConnection(
        std::make_unique<Link>(1.0, elements.at(i1).get(), boundaryElements.at(i2).get(), 'd'), i1);
  }
  void tap(Well& well, std::size_t i) {
    registerSource(std::make_unique<Tap>(&well, elements.at(i).get()), i);
  }
  void stepAccepted(double /*t*/) override {}
  std::vector<double> derivative(std::vector<double> y) {
    std::vector<double> dydt(y.size(), 0.0);
    evaluate(0.0, y.data(), dydt.data());
    return dydt;
  }
};

} // namespace

TEST(FVModel, startsEmptyWithTheGivenReferenceAndLoop) {
  const Model model(12.0, true);
  EXPECT_EQ(model.elementCount(), 0u);
  EXPECT_EQ(model.bandwidth, 0);
  EXPECT_EQ(model.demandStep, 0);
  EXPECT_EQ(model.referenceValue, 12.0);
  EXPECT_TRUE(model.closedLoop);
  EXPECT_EQ(model.solverMemory, nullptr);
  EXPECT_EQ(model.adjacency, nullptr);
  EXPECT_FALSE(model.stopRequested);
}

TEST(FVModel, stateIsReadInElementOrder) {
  Model model(0.0, false);
  for (const double value : {3.0, 1.0, 2.0})
    model.add(value);
  std::vector<double> y{9.0, 9.0, 9.0, 9.0, 9.0};
  model.getState(y);
  EXPECT_EQ(y, (std::vector<double>{3.0, 1.0, 2.0}));
}

TEST(FVModel, evaluateStoresTheStateAndBalancesBothSidesOfALink) {
  Model model(0.0, false);
  model.add(0.0);
  model.add(0.0);
  model.link(0, 1);
  EXPECT_EQ(model.derivative({1.0, 5.0}), (std::vector<double>{2.0, -2.0}));
  EXPECT_EQ(model.elements[1]->value, 5.0);
}

TEST(FVModel, evaluateHandsTheDemandStepToTheLinks) {
  Model model(0.0, false);
  model.add(0.0);
  model.add(0.0);
  model.link(0, 1);
  model.demandStep = 6;
  EXPECT_EQ(model.derivative({0.0, 0.0}), (std::vector<double>{3.0, -3.0}));
}

TEST(FVModel, boundaryLinkActsOnTheInteriorElementOnlyAndItsStateStays) {
  Model model(0.0, false);
  model.add(0.0);
  model.add(0.0);
  model.addBoundary(10.0);
  model.linkBoundary(1, 0);
  EXPECT_EQ(model.derivative({4.0, 4.0}), (std::vector<double>{0.0, 3.0}));
  EXPECT_EQ(model.boundaryElements[0]->value, 10.0);
  EXPECT_TRUE(model.boundaryElements[0]->boundaryConnections.empty());
  EXPECT_EQ(model.elements[1]->boundaryConnections, (std::vector<std::int32_t>{0}));
  EXPECT_EQ(model.bandwidth, 0);
}

TEST(FVModel, withoutSourcesTheMixedValueIsTheReferenceAndNothingFlows) {
  Model model(8.0, true);
  model.add(3.0);
  EXPECT_EQ(model.mixedProductionValue(), 8.0);
  EXPECT_EQ(model.derivative({3.0}), (std::vector<double>{0.0}));
}

TEST(FVModel, closedLoopWithInjectionOnlyBringsTheReferenceValue) {
  Model model(8.0, true);
  model.add(3.0);
  Well well(0, 0.0, 0.0, 2.0);
  model.tap(well, 0);
  EXPECT_EQ(model.derivative({3.0}), (std::vector<double>{8.0}));
}

TEST(FVModel, closedLoopInjectsTheRateWeightedMeanOfTheProduction) {
  Model model(8.0, true);
  for (int i = 0; i < 3; ++i)
    model.add(0.0);
  Well weak(0, 0.0, 0.0, -1.0);
  Well strong(1, 0.0, 0.0, -3.0);
  Well injection(2, 0.0, 0.0, 4.0);
  model.tap(weak, 0);
  model.tap(strong, 1);
  model.tap(injection, 2);
  const std::vector<double> dydt = model.derivative({10.0, 14.0, 0.0});
  EXPECT_DOUBLE_EQ(model.mixedProductionValue(), 13.0);
  EXPECT_DOUBLE_EQ(dydt[0], -5.0);
  EXPECT_DOUBLE_EQ(dydt[1], -21.0);
  EXPECT_DOUBLE_EQ(dydt[2], 26.0);
}

TEST(FVModel, productionOfNextToNothingMixesToTheReference) {
  Model model(8.0, true);
  model.add(30.0);
  Well well(0, 0.0, 0.0, -1e-25);
  model.tap(well, 0);
  EXPECT_EQ(model.mixedProductionValue(), 8.0);
  well.setRate(0, -1.1e-25);
  EXPECT_NEAR(model.mixedProductionValue(), 30.0, 1e-12);
}

TEST(Mixing, countsRatesAboveTheThresholdOnly) {
  constexpr double threshold = 1e-25; // [m3/s]
  EXPECT_EQ(mixedValue(-threshold, -threshold * 5.0, 10.0), 10.0);
  EXPECT_DOUBLE_EQ(mixedValue(-1.001 * threshold, -1.001 * threshold * 5.0, 10.0), 15.0);
}

TEST(FVModel, openLoopInjectsTheReferenceValueWhateverIsProduced) {
  Model model(8.0, false);
  model.add(0.0);
  model.add(0.0);
  Well production(0, 0.0, 0.0, -1.0);
  Well injection(1, 0.0, 0.0, 1.0);
  model.tap(production, 0);
  model.tap(injection, 1);
  EXPECT_EQ(model.derivative({20.0, 0.0})[1], 4.0);
}

TEST(FVModel, bandwidthIsTheLargestIndexDistanceInEitherDirection) {
  Model model(0.0, false);
  for (int i = 0; i < 6; ++i)
    model.add(0.0);
  model.link(1, 2);
  EXPECT_EQ(model.bandwidth, 1);
  model.link(5, 1);
  EXPECT_EQ(model.bandwidth, 4);
  model.link(0, 1);
  EXPECT_EQ(model.bandwidth, 4);
}

TEST(FVModel, linkOutsideTheBandCarriesItsFlowWithoutWideningTheBand) {
  Model model(0.0, false);
  for (int i = 0; i < 4; ++i)
    model.add(0.0);
  model.link(0, 3, 1.0, false);
  EXPECT_EQ(model.bandwidth, 0);
  EXPECT_EQ(model.derivative({0.0, 0.0, 0.0, 2.0}), (std::vector<double>{1.0, 0.0, 0.0, -1.0}));
}

TEST(FVModel, elementsWithTwoCommonLinksListBothOnce) {
  Model model(0.0, false);
  model.add(0.0);
  model.add(0.0);
  model.link(0, 1);
  model.link(0, 1);
  EXPECT_EQ(model.elements[0]->connections, (std::vector<std::int32_t>{0, 1}));
  EXPECT_EQ(model.elements[1]->connections, (std::vector<std::int32_t>{0, 1}));
}

TEST(FVModel, elementLinkedToItselfListsTheLinkOnce) {
  Model model(0.0, false);
  model.add(0.0);
  model.link(0, 0);
  EXPECT_EQ(model.elements[0]->connections, (std::vector<std::int32_t>{0}));
}

TEST(FVModel, parallelListsGrowTogether) {
  Model model(0.0, false);
  Well well(0, 0.0, 0.0);
  model.add(0.0);
  model.add(0.0);
  model.addBoundary(0.0);
  model.link(0, 1);
  model.linkBoundary(1, 0);
  model.tap(well, 1);
  EXPECT_EQ(model.connectionIndices, (std::vector<std::pair<std::size_t, std::size_t>>{{0, 1}}));
  EXPECT_EQ(model.boundaryConnectionElements, (std::vector<std::size_t>{1}));
  EXPECT_EQ(model.sourceElements, (std::vector<std::size_t>{1}));
}

TEST(FVModel, adjacencyIsFilledWhenItIsSet) {
  Model model(0.0, false);
  for (int i = 0; i < 3; ++i)
    model.add(0.0);
  std::vector<std::vector<std::int32_t>> neighbours(3);
  model.adjacency = &neighbours;
  model.link(0, 2);
  EXPECT_EQ(neighbours[0], (std::vector<std::int32_t>{2}));
  EXPECT_EQ(neighbours[2], (std::vector<std::int32_t>{0}));
  EXPECT_TRUE(neighbours[1].empty());
}

TEST(FVModel, ownedPartsAreDestroyedInOrderAndNullEntriesAreSkipped) {
  Well well(0, 0.0, 0.0);
  destroyed.clear();
  {
    auto model = std::make_unique<Model>(0.0, false);
    model->add(0.0);
    model->add(0.0);
    model->addBoundary(0.0);
    model->link(0, 1);
    model->linkBoundary(0, 0);
    model->tap(well, 0);
    model->elements.push_back(nullptr);
    model->sources.push_back(nullptr);
    const std::unique_ptr<FVSystem> base = std::move(model);
  }
  EXPECT_EQ(destroyed, "eebcds");
}
