#include "gui/editor/DependencyMarks.h"

#include "design/RuleGraph.h"
#include "gui/editor/DesignTree.h"

namespace TVR::GUI {

void DependencyMarks::show(int selected, const RuleGraph& graph) {
  const ParameterSet sources = graph.sourcesOf(selected);
  const ParameterSet consequences = graph.consequencesOf(selected);
  for (const auto& [id, property] : tree_.propertyOfId()) {
    const auto index = static_cast<std::size_t>(id);
    if (sources.test(index) && consequences.test(index))
      property->setBadge(QStringLiteral("↔"), tr("Depends on the selected value, and it on this."));
    else if (sources.test(index))
      property->setBadge(QStringLiteral("→"), tr("The selected value depends on this."));
    else if (consequences.test(index))
      property->setBadge(QStringLiteral("←"), tr("Depends on the selected value."));
    else
      property->setBadge({}, {});
  }
}

void DependencyMarks::clear() {
  for (const auto& [id, property] : tree_.propertyOfId())
    property->setBadge({}, {});
}

} // namespace TVR::GUI
