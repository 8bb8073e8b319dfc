#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace TVR::Rules {

/// Computes a formula as it is written for people: "√(2 · Q · t) / |a − b|", "max(a, b)", "⌊a⌋",
/// "a > b ∧ c > d ? x : y". Throws on what it does not understand.
class FormulaReading {
public:
  FormulaReading(std::string_view text, const std::map<std::string, double>& symbols)
      : rest_(text), symbols_(symbols) {}

  double value() {
    const double result = choice();
    if (!rest_.empty())
      throw std::invalid_argument("left over: " + std::string(rest_));
    return result;
  }

private:
  bool takes(std::string_view token) {
    while (rest_.starts_with(' '))
      rest_.remove_prefix(1);
    if (!rest_.starts_with(token))
      return false;
    rest_.remove_prefix(token.size());
    return true;
  }
  void expect(std::string_view token) {
    if (!takes(token))
      throw std::invalid_argument("no " + std::string(token) + " in " + std::string(rest_));
  }

  double choice() {
    const double first = condition();
    if (!takes("?"))
      return first;
    const double yes = choice();
    expect(":");
    const double no = choice();
    return first != 0.0 ? yes : no;
  }
  double condition() {
    double result = comparison();
    while (takes("∧")) {
      const double next = comparison();
      result = result != 0.0 && next != 0.0 ? 1.0 : 0.0;
    }
    return result;
  }
  double comparison() {
    const double left = sum();
    if (!takes(">"))
      return left;
    return left > sum() ? 1.0 : 0.0;
  }
  double sum() {
    double result = product();
    for (;;) {
      if (takes("+"))
        result += product();
      else if (takes("−"))
        result -= product();
      else
        return result;
    }
  }
  double product() {
    double result = factor();
    for (;;) {
      if (takes("·"))
        result *= factor();
      else if (takes("/"))
        result /= factor();
      else
        return result;
    }
  }
  double factor() {
    if (takes("√"))
      return std::sqrt(factor());
    if (takes("π"))
      return 4.0 * std::atan(1.0);
    if (takes("|"))
      return std::abs(closed("|"));
    if (takes("⌊"))
      return std::floor(closed("⌋"));
    if (takes("("))
      return closed(")");
    if (takes("max("))
      return pair([](double a, double b) { return std::max(a, b); });
    if (takes("min("))
      return pair([](double a, double b) { return std::min(a, b); });
    return symbolOrNumber();
  }
  double closed(std::string_view end) {
    const double inner = choice();
    expect(end);
    return inner;
  }
  template <typename Choose>
  double pair(const Choose& choose) {
    const double first = choice();
    expect(",");
    return choose(first, closed(")"));
  }
  double symbolOrNumber() {
    for (auto symbol = symbols_.rbegin(); symbol != symbols_.rend(); ++symbol) // "E_h" before "E"
      if (takes(symbol->first))
        return symbol->second;
    std::size_t length = 0;
    const double number = std::stod(std::string(rest_), &length);
    rest_.remove_prefix(length);
    return number;
  }

  std::string_view rest_;
  const std::map<std::string, double>& symbols_;
};

} // namespace TVR::Rules
