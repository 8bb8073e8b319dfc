#pragma once

#include <QString>

namespace TVR {

/// What the user is told of an error of the simulator: the end of the text (the integrator's
/// status) selects an explanation, any other text stays, and a hint names the model at fault: the
/// heat model once the groundwater model has done its part.
QString solverMessage(const QString& errorText, bool groundwaterDone);

} // namespace TVR
