#pragma once

class QWizard;

namespace TVR::GUI {

/// Lets the button that finishes a wizard say what follows: a run. Nothing without a wizard.
void finishWithSimulation(QWizard* wizard);

} // namespace TVR::GUI
