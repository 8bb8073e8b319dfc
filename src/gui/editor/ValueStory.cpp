#include "gui/editor/ValueStory.h"

#include "gui/editor/DisplayUnits.h"
#include "project/ParameterTable.h"
#include "store/Manager.h"
#include "store/ValueOrigins.h"

#include <QStringList>

namespace TVR::GUI {

using Data::ValueOrigin;

namespace {

const QString lineBreak = QStringLiteral("<br>");

} // namespace

ValueStory::ValueStory(const Data::Manager& store, const DisplayUnits& units)
    : store_(store), units_(units) {}

const RuleGraph& ValueStory::graph() const {
  if (!graph_)
    graph_.emplace(store_.ruleReader());
  return *graph_;
}

bool ValueStory::isComputed(int id) const {
  return origins_ && origins_->of(id) == ValueOrigin::Rule;
}

QString ValueStory::originText(int id) const {
  if (!origins_)
    return {};
  switch (origins_->of(id)) {
  case ValueOrigin::ReferenceDatabase:
    return tr("From the reference database");
  case ValueOrigin::Typed:
    return tr("Entered");
  case ValueOrigin::Rule:
    return tr("Computed from other values");
  case ValueOrigin::Program:
    return tr("Set by the program");
  case ValueOrigin::File:
    return tr("From the file of the project");
  case ValueOrigin::Settings:
    return tr("From the last project");
  }
  return {};
}

QString ValueStory::operandText(const FormulaOperand& operand) const {
  const char* const stored = parameterRow(operand.symbol.id).unitOfValue();
  const DisplayUnit unit = units_.unitFor(stored).value_or(DisplayUnit{stored, 1.0});
  const QString number = QStringLiteral("%1 %2").arg(QString::number(operand.value * unit.scale),
                                                     QString::fromUtf8(unit.name).remove('-'));
  return tr("%1 = %2 (%3)", "symbol, value with unit, name of the value")
      .arg(QString::fromUtf8(operand.symbol.symbol), number.trimmed(),
           ParameterName::label(operand.symbol.id))
      .toHtmlEscaped();
}

QString ValueStory::formulaText(const RuleGraph::Effect& effect) const {
  const QString formula = QString::fromUtf8(effect.formula->text).toHtmlEscaped();
  QStringList lines;
  if (formula.isEmpty())
    lines << tr("Found by a search for the wells that carry the flow rate");
  else
    lines << tr("Formula: %1").arg(formula);
  for (const FormulaOperand& operand : operandsOf(effect, store_.ruleReader()))
    lines << operandText(operand);
  if (const QString source = QString::fromUtf8(effect.formula->source); !source.isEmpty())
    lines << tr("Source: %1").arg(source);
  return lines.join(lineBreak);
}

QString ValueStory::triggerText(int id) const {
  const ParameterSet triggers = graph().triggersOf(id);
  QStringList names;
  for (int trigger = 0; trigger < Parameter::Count; ++trigger)
    if (triggers.test(static_cast<std::size_t>(trigger)))
      names << ParameterName::label(trigger).toHtmlEscaped();
  names.removeAll({});
  names.removeDuplicates();
  return names.isEmpty() ? QString() : tr("Set by a change of: %1").arg(names.join(", "));
}

QString ValueStory::text(int id) const {
  QStringList parts{originText(id)};
  if (const RuleGraph::Effect* const effect = graph().explanationOf(id))
    parts << formulaText(*effect);
  parts << triggerText(id);
  parts.removeAll({});
  return parts.join(lineBreak);
}

} // namespace TVR::GUI
