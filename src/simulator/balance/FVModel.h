#pragma once

#include "simulator/balance/FVSystem.h"
#include "simulator/balance/FlatBalance.h"
#include "simulator/balance/Mixing.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

/// Balance of a conserved quantity over cells E, links C between them and well sources S, as the
/// right-hand side of an ordinary differential system with one state variable per cell.
/// The model owns everything that is added to it, numbers it in the order of insertion and never
/// removes anything. Adding with an index outside its list throws std::out_of_range and leaves
/// the model as it was.
template <class E, class C, class S>
class FVModel : public FVSystem {
public:
  using FVSystem::FVSystem;
  /// Destroys elements, boundary elements, links, boundary links and sources, in this order.
  ~FVModel() override;

  std::size_t elementCount() const final { return elements.size(); }
  void getState(std::vector<double>& y) const final;
  /// See FVSystem. Flows are reckoned once per link and added to both sides, so that the two
  /// sides of a face balance exactly; a boundary link acts on its interior element only.
  /// Allocates nothing after its first call. Two models of the same instantiation must not be
  /// evaluated at the same time.
  void evaluate(double t, const double* y, double* dydt) final;
  void setState(const double* y) final;
  /// See FVSystem: the cells of the wells.
  void setRecordedState(const double* y) final;
  const std::vector<std::pair<std::size_t, std::size_t>>& links() const final {
    return connectionIndices;
  }
  void prepareAdvance() final;
  double inflowValue(const double* y) const final;
  const std::vector<MixedCell>& mixing() const final;
  /// See FVSystem; from flat arrays that prepareAdvance has filled.
  void evaluateWithInflow(double t, const double* y, double* dydt, double inflow) final;

  double disturbance() const final { return isLinear ? 1e3 : 1.0; }

  /// State value of the water that the wells inject in the present state: the mean over all
  /// production wells, weighted with their rates, or referenceValue when no water is produced.
  double mixedProductionValue() const;

  std::vector<std::unique_ptr<E>> elements;            ///< the integrated cells
  std::vector<std::unique_ptr<E>> boundaryElements;    ///< cells of fixed state
  std::vector<std::unique_ptr<C>> connections;         ///< links between two `elements`
  std::vector<std::unique_ptr<C>> boundaryConnections; ///< links to a boundary element
  std::vector<std::unique_ptr<S>> sources;             ///< wells
  /// (i1, i2) of each entry of `connections`, same order.
  std::vector<std::pair<std::size_t, std::size_t>> connectionIndices;
  /// Interior element of each entry of `boundaryConnections`, same order.
  std::vector<std::size_t> boundaryConnectionElements;
  /// Element of each entry of `sources`, same order.
  std::vector<std::size_t> sourceElements;
  /// Neighbours of each element, filled while links are registered if it is set; not owned.
  std::vector<std::vector<std::int32_t>>* adjacency = nullptr;

protected:
  /// Appends a link between elements i1 and i2. `insideBand` clear leaves the link out of
  /// `bandwidth`: the band of the packaged linear solver then does not hold it. The right-hand side
  /// and the solver over the links see it all the same.
  void registerConnection(std::unique_ptr<C> connection, std::size_t i1, std::size_t i2,
                          bool insideBand);
  /// Appends a link from element i1 to a boundary element.
  void registerBoundaryConnection(std::unique_ptr<C> connection, std::size_t i1);
  /// Appends a source in element `elementIndex`.
  void registerSource(std::unique_ptr<S> source, std::size_t elementIndex);

private:
  void setState(std::size_t element, const double* y);
  /// Cells, links and sources that can tell the factors of their flows may be evaluated flat.
  static constexpr bool isLinear = requires(const E& e, const C& c, const S& s) {
    e.stateCapacity();
    c.factors();
    s.factors(0);
  };
  static void addOnce(std::vector<std::int32_t>& list, std::int32_t id);
  static std::vector<double>& scratch();

  FlatBalance balance_;
};

template <class E, class C, class S>
FVModel<E, C, S>::~FVModel() {
  elements.clear();
  boundaryElements.clear();
  connections.clear();
  boundaryConnections.clear();
  sources.clear();
}

template <class E, class C, class S>
void FVModel<E, C, S>::getState(std::vector<double>& y) const {
  y.clear();
  y.reserve(elements.size());
  for (const auto& element : elements) {
    double value = 0.0;
    element->getState(&value);
    y.push_back(value);
  }
}

template <class E, class C, class S>
std::vector<double>& FVModel<E, C, S>::scratch() {
  static std::vector<double> values(E::variablesPerElement);
  return values;
}

template <class E, class C, class S>
double FVModel<E, C, S>::mixedProductionValue() const {
  double sumRate = 0.0;
  double sumEnergy = 0.0;
  for (const auto& source : sources) {
    const double rate = source->rate(demandStep);
    if (rate < 0.0) {
      sumRate += rate;
      sumEnergy += rate * (source->temperature(demandStep) - referenceValue);
    }
  }
  return mixedValue(sumRate, sumEnergy, referenceValue);
}

template <class E, class C, class S>
void FVModel<E, C, S>::setState(std::size_t element, const double* y) {
  E& target = *elements[element];
  const double* state = &y[element * E::variablesPerElement];
  if constexpr (requires { target.setPressure(state); })
    target.setPressure(state);
  else
    target.setState(state);
}

