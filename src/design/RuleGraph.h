#pragma once

#include "design/RuleFormulas.h"
#include "design/RuleRecorder.h"

#include <vector>

namespace TVR {

/// What the rules (DependencyRules) make of what, in one project: found by running each rule on the
/// project as it stands, and again with each parameter that it reads altered. So it holds for the
/// modes that are chosen in this project, and follows the rules by itself.
class RuleGraph {
public:
  /// One write of one rule.
  struct Effect {
    int trigger; ///< Parameter::Id, as all
    RecordedWrite write;
    ParameterSet sources;       ///< what makes the write another one; never the parameter itself
    const RuleFormula* formula; ///< null where none is known, as for a text
  };

  /// Reads `project` and keeps nothing of it.
  explicit RuleGraph(const RuleTarget& project);

  const std::vector<Effect>& effects() const { return effects_; }
  /// What a parameter depends on, directly or by way of others.
  ParameterSet sourcesOf(int id) const;
  /// What depends on a parameter, directly or by way of others.
  ParameterSet consequencesOf(int id) const;
  /// The parameters on whose change a rule writes this one.
  ParameterSet triggersOf(int id) const;
  /// How the value of a parameter came about: the effect that brings the number that the project
  /// held, to some digits; of several the one with most sources. Null if no rule would bring it.
  const Effect* explanationOf(int id) const;

private:
  void addEffects(const RuleTarget& project, std::span<const double> filters, int trigger,
                  void (*rule)(RuleTarget&));

  std::vector<Effect> effects_;
  std::vector<double> values_; ///< the numbers of the project, by id
};

/// A formula's symbol with what it stands for in a project.
struct FormulaOperand {
  FormulaSymbol symbol;
  double value; ///< in the stored unit
};

/// The operands of an effect's formula, which must not be null.
std::vector<FormulaOperand> operandsOf(const RuleGraph::Effect& effect, const RuleTarget& project);

} // namespace TVR
