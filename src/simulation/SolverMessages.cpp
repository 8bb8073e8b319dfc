#include "simulation/SolverMessages.h"

#include <array>

namespace TVR {

namespace {

struct Explanation {
  const char* ending;
  const char* text;
};

constexpr std::array explanations = {
    Explanation{"-2", "The solver could not satisfy the accuracy demanded by the user for some "
                      "internal step.<br>"},
    Explanation{"-3", "Error test failures occurred too many times during one internal time step "
                      "or minimum step size was reached.<br>"},
    Explanation{"-4", "Convergence test failures occurred too many times during one internal time "
                      "step or minimum step size was reached.<br>"},
    Explanation{"-5", "The linear solver's initialization function failed.<br>"},
    Explanation{"-22", "One of the function inputs is illegal.<br>"},
};

constexpr char hint[] = "\n\nPlease change the model size and/or the numerical parameter of the "
                        "<b>%1 model</b>.";

} // namespace

QString solverMessage(const QString& errorText, bool groundwaterDone) {
  // Each replacement takes part in the tests that follow; none of them ends like a status.
  QString message = errorText;
  for (const Explanation& explanation : explanations)
    if (message.endsWith(explanation.ending))
      message = explanation.text;
  return message + QString(hint).arg(groundwaterDone ? "heat" : "groundwater");
}

} // namespace TVR