template <class E, class C, class S>
void FVModel<E, C, S>::setState(const double* y) {
  for (std::size_t i = 0; i < elements.size(); ++i)
    setState(i, y);
}

template <class E, class C, class S>
void FVModel<E, C, S>::setRecordedState(const double* y) {
  for (const std::size_t i : sourceElements)
    setState(i, y);
}

template <class E, class C, class S>
void FVModel<E, C, S>::prepareAdvance() {
  if constexpr (isLinear) {
    balance_.clear();
    for (const auto& element : elements)
      balance_.addCell(element->stateCapacity());
    balance_.links().set(connectionIndices,
                         [this](std::size_t k) { return connections[k]->factors(); });
    for (std::size_t k = 0; k < boundaryConnections.size(); ++k) {
      double fixedState = 0.0;
      boundaryConnections[k]->e2->getState(&fixedState);
      balance_.addBoundaryLink(boundaryConnectionElements[k], fixedState,
                               boundaryConnections[k]->factors());
    }
    for (std::size_t k = 0; k < sources.size(); ++k)
      balance_.addWell(sourceElements[k], sources[k]->factors(demandStep));
    balance_.setMixing(closedLoop, referenceValue);
  }
}

template <class E, class C, class S>
double FVModel<E, C, S>::inflowValue(const double* y) const {
  if constexpr (isLinear)
    return balance_.inflowValue(y);
  else
    return FVSystem::inflowValue(y);
}

template <class E, class C, class S>
const std::vector<MixedCell>& FVModel<E, C, S>::mixing() const {
  if constexpr (isLinear)
    return balance_.mixing();
  else
    return FVSystem::mixing();
}

template <class E, class C, class S>
void FVModel<E, C, S>::evaluateWithInflow(double t, const double* y, double* dydt, double inflow) {
  if constexpr (isLinear)
    balance_.evaluate(y, dydt, inflow);
  else
    FVSystem::evaluateWithInflow(t, y, dydt, inflow);
}

template <class E, class C, class S>
void FVModel<E, C, S>::evaluate(double t, const double* y, double* dydt) {
  constexpr std::size_t nvar = E::variablesPerElement;
  // The classes E, C and S are final, so that none of the calls in these loops is virtual.
  setState(y);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if constexpr (requires(E & e) { e.initDerivative(dydt, t, t); })
      elements[i]->initDerivative(&dydt[i * nvar], t, lastStepTime);
  }

  std::vector<double>& flow = scratch();
  for (std::size_t k = 0; k < connections.size(); ++k) {
    connections[k]->flux(flow, demandStep);
    const auto [i1, i2] = connectionIndices[k];
    for (std::size_t v = 0; v < nvar; ++v) {
      dydt[i1 * nvar + v] += flow[v];
      dydt[i2 * nvar + v] -= flow[v];
    }
  }
  for (std::size_t k = 0; k < boundaryConnections.size(); ++k) {
    boundaryConnections[k]->flux(flow, demandStep);
    for (std::size_t v = 0; v < nvar; ++v)
      dydt[boundaryConnectionElements[k] * nvar + v] += flow[v];
  }

  const double inflow = closedLoop ? mixedProductionValue() : referenceValue;
  for (std::size_t k = 0; k < sources.size(); ++k) {
    sources[k]->flux(flow, demandStep, inflow);
    for (std::size_t v = 0; v < nvar; ++v)
      dydt[sourceElements[k] * nvar + v] += flow[v];
  }
  for (std::size_t i = 0; i < elements.size(); ++i)
    elements[i]->scaleDerivative(&dydt[i * nvar]);
}

template <class E, class C, class S>
void FVModel<E, C, S>::addOnce(std::vector<std::int32_t>& list, std::int32_t id) {
  // A cell has a handful of links, so that a linear search is the quickest.
  if (std::find(list.begin(), list.end(), id) == list.end())
    list.push_back(id);
}

template <class E, class C, class S>
void FVModel<E, C, S>::registerConnection(std::unique_ptr<C> connection, std::size_t i1,
                                          std::size_t i2, bool insideBand) {
  C& link = *connection;
  connections.push_back(std::move(connection));
  const auto id = static_cast<std::int32_t>(connectionIndices.size());
  connectionIndices.emplace_back(i1, i2);
  const auto first = static_cast<std::int32_t>(i1);
  const auto second = static_cast<std::int32_t>(i2);
  if (insideBand)
    bandwidth = std::max(bandwidth, std::max(first - second, second - first));
  addOnce(link.e1->connections, id);
  addOnce(link.e2->connections, id);
  if (adjacency) {
    (*adjacency)[i1].push_back(second);
    (*adjacency)[i2].push_back(first);
  }
}

template <class E, class C, class S>
void FVModel<E, C, S>::registerBoundaryConnection(std::unique_ptr<C> connection, std::size_t i1) {
  C& link = *connection;
  boundaryConnections.push_back(std::move(connection));
  const auto id = static_cast<std::int32_t>(boundaryConnectionElements.size());
  boundaryConnectionElements.push_back(i1);
  addOnce(link.e1->boundaryConnections, id);
}

template <class E, class C, class S>
void FVModel<E, C, S>::registerSource(std::unique_ptr<S> source, std::size_t elementIndex) {
  sources.push_back(std::move(source));
  sourceElements.push_back(elementIndex);
}
