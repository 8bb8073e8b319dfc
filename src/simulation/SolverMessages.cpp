#include "simulation/SolverMessages.h"

#include "simulation/RunText.h"

#include <array>

namespace TVR {

namespace {

struct Explanation {
  const char* ending;
  const char* text;
};

constexpr std::array explanations = {
    Explanation{"-2", QT_TRANSLATE_NOOP("Simulation", "The solver could not satisfy the accuracy "
                                                      "demanded by the user for some internal "
                                                      "step.<br>")},
    Explanation{"-3", QT_TRANSLATE_NOOP("Simulation", "Error test failures occurred too many times "
                                                      "during one internal time step or minimum "
                                                      "step size was reached.<br>")},
    Explanation{"-4", QT_TRANSLATE_NOOP("Simulation", "Convergence test failures occurred too many "
                                                      "times during one internal time step or "
                                                      "minimum step size was reached.<br>")},
    Explanation{"-5", QT_TRANSLATE_NOOP("Simulation",
                                        "The linear solver's initialization function failed.<br>")},
    Explanation{"-22",
                QT_TRANSLATE_NOOP("Simulation", "One of the function inputs is illegal.<br>")},
};

QString hint(bool groundwaterDone) {
  return groundwaterDone ? RunText::tr("Please change the model size and/or the numerical "
                                       "parameter of the <b>heat model</b>.")
                         : RunText::tr("Please change the model size and/or the numerical "
                                       "parameter of the <b>groundwater model</b>.");
}

} // namespace

QString solverMessage(const QString& errorText, bool groundwaterDone) {
  // Each replacement takes part in the tests that follow; none of them ends like a status.
  QString message = errorText;
  for (const Explanation& explanation : explanations)
    if (message.endsWith(explanation.ending))
      message = RunText::tr(explanation.text);
  return message + "\n\n" + hint(groundwaterDone);
}

} // namespace TVR
