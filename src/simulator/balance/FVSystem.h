#pragma once

#include "simulator/balance/Mixing.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// What a time integrator needs to know of a model dy/dt = f(t, y), and the settings that every
/// model shares. A system is used by one thread at a time; only `stopRequested` may be written
/// from another one.
class FVSystem {
public:
  /// `reference`: state value against which mixing of produced water is reckoned.
  /// `isClosedLoop`: true when injected water takes the mixed value of the produced water.
  FVSystem(double reference, bool isClosedLoop)
      : referenceValue(reference), closedLoop(isClosedLoop) {}
  FVSystem(const FVSystem&) = delete;
  FVSystem& operator=(const FVSystem&) = delete;
  virtual ~FVSystem() = default;

  /// Number of integrated cells, which is the length of the state vector.
  virtual std::size_t elementCount() const = 0;
  /// Replaces the content of y by the present state, one entry per element in element order.
  virtual void getState(std::vector<double>& y) const = 0;
  /// Right-hand side: stores the state y in the elements and adds f(t, y) to dydt, which the
  /// caller has set to zero. Both arrays hold elementCount() entries. It cannot fail: a
  /// non-finite value is passed on to the integrator.
  virtual void evaluate(double t, const double* y, double* dydt) = 0;
  /// Stores a state, one entry per element, without evaluating anything.
  virtual void setState(const double* /*y*/) {}
  /// Stores what stepAccepted records of an accepted state. The whole state follows by setState
  /// before anyone else can look: when the integrator has reached its goal, is stopped or fails.
  virtual void setRecordedState(const double* y) { setState(y); }

  /// Pairs of elements that depend on each other, same numbering as the state. No pairs: each
  /// element depends on itself only.
  virtual const std::vector<std::pair<std::size_t, std::size_t>>& links() const {
    return noLinks();
  }
  /// Called before the integrator goes on: properties and demand may have changed since.
  virtual void prepareAdvance() {}
  /// State value that water is injected with in the state y, before the wells' own changes: what
  /// couples wells across the mesh.
  virtual double inflowValue(const double* /*y*/) const { return referenceValue; }
  /// How inflowValue and the rates of change depend on each other since prepareAdvance, one entry
  /// per well; empty if the inflow value does not change with the state, or nothing with it.
  virtual const std::vector<MixedCell>& mixing() const {
    static const std::vector<MixedCell> none;
    return none;
  }
  /// Right-hand side as by evaluate, written to dydt whatever stood there, for a given inflow
  /// value. It need not store the state in the elements.
  virtual void evaluateWithInflow(double t, const double* y, double* dydt, double /*inflow*/) {
    std::fill_n(dydt, elementCount(), 0.0);
    evaluate(t, y, dydt);
  }

  /// How far a difference quotient disturbs an entry of the state, in tolerances. A wide
  /// disturbance is less rounded, and exact where the right-hand side is linear in the state.
  virtual double disturbance() const { return 1.0; }

  /// Called after every accepted integrator step with the time reached [s].
  virtual void stepAccepted(double t) = 0;
  /// Called after the integrator was restarted from the state reached.
  virtual void solverRestarted() {}

  std::int32_t demandStep = 0;     ///< index of the current demand period
  std::int32_t bandwidth = 0;      ///< largest index distance over the links inside the band
  double referenceValue;           ///< see the constructor
  bool closedLoop;                 ///< see the constructor
  void* solverMemory = nullptr;    ///< handle of the integrator, not owned; null without one
  double lastStepTime = 0.0;       ///< time of the last accepted step, where a model keeps it [s]
  double shortestTravelTime = 0.0; ///< shortest time of water through a link [s]; 0: none yet
  /// Stop request, read by the time-stepping loop once per step. Relaxed order is enough: the
  /// flag carries no other data with it.
  std::atomic<bool> stopRequested{false};

private:
  static const std::vector<std::pair<std::size_t, std::size_t>>& noLinks() {
    static const std::vector<std::pair<std::size_t, std::size_t>> none;
    return none;
  }
};
