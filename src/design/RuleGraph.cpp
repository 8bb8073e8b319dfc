#include "design/RuleGraph.h"

#include "design/DependencyRules.h"
#include "design/DesignFormulas.h"
#include "design/WellDesign.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace TVR {

using namespace Parameter;

namespace {

/// Of numbers: some large, so that the other branch of a maximum shows, and nothing at all.
constexpr double factors[] = {0.0, 0.05, 0.7, 1.5, 20.0};

/// What a rule last wrote to each parameter. Only that stays.
using LastWrites = std::map<int, const RecordedWrite*>;

LastWrites lastWrites(const RuleRecorder& recorder) {
  LastWrites last;
  for (const RecordedWrite& write : recorder.writes())
    last[write.id] = &write;
  return last;
}

std::size_t indexOf(int id) {
  return static_cast<std::size_t>(id);
}

bool isClose(double one, double other) {
  constexpr double tolerance = 1e-9;
  return one == other ||
         std::abs(one - other) <= tolerance * std::max(std::abs(one), std::abs(other));
}

/// Whether the rule read what the symbol stands for.
bool hasRead(const ParameterSet& reads, const FormulaSymbol& symbol) {
  if (reads.test(indexOf(symbol.id)))
    return true;
  return symbol.id == AquiferThickness && reads.test(GroundwaterTable) && reads.test(AquiferBasis);
}

/// The formula whose operands are what the write depends on. Other operands only count if the rule
/// has at least read them: the smaller term of a maximum may have no effect. A search gives several
/// results at once.
const RuleFormula* formulaFor(const RuleGraph::Effect& effect) {
  const RuleFormula* best = nullptr;
  std::ptrdiff_t most = 0;
  for (const RuleFormula& formula : formulasOf(effect.write.id)) {
    const auto operands = formula.operands();
    if (!std::ranges::all_of(operands, [&effect](const FormulaSymbol& symbol) {
          return hasRead(effect.write.reads, symbol);
        }))
      continue;
    const auto counting = std::ranges::count_if(operands, [&effect](const FormulaSymbol& symbol) {
      return symbol.id == effect.write.id || hasRead(effect.sources, symbol);
    });
    const bool isSearch = *formula.text == '\0';
    if (isSearch && effect.write.isFurther)
      return &formula;
    const auto score = 2 * counting - std::ssize(operands);
    if (!best || score > most) {
      best = &formula;
      most = score;
    }
  }
  return best;
}

template <typename Follow>
ParameterSet closure(int id, const std::vector<RuleGraph::Effect>& effects, const Follow& follow) {
  ParameterSet found;
  ParameterSet reached;
  reached.set(indexOf(id));
  while (reached != found) {
    found = reached;
    for (const RuleGraph::Effect& effect : effects)
      follow(effect, reached);
  }
  return found.reset(indexOf(id));
}

} // namespace

RuleGraph::RuleGraph(const RuleTarget& project) {
  std::vector<double> filters;
  for (int row = 1; row <= DesignFormulas::filterRows; ++row)
    filters.push_back(project.providedFilterDiameter(row));
  for (int id = 0; id < Count; ++id)
    values_.push_back(project.number(id));
  for (const auto& [trigger, rule] : dependencyRules())
    addEffects(project, filters, trigger, rule);
}

void RuleGraph::addEffects(const RuleTarget& project, std::span<const double> filters, int trigger,
                           void (*rule)(RuleTarget&)) {
  RuleRecorder present(project, filters);
  rule(present);
  const LastWrites written = lastWrites(present);
  std::map<int, ParameterSet> sources;
  for (int id = 0; id < Count; ++id) {
    if (!present.reads().test(indexOf(id)))
      continue;
    for (const double factor : factors) {
      RuleRecorder altered(project, filters, Alteration{id, factor});
      rule(altered);
      const LastWrites others = lastWrites(altered);
      for (const auto& [result, write] : written) {
        const auto other = others.find(result);
        if (result != id && (other == others.end() || !write->isSame(*other->second)))
          sources[result].set(indexOf(id));
      }
    }
  }
  for (const auto& [result, write] : written) {
    Effect effect{trigger, *write, sources[result], nullptr};
    effect.formula = formulaFor(effect);
    effects_.push_back(std::move(effect));
  }
}

ParameterSet RuleGraph::sourcesOf(int id) const {
  return closure(id, effects_, [](const Effect& effect, ParameterSet& reached) {
    if (reached.test(indexOf(effect.write.id)))
      reached |= effect.sources;
  });
}

ParameterSet RuleGraph::consequencesOf(int id) const {
  return closure(id, effects_, [](const Effect& effect, ParameterSet& reached) {
    if ((reached & effect.sources).any())
      reached.set(indexOf(effect.write.id));
  });
}

ParameterSet RuleGraph::triggersOf(int id) const {
  ParameterSet triggers;
  for (const Effect& effect : effects_)
    if (effect.write.id == id)
      triggers.set(indexOf(effect.trigger));
  return triggers;
}

const RuleGraph::Effect* RuleGraph::explanationOf(int id) const {
  const Effect* best = nullptr;
  for (const Effect& effect : effects_) {
    if (effect.write.id != id || !effect.formula ||
        !isClose(effect.write.number, values_[indexOf(id)]))
      continue;
    if (!best || effect.sources.count() > best->sources.count())
      best = &effect;
  }
  return best;
}

std::vector<FormulaOperand> operandsOf(const RuleGraph::Effect& effect, const RuleTarget& project) {
  std::vector<FormulaOperand> operands;
  for (const FormulaSymbol& symbol : effect.formula->operands()) {
    const bool isDerivedThickness =
        symbol.id == AquiferThickness && !effect.write.reads.test(AquiferThickness);
    operands.push_back(
        {symbol, isDerivedThickness ? aquiferThickness(project) : project.number(symbol.id)});
  }
  return operands;
}

} // namespace TVR
