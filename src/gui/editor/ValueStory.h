#pragma once

#include "design/RuleGraph.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

namespace TVR::Data {
class Manager;
class ValueOrigins;
} // namespace TVR::Data

namespace TVR::GUI {

class DisplayUnits;

/// Tells how the values of a store come about: where each comes from, the formula of the rule that
/// computes it with what stands in it at present, and what sets the rule off.
class ValueStory {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::ValueStory)

public:
  /// `store` and `units` outlive it.
  ValueStory(const Data::Manager& store, const DisplayUnits& units);

  /// Where values come from; without it nothing is said of that.
  void setOrigins(const std::shared_ptr<const Data::ValueOrigins>& origins) { origins_ = origins; }
  /// The store has changed.
  void forget() { graph_.reset(); }

  /// What depends on what in the project as it stands.
  const RuleGraph& graph() const;
  /// Whether a rule has computed the value of a parameter (Parameter::Id).
  bool isComputed(int id) const;
  /// The story of a parameter's value as rich text in the language of the moment.
  QString text(int id) const;

private:
  QString originText(int id) const;
  QString formulaText(const RuleGraph::Effect& effect) const;
  QString operandText(const FormulaOperand& operand) const;
  QString triggerText(int id) const;

  const Data::Manager& store_;
  const DisplayUnits& units_;
  std::shared_ptr<const Data::ValueOrigins> origins_;
  mutable std::optional<RuleGraph> graph_; ///< made when it is asked for
};

} // namespace TVR::GUI
