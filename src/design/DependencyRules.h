#pragma once

#include "design/RuleTarget.h"

#include <span>

namespace TVR {

/// Brings the parameters that depend on `id` (see Parameter::Id) up to date after a write of `id`.
/// An id without a rule does nothing. The rules write through `target`, which runs their rules in
/// turn: evaluation is depth first, and a value may be computed several times during one change.
/// Results that flow back into an input are mirrored, not written, so that the recursion ends.
void applyRule(int id, RuleTarget& target);

/// One rule for each parameter whose change makes others change.
struct DependencyRule {
  int trigger;
  void (*run)(RuleTarget&);
};

/// All rules, by trigger.
std::span<const DependencyRule> dependencyRules();

} // namespace TVR
