#pragma once

#include <QCoreApplication>

namespace TVR {
class RuleGraph;
}

namespace TVR::GUI {

class DesignTree;

/// Marks what a selected value depends on, and what depends on it, by arrows before the names.
class DependencyMarks {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::DependencyMarks)

public:
  /// `tree` outlives it.
  explicit DependencyMarks(DesignTree& tree) : tree_(tree) {}

  /// Marks the rows for the one that shows a parameter (Parameter::Id).
  void show(int selected, const RuleGraph& graph);
  void clear();

private:
  DesignTree& tree_;
};

} // namespace TVR::GUI
