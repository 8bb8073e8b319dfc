#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace TVR {

/// A symbol of a formula, and the parameter that it stands for (Parameter::Id). AquiferThickness
/// stands for what `aquiferThickness` gives where a rule takes that.
struct FormulaSymbol {
  const char* symbol = nullptr;
  int id = 0;
};

/// What a rule computes, as it is read. Texts are UTF-8, stand for values in stored units and need
/// no translation.
struct RuleFormula {
  static constexpr std::size_t mostSymbols = 9;

  int result;         ///< Parameter::Id
  const char* text;   ///< the right hand side; empty for a search, which has none
  const char* source; ///< author and year; empty where there is none to name
  std::array<FormulaSymbol, mostSymbols> symbols; ///< as many as have one, from the first

  std::span<const FormulaSymbol> operands() const;
};

/// The formulas of all rules that compute a number (DependencyRules), by id of the result. A
/// parameter has several where several rules compute it, or one of them from other parameters at
/// another time.
std::span<const RuleFormula> ruleFormulas();

/// Those of one parameter.
std::span<const RuleFormula> formulasOf(int result);

} // namespace TVR
